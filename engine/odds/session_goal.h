#pragma once

// The odds of a session with a win goal and a stop-loss, exactly, by dynamic programming over
// what a hand pays under the best play (the pays and the grid of the risk of ruin). A session
// starts with a bankroll of B bets and plays at most N hands, each costing one bet and paying its
// multiple. It stops once the net result reaches the goal (net >= goal), or reaches the
// stop-loss (net <= -stop-loss) or leaves less than one bet (ruin), or after N hands. Both are
// looked at before the first hand and after every hand, the last one included; a goal of 0 is
// met before the first hand whatever the stop-loss.

// Standard library
#include <optional>
#include <span>
#include <stop_token>

// Marivale
#include "engine/odds/risk_of_ruin.h"

namespace marivale::odds {

struct SessionGoalOdds {
    double goal{0.0};          // the chance of reaching the win goal first
    double stopLoss{0.0};      // the chance of the stop-loss or ruin first
    double neither{0.0};       // the chance that all N hands are played without either
    double expectedHands{0.0}; // the hands played on average
    double unit{1.0};          // the grid step in bets
    bool exact{true};          // false: pays were rounded down to 1/64 of a bet
};

// Nothing when the hands are out of 0..kMaxRuinHands, an amount is negative or not finite, the
// pays have no probability, the work would pass kMostRuinWork, or `stop` is requested first.
std::optional<SessionGoalOdds> sessionGoalOdds(std::span<const Payout> payouts, double bankroll,
                                               double goal, double stopLoss, int hands,
                                               std::stop_token stop = {});

} // namespace marivale::odds
