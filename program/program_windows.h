#pragma once

// How the windows meet: the main menu opens the real boards, and every board opens Double Up,
// the Treasure Hunt and the help screen. Only the program knows all of them.

// Marivale
#include "board/board_windows.h"
#include "engine/random_source.h"
#include "play/stats/session_stats.h"
#include "shell/main_menu.h"
#include "state/game_state.h"

namespace marivale {

// The windows every board opens beyond its own companions.
BoardWindows programBoardWindows();

// The menu's hooks that open the real boards modally, recording every visit in the run's
// statistics; the menu's own warnings are left to the menu.
MainMenuHooks programMenuHooks(GameState& state, RandomSource& random, SessionStats& stats);

} // namespace marivale
