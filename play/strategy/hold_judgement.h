#pragma once

// The trainer's one judgement of a hold: the best hold of the deal by its exact return, and the
// dollars the player's hold gives away on average at the hand's bet. The Strategy window judges
// each hold as it is played, and the statistics judge the hands of the history still waiting.
// The first judgement of a game builds its draw tables, a fraction of a second, so windows
// judge off their own thread.

// Standard library
#include <optional>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/odds/hold_odds.h"

namespace marivale {

class SessionStats;

struct HoldJudgement {
    unsigned best{0};         // mask over board positions
    double bestReturn{0.0};   // in bets
    double playedReturn{0.0}; // in bets
    float cost{0.0f};         // dollars at the hand's bet; 0 when the hold was as good as the best
    bool mistake{false};      // the hold returns less than the best
};

// Judges a hold (mask over board positions) from the 32 holds' odds. A hold whose return equals
// the best one's is as good as the best and costs nothing.
HoldJudgement judgeHold(const odds::HandOdds& odds, unsigned holds, float bet);

// Judges a hold of a dealt hand at the game's own pay table; nothing for a deal the odds can't
// take.
std::optional<HoldJudgement> judgeHold(GameId game, const HandCards& dealt, unsigned holds,
                                       float bet);

// Judges every hand of the history still waiting, here and now.
void judgeAll(SessionStats& stats);

} // namespace marivale
