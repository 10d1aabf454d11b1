// Settlement: what reaches the credits and the Win box for each kind of finished hand.

#include <gtest/gtest.h>

// Marivale
#include "engine/money_format.h"
#include "engine/pay_table.h"
#include "engine/settlement.h"

namespace marivale {
namespace {

// Multiplies the bonus by the given chest factors, as a player opening chests would.
class FakeChests final : public TreasureHunt {
public:
    explicit FakeChests(std::vector<int> factors) : factors_(std::move(factors)) {}
    void play(GameState& state) override {
        ++plays;
        seed = state.BonusAmount;
        for (const int f : factors_) {
            state.BonusAmount = static_cast<float>(f) * state.BonusAmount;
        }
    }
    int plays{0};
    float seed{0.0f};

private:
    std::vector<int> factors_;
};

constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId DW = GameId::DeucesWild;
constexpr GameId WJ = GameId::JokerWild;
constexpr GameId TT = GameId::TreasureTrips;

struct SettleCase {
    const char* what;
    GameId game;
    float bet;
    float credits;
    std::uint8_t code;
    std::int16_t factor;
    bool bonusDue;
    std::vector<int> chests;
    float creditsAfter;
    const char* winText;
    const char* creditText;
    bool bonusPlayed;
};

TEST(SettleHand, PaysTheHand) {
    const SettleCase cases[] = {
        {"flush", JB, 1, 1000, 5, 0, false, {}, 1005, "$5.00", "$1,005.00", false},
        {"flush doubled twice", JB, 1, 1000, 5, 4, false, {}, 1020, "$20.00", "$1,020.00", false},
        {"flush doubled thrice", JB, 1, 0, 5, 8, false, {}, 40, "$40.00", "$40.00", false},
        {"straight on the flush row", DW, 5, 0, 2, 0, false, {}, 5, "$5.00", "$5.00", false},
        {"two pair", WJ, 2, 0, 1, 0, false, {}, 2, "$2.00", "$2.00", false},
        {"natural royal", DW, 200, 0, 10, 0, false, {}, 50000, "$50,000.00", "$50,000.00", false},
        {"doubled trips", JB, 200, 0, 2, 8, false, {}, 1600, "$1600.00", "$1,600.00", false},
        {"four 3s and joker", TT, 1, 0, 6, 0, true, {12}, 27, "$27.00", "$27.00", true},
        {"three 3s stood on", TT, 1, 10, 2, 0, true, {6}, 17, "$7.00", "$17.00", true},
        {"no chest opened", TT, 1, 0, 5, 0, true, {}, 9, "$9.00", "$9.00", true},
        {"two chests", TT, 0.25f, 0, 2, 0, true, {3, 30}, 22.75f, "$22.75", "$22.75", true},
        {"a straight has no bonus", TT, 1, 0, 3, 0, true, {30}, 3, "$3.00", "$3.00", false},
    };
    for (const SettleCase& c : cases) {
        GameState state;
        state.BetAmount = c.bet;
        ComputePayouts(state, c.game);
        state.Credits = c.credits;
        state.HandRank = c.code;
        state.DoubleUpFactor = c.factor;
        state.BonusDue = c.bonusDue ? kTrue : kFalse;
        FakeChests chests(c.chests);
        const Settlement result = SettleHand(state, c.game, chests);
        EXPECT_TRUE(result.paid) << c.what;
        EXPECT_EQ(result.bonusPlayed, c.bonusPlayed) << c.what;
        EXPECT_EQ(chests.plays, c.bonusPlayed ? 1 : 0) << c.what;
        if (c.bonusPlayed) {
            EXPECT_EQ(chests.seed, c.bet) << c.what;
        }
        EXPECT_EQ(state.Credits, c.creditsAfter) << c.what;
        EXPECT_EQ(FormatMoney(state.WinAmount, result.winPattern), c.winText) << c.what;
        EXPECT_EQ(FormatMoney(state.Credits, pattern::kCredit), c.creditText) << c.what;
        EXPECT_EQ(state.DoubleUpFactor, c.factor) << c.what;
    }
}

TEST(SettleHand, ACodeWithoutARowChangesNothing) {
    for (const std::uint8_t code : {std::uint8_t{0}, std::uint8_t{10}}) {
        GameState state;
        state.BetAmount = 1;
        ComputePayouts(state, GameId::JacksOrBetter);
        state.Credits = 50;
        state.WinAmount = 3;
        state.HandRank = code;
        FakeChests chests({});
        EXPECT_FALSE(SettleHand(state, GameId::JacksOrBetter, chests).paid);
        EXPECT_EQ(state.Credits, 50.0f);
        EXPECT_EQ(state.WinAmount, 3.0f);
    }
}

struct PatternRow {
    std::uint8_t code;
    const char* tt;
    const char* wj;
    const char* jb;
    const char* dw;
};

TEST(WinPattern, ByCodeAndGame) {
    const PatternRow rows[] = {
        {10, "", "", "", "$###,##0.00"},
        {9, "$###,##0.00", "$##,##0.00", "$###,##0.00", "$##,##0.00"},
        {8, "$##,##0.00", "$##,##0.00", "$##,##0.00", "$##,##0.00"},
        {7, "$##,##0.00", "$##,##0.00", "$##,##0.00", "$#,##0.00"},
        {6, "$#,##0.00", "$#,##0.00", "$#,##0.00", "$#,##0.00"},
        {3, "$#,##0.00", "$#,##0.00", "$#,##0.00", "$##0.00"},
        {2, "$#,##0.00", "$##0.00", "$##0.00", "$##0.00"},
        {1, "$##0.00", "$##0.00", "$##0.00", "$##0.00"},
    };
    for (const PatternRow& row : rows) {
        EXPECT_EQ(winPatternFor(GameId::TreasureTrips, row.code), row.tt) << int(row.code);
        EXPECT_EQ(winPatternFor(GameId::JokerWild, row.code), row.wj) << int(row.code);
        EXPECT_EQ(winPatternFor(GameId::JacksOrBetter, row.code), row.jb) << int(row.code);
        EXPECT_EQ(winPatternFor(GameId::DeucesWild, row.code), row.dw) << int(row.code);
    }
}

} // namespace
} // namespace marivale
