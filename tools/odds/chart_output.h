#pragma once

// What marivale-odds prints of a pay table's strategy chart.

// Marivale
#include "engine/game.h"
#include "engine/odds/chart_line.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds_tool {

// The chart's lines, numbered, each with its share of deals and their return, then the chart's
// return and its cost.
int printChart(GameId game, const odds::PayScale& scale, odds::ChartKind kind);

// Every deal of the deck with the hold the chart plays on it.
int printChartHolds(GameId game, const odds::PayScale& scale, odds::ChartKind kind);

} // namespace marivale::odds_tool
