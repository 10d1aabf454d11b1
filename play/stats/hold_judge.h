#pragma once

// The exact odds' verdict on the hold a player made: the best hold of the deal and the dollars
// the player's hold gives away on average at the hand's bet. The first judgement of a game
// builds its draw tables, a fraction of a second, so windows judge off their own thread.

// Standard library
#include <optional>

// Marivale
#include "engine/odds/hold_odds.h"
#include "play/stats/session_stats.h"

namespace marivale {

// Judges a hold (mask over board positions) from the 32 holds' odds. A hold whose return equals
// the best one's costs nothing.
HoldJudgement judgeHold(const odds::HandOdds& odds, unsigned holds, float bet);

// Judges a recorded hand at its game's own pay table; nothing for a deal the odds can't take.
std::optional<HoldJudgement> judgeHold(const HoldQuestion& question);

// Judges every hand of the history still waiting, here and now.
void judgeAll(SessionStats& stats);

} // namespace marivale
