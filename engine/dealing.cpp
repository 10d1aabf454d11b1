#include "engine/dealing.h"

#include <cmath>

namespace marivale {

void DealCards(GameState& state, GameId game, RandomSource& random) {
    const int deck = deckSize(game);
    const bool freshDeal = phaseOf(state) == Phase::BeforeDeal;
    if (freshDeal) {
        for (int code = 0; code < deck; ++code) {
            state.CardUsed[code] = kFalse;
        }
    }
    random.reseedFromClock();
    // A held position still takes one accepted draw; the card drawn for it stays in the deck.
    for (int position = 0; position < kHandSize;) {
        const int code = static_cast<int>(random.next() * deck);
        if (code < 0 || code >= deck || isSet(state.CardUsed[code])) {
            continue;
        }
        if (!isSet(state.Held[position])) {
            state.CardUsed[code] = kTrue;
            state.Hand[position] = static_cast<float>(code);
        }
        ++position;
    }
    if (phaseOf(state) == Phase::Dealt) {
        for (int position = 0; position < kHandSize; ++position) {
            state.Held[position] = kFalse;
        }
    }
}

HandCards boardCards(const GameState& state) {
    HandCards cards{};
    for (std::size_t p = 0; p < cards.size(); ++p) {
        const float value = state.Hand[p];
        cards[p] = value >= 0.0f && value <= static_cast<float>(kJoker)
                       ? static_cast<CardCode>(std::lround(value))
                       : -1;
    }
    return cards;
}

} // namespace marivale
