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

// A number with a fixed count of decimals and a "." point.
std::string fixedText(double value, int decimals);

// A number as the statistics show it: "," between thousands, a "." point, a "-" in front of a
// negative value and, when asked, a "+" in front of a positive one; nothing in front of a value
// that rounds to zero ("-1,234.50", "+0.25", "0.00").
std::string groupedText(double value, int decimals, bool plusSign = false);

// "took score", "no guess", "won x4", "lost"; empty when Double Up was not offered.
std::string doubleUpText(const HandRecord& hand);

// "in play" for a hand still open, "abandoned" for one the board closed on; empty once settled.
std::string unsettledText(const HandRecord& hand);

// A header row, then one row per hand in the order played, each line ended by "\n".
std::string historyCsv(const std::vector<HandRecord>& history);

} // namespace marivale
