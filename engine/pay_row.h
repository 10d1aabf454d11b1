#pragma once

// One row of a game's pay table, as data.

#include <array>
#include <cstdint>
#include <string_view>

#include "engine/hand_codes.h"
#include "state/game_state.h"

namespace marivale {

using PayoutField = float GameState::*;

struct PayRow {
    std::string_view caption{}; // the row's caption, dots included
    std::string_view box{};     // objectName of the amount box
    PayoutField field{nullptr}; // the GameState payout the row shows and pays
    std::int16_t multiplier{0}; // times BetAmount
    std::string_view pattern{}; // display pattern of the amount box
    HandCode code{0};           // the HandRank code the row pays
    HandCode alsoCode{0};       // a second code paid from the same row, or 0
};

// Nine rows per game, from the top of the board's table down.
inline constexpr int kPayRows = 9;
using PayTable = std::array<PayRow, kPayRows>;

} // namespace marivale
