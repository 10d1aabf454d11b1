#pragma once

// A strategy chart: an ordered list of lines. On a deal the player finds the first line that some
// hold of the deal is and plays that hold (the one that returns most, when several are that
// line). Played over every deal of the deck, the chart has an exact return.

// Standard library
#include <climits>
#include <span>
#include <vector>

// Marivale
#include "engine/odds/chart_deals.h"

namespace marivale::odds {

// A chart's place for a line it does not list.
inline constexpr int kUnlisted = INT_MAX;

struct LineUse {
    int line{0};             // an index into ChartDeals::lines()
    double share{0.0};       // of all deals, those where the line is the one played
    double meanReturn{0.0};  // the return of those deals, in bets
    int example{-1};         // the most common deal class the line is played on, if any
    unsigned exampleHold{0}; // the hold played on it, a mask over its sorted cards
};

struct ChartFigures {
    double expectedReturn{0.0};  // in bets per bet
    double cost{0.0};            // the best play's return less the chart's
    std::vector<LineUse> uses{}; // one for each line of the chart, in its order
};

// Each line's place in the chart (kUnlisted for those it does not list).
std::vector<int> chartPlaces(const ChartDeals& deals, std::span<const int> chart);

// The hold (mask over the sorted cards) the chart plays on a deal; a deal that no line of the
// chart matches discards everything.
unsigned chartHold(const ChartDeal& deal, std::span<const int> places);

// The chart played over every deal of the deck.
ChartFigures evaluateChart(const ChartDeals& deals, std::span<const int> chart);

// What each line of the chart is worth: the return lost over all deals, in bets, were it left
// out and its deals played by the lines below.
std::vector<double> lineWorths(const ChartDeals& deals, std::span<const int> chart);

} // namespace marivale::odds
