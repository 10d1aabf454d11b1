#pragma once

// Builds hands from text such as "As Kh Tc 2d Jk": rank A 2-9 T J Q K, suit c d h s (suit
// indexes 0..3), and "Jk" for the joker.

#include <array>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "engine/card.h"
#include "state/game_state.h"

namespace marivale::testing {

inline int cardFromText(std::string_view text) {
    if (text == "Jk") {
        return kJoker;
    }
    constexpr std::string_view ranks = "A23456789TJQK";
    constexpr std::string_view suits = "cdhs";
    const auto rank = ranks.find(text.at(0));
    const auto suit = suits.find(text.at(1));
    if (text.size() != 2 || rank == std::string_view::npos || suit == std::string_view::npos) {
        throw std::invalid_argument("bad card text");
    }
    return static_cast<int>(suit * 13 + rank);
}

inline std::array<int, 5> cardsFromText(std::string_view text) {
    std::array<int, 5> cards{};
    std::istringstream in{std::string(text)};
    std::string word;
    for (int& card : cards) {
        in >> word;
        card = cardFromText(word);
    }
    return cards;
}

// Puts the five cards into Hand positions 0..4 in the order written.
inline void putHand(GameState& state, std::string_view text) {
    const auto cards = cardsFromText(text);
    for (int p = 0; p < 5; ++p) {
        state.Hand[p] = static_cast<float>(cards[p]);
    }
}

} // namespace marivale::testing
