#pragma once

#include <cstdint>
#include <string_view>

#include "engine/game.h"
#include "engine/hand_analysis.h"
#include "state/game_state.h"

namespace marivale {

// The name of a classified hand as the board announces it; empty for a code that pays nothing.
// Code 1 on Jacks or Better and Joker Wild reads the analysis' mark in Hand position 0.
std::string_view HandName(GameId game, std::uint8_t code, const GameState& state,
                          bool acePairMarked);

// The name of a code with no pair detail ("Two Pair", "Pair of Jacks/Queens/Kings/Aces" ...).
std::string_view CodeName(GameId game, std::uint8_t code);

// The name of a code in a table of every code: its name, except that the code a single pair
// shares is named as the board's pay row names it ("Jacks or Better", "Two Pair/Aces").
std::string_view RowName(GameId game, std::uint8_t code);

} // namespace marivale
