// Charts played over the whole deck: a tiny chart on 9/6 Jacks or Better against a count made
// here from the holds' own odds, and the best play's return the charts are measured against.

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <array>
#include <vector>

// Marivale
#include "engine/odds/chart_deals.h"
#include "engine/odds/chart_derivation.h"
#include "engine/odds/deal_classes.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/named_tables.h"
#include "engine/odds/strategy_chart.h"
#include "tests/support/odds_test_support.h"

namespace marivale {
namespace {

#define SKIP_UNLESS_OPTIMISED()                                                                    \
    if (!testing::kOptimisedBuild) {                                                               \
        GTEST_SKIP() << "a whole game: optimised builds only";                                     \
    }

bool isJackOrBetter(CardCode card) {
    return rankOf(card) == Rank::Ace || rankOf(card) >= Rank::Jack;
}

// "High Pair, then Discard everything": a deal with two cards of one rank from Jacks up holds the
// best such pair, any other discards all five.
TEST(StrategyChart, HighPairThenDiscardEverything) {
    SKIP_UNLESS_OPTIMISED();
    const odds::NamedTable& table = *odds::findNamedTable("jacks-9-6");
    const odds::PayScale scale = odds::payScaleOf(table);
    const auto& tables = odds::DrawTables::forGame(table.game);

    double paired = 0.0;
    double pairedPaid = 0.0;
    double discardedPaid = 0.0;
    for (const odds::DealClass& deal : odds::dealClasses(52)) {
        const odds::HandOdds hand = odds::analyzeHolds(tables, deal.cards, scale);
        bool found = false;
        double best = 0.0;
        for (int a = 0; a < kHandSize; ++a) {
            for (int b = a + 1; b < kHandSize; ++b) {
                if (rankOf(deal.cards[a]) == rankOf(deal.cards[b]) &&
                    isJackOrBetter(deal.cards[a])) {
                    const double held = hand.holds[(1u << a) | (1u << b)].expectedReturn;
                    best = found ? std::max(best, held) : held;
                    found = true;
                }
            }
        }
        if (found) {
            paired += deal.weight;
            pairedPaid += deal.weight * best;
        } else {
            discardedPaid += deal.weight * hand.holds[0].expectedReturn;
        }
    }
    const double deals = 2598960.0;

    const odds::ChartDeals chartDeals(tables, scale);
    const odds::ChartLine highPair{.kind = odds::LineKind::Pair, .held = 2, .highPair = true};
    const auto pairLine = chartDeals.lineIndex(highPair);
    const auto discardLine = chartDeals.lineIndex(odds::ChartLine{});
    ASSERT_TRUE(pairLine && discardLine);
    const std::array<int, 2> chart{*pairLine, *discardLine};
    const odds::ChartFigures figures = odds::evaluateChart(chartDeals, chart);
    EXPECT_NEAR(figures.expectedReturn, (pairedPaid + discardedPaid) / deals, 1e-12);
    EXPECT_NEAR(figures.cost, 0.995439 - figures.expectedReturn, 5e-7);
    ASSERT_EQ(figures.uses.size(), 2u);
    EXPECT_NEAR(figures.uses[0].share, paired / deals, 1e-15);
    EXPECT_NEAR(figures.uses[0].meanReturn, pairedPaid / paired, 1e-12);
    EXPECT_NEAR(figures.uses[1].share, 1.0 - paired / deals, 1e-15);
    EXPECT_NEAR(figures.uses[1].meanReturn, discardedPaid / (deals - paired), 1e-12);
    EXPECT_NEAR(chartDeals.bestReturn(), 0.995439, 5e-7);
}

using LineTest = bool (*)(const odds::ChartLine&);

// The first place in the chart of a line that meets the test.
std::size_t firstPlace(const odds::ChartDeals& deals, const std::vector<int>& chart,
                       LineTest test) {
    const auto found = std::find_if(chart.begin(), chart.end(),
                                    [&](int line) { return test(deals.lines()[line]); });
    return static_cast<std::size_t>(found - chart.begin());
}

using odds::ChartLine;
using odds::LineKind;

struct Fact {
    const char* what;
    LineTest above;
    LineTest below;
};

struct DerivedCase {
    const char* table;
    double mostCost; // against the best play, in bets per bet
    std::vector<Fact> facts;
};

// The complete charts of the two well-known tables lose less than the issue allows, and the
// strategy facts players know land in the right order.
TEST(StrategyChart, DerivedChartsOfWellKnownTables) {
    SKIP_UNLESS_OPTIMISED();
    const auto fourRoyal = [](const ChartLine& line) {
        return line.kind == LineKind::RoyalFlush && line.held == 4 && line.wild == 0;
    };
    const std::vector<DerivedCase> cases{
        {"jacks-9-6",
         0.00005,
         {{"a 4-card Royal above a dealt Flush", fourRoyal,
           [](const ChartLine& line) {
               return line.kind == LineKind::Flush && line.held == 5;
           }},
          {"a Low Pair above 4 to an outside Straight (10-J-Q-K apart)",
           [](const ChartLine& line) {
               return line.kind == LineKind::Pair && line.held == 2 && !line.highPair;
           },
           [](const ChartLine& line) {
               return line.kind == LineKind::Straight && line.held == 4 && line.gaps == 0 &&
                      line.high < 3;
           }}}},
        {"deuces-full-pay",
         0.0001,
         {{"no deuce: a 4-card Royal above a dealt Straight", fourRoyal,
           [](const ChartLine& line) {
               return line.kind == LineKind::Straight && line.held == 5 && line.wild == 0;
           }}}},
    };
    for (const DerivedCase& derived : cases) {
        SCOPED_TRACE(derived.table);
        const odds::NamedTable& table = *odds::findNamedTable(derived.table);
        const odds::ChartDeals deals(odds::DrawTables::forGame(table.game),
                                     odds::payScaleOf(table));
        const std::vector<int> chart = odds::deriveChart(deals);
        const odds::ChartFigures figures = odds::evaluateChart(deals, chart);
        EXPECT_LT(figures.cost, derived.mostCost);
        EXPECT_GE(figures.cost, 0.0);
        for (const Fact& fact : derived.facts) {
            const std::size_t below = firstPlace(deals, chart, fact.below);
            EXPECT_LT(firstPlace(deals, chart, fact.above), below) << fact.what;
            EXPECT_LT(below, chart.size()) << fact.what;
        }
    }
}

// A simple chart of 9/6 Jacks or Better keeps at most 15 lines, "Discard everything" among
// them, and costs more than the complete chart it comes from.
TEST(StrategyChart, SimpleChartOfJacksNineSix) {
    SKIP_UNLESS_OPTIMISED();
    const odds::NamedTable& table = *odds::findNamedTable("jacks-9-6");
    const odds::ChartDeals deals(odds::DrawTables::forGame(table.game), odds::payScaleOf(table));
    const std::vector<int> complete = odds::deriveChart(deals);
    const std::vector<int> simple = odds::simplifyChart(deals, complete, 15);
    EXPECT_LE(simple.size(), 15u);
    EXPECT_NE(std::find(simple.begin(), simple.end(), *deals.lineIndex(ChartLine{})), simple.end());
    const double cost = odds::evaluateChart(deals, simple).cost;
    EXPECT_GT(cost, odds::evaluateChart(deals, complete).cost);
    EXPECT_LT(cost, 0.05);
}

// The complete chart of each board's own table, Treasure Trips with its chest, loses under 0.02%.
TEST(StrategyChart, DerivedChartsOfOwnTables) {
    SKIP_UNLESS_OPTIMISED();
    for (const GameId game : kAllGames) {
        SCOPED_TRACE(shortName(game));
        const odds::ChartDeals deals(odds::DrawTables::forGame(game), odds::ownPayScale(game));
        const odds::ChartFigures figures = odds::evaluateChart(deals, odds::deriveChart(deals));
        EXPECT_LT(figures.cost, 0.0002);
        EXPECT_GE(figures.cost, 0.0);
    }
}

} // namespace
} // namespace marivale
