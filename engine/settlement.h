#pragma once

#include <cstdint>
#include <string_view>

#include "engine/game.h"
#include "state/game_state.h"

namespace marivale {

// The Treasure Hunt: given BonusAmount seeded with one bet, it leaves the bonus in BonusAmount.
class TreasureHunt {
public:
    virtual ~TreasureHunt() = default;
    virtual void play(GameState& state) = 0;
};

struct Settlement {
    bool paid{false};              // the code had a row: Credits and WinAmount changed
    bool bonusPlayed{false};       // the Treasure Hunt ran; the board turns its cards face down
    std::string_view winPattern{}; // pattern for the Win box
};

// Pays HandRank into Credits (times DoubleUpFactor when above 0) and sets WinAmount; on Treasure
// Trips a hand with the bonus due plays the bonus game and adds BonusAmount as well.
Settlement SettleHand(GameState& state, GameId game, TreasureHunt& hunt);

// The Win box pattern of a code on a game.
std::string_view winPatternFor(GameId game, std::uint8_t code);

} // namespace marivale
