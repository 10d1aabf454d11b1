#pragma once

// A complete chart for a pay table, derived from the exact returns of every hold: the lines that
// are the best hold of some deal, first in the order the deals prefer them pairwise, then each
// line moved in turn to the place where the whole chart returns most, until no move gains.

// Standard library
#include <span>
#include <stop_token>
#include <vector>

// Marivale
#include "engine/odds/chart_deals.h"

namespace marivale::odds {

// How many times at most every line is moved to its best place.
inline constexpr int kChartPasses = 40;

// The lines of the chart in order, as indices into deals.lines(); lines that no deal would play
// are left out.
std::vector<int> deriveChart(const ChartDeals& deals, int maxPasses = kChartPasses,
                             std::stop_token stop = {});

// A chart of at most `maxLines` lines from a complete one: the line whose loss costs least is left
// out, one at a time ("Discard everything" stays), then the rest is ordered again.
std::vector<int> simplifyChart(const ChartDeals& deals, std::span<const int> chart, int maxLines,
                               int maxPasses = kChartPasses, std::stop_token stop = {});

// The chart of the deals' kind: complete, or simple with at most `simpleLines` lines. Once `stop`
// is requested each of these stops early with whatever order it has.
std::vector<int> chartOfKind(const ChartDeals& deals, int simpleLines, std::stop_token stop = {});

} // namespace marivale::odds
