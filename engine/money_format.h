#pragma once

#include <string>
#include <string_view>

namespace marivale {

// Renders dollars with a display pattern such as "$#,###,##0.00": "$" printed as is, "0" a digit
// always printed, "#" a digit printed only when significant (it never limits the digits), a
// comma among the integer digits groups by thousands, ".00" gives two decimals rounded half away
// from zero, and a negative value gets a minus in front of everything, whatever its size (-$20.00,
// and -$0.00 for -0.004; negative zero is $0.00). Every float prints the digits of its exact
// value, however large (2E+20 is $200,000,004,008,175,468,544.00).
std::string FormatMoney(float value, std::string_view pattern);

// The pattern of every money display, by what it shows.
namespace pattern {
inline constexpr std::string_view kTotal = "$#,###,##0.00"; // the running total and its messages
inline constexpr std::string_view kCredit = "$#,###,##0.00";
inline constexpr std::string_view kStatistic = "$#,###,##0.00";
inline constexpr std::string_view kStatisticPlain = "#,###,##0.00";
inline constexpr std::string_view kBet = "$##0.00";
inline constexpr std::string_view kWinLast = "$##,##0.00";
inline constexpr std::string_view kBonus = "$#,##0.00";
inline constexpr std::string_view kCompanion = "$#,##0.00"; // Strategy and statistics windows
} // namespace pattern

} // namespace marivale
