// Session goals: the recursion against sessions worked by hand, a fair coin against the
// gambler's-ruin formula, the risk of ruin as a stop-loss beyond the bankroll, what it refuses,
// and a seeded simulation of the board's own Jacks or Better table.

#include <gtest/gtest.h>

// Standard library
#include <array>
#include <cmath>
#include <limits>
#include <vector>

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/session_goal.h"
#include "engine/random_source.h"
#include "tests/support/odds_test_support.h"

namespace marivale {
namespace {

using odds::Payout;

using testing::kCoin;
using testing::kHalves;
using testing::kThreeWay;

struct Worked {
    const std::vector<Payout>* payouts;
    double bankroll, goal, stopLoss;
    int hands;
    double won, lost, neither, expectedHands;
};

// Each small one worked through every sequence of hands: e.g. kThreeWay from a goal of 2 and a
// stop-loss of 1 over two hands loses at once (1/2) or after a push (1/8), wins at once (1/4) or
// after a push (1/16). The long fair coins follow the gambler's ruin: the goal G before a loss of
// L with chance L / (G + L), after G x L hands on average; 3 bets are ruined after losing 3.
const std::array<Worked, 15> kWorked{{
    {&kCoin, 10, 2, 2, 2, 0.25, 0.25, 0.5, 2},
    {&kCoin, 10, 1, 2, 2, 0.5, 0.25, 0.25, 1.5},
    {&kThreeWay, 10, 2, 1, 2, 0.3125, 0.625, 0.0625, 1.25},
    {&kHalves, 10, 1.5, 2, 2, 0.5, 0.25, 0.25, 1.5},
    {&kCoin, 1, 5, 10, 1, 0, 0.5, 0.5, 1},            // ruined by the last hand
    {&kCoin, 2.9, 1, 9, 3, 0.625, 0.25, 0.125, 1.75}, // a part of a bet covers nothing
    {&kCoin, 10, 0, 0, 5, 1, 0, 0, 0},                // a goal of 0 is met at once
    {&kCoin, 0.5, 0, 3, 5, 1, 0, 0, 0},
    {&kCoin, 10, 3, 0, 5, 0, 1, 0, 0},  // so is a stop-loss of 0
    {&kCoin, 0.5, 3, 3, 5, 0, 1, 0, 0}, // and ruin
    {&kCoin, 10, 3, 3, 0, 0, 0, 1, 0},  // no hands
    {&kCoin, 100, 3, 2, 2000, 0.4, 0.6, 0, 6},
    {&kCoin, 3, 2, 10, 2000, 0.6, 0.4, 0, 6},
    {&kCoin, 1000, 10, 30, 20000, 0.75, 0.25, 0, 300},
    {&kCoin, 1000, 9.5, 29.5, 20000, 0.75, 0.25, 0, 300}, // net moves in whole bets
}};

TEST(SessionGoal, SessionsWorkedByHandAndTheGamblersRuin) {
    for (const Worked& w : kWorked) {
        SCOPED_TRACE(::testing::Message() << w.bankroll << " bets, goal " << w.goal
                                          << ", stop-loss " << w.stopLoss << ", " << w.hands);
        const auto odds =
            odds::sessionGoalOdds(*w.payouts, w.bankroll, w.goal, w.stopLoss, w.hands);
        ASSERT_TRUE(odds);
        EXPECT_NEAR(odds->goal, w.won, 1e-12);
        EXPECT_NEAR(odds->stopLoss, w.lost, 1e-12);
        EXPECT_NEAR(odds->neither, w.neither, 1e-12);
        EXPECT_NEAR(odds->expectedHands, w.expectedHands, 1e-9);
    }
}

// Without a goal in reach and with the stop-loss past the bankroll, only ruin stops a session:
// the risk of ruin with one more hand, as ruin after the last hand counts here.
TEST(SessionGoal, StopLossBeyondTheBankrollIsTheRiskOfRuin) {
    const auto curve = odds::ruinCurve(kThreeWay, 41);
    ASSERT_TRUE(curve);
    for (const double bankroll : {0.0, 1.0, 5.0, 12.5, 40.0}) {
        const auto odds = odds::sessionGoalOdds(kThreeWay, bankroll, 1e9, 1e9, 40);
        ASSERT_TRUE(odds);
        EXPECT_DOUBLE_EQ(odds->stopLoss, curve->riskAt(bankroll)) << bankroll;
        EXPECT_EQ(odds->goal, 0.0);
    }
}

TEST(SessionGoal, RefusesWhatItCannotWorkOut) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(odds::sessionGoalOdds(kCoin, 10, 2, 2, -1));
    EXPECT_FALSE(odds::sessionGoalOdds(kCoin, 10, 2, 2, odds::kMaxRuinHands + 1));
    EXPECT_FALSE(odds::sessionGoalOdds(kCoin, -1, 2, 2, 5));
    EXPECT_FALSE(odds::sessionGoalOdds(kCoin, 10, nan, 2, 5));
    EXPECT_FALSE(odds::sessionGoalOdds(kCoin, 10, 2, inf, 5));
    EXPECT_FALSE(odds::sessionGoalOdds(std::vector<Payout>{{1.0, 0.0}}, 10, 2, 2, 5));
    EXPECT_FALSE(odds::sessionGoalOdds(std::vector<Payout>{{-1.0, 1.0}}, 10, 2, 2, 5));
    // Pays off every grid over twenty thousand hands with everything in reach: too much work.
    EXPECT_FALSE(odds::sessionGoalOdds(std::vector<Payout>{{0.0, 0.5}, {2.01, 0.25}, {0.33, 0.25}},
                                       1e6, 1e6, 1e6, odds::kMaxRuinHands));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(odds::sessionGoalOdds(kCoin, 100, 50, 50, 100, stop.get_token()));
}

// Plays seeded sessions hand by hand on the board's own table: every figure within five
// standard errors of the simulation.
TEST(SessionGoal, SimulatedJacksOrBetterSessions) {
    if (!testing::tablesAffordable(GameId::JacksOrBetter)) {
        GTEST_SKIP() << "this game's tables: optimised builds only";
    }
    const auto scale = odds::ownPayScale(GameId::JacksOrBetter);
    const auto game = odds::analyzeGame(odds::DrawTables::forGame(GameId::JacksOrBetter), scale);
    ASSERT_TRUE(game);
    const auto payouts = odds::payoutDistribution(*game, scale);
    constexpr double kBankroll = 40, kGoal = 25, kStopLoss = 30;
    constexpr int kHands = 200;
    constexpr int kSessions = 20'000;
    const auto exact = odds::sessionGoalOdds(payouts, kBankroll, kGoal, kStopLoss, kHands);
    ASSERT_TRUE(exact);

    SeededRandomSource random(20'250'601);
    std::array<double, 3> ends{}; // goal, stop-loss, neither
    double hands = 0.0;
    double handsSquared = 0.0;
    for (int session = 0; session < kSessions; ++session) {
        double net = 0.0;
        int played = 0;
        std::size_t end = 2;
        while (played < kHands && end == 2) {
            double draw = random.next();
            std::size_t pay = 0;
            while (pay + 1 < payouts.size() && draw >= payouts[pay].probability) {
                draw -= payouts[pay++].probability;
            }
            net += payouts[pay].bets - 1.0;
            ++played;
            end = net >= kGoal ? 0 : net <= -kStopLoss || kBankroll + net < 1.0 ? 1 : 2;
        }
        ends[end] += 1.0 / kSessions;
        hands += static_cast<double>(played) / kSessions;
        handsSquared += static_cast<double>(played) * played / kSessions;
    }
    const std::array<double, 3> figures{exact->goal, exact->stopLoss, exact->neither};
    for (std::size_t i = 0; i < ends.size(); ++i) {
        EXPECT_NEAR(ends[i], figures[i], 5 * std::sqrt(figures[i] * (1 - figures[i]) / kSessions))
            << i;
    }
    EXPECT_NEAR(hands, exact->expectedHands,
                5 * std::sqrt((handsSquared - hands * hands) / kSessions));
    // The risk of ruin over one more hand, when only ruin can stop it.
    EXPECT_NEAR(odds::sessionGoalOdds(payouts, kBankroll, 1e9, 1e9, kHands)->stopLoss,
                odds::ruinCurve(payouts, kHands + 1)->riskAt(kBankroll), 1e-12);
}

} // namespace
} // namespace marivale
