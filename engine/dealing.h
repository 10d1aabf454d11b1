#pragma once

#include "engine/game.h"
#include "engine/random_source.h"
#include "state/game_state.h"

namespace marivale {

// Deals a fresh hand in phase 0, or replaces the cards not held in phase 1 and clears the holds.
// Reseeds the source from the clock on every call.
void DealCards(GameState& state, GameId game, RandomSource& random);

} // namespace marivale
