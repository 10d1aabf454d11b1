#pragma once

// The grid that the session odds move a bankroll on: the largest step, in bets, that every pay
// and the bet are whole multiples of, or 1/64 of a bet with the pays rounded down when none is.

// Standard library
#include <span>
#include <vector>

// Marivale
#include "engine/odds/risk_of_ruin.h"

namespace marivale::odds {

// Closer than this to a whole number of grid steps counts as on the grid.
inline constexpr double kOnGrid = 1e-9;

struct Grid {
    int perBet{1};          // grid steps in one bet
    std::vector<int> steps; // each pay in grid steps, in the order of the pays
    double unit{1.0};       // one grid step in bets
    bool exact{true};       // false: pays were rounded down to 1/64 of a bet
};

// The coarsest grid that holds every pay and the bet.
Grid gridFor(std::span<const Payout> payouts);

} // namespace marivale::odds
