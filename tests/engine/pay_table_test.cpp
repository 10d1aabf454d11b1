// Pay tables: the amounts each board shows at a bet, and which field pays each code.

#include <gtest/gtest.h>

// Standard library
#include <array>
#include <utility>
#include <vector>

// Marivale
#include "engine/money_format.h"
#include "engine/pay_table.h"

namespace marivale {
namespace {

std::vector<std::string> shownTable(GameId game, float bet) {
    GameState state;
    state.BetAmount = bet;
    ComputePayouts(state, game);
    std::vector<std::string> texts;
    for (const PayRow& row : payTable(game)) {
        texts.push_back(FormatMoney(state.*row.field, row.pattern));
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(PayTable, ShownAmounts) {
    EXPECT_EQ(shownTable(GameId::TreasureTrips, 0.25f),
              (Texts{"$62.50", "$25.00", "$12.50", "$3.75", "$2.00", "$1.25", "$0.75", "$0.25",
                     "$0.25"}));
    EXPECT_EQ(shownTable(GameId::JacksOrBetter, 200.0f),
              (Texts{"$50,000.00", "$20,000.00", "$5,000.00", "$1,600.00", "$1,000.00", "$800.00",
                     "$600.00", "$200.00", "200.00"}));
    EXPECT_EQ(shownTable(GameId::JacksOrBetter, 0.25f).back(), "0.25");
    EXPECT_EQ(shownTable(GameId::DeucesWild, 200.0f),
              (Texts{"$50,000.00", "$40,000.00", "$5,000.00", "$3,200.00", "$2,400.00", "$800.00",
                     "$600.00", "$200.00", "$200.00"}));
    EXPECT_EQ(shownTable(GameId::JokerWild, 10.0f),
              (Texts{"$2,000.00", "$1,000.00", "$500.00", "$150.00", "$100.00", "$50.00", "$30.00",
                     "$10.00", "$10.00"}));
}

TEST(PayTable, CaptionsAndBoxesKeepTheirDots) {
    const auto& dw = payTable(GameId::DeucesWild);
    EXPECT_EQ(dw[0].caption, "Natural Royal");
    EXPECT_EQ(dw[1].caption, "Four Deuces...");
    EXPECT_EQ(dw[7].caption, "Flush/Straight");
    EXPECT_EQ(dw[0].box, "NRoyal");
    const auto& tt = payTable(GameId::TreasureTrips);
    EXPECT_EQ(tt[5].caption, "Flush.............");
    EXPECT_EQ(tt[6].caption, "Straight..........");
    EXPECT_EQ(tt[8].caption, "Two Pair........");
    EXPECT_EQ(payTable(GameId::JokerWild)[8].caption, "Two Pair/Aces");
    EXPECT_EQ(payTable(GameId::JacksOrBetter)[8].caption, "Jacks or Better");
}

// Every code a game uses has a row, code 0 has none, and the shared rows pay both codes.
TEST(PayTable, CodeToPayoutField) {
    constexpr std::array<std::pair<GameId, int>, kGameCount> kTopCodes{{
        {GameId::JacksOrBetter, 9},
        {GameId::DeucesWild, 10},
        {GameId::JokerWild, 9},
        {GameId::TreasureTrips, 9},
    }};
    for (const auto& [game, top] : kTopCodes) {
        EXPECT_EQ(payoutFieldFor(game, 0), nullptr);
        for (int code = 1; code <= 10; ++code) {
            const bool used = code <= top;
            EXPECT_EQ(payoutFieldFor(game, static_cast<std::uint8_t>(code)) != nullptr, used)
                << shortName(game) << " " << code;
        }
    }
    EXPECT_EQ(payoutFieldFor(GameId::DeucesWild, 2), &GameState::PayoutFlush);
    EXPECT_EQ(payoutFieldFor(GameId::DeucesWild, 3), &GameState::PayoutFlush);
    EXPECT_EQ(payoutFieldFor(GameId::DeucesWild, 10), &GameState::PayoutRoyal);
    EXPECT_EQ(payoutFieldFor(GameId::JokerWild, 1), &GameState::PayoutTwoPair);
    EXPECT_EQ(payoutFieldFor(GameId::JacksOrBetter, 1), &GameState::PayoutPair);
    EXPECT_EQ(payoutFieldFor(GameId::JacksOrBetter, 9), &GameState::PayoutRoyal);
    EXPECT_EQ(payoutFieldFor(GameId::TreasureTrips, 9), &GameState::PayoutFiveKind);
}

} // namespace
} // namespace marivale
