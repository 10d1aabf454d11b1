#pragma once

// Luck and skill over the settled hands of a visit or of the run, in bets: what the hands won or
// lost, what the best play wins or loses on them on average, what the player's holds gave away
// against the best, and the luck that is left. The result is the best play's average, less the
// mistakes' cost, plus the luck.

// Standard library
#include <array>
#include <optional>
#include <vector>

// Marivale
#include "engine/odds/game_odds.h"
#include "play/stats/session_stats.h"

namespace marivale {

// Each game's whole-game odds at its own pay table; nothing while they are being worked out.
using OddsByGame = std::array<std::optional<odds::GameOdds>, kGameCount>;

struct LuckSummary {
    int hands{0};                     // settled hands counted
    int pending{0};                   // of those, hands whose hold is still to be judged
    double result{0.0};               // what the hands paid less their bets, in bets
    std::optional<double> expected{}; // the best play's average result; nothing while a game's
                                      // odds are being worked out
    double variance{0.0};             // of the result under the best play, in bets squared
    double mistakeCost{0.0};          // what the judged holds gave away, in bets

    // The mistakes' cost once every hold is judged.
    std::optional<double> skillCost() const;
    // The result less what the holds played return on average, once that is known.
    std::optional<double> luck() const;
    // The luck over the standard deviation of the result; nothing without a spread.
    std::optional<double> luckDeviations() const;
};

// Adds up the settled hands of one visit, or of the whole run for visit 0.
LuckSummary luckOf(const std::vector<HandRecord>& history, int visit, const OddsByGame& odds);

} // namespace marivale
