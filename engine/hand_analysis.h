#pragma once

// Classifies the five cards in Hand into the game's hand code (0 pays nothing, 10 at most).

#include <cstdint>

#include "engine/game.h"
#include "state/game_state.h"

namespace marivale {

// The Joker Wild mark for a pair of Aces, written into Hand position 0.
inline constexpr float kAcePairMark = 13.0f;

struct HandAnalysis {
    HandCode code{0};
    // Joker Wild: this call wrote the ace-pair mark into Hand position 0.
    bool acePairMarked{false};
};

// Reads Hand 0..4. On Treasure Trips sets BonusDue; on Jacks or Better and Joker Wild it may
// overwrite Hand position 0 with the marker the hand's name needs.
HandAnalysis AnalyzeHand(GameState& state, GameId game);

// The highest code a game uses.
inline int topCode(GameId game) {
    return facts(game).topCode;
}

} // namespace marivale
