// The risk of ruin: the recursion against sessions worked out by hand, on a grid of half bets
// and on pays off every grid; the pays of a whole game under the best play with the Treasure
// Hunt's chests; and the published 9/6 Jacks or Better figure.

#include <gtest/gtest.h>

// Standard library
#include <array>
#include <cmath>
#include <vector>

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/risk_of_ruin.h"
#include "tests/support/odds_test_support.h"

namespace marivale {
namespace {

using odds::Payout;

using testing::kCoin;
using testing::kHalves;
using testing::kThreeWay;

struct HandWorked {
    const std::vector<Payout>* payouts;
    double bankroll;
    int hands;
    double risk;
};

// Each worked through every sequence of hands: e.g. two bets and three hands of kCoin is ruined
// only by losing the first two hands (1/4); one bet and three hands of kThreeWay is ruined by a
// first loss (1/2) or a push and then a loss (1/4 x 1/2).
const std::array<HandWorked, 11> kHandWorked{{
    {&kCoin, 0, 1, 1.0},
    {&kCoin, 1, 1, 0.0},
    {&kCoin, 1, 2, 0.5},
    {&kCoin, 1, 3, 0.5},
    {&kCoin, 2, 3, 0.25},
    {&kCoin, 2.9, 3, 0.25}, // a part of a bet never covers one
    {&kThreeWay, 1, 2, 0.5},
    {&kThreeWay, 1, 3, 0.625},
    {&kThreeWay, 2, 3, 0.25},
    {&kHalves, 1.5, 3, 0.5},
    {&kHalves, 2, 3, 0.25},
}};

TEST(RiskOfRuin, SessionsWorkedByHand) {
    for (const HandWorked& worked : kHandWorked) {
        SCOPED_TRACE(::testing::Message()
                     << worked.bankroll << " bets, " << worked.hands << " hands");
        const auto curve = odds::ruinCurve(*worked.payouts, worked.hands);
        ASSERT_TRUE(curve);
        EXPECT_DOUBLE_EQ(curve->riskAt(worked.bankroll), worked.risk);
    }
}

TEST(RiskOfRuin, GridOfTheBetAndThePays) {
    struct Case {
        std::vector<Payout> payouts;
        double unit;
        bool exact;
    };
    const std::array<Case, 4> cases{{
        {kCoin, 1.0, true},
        {kHalves, 0.5, true},
        {{{0.0, 0.5}, {4.0 / 3.0, 0.5}}, 1.0 / 3.0, true},
        {{{0.0, 0.5}, {2.01, 0.5}}, 1.0, false}, // rounded down to 2 bets: whole bets then
    }};
    for (const Case& c : cases) {
        const auto curve = odds::ruinCurve(c.payouts, 4);
        ASSERT_TRUE(curve);
        EXPECT_DOUBLE_EQ(curve->unit, c.unit);
        EXPECT_EQ(curve->exact, c.exact);
        EXPECT_EQ(curve->risk.size(), static_cast<std::size_t>(std::lround(4 / c.unit)));
    }
}

TEST(RiskOfRuin, CurveFallsWithTheBankrollAndFindsTheBankrollForARisk) {
    const auto curve = odds::ruinCurve(kThreeWay, 50);
    ASSERT_TRUE(curve);
    EXPECT_EQ(curve->risk.front(), 1.0);
    EXPECT_TRUE(std::is_sorted(curve->risk.rbegin(), curve->risk.rend()));
    EXPECT_EQ(curve->riskAt(50), 0.0); // fifty bets cover fifty lost hands
    EXPECT_EQ(curve->riskAt(-1), 1.0);
    for (const double target : {0.5, 0.05, 0.01, 1e-6}) {
        const double bankroll = curve->bankrollFor(target);
        EXPECT_LE(curve->riskAt(bankroll), target);
        EXPECT_GT(curve->riskAt(bankroll - curve->unit), target);
    }
}

TEST(RiskOfRuin, RefusesWhatItCannotWorkOut) {
    EXPECT_FALSE(odds::ruinCurve(kCoin, -1));
    EXPECT_FALSE(odds::ruinCurve(kCoin, odds::kMaxRuinHands + 1));
    EXPECT_FALSE(odds::ruinCurve(std::vector<Payout>{{1.0, 0.0}}, 5));
    EXPECT_FALSE(odds::ruinCurve(std::vector<Payout>{{-1.0, 1.0}}, 5));
    // Pays off every grid over twenty thousand hands: far too many bankrolls.
    EXPECT_FALSE(odds::ruinCurve(std::vector<Payout>{{0.0, 0.5}, {2.01, 0.25}, {0.33, 0.25}},
                                 odds::kMaxRuinHands));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(odds::ruinCurve(kCoin, 100, stop.get_token()));
    EXPECT_TRUE(odds::ruinCurve(kCoin, 0)->risk.empty());
}

// A Treasure Hunt hand pays its row plus one chest: the pays' variance is the game's.
TEST(RiskOfRuin, PayoutsOfTreasureTripsSpreadTheBonusOverTheChests) {
    const auto& tables = odds::DrawTables::forGame(GameId::TreasureTrips);
    const auto scale = odds::ownPayScale(GameId::TreasureTrips);
    const auto result = odds::analyzeGame(tables, scale);
    ASSERT_TRUE(result);
    const auto payouts = odds::payoutDistribution(*result, scale);
    double total = 0.0;
    double mean = 0.0;
    for (const Payout& payout : payouts) {
        total += payout.probability;
        mean += payout.probability * payout.bets;
    }
    EXPECT_NEAR(total, 1.0, 1e-12);
    EXPECT_NEAR(mean, result->expectedReturn, 1e-12);
    EXPECT_NEAR(odds::payoutVariance(payouts), result->variance, 1e-9);
    // Three of a Kind with the bonus pays 1 + 3 .. 1 + 30; 280 is Five of a Kind and a chest.
    EXPECT_TRUE(std::any_of(payouts.begin(), payouts.end(),
                            [](const Payout& p) { return p.bets == 280.0; }));
}

TEST(RiskOfRuin, PublishedJacksNineSixSession) {
    if (!testing::tablesAffordable(GameId::JacksOrBetter)) {
        GTEST_SKIP() << "this game's tables: optimised builds only";
    }
    const std::array<double, 9> nineSix{800, 50, 25, 9, 6, 4, 3, 2, 1};
    const auto scale = *odds::payScaleFromMultipliers(GameId::JacksOrBetter, nineSix);
    const auto result = odds::analyzeGame(odds::DrawTables::forGame(GameId::JacksOrBetter), scale);
    ASSERT_TRUE(result);
    const auto curve = odds::ruinCurve(odds::payoutDistribution(*result, scale), 1600);
    ASSERT_TRUE(curve);
    // About 8% for 160 bets over four hours at 400 hands an hour.
    EXPECT_NEAR(curve->riskAt(160), 0.081386, 5e-7);
    EXPECT_EQ(curve->bankrollFor(0.01), 219);
    EXPECT_EQ(curve->bankrollFor(0.05), 176);
}

} // namespace
} // namespace marivale
