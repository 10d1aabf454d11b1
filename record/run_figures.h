#pragma once

// The figures of this run alone, in the same shapes as the lifetime ones, from the run's own
// statistics in memory: the statistics window shows either the same way.

// Marivale
#include "record/record_query.h"

namespace marivale {

std::vector<TableFigures> runFigures(const SessionStats& stats);
std::vector<LineCost> runLineCosts(const SessionStats& stats, GameId game);
std::vector<ProgressPoint> runProgress(const SessionStats& stats, GameId game);

} // namespace marivale
