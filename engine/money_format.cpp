#include "engine/money_format.h"

// Standard library
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace marivale {

namespace {

// The decimal digits of a whole, non-negative double, exactly as the value is held.
std::string wholeDigits(double whole) {
    // The largest float times 10^8 has 47 digits; the buffer holds far more.
    std::array<char, 400> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole,
                                      std::chars_format::fixed, 0);
    return {buffer.data(), result.ptr};
}

} // namespace

// Patterns are "$"? then integer digits ("#", "0", ",") then "." and decimal zeros. Every digit
// of the float's exact value is printed, however large: "#" never limits the digits.
std::string FormatMoney(float value, std::string_view pattern) {
    const bool dollar = !pattern.empty() && pattern.front() == '$';
    const auto point = pattern.find('.');
    const std::string_view integerPart = pattern.substr(0, point);
    const bool grouping = integerPart.find(',') != std::string_view::npos;
    std::size_t minIntegerDigits = 0;
    for (const char c : integerPart) {
        minIntegerDigits += c == '0' ? 1 : 0;
    }
    const std::size_t decimals = point == std::string_view::npos ? 0 : pattern.size() - point - 1;

    // A NaN shows as nothing at all; an infinity as the largest float of its sign.
    if (std::isnan(value)) {
        value = 0.0f;
    } else if (std::isinf(value)) {
        value = std::copysign(std::numeric_limits<float>::max(), value);
    }
    double scale = 1.0;
    for (std::size_t i = 0; i < decimals; ++i) {
        scale *= 10.0;
    }
    // A float has 24 significant bits and a scale of up to 10^8 fits in 27 more, so the
    // product is exact in a double, and rounding it half away from zero rounds the float's
    // exact value.
    const double scaled = std::round(std::fabs(static_cast<double>(value)) * scale);
    std::string digits = wholeDigits(scaled);
    // Any negative value keeps its sign, even one that rounds to no cents; -0 is not negative.
    const bool negative = value < 0.0f;

    // At least one digit before the split into whole and decimals.
    if (digits.size() < decimals + 1) {
        digits.insert(0, decimals + 1 - digits.size(), '0');
    }
    std::string whole = digits.substr(0, digits.size() - decimals);
    const std::string fraction = digits.substr(digits.size() - decimals);
    if (whole.size() < minIntegerDigits) {
        whole.insert(0, minIntegerDigits - whole.size(), '0');
    }
    if (whole == "0" && minIntegerDigits == 0) {
        whole.clear();
    }
    if (grouping) {
        for (auto at = static_cast<std::ptrdiff_t>(whole.size()) - 3; at > 0; at -= 3) {
            whole.insert(at, 1, ',');
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
        text += '.';
        text += fraction;
    }
    return text;
}

} // namespace marivale
