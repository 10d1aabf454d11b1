// Money in every pattern the displays use.

// Standard library
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

// Marivale
#include "engine/money_format.h"

namespace marivale {
namespace {

struct MoneyCase {
    float value;
    const char* pattern;
    const char* text;
};

// Every pattern the game uses; "$##0.00" alone is also checked against every float below.
TEST(FormatMoney, EveryPatternTheGameUses) {
    const MoneyCase cases[] = {
        {1250.0f, "$#,###,##0.00", "$1,250.00"},
        {1250.0f, "$###,##0.00", "$1,250.00"},
        {1250.0f, "$##,##0.00", "$1,250.00"},
        {1250.0f, "$#,##0.00", "$1,250.00"},
        {0.25f, "$#,###,##0.00", "$0.25"},
        {0.25f, "##0.00", "0.25"},
        {5.0f, "##0.00", "5.00"},
        {200.0f, "##0.00", "200.00"},
        {0.0f, "$##,##0.00", "$0.00"},
        {1234.5f, "$##,##0.00", "$1,234.50"},
        {50000.0f, "$##,##0.00", "$50,000.00"},
        {1234567.0f, "$#,###,##0.00", "$1,234,567.00"},
        {123456789.0f, "$#,##0.00", "$123,456,792.00"},
        {-20.0f, "$#,###,##0.00", "-$20.00"},
        {-20.0f, "#,###,##0.00", "-20.00"},
        {-2000.0f, "$#,###,##0.00", "-$2,000.00"},
        {-0.25f, "$#,###,##0.00", "-$0.25"},
        {-5.0f, "#,###,##0.00", "-5.00"},
        {15.0f, "#,###,##0.00", "15.00"},
        {6000.0f, "$#,##0.00", "$6,000.00"},
        {0.125f, "$##0.00", "$0.13"},
        {2.675f, "$##0.00", "$2.67"}, // the float just below 2.675
        {-0.001f, "$#,###,##0.00", "-$0.00"},
        {-0.004f, "$#,###,##0.00", "-$0.00"},
        {-0.004f, "#,###,##0.00", "-0.00"},
        {-0.0f, "$#,###,##0.00", "$0.00"},
        {std::nanf(""), "$#,###,##0.00", "$0.00"},
        {-std::nanf(""), "$##0.00", "$0.00"},
        // Amounts far beyond a 64-bit integer print every digit of the float's exact value, with
        // their sign, whatever the pattern's number of "#".
        {2e20f, "$#,###,##0.00", "$200,000,004,008,175,468,544.00"},
        {-2e20f, "$#,###,##0.00", "-$200,000,004,008,175,468,544.00"},
        {-2e20f, "##0.00", "-200000004008175468544.00"},
        {1.85e17f, "$#,##0.00", "$184,999,995,378,761,728.00"},
        {-1.85e17f, "#,###,##0.00", "-184,999,995,378,761,728.00"},
        {1.8446744e19f, "$##,##0.00", "$18,446,744,073,709,551,616.00"},
        {3.4028235e38f, "$#,###,##0.00", "$340,282,346,638,528,859,811,704,183,484,516,925,440.00"},
        {123456.789f, "$#,###,##0.00", "$123,456.79"},
        {-99999.99f, "$##,##0.00", "-$99,999.99"},
        {1e-45f, "$#,###,##0.00", "$0.00"},
    };
    for (const MoneyCase& c : cases) {
        EXPECT_EQ(FormatMoney(c.value, c.pattern), c.text) << c.value << " " << c.pattern;
    }
}

// Floats of every size, drawn from their bit patterns, against the C library's exact decimal
// expansion; exact ties are left out, since the game rounds them away from zero.
TEST(FormatMoney, AgreesWithTheExactExpansionAcrossAllFloats) {
    std::mt19937 random(20261123);
    for (int round = 0; round < 200000; ++round) {
        const std::uint32_t bits = static_cast<std::uint32_t>(random());
        float value = 0.0f;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) {
            continue;
        }
        const double cents = std::fabs(static_cast<double>(value)) * 100.0;
        if (cents - std::floor(cents) == 0.5) {
            continue;
        }
        char expected[128];
        std::snprintf(expected, sizeof expected, "%.2f", std::fabs(static_cast<double>(value)));
        const bool negative = value < 0.0f;
        ASSERT_EQ(FormatMoney(value, "$##0.00"), (negative ? "-$" : "$") + std::string(expected))
            << bits;
    }
}

} // namespace
} // namespace marivale
