#pragma once

// The windows a board opens that are not its own companions: Double Up, the Treasure Hunt and
// the help screen. The program hands them to every board, so that the board never reaches into
// the windows beside it.

// Standard library
#include <functional>

// Marivale
#include "engine/random_source.h"
#include "state/game_state.h"

class QWidget;

namespace marivale {

class CardPictures;

struct BoardWindows {
    // Plays Double Up over the board, modally; the win it leaves is in the state.
    std::function<void(QWidget& board, GameState& state, RandomSource& random,
                       CardPictures& pictures)>
        doubleUp{};
    // Plays the Treasure Hunt over the board, modally; its bonus is in the state.
    std::function<void(QWidget& board, GameState& state, RandomSource& random)> treasureHunt{};
    // Shows the help screen over the board, modally.
    std::function<void(QWidget& board)> help{};
};

} // namespace marivale
