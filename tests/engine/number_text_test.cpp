// Numbers as the program writes them: a fixed "." point, thousands, and the sign.

#include <gtest/gtest.h>

// Standard library
#include <tuple>

// Marivale
#include "engine/number_text.h"

namespace marivale {
namespace {

TEST(NumberText, FixedAndGrouped) {
    EXPECT_EQ(fixedText(1234567.891, 2), "1234567.89");
    EXPECT_EQ(fixedText(-0.5, 4), "-0.5000");
    const std::tuple<double, int, bool, const char*> grouped[] = {
        {1234567.891, 2, false, "1,234,567.89"},
        {-1000.0, 0, true, "-1,000"},
        {999.6, 0, true, "+1,000"},
        {0.25, 2, true, "+0.25"},
        {-0.004, 2, true, "0.00"},
        {123.0, 1, false, "123.0"}};
    for (const auto& [value, decimals, plus, text] : grouped) {
        EXPECT_EQ(groupedText(value, decimals, plus), text);
    }
}

} // namespace
} // namespace marivale
