#pragma once

// A hand the player types to study: five cards of the game's deck, read leniently ("As Kd Tc 5h
// Jk", "as, kd, 10c, 5H, joker"), or the reason it is no such hand.

// Standard library
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

// Marivale
#include "engine/card.h"
#include "engine/game.h"

namespace marivale {

enum class StudyProblem : std::uint8_t {
    NotACard, // `text` is what was typed for it
    TooFew,   // `count` cards were given
    TooMany,  // `count` cards were given
    Twice,    // `card` is there more than once
    NoJoker,  // the game's deck has no joker
};

struct StudyError {
    StudyProblem problem{StudyProblem::TooFew};
    std::string text{};
    int count{0};
    CardCode card{0};
};

// The five cards typed, in the order typed, or what is wrong with them.
std::variant<HandCards, StudyError> readStudyHand(GameId game, std::string_view typed);

} // namespace marivale
