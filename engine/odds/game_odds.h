#pragma once

// The whole game under the best strategy: every deal held the way that returns most, averaged
// over every possible deal, with the probability of each final hand.

// Standard library
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <vector>

// Marivale
#include "engine/game.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/outcome.h"
#include "engine/odds/parallel.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds {

struct GameOdds {
    GameId game{GameId::JacksOrBetter};
    double expectedReturn{0.0};                       // in bets per bet; 1.0 is 100%
    std::array<double, kCodeSlots> codeProbability{}; // final hands by code, bonus or not
    double bonusProbability{0.0};                     // final hands that earn the Treasure Hunt
    double bonusReturn{0.0};                          // the part of the return the bonus pays
    std::uint64_t deals{0};
    std::size_t dealClasses{0};
    // Final hands by outcome slot of the tables (a bonus outcome apart from its code).
    std::array<double, kMaxOutcomes> outcomeProbability{};
    std::array<Outcome, kMaxOutcomes> outcomes{};
    int outcomeCount{0};
    // The variance of the pay of one hand in bets squared; on Treasure Trips the chest's own
    // spread is part of it.
    double variance{0.0};

    double standardDeviation() const { return std::sqrt(variance); }
};

// What the game needs of one pay scale: each slot's pay, and for every suit class of the sets
// of up to four cards what all the hands containing one of its sets pay together.
struct ClassPays {
    OutcomeValues values{};
    std::array<std::vector<double>, kHandSize> ofClass{};
    std::array<double, kHandSize + 1> draws{};
    std::array<double, kHandSize + 1> perDraw{}; // 1 / draws
};

ClassPays classPaysFor(const DrawTables& tables, const PayScale& scale);

// The exact return of every hold of a deal, by mask over its sorted cards, from the suit classes
// of its subsets and its own outcome slot.
std::array<double, kHoldCount> holdReturns(const ClassPays& pays, const SubsetClasses& ids,
                                           int dealSlot);

// Plays every deal of the game's deck the best way under the pay scale; among holds with equal
// returns the lowest mask over the sorted cards is played. Nothing when stopped early.
std::optional<GameOdds> analyzeGame(const DrawTables& tables, const PayScale& scale,
                                    int threads = defaultThreadCount(), std::stop_token stop = {});

} // namespace marivale::odds
