// The 32 holds of a dealt hand: known returns worked out by hand, and every hold's final hands,
// return and variance checked against a brute-force draw of every replacement through the
// game's own AnalyzeHand.

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <bit>
#include <string_view>
#include <vector>

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/pay_scale.h"
#include "tests/support/hand_text.h"
#include "tests/support/odds_test_support.h"

namespace marivale {
namespace {

using testing::CodeCounts;

// 9/6 Jacks or Better with the 800-for-a-royal of the maximum bet.
const std::array<double, 9> kJacks96{800, 50, 25, 9, 6, 4, 3, 2, 1};

odds::PayScale jacks96() {
    return *odds::payScaleFromMultipliers(GameId::JacksOrBetter, kJacks96);
}

struct KnownHold {
    GameId game;
    bool nineSix; // 9/6 Jacks or Better instead of the game's own table
    std::string_view dealt;
    unsigned held;    // bit p: board position p kept
    double numerator; // the exact return is numerator / denominator bets
    double denominator;
    bool best; // this hold is the first best one
};

// Four to a royal: of 47 draws the Ten makes the royal (800), 8 spades a flush (6 each), 3 Tens
// a straight (4 each) and 12 cards a high pair (1 each): 872 / 47. Three Threes on Treasure
// Trips draw 2 of 48: 1 five of a kind, 92 fours, 66 full houses and 969 trips, each with the
// 16.5-bet mean bonus: (250 + 92 * 15 + 66 * 8 + 969 + 1128 * 16.5) / 1128.
const std::array<KnownHold, 9> kKnownHolds{{
    {GameId::JacksOrBetter, true, "As Ks Qs Js 2c", 0b01111, 872, 47, true},
    {GameId::JacksOrBetter, true, "2c As Ks Qs Js", 0b11110, 872, 47, true},
    {GameId::JacksOrBetter, false, "Tc Jc Qc Kc Ac", 0b11111, 250, 1, true},
    {GameId::JacksOrBetter, true, "Ac Ad Ah As 7c", 0b01111, 25, 1, true},
    {GameId::DeucesWild, false, "2c 2d 2h 2s 7c", 0b01111, 200, 1, true},
    {GameId::DeucesWild, false, "2c 2d 2h 2s 7c", 0b11111, 200, 1, false},
    {GameId::TreasureTrips, false, "3c 3d 3h 3s Jk", 0b11111, 250 + 16.5, 1, true},
    {GameId::TreasureTrips, false, "3c 3d 3h 8s Kc", 0b00111, 21739, 1128, true},
    {GameId::JokerWild, false, "Jk As Ks Qs Js", 0b11111, 100, 1, true},
}};

TEST(HoldOdds, KnownReturns) {
    for (const KnownHold& known : kKnownHolds) {
        if (!testing::tablesAffordable(known.game)) {
            continue;
        }
        SCOPED_TRACE(std::string(known.dealt));
        const auto& tables = odds::DrawTables::forGame(known.game);
        const auto scale = known.nineSix ? jacks96() : odds::ownPayScale(known.game);
        const HandCards deal = testing::cardsFromText(known.dealt);
        const odds::HandOdds result = odds::analyzeHolds(tables, deal, scale);
        EXPECT_DOUBLE_EQ(result.holds[known.held].expectedReturn,
                         known.numerator / known.denominator);
        EXPECT_EQ(result.holds[known.held].held, known.held);
        if (known.best) {
            EXPECT_EQ(result.best, static_cast<int>(known.held));
            EXPECT_EQ(result.ranking().front(), known.held);
        }
    }
}

TEST(HoldOdds, RankingRunsFromBestToWorstWithEveryHoldOnce) {
    const auto& tables = odds::DrawTables::forGame(GameId::TreasureTrips);
    const odds::HandOdds result = odds::analyzeHolds(
        tables, testing::cardsFromText("3c 3d 8h Jk Kc"), odds::ownPayScale(GameId::TreasureTrips));
    const auto order = result.ranking();
    std::array<bool, 32> seen{};
    for (std::size_t i = 0; i < order.size(); ++i) {
        seen[order[i]] = true;
        if (i > 0) {
            EXPECT_GE(result.holds[order[i - 1]].expectedReturn,
                      result.holds[order[i]].expectedReturn);
        }
    }
    EXPECT_EQ(std::count(seen.begin(), seen.end(), true), 32);
    EXPECT_EQ(order.front(), 0b01011u); // two Threes and the joker: the bonus on every draw
    EXPECT_EQ(result.best, 0b01011);
}

TEST(HoldOdds, ValidDealsAreFiveDifferentCardsOfTheDeck) {
    EXPECT_TRUE(odds::isValidDeal(52, HandCards{0, 1, 2, 3, 51}));
    EXPECT_FALSE(odds::isValidDeal(52, HandCards{0, 1, 2, 3, 52})); // no joker in a 52-card deck
    EXPECT_TRUE(odds::isValidDeal(53, HandCards{0, 1, 2, 3, 52}));
    EXPECT_FALSE(odds::isValidDeal(53, HandCards{7, 1, 2, 7, 52})); // the same card twice
    EXPECT_FALSE(odds::isValidDeal(52, HandCards{-1, 1, 2, 3, 4}));
}

// The engine's counts of a hold, folded from outcome slots into codes.
CodeCounts engineCounts(const odds::DrawTables& tables, const odds::HoldOdds& hold) {
    CodeCounts counts;
    for (int slot = 0; slot < tables.outcomeCount(); ++slot) {
        const odds::Outcome outcome = tables.outcome(slot);
        counts.all[outcome.code] += hold.counts[slot];
        if (outcome.bonus) {
            counts.bonus[outcome.code] += hold.counts[slot];
        }
    }
    counts.draws = hold.draws;
    return counts;
}

void expectMatchesBruteForce(GameId game, const HandCards& deal, int fewestHeld) {
    const auto& tables = odds::DrawTables::forGame(game);
    const auto scale = odds::ownPayScale(game);
    const odds::HandOdds result = odds::analyzeHolds(tables, deal, scale);
    for (unsigned held = 0; held < 32; ++held) {
        if (std::popcount(held) < fewestHeld) {
            continue;
        }
        const CodeCounts brute = testing::bruteForceHold(game, deal, held);
        const CodeCounts fast = engineCounts(tables, result.holds[held]);
        ASSERT_EQ(fast, brute) << "deal " << deal[0] << ' ' << deal[1] << ' ' << deal[2] << ' '
                               << deal[3] << ' ' << deal[4] << " held " << held;
        const testing::PayStats pay = testing::payStats(brute, scale);
        EXPECT_NEAR(result.holds[held].expectedReturn, pay.mean, 1e-12) << "held " << held;
        EXPECT_NEAR(result.holds[held].variance, pay.variance,
                    1e-9 * std::max(1.0, result.holds[held].variance))
            << "held " << held;
    }
}

class HoldOddsBruteForce : public ::testing::TestWithParam<GameId> {};

// A few hundred deals for every hold that keeps two cards or more, where a draw is cheap.
TEST_P(HoldOddsBruteForce, HoldsKeepingTwoOrMoreCards) {
    const GameId game = GetParam();
    if (!testing::tablesAffordable(game)) {
        GTEST_SKIP() << "this game's tables: optimised builds only";
    }
    const int deals = testing::kOptimisedBuild ? 200 : 8;
    for (const HandCards& deal : testing::randomDeals(game, deals, 1000 + static_cast<int>(game))) {
        expectMatchesBruteForce(game, deal, 2);
        if (HasFatalFailure()) {
            return;
        }
    }
}

// Each hold of a few deals, discards of four and five cards included (millions of draws each).
TEST_P(HoldOddsBruteForce, EveryHoldOfAFewDeals) {
    if (!testing::kOptimisedBuild) {
        GTEST_SKIP() << "millions of AnalyzeHand calls per deal: optimised builds only";
    }
    const GameId game = GetParam();
    // The game's wild cards and Threes in play, then plain random deals.
    constexpr std::array<std::string_view, 4> kWildAndBonusDeals{
        "3c 3d 5h Jk Kc", "2c 2d 9h Ts Jd", "Jk Ad 5c 9h Ks", "Ah Kh 7h 4h 9c"};
    std::vector<HandCards> deals;
    for (const std::string_view text : kWildAndBonusDeals) {
        const HandCards deal = testing::cardsFromText(text);
        if (std::find(deal.begin(), deal.end(), kJoker) == deal.end() || hasJoker(game)) {
            deals.push_back(deal);
        }
    }
    for (const HandCards& deal : testing::randomDeals(game, 3, 2000 + static_cast<int>(game))) {
        deals.push_back(deal);
    }
    for (const HandCards& deal : deals) {
        expectMatchesBruteForce(game, deal, 0);
        if (HasFatalFailure()) {
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllGames, HoldOddsBruteForce, ::testing::ValuesIn(kAllGames),
                         [](const auto& suite) { return std::string(shortName(suite.param)); });

} // namespace
} // namespace marivale
