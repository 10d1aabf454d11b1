#pragma once

// Puts hands written in the cards' short form ("As Kh Tc 2d Jk") on the board.

// Standard library
#include <stdexcept>
#include <string>
#include <string_view>

// Marivale
#include "engine/card_text.h"
#include "state/game_state.h"

namespace marivale::testing {

// The five cards of the text; a test with a mistyped hand stops here.
inline HandCards cardsFromText(std::string_view text) {
    const auto cards = parseHand(text);
    if (!cards) {
        throw std::invalid_argument("not five cards: " + std::string(text));
    }
    return *cards;
}

// Puts the five cards into Hand positions 0..4 in the order given.
inline void putHand(GameState& state, const HandCards& cards) {
    for (int p = 0; p < kHandSize; ++p) {
        state.Hand[p] = static_cast<float>(cards[p]);
    }
}

inline void putHand(GameState& state, std::string_view text) {
    putHand(state, cardsFromText(text));
}

} // namespace marivale::testing
