// The whole game under the best strategy: the published returns, variances and hit frequencies
// of 9/6 Jacks or Better and full-pay Deuces Wild, the returns of the four games' own tables,
// and the deal classes the whole-game count plays. (That a hand's outcome does not depend on
// which suit is which is the census's part: every hand of every deck is counted there.)

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <stop_token>

// Marivale
#include "engine/odds/deal_classes.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/named_tables.h"
#include "engine/odds/pay_scale.h"
#include "tests/support/odds_test_support.h"

namespace marivale {
namespace {

#define SKIP_UNLESS_OPTIMISED()                                                                    \
    if (!testing::kOptimisedBuild) {                                                               \
        GTEST_SKIP() << "a whole game: optimised builds only";                                     \
    }

struct PublishedGame {
    const char* table; // a well-known table by name
    double expectedReturn;
    double variance;                    // rounded to four places
    std::array<double, 11> probability; // by code 0..10, rounded to six places
};

// 9/6 Jacks or Better (800 for a royal) and full-pay Deuces Wild, as published.
const std::array<PublishedGame, 2> kPublished{{
    {"jacks-9-6",
     0.995439,
     19.5147,
     {0.545435, 0.214585, 0.129279, 0.074449, 0.011229, 0.011015, 0.011512, 0.002363, 0.000109,
      0.000025, 0}},
    {"deuces-full-pay",
     1.007620,
     25.8378,
     {0.546905, 0.284702, 0.055963, 0.016868, 0.021229, 0.064938, 0.004172, 0.003202, 0.001796,
      0.000204, 0.000022}},
}};

TEST(GameOdds, PublishedTablesReturnAndHitFrequencies) {
    SKIP_UNLESS_OPTIMISED();
    for (const PublishedGame& published : kPublished) {
        SCOPED_TRACE(published.table);
        const odds::NamedTable* table = odds::findNamedTable(published.table);
        ASSERT_NE(table, nullptr);
        const auto result =
            odds::analyzeGame(odds::DrawTables::forGame(table->game), odds::payScaleOf(*table));
        ASSERT_TRUE(result);
        EXPECT_NEAR(result->expectedReturn, published.expectedReturn, 5e-7);
        EXPECT_NEAR(result->variance, published.variance, 5e-5);
        EXPECT_NEAR(result->standardDeviation() * result->standardDeviation(), result->variance,
                    1e-9);
        for (std::size_t code = 0; code < published.probability.size(); ++code) {
            EXPECT_NEAR(result->codeProbability[code], published.probability[code], 5e-7)
                << "code " << code;
        }
    }
}

// Tenths of a bet are not exact in binary: the best holds, and so the frequencies, must not
// change with the rounding, while the return scales by a tenth and the variance by a hundredth.
TEST(GameOdds, ScalingEveryPayKeepsThePlay) {
    SKIP_UNLESS_OPTIMISED();
    const odds::NamedTable& jacks = *odds::findNamedTable("jacks-9-6");
    std::array<double, 9> tenths{};
    for (std::size_t i = 0; i < tenths.size(); ++i) {
        tenths[i] = jacks.payouts[i] / 10.0;
    }
    const auto& tables = odds::DrawTables::forGame(GameId::JacksOrBetter);
    const auto whole = odds::analyzeGame(tables, odds::payScaleOf(jacks));
    const auto scaled =
        odds::analyzeGame(tables, *odds::payScaleFromMultipliers(GameId::JacksOrBetter, tenths));
    ASSERT_TRUE(whole && scaled);
    EXPECT_EQ(scaled->codeProbability, whole->codeProbability);
    EXPECT_NEAR(scaled->expectedReturn, whole->expectedReturn / 10.0, 1e-12);
    EXPECT_NEAR(scaled->variance, whole->variance / 100.0, 1e-12);
}

struct OwnTable {
    GameId game;
    double expectedReturn; // with the best strategy, to eight places
    double bonusReturn;    // the Treasure Hunt's share at one chest choice
    double variance;       // to four places, the chest's spread included
};

// The returns of the four boards' own pay tables.
constexpr std::array<OwnTable, kGameCount> kOwnTables{{
    {GameId::JacksOrBetter, 0.83787541, 0.0, 5.5047},
    {GameId::DeucesWild, 0.88304134, 0.0, 12.7082},
    {GameId::JokerWild, 0.81433903, 0.0, 10.0341},
    {GameId::TreasureTrips, 1.03749729, 0.39253480, 20.0572},
}};

// Every well-known table has a multiplier for each code of its game, and its published return.
TEST(GameOdds, NamedTablesReturns) {
    const std::map<std::string_view, double> published{
        {"jacks-9-6", 0.995439},
        {"jacks-8-5", 0.972984},
        {"deuces-full-pay", 1.007620},
        {"deuces-16-10", 0.997283},
    };
    ASSERT_EQ(odds::namedTables().size(), published.size());
    for (const odds::NamedTable& table : odds::namedTables()) {
        SCOPED_TRACE(std::string(table.name));
        ASSERT_EQ(static_cast<int>(table.payouts.size()), topCode(table.game));
        EXPECT_EQ(odds::findNamedTable(table.name), &table);
        if (!testing::kOptimisedBuild) {
            continue;
        }
        const auto result =
            odds::analyzeGame(odds::DrawTables::forGame(table.game), odds::payScaleOf(table));
        ASSERT_TRUE(result);
        EXPECT_NEAR(result->expectedReturn, published.at(table.name), 5e-7);
    }
    EXPECT_EQ(odds::findNamedTable("jacks"), nullptr);
    EXPECT_TRUE(odds::namedTablesOf(GameId::JokerWild).empty());
}

TEST(GameOdds, OwnTablesReturns) {
    SKIP_UNLESS_OPTIMISED();
    for (const OwnTable& own : kOwnTables) {
        SCOPED_TRACE(std::string(shortName(own.game)));
        const auto& tables = odds::DrawTables::forGame(own.game);
        const auto result = odds::analyzeGame(tables, odds::ownPayScale(own.game));
        ASSERT_TRUE(result);
        EXPECT_NEAR(result->expectedReturn, own.expectedReturn, 5e-9);
        EXPECT_NEAR(result->bonusReturn, own.bonusReturn, 5e-9);
        EXPECT_NEAR(result->variance, own.variance, 5e-5);
        const double total =
            std::accumulate(result->codeProbability.begin(), result->codeProbability.end(), 0.0);
        EXPECT_NEAR(total, 1.0, 1e-12);
        EXPECT_EQ(result->deals, odds::binomial(deckSize(own.game), 5));
    }
}

TEST(GameOdds, StoppedBeforeTheEndGivesNothing) {
    std::stop_source stop;
    stop.request_stop();
    const auto& tables = odds::DrawTables::forGame(GameId::JacksOrBetter);
    EXPECT_FALSE(
        odds::analyzeGame(tables, odds::ownPayScale(GameId::JacksOrBetter), 2, stop.get_token()));
}

TEST(DrawTables, BuildStopsWhenAsked) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(odds::DrawTables(GameId::TreasureTrips, 2, stop.get_token()), odds::BuildStopped);
}

TEST(DealClasses, CoverEveryDealOnce) {
    struct Expected {
        int deck;
        std::size_t classes;
    };
    // 134,459 classes of 52-card deals plus 16,432 of four natural cards with the joker.
    for (const Expected expected : {Expected{52, 134'459}, Expected{53, 134'459 + 16'432}}) {
        const auto& classes = odds::dealClasses(expected.deck);
        EXPECT_EQ(classes.size(), expected.classes);
        std::uint64_t deals = 0;
        for (const odds::DealClass& deal : classes) {
            deals += deal.weight;
            EXPECT_TRUE(std::is_sorted(deal.cards.begin(), deal.cards.end()));
        }
        EXPECT_EQ(deals, odds::binomial(expected.deck, 5));
    }
}

// A table of the player's needs one multiplier per row of the game, highest code first, and keeps
// the Treasure Hunt's mean chest; the boards' own tables are judged by their returns above.
TEST(PayScale, GivenMultipliers) {
    const std::array<double, 9> nine{9, 8, 7, 6, 5, 4, 3, 2, 1};
    EXPECT_FALSE(odds::payScaleFromMultipliers(GameId::DeucesWild, nine));
    const auto jacks = odds::payScaleFromMultipliers(GameId::JacksOrBetter, nine);
    ASSERT_TRUE(jacks);
    EXPECT_EQ(jacks->multiplier[9], 9);
    EXPECT_EQ(jacks->multiplier[1], 1);
    EXPECT_EQ(odds::payScaleFromMultipliers(GameId::TreasureTrips, nine)->bonus, 16.5);
}

} // namespace
} // namespace marivale
