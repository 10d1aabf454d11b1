#pragma once

// What each final hand pays, in bets: one multiplier per HandRank code, plus on Treasure Trips
// the expected Treasure Hunt bonus of a hand that earns it.

// Standard library
#include <array>
#include <optional>
#include <span>

// Marivale
#include "engine/bonus_games.h"
#include "engine/game.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/outcome.h"

namespace marivale::odds {

struct PayScale {
    std::array<double, kCodeSlots> multiplier{}; // by code; code 0 pays nothing
    double bonus{0.0};                           // added to a hand that earns the Treasure Hunt

    bool operator==(const PayScale&) const = default;
};

// The game's own table, with one chest choice's mean bonus on Treasure Trips.
PayScale ownPayScale(GameId game);

// A table given as the multipliers of the codes from the game's highest code down to code 1
// (ten numbers on Deuces Wild, nine elsewhere); nothing when the count is wrong.
std::optional<PayScale> payScaleFromMultipliers(GameId game, std::span<const double> highestFirst);

// What each outcome slot of the tables pays, in bets.
OutcomeValues outcomeValues(const DrawTables& tables, const PayScale& scale);

// The chest values of one chest choice under the scale, in bets: the chest factors scaled so
// that their mean is the scale's bonus (the factors themselves at the game's own bonus).
std::array<double, kChestFactors.size()> chestValues(const PayScale& scale);

// The variance of one chest choice's bonus, in bets squared (74.25 at the game's own bonus).
double bonusVariance(const PayScale& scale);

// The mean of the square of what each outcome slot pays, in bets squared: the square of its pay,
// plus on a bonus outcome the chest's own spread.
OutcomeValues outcomeSquares(const DrawTables& tables, const PayScale& scale);

} // namespace marivale::odds
