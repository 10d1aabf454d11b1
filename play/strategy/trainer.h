#pragma once

// Trainer mode's judgement of the hold the player used, and the session's tally of mistakes.

// Standard library
#include <cstdint>

// Marivale
#include "engine/odds/hold_odds.h"

namespace marivale {

struct TrainerVerdict {
    bool mistake{false};
    unsigned played{0};       // held mask over board positions
    unsigned best{0};         // the best hold's mask
    double playedReturn{0.0}; // in bets
    double bestReturn{0.0};
    float cost{0.0f}; // dollars the mistake gives away on average at this bet
};

class TrainerTally {
public:
    // Judges a hold; a hold worse than the best is counted with its cost. A hold whose return
    // equals the best one's is as good as the best.
    TrainerVerdict judge(const odds::HandOdds& odds, unsigned played, float bet);

    int mistakes() const { return mistakes_; }
    float cost() const { return cost_; }

private:
    int mistakes_{0};
    float cost_{0.0f};
};

} // namespace marivale
