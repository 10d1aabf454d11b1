#pragma once

// The main menu's rules: the bet unit of the Play Settings, the Double Up switch, the running
// total with its frame caption on every path, the way into the boards, and the load and close
// around the kept total, and the session's checkpoints. It reads and writes PlayUnit,
// DoubleUpEnabled and NetWinLoss of the one GameState and draws through a MenuView.

// Standard library
#include <array>
#include <string>
#include <string_view>

// Marivale
#include "engine/game.h"
#include "play/menu_view.h"
#include "play/play_controller.h"
#include "play/total_store.h"
#include "state/game_state.h"

namespace marivale {

// A Play Settings option: its index, caption and bet unit in dollars.
struct PlayOption {
    int index{0};
    std::string_view caption{};
    float unit{0.0f};
};

// The status bar's first panel with Double Up off and on.
inline constexpr std::string_view kDoubleUpOff = "Status: DoubleUp Not Enabled";
inline constexpr std::string_view kDoubleUpOn = "Status: DoubleUp Enabled";

inline constexpr std::array<PlayOption, 4> kPlayOptions{{
    {1, "$0.25 Game", 0.25f},
    {2, "$1.00 Game", 1.00f},
    {3, "$5.00 Game", 5.00f},
    {4, "$10.00 Game", 10.00f},
}};

class MenuController {
public:
    MenuController(GameState& state, MenuView& view, TotalStore& store);
    MenuController(const MenuController&) = delete;
    MenuController& operator=(const MenuController&) = delete;

    // The menu's load after its placement: Double Up off, then the kept total.
    void load();
    // Runs the close up to the placement: the total is kept, then the other windows close.
    // False when the close has already run.
    bool close();
    // From now on the menu is closing for a logout or a signal: nobody is there to answer.
    void closeUnattended() { unattended_ = true; }
    // A checkpoint of the session: keeps the total that closing now would leave while play goes
    // on, changing nothing in the game. The message for the error output when it could not be
    // kept, otherwise empty.
    std::string checkpoint();

    void playSettingClicked(int index);
    void statusBarClicked();
    void clearClicked();
    void helpClicked();
    void gameClicked(GameId game);

    bool closing() const { return closing_; }
    bool unattended() const { return unattended_; }

private:
    void showTotal(std::string_view captionAtZero);
    void showDoubleUpStatus();

    GameState& state_;
    MenuView& view_;
    TotalStore& store_;
    bool unattended_{false};
    bool closing_{false};
    bool visiting_{false}; // a board is open, its visit not yet in NetWinLoss
};

} // namespace marivale
