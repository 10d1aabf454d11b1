#pragma once

// Every deal of the deck with the hold a chart plays on it, as text anyone can check a chart's
// return against: one line per deal, its five card codes ascending, then a flag for each of
// those cards (1 held, 0 discarded), the deals in increasing order of their codes.

// Standard library
#include <functional>
#include <span>
#include <string_view>

// Marivale
#include "engine/odds/chart_deals.h"

namespace marivale::odds {

// Hands the text to `out` a block of whole lines at a time.
void writeChartHolds(const ChartDeals& deals, std::span<const int> chart,
                     const std::function<void(std::string_view)>& out);

} // namespace marivale::odds
