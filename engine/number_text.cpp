#include "engine/number_text.h"

// Standard library
#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace marivale {

std::string fixedText(double value, int decimals) {
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, decimals);
    if (error != std::errc{}) {
        return "?";
    }
    return std::string(buffer.data(), end);
}

std::string groupedText(double value, int decimals, bool plusSign) {
    std::string digits = fixedText(value < 0.0 ? -value : value, decimals);
    const bool zero = digits.find_first_not_of("0.") == std::string::npos;
    const auto point = std::min(digits.find('.'), digits.size());
    for (auto at = static_cast<std::ptrdiff_t>(point) - 3; at > 0; at -= 3) {
        digits.insert(static_cast<std::size_t>(at), 1, ',');
    }
    if (zero) {
        return digits;
    }
    return (value < 0.0 ? "-" : plusSign ? "+" : "") + digits;
}

} // namespace marivale
