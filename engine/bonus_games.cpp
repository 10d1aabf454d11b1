#include "engine/bonus_games.h"

// Standard library
#include <algorithm>

namespace marivale {

bool guessWins(DoubleUpGuess guess, int rank) {
    const bool low = rank >= 1 && rank <= 6;
    return guess == DoubleUpGuess::Low ? low : !low;
}

CardCode drawDoubleUpCard(RandomSource& random) {
    CardCode card = 0;
    do {
        card = std::clamp(static_cast<int>(random.next() * 52), 0, 51);
    } while (rankOf(card) == Rank::Eight);
    return card;
}

GuessResult playGuess(GameState& state, RandomSource& random, DoubleUpGuess guess) {
    const GuessResult result{drawDoubleUpCard(random), false};
    if (!guessWins(guess, rankIndex(result.card))) {
        state.DoubleUpFactor = 0;
        return result;
    }
    const int doubled = std::max(1, 2 * static_cast<int>(state.DoubleUpFactor));
    state.DoubleUpFactor = static_cast<std::int16_t>(std::min<int>(doubled, kDoubleUpLimit));
    return {result.card, true};
}

int chestFactor(double value) {
    return std::clamp(static_cast<int>(value * 10 + 1), 1, 10) * 3;
}

int openChest(GameState& state, RandomSource& random) {
    random.reseedFromClock();
    const int factor = chestFactor(random.next());
    state.BonusAmount = static_cast<float>(factor) * state.BonusAmount;
    return factor;
}

} // namespace marivale
