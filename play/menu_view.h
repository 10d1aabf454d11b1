#pragma once

// What the main menu's controller asks of the menu window. The controller never sees a widget:
// it sets the texts of the total and the Double Up status, hides and shows the menu, and asks
// for the modal windows.

// Standard library
#include <cstdint>
#include <string_view>

// Marivale
#include "engine/game.h"

namespace marivale {

enum class MenuText : std::uint8_t {
    WinLoss,        // the total
    StatFrame,      // the caption of the total's frame
    DoubleUpStatus, // panel 1 of the status bar
};

class MenuView {
public:
    virtual ~MenuView() = default;

    virtual void setText(MenuText target, std::string_view text) = 0;
    virtual void hideMenu() = 0;
    virtual void showMenu() = 0;
    // Shows the game's board modally and returns once it has closed.
    virtual void openBoard(GameId game) = 0;
    // Shows the help screen modally and returns once it has closed.
    virtual void showHelp() = 0;
    // Tells the player something went wrong with the kept total.
    virtual void warn(std::string_view message) = 0;
    // Closes every other window still open, the last opened first.
    virtual void closeOtherWindows() = 0;
};

} // namespace marivale
