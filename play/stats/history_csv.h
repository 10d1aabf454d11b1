#pragma once

// The hand history as text: cards in their short form ("As Kd Tc 2h Jk"), the Double Up outcome in
// words, and the whole history as comma-separated values with "." for decimals whatever the locale.
// The statistics' numbers keep the money texts' convention, whatever the locale too.

// Standard library
#include <string>
#include <vector>

// Marivale
#include "play/stats/session_stats.h"

namespace marivale {

// "took score", "no guess", "won x4", "lost"; empty when Double Up was not offered.
std::string doubleUpText(const HandRecord& hand);

// "in play" for a hand still open, "abandoned" for one the board closed on; empty once settled.
std::string unsettledText(const HandRecord& hand);

// A header row, then one row per hand in the order played, each line ended by "\n".
std::string historyCsv(const std::vector<HandRecord>& history);

} // namespace marivale
