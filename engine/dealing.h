#pragma once

#include "engine/card.h"
#include "engine/game.h"
#include "engine/random_source.h"
#include "state/game_state.h"

namespace marivale {

// Deals a fresh hand in phase 0, or replaces the cards not held in phase 1 and clears the holds.
// Reseeds the source from the clock on every call.
void DealCards(GameState& state, GameId game, RandomSource& random);

// The five cards on the board as codes; anything that is not a card code reads as -1.
HandCards boardCards(const GameState& state);

} // namespace marivale
