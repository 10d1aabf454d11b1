#pragma once

// The four games' pay tables: nine rows each, kept in the games' table.

#include <cstdint>

#include "engine/game.h"
#include "engine/pay_row.h"
#include "state/game_state.h"

namespace marivale {

const PayTable& payTable(GameId game);

// Sets the game's nine payout fields to BetAmount times their multipliers.
void ComputePayouts(GameState& state, GameId game);

// The payout field that pays a code on a game, or nullptr for a code without a row.
PayoutField payoutFieldFor(GameId game, std::uint8_t code);

// The multiplier of a code on a game's own table (0 for a code without a row).
int multiplierFor(GameId game, std::uint8_t code);

} // namespace marivale
