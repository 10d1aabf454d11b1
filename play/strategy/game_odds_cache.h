#pragma once

// Whole-game odds of each game's own pay table, kept for the life of the process once a strategy
// window has computed them, so reopening a board shows them at once.

// Standard library
#include <optional>

// Marivale
#include "engine/game.h"
#include "engine/odds/game_odds.h"

namespace marivale {

std::optional<odds::GameOdds> cachedGameOdds(GameId game);
void storeGameOdds(const odds::GameOdds& result);

} // namespace marivale
