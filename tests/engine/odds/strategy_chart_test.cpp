// Charts played over the whole deck: a tiny chart on 9/6 Jacks or Better against a count made
// here from the holds' own odds, and the best play's return the charts are measured against.

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

// Marivale
#include "engine/odds/chart_deals.h"
#include "engine/odds/chart_derivation.h"
#include "engine/odds/chart_holds.h"
#include "engine/odds/deal_classes.h"
#include "engine/odds/derived_chart.h"
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

// Both charts of 9/6 Jacks or Better as the player reads them: the simple one within 15 lines
// and 0.15%, every line used, and each line's example deal found under that very line.
TEST(StrategyChart, ChartsAsThePlayerReadsThem) {
    SKIP_UNLESS_OPTIMISED();
    const odds::NamedTable& table = *odds::findNamedTable("jacks-9-6");
    const auto& tables = odds::DrawTables::forGame(table.game);
    for (const auto& [kind, mostLines, mostCost] :
         {std::tuple{odds::ChartKind::Complete, 100, 0.00005},
          std::tuple{odds::ChartKind::Simple, 15, 0.0015}}) {
        const auto chart = odds::deriveStrategyChart(tables, odds::payScaleOf(table), kind);
        ASSERT_TRUE(chart);
        EXPECT_LE(chart->rows.size(), static_cast<std::size_t>(mostLines));
        EXPECT_LT(chart->cost, mostCost);
        EXPECT_NEAR(chart->bestReturn - chart->expectedReturn, chart->cost, 1e-12);
        EXPECT_EQ(chart->rows.back().name, "Discard everything");
        double shares = 0.0;
        double paid = 0.0;
        for (std::size_t at = 0; at < chart->rows.size(); ++at) {
            const odds::ChartRow& row = chart->rows[at];
            SCOPED_TRACE(row.name);
            shares += row.share;
            paid += row.share * row.meanReturn;
            EXPECT_GT(row.share, 0.0);
            EXPECT_EQ(chart->rowOf(row.example), static_cast<int>(at));
            EXPECT_EQ(chart->holdLineName(row.example, row.exampleHold), row.name);
        }
        EXPECT_NEAR(shares, 1.0, 1e-12);
        EXPECT_NEAR(paid, chart->expectedReturn, 1e-12);
    }
}

// Every deal's hold under "High Pair, then Discard everything", as the odds tool writes it: the
// deals in order, and held exactly two cards of a rank from Jacks up where the deal has them.
TEST(StrategyChart, EveryDealsHoldWrittenOut) {
    SKIP_UNLESS_OPTIMISED();
    const odds::NamedTable& table = *odds::findNamedTable("jacks-9-6");
    const odds::ChartDeals deals(odds::DrawTables::forGame(table.game), odds::payScaleOf(table));
    const odds::ChartLine highPair{.kind = odds::LineKind::Pair, .held = 2, .highPair = true};
    const std::array<int, 2> chart{*deals.lineIndex(highPair), *deals.lineIndex(ChartLine{})};
    std::array<int, kHandSize> last{-1};
    std::size_t lines = 0;
    std::size_t wrong = 0;
    odds::writeChartHolds(deals, chart, [&](std::string_view text) {
        std::istringstream in{std::string(text)};
        std::array<int, kHandSize> codes{};
        std::array<int, kHandSize> held{};
        while (in >> codes[0] >> codes[1] >> codes[2] >> codes[3] >> codes[4] >> held[0] >>
               held[1] >> held[2] >> held[3] >> held[4]) {
            ++lines;
            wrong += std::lexicographical_compare(last.begin(), last.end(), codes.begin(),
                                                  codes.end()) &&
                             std::is_sorted(codes.begin(), codes.end())
                         ? 0
                         : 1;
            last = codes;
            std::array<int, kRanksPerSuit> highOfRank{};
            for (const int card : codes) {
                highOfRank[rankIndex(card)] += isJackOrBetter(card) ? 1 : 0;
            }
            const bool hasPair = std::ranges::any_of(highOfRank, [](int n) { return n >= 2; });
            int heldCount = 0;
            bool heldPair = true;
            for (int p = 0; p < kHandSize; ++p) {
                heldCount += held[p];
                heldPair = heldPair && (held[p] == 0 || highOfRank[rankIndex(codes[p])] >= 2);
            }
            wrong += hasPair == (heldCount == 2 && heldPair) && (hasPair || heldCount == 0) ? 0 : 1;
        }
    });
    EXPECT_EQ(lines, 2598960u);
    EXPECT_EQ(wrong, 0u);
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
