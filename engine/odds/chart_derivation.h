#pragma once

// A complete chart for a pay table, derived from the exact returns of every hold: the lines that
// are the best hold of some deal, first in the order the deals prefer them pairwise, then each
// line moved in turn to the place where the whole chart returns most, until no move gains.

// Standard library
#include <span>
#include <vector>

// Marivale
#include "engine/odds/chart_deals.h"

namespace marivale::odds {

// The lines of the chart in order, as indices into deals.lines(); lines that no deal would play
// are left out.
std::vector<int> deriveChart(const ChartDeals& deals, int maxPasses = 40);

// A chart of at most `maxLines` lines from a complete one: the line whose loss costs least is left
// out, one at a time ("Discard everything" stays), then the rest is ordered again.
std::vector<int> simplifyChart(const ChartDeals& deals, std::span<const int> chart, int maxLines,
                               int maxPasses = 40);

// The chart of the deals' kind: complete, or simple with at most `simpleLines` lines.
std::vector<int> chartOfKind(const ChartDeals& deals, int simpleLines);

} // namespace marivale::odds
