#include "engine/bonus_games.h"

// Standard library
#include <algorithm>

namespace marivale {

bool guessWins(DoubleUpGuess guess, Rank rank) {
    const bool low = rank >= Rank::Two && rank <= Rank::Seven;
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
    if (!guessWins(guess, rankOf(result.card))) {
        state.DoubleUpFactor = 0;
        return result;
    }
    const int doubled = std::max(1, 2 * static_cast<int>(state.DoubleUpFactor));
    state.DoubleUpFactor = static_cast<std::int16_t>(std::min<int>(doubled, kDoubleUpLimit));
    return {result.card, true};
}

int chestFactor(double value) {
    constexpr int count = static_cast<int>(kChestFactors.size());
    const int pick = std::clamp(static_cast<int>(value * count + 1), 1, count);
    return kChestFactors[pick - 1];
}

int openChest(GameState& state, RandomSource& random) {
    random.reseedFromClock();
    const int factor = chestFactor(random.next());
    state.BonusAmount = static_cast<float>(factor) * state.BonusAmount;
    return factor;
}

} // namespace marivale
