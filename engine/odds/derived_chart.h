#pragma once

// A pay table's strategy chart with its exact figures, as a player reads it: each line's name,
// how often it is the one played and what those deals return, what the line is worth to the
// chart, and a deal that plays it.

// Standard library
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

// Marivale
#include "engine/odds/chart_line.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds {

// The most lines a simple chart has.
inline constexpr int kSimpleChartLines = 15;

struct ChartRow {
    ChartLine line{};
    std::string name{};
    double share{0.0};       // of all deals, those the line plays
    double meanReturn{0.0};  // the return of those deals, in bets
    double worth{0.0};       // the chart's return lost were the line left out, in bets per bet
    HandCards example{};     // the most common deal the line plays, ascending
    unsigned exampleHold{0}; // what the chart holds of it, bit p for card p
};

struct DerivedChart {
    GameId game{GameId::JacksOrBetter};
    ChartKind kind{ChartKind::Complete};
    double bestReturn{0.0};     // the best play's return, in bets per bet
    double expectedReturn{0.0}; // the chart's
    double cost{0.0};           // the best play's return less the chart's
    std::vector<ChartRow> rows{};

    // The row the chart plays on a deal: the first whose line some hold of the deal is.
    std::optional<int> rowOf(std::span<const CardCode, kHandSize> deal) const;
    // The name of the line the cards `held` of a deal are, listed or not.
    std::string holdLineName(std::span<const CardCode, kHandSize> deal, unsigned held) const;

private:
    friend std::optional<DerivedChart> deriveStrategyChart(const DrawTables&, const PayScale&,
                                                           ChartKind, std::stop_token);
    std::unordered_map<std::uint64_t, int> rowOfKey_{};
};

// Derives the chart of the kind for the pay table and plays it over every deal of the deck;
// nothing once `stop` is requested.
std::optional<DerivedChart> deriveStrategyChart(const DrawTables& tables, const PayScale& scale,
                                                ChartKind kind, std::stop_token stop = {});

} // namespace marivale::odds
