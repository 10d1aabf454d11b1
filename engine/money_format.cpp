#include "engine/money_format.h"

// Standard library
#include <cmath>
#include <cstdint>

namespace marivale {

// Patterns are "$"? then integer digits ("#", "0", ",") then "." and decimal zeros.
std::string FormatMoney(float value, std::string_view pattern) {
    const bool dollar = !pattern.empty() && pattern.front() == '$';
    const auto point = pattern.find('.');
    const std::string_view integerPart = pattern.substr(0, point);
    const bool grouping = integerPart.find(',') != std::string_view::npos;
    int minIntegerDigits = 0;
    for (const char c : integerPart) {
        minIntegerDigits += c == '0' ? 1 : 0;
    }
    const int decimals =
        point == std::string_view::npos ? 0 : static_cast<int>(pattern.size() - point - 1);

    double scale = 1.0;
    for (int i = 0; i < decimals; ++i) {
        scale *= 10.0;
    }
    // Rounds half away from zero on the exact value of the float.
    const double scaled = std::round(std::fabs(static_cast<double>(value)) * scale);
    const auto units = static_cast<std::uint64_t>(scaled);
    const auto divisor = static_cast<std::uint64_t>(scale);
    const bool negative = value < 0.0f && units != 0;

    std::string whole = std::to_string(units / divisor);
    while (static_cast<int>(whole.size()) < minIntegerDigits) {
        whole.insert(whole.begin(), '0');
    }
    if (whole == "0" && minIntegerDigits == 0) {
        whole.clear();
    }
    if (grouping) {
        for (int at = static_cast<int>(whole.size()) - 3; at > 0; at -= 3) {
            whole.insert(static_cast<std::size_t>(at), 1, ',');
        }
    }
    std::string text;
    if (negative) {
        text += '-';
    }
    if (dollar) {
        text += '$';
    }
    text += whole;
    if (decimals > 0) {
        std::string fraction = std::to_string(units % divisor);
        fraction.insert(fraction.begin(), static_cast<std::size_t>(decimals) - fraction.size(),
                        '0');
        text += '.';
        text += fraction;
    }
    return text;
}

} // namespace marivale
