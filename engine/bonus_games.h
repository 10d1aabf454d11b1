#pragma once

// The rules of the two side games: Double Up's low or high guess on a card that is never an
// Eight, and the Treasure Hunt's chests.

#include <array>
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
bool guessWins(DoubleUpGuess guess, Rank rank);

// Draws a card from the 48 that are not Eights, one uniform value per try.
CardCode drawDoubleUpCard(RandomSource& random);

// Draws a card and doubles DoubleUpFactor on a correct guess, up to the limit, or sets it to 0.
GuessResult playGuess(GameState& state, RandomSource& random, DoubleUpGuess guess);

// The factors a chest may multiply the bonus by, each equally likely.
inline constexpr std::array<int, 10> kChestFactors{3, 6, 9, 12, 15, 18, 21, 24, 27, 30};

// The mean chest factor (16.5): what one chest choice is worth on average, in bets.
inline constexpr double kChestFactorMean = [] {
    int sum = 0;
    for (const int factor : kChestFactors) {
        sum += factor;
    }
    return static_cast<double>(sum) / static_cast<double>(kChestFactors.size());
}();

// The factor of one chest from a uniform value r in [0, 1): the (r * 10 + 1)th factor.
int chestFactor(double value);

// Opens a chest: reseeds the source from the clock and multiplies BonusAmount by the factor.
int openChest(GameState& state, RandomSource& random);

} // namespace marivale
