#pragma once

// The rules of the two side games: Double Up's low or high guess on a card that is never an
// Eight, and the Treasure Hunt's chests.

#include <cstdint>

#include "engine/card.h"
#include "engine/random_source.h"
#include "state/game_state.h"

namespace marivale {

enum class DoubleUpGuess : std::uint8_t { Low, High };

// The largest DoubleUpFactor: fourteen correct guesses, the last doubling that fits 16 bits.
inline constexpr std::int16_t kDoubleUpLimit = 16384;

struct GuessResult {
    CardCode card{0};
    bool won{false};
};

// Low wins on Two to Seven, High on Nine to King and the Ace.
bool guessWins(DoubleUpGuess guess, int rank);

// Draws a card from the 48 that are not Eights, one uniform value per try.
CardCode drawDoubleUpCard(RandomSource& random);

// Draws a card and doubles DoubleUpFactor on a correct guess, up to the limit, or sets it to 0.
GuessResult playGuess(GameState& state, RandomSource& random, DoubleUpGuess guess);

// The factor of one chest from a uniform value in [0, 1): 3, 6, ... 30.
int chestFactor(double value);

// Opens a chest: reseeds the source from the clock and multiplies BonusAmount by the factor.
int openChest(GameState& state, RandomSource& random);

} // namespace marivale
