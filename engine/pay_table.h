#pragma once

// The four games' pay tables as data: nine rows each, from the top of the board's table down.

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "engine/game.h"
#include "state/game_state.h"

namespace marivale {

using PayoutField = float GameState::*;

struct PayRow {
    std::string_view caption{}; // the row's caption, dots included
    std::string_view box{};     // objectName of the amount box
    PayoutField field{nullptr}; // the GameState payout the row shows and pays
    std::int16_t multiplier{0}; // times BetAmount
    std::string_view pattern{}; // display pattern of the amount box
    std::uint8_t code{0};       // the HandRank code the row pays
    std::uint8_t alsoCode{0};   // a second code paid from the same row, or 0
};

inline constexpr int kPayRows = 9;
using PayTable = std::array<PayRow, kPayRows>;

const PayTable& payTable(GameId game);

// Sets the game's nine payout fields to BetAmount times their multipliers.
void ComputePayouts(GameState& state, GameId game);

// The payout field that pays a code on a game, or nullptr for a code without a row.
PayoutField payoutFieldFor(GameId game, std::uint8_t code);

// The multiplier of a code on a game's own table (0 for a code without a row).
int multiplierFor(GameId game, std::uint8_t code);

} // namespace marivale
