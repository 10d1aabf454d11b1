// The chart lines of holds worked by hand: what the held cards make or draw to, their gaps,
// high cards and wild cards, and the names a chart prints.

#include <gtest/gtest.h>

// Standard library
#include <array>
#include <string_view>

// Marivale
#include "engine/odds/chart_line.h"
#include "tests/support/hand_text.h"

namespace marivale {
namespace {

struct HoldCase {
    GameId game;
    std::string_view deal;
    unsigned held; // bit p for position p
    std::string_view name;
};

constexpr GameId kJB = GameId::JacksOrBetter;
constexpr GameId kDW = GameId::DeucesWild;
constexpr GameId kWJ = GameId::JokerWild;
constexpr GameId kTT = GameId::TreasureTrips;

const std::array<HoldCase, 30> kHolds{{
    {kJB, "2c 7d 9h Js Kd", 0b00000, "Discard everything"},
    {kJB, "Ts Js Qs Ks 3d", 0b01111, "4 to a Royal Flush, 3 high cards"},
    {kJB, "Jh Jd 5c 8s 2c", 0b00011, "High Pair"},
    {kJB, "Ah Ad 5c 8s 2c", 0b00011, "High Pair"},
    {kJB, "5h 5d Kc 8s 2c", 0b00011, "Low Pair"},
    {kJB, "5h 5d Kc 8s 2c", 0b00111, "Low Pair, 1 kicker"},
    {kJB, "8h 9h Jh 4c 2d", 0b00111, "3 to a Straight Flush, 1 gap, 1 high card"},
    {kJB, "5h 6h 7h Kc 2d", 0b00111, "3 to a Straight Flush, no gaps, no high cards"},
    {kJB, "Ah 2h 3h Kc 9d", 0b00111, "3 to a Straight Flush, 2 gaps, 1 high card"},
    {kJB, "2h 3h 4h Kc 9d", 0b00111, "3 to a Straight Flush, 1 gap, no high cards"},
    {kJB, "Qh Jh 4c 7d 9s", 0b00011, "Suited QJ"},
    {kJB, "Th Jh 4c 7d 9s", 0b00011, "Suited J10"},
    {kJB, "Kc Qd Jh 4c 7d", 0b00111, "Unsuited KQJ"},
    {kJB, "Ac 4d 7h 9s Ks", 0b00001, "Ace"},
    {kJB, "5c 6d 7h 8s Kd", 0b01111, "4 to an Outside Straight, no high cards"},
    {kJB, "9c Td Jh Qs 2d", 0b01111, "4 to an Outside Straight, 2 high cards"},
    {kJB, "Jc Qd Kh Ac 3d", 0b01111, "4 to an Inside Straight, 4 high cards"},
    {kJB, "2h 7h 9h Kh 4c", 0b01111, "4 to a Flush, 1 high card"},
    {kJB, "2h 7h 9h Kh 4h", 0b11111, "Flush"},
    {kJB, "Tc Jc Qc Kc Ac", 0b11111, "Royal Flush"},
    {kJB, "3c 3d 3h 9s 9d", 0b11111, "Full House"},
    {kJB, "3c 3d 3h 9s Kd", 0b01111, "Three of a Kind, 1 kicker"},
    {kJB, "3c 3d 9h 9s Kd", 0b01111, "Two Pair"},
    {kDW, "2c 2d Ah Kh 7s", 0b00011, "2 Deuces"},
    {kDW, "2c Qh Jh Th 7s", 0b01111, "4 to a Royal Flush, 1 Deuce"},
    {kDW, "2c 5h 5d 7s 9c", 0b00111, "Three of a Kind, 1 Deuce"},
    {kDW, "2c 2d 2h 9s 4c", 0b11111, "Four of a Kind, 1 kicker, 3 Deuces"},
    {kWJ, "Jk Ah 7c 9d 4s", 0b00011, "Ace, Joker"},
    {kWJ, "Jk Kh Qh 9d 4s", 0b00111, "3 to a Royal Flush, 2 gaps, no high cards, Joker"},
    {kTT, "5h 5d Ac 7s 9c", 0b00011, "Pair"},
}};

TEST(ChartLine, HoldsWorkedByHand) {
    for (const HoldCase& hold : kHolds) {
        SCOPED_TRACE(hold.deal);
        const HandCards deal = testing::cardsFromText(hold.deal);
        const odds::ChartLine line = odds::chartLineOf(hold.game, deal, hold.held);
        EXPECT_EQ(odds::lineName(hold.game, line), hold.name);
    }
}

// The line never depends on where the held cards lie nor on which suit is which.
TEST(ChartLine, SameCardsSameLine) {
    const auto a = odds::chartLineOf(kJB, testing::cardsFromText("8h 9h Jh 4c 2d"), 0b00111);
    const auto b = odds::chartLineOf(kJB, testing::cardsFromText("4c Js 9s 2d 8s"), 0b10110);
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.key(), b.key());
    const auto other = odds::chartLineOf(kJB, testing::cardsFromText("8h 9h Jh 4c 2d"), 0b00011);
    EXPECT_NE(a.key(), other.key());
}

} // namespace
} // namespace marivale
