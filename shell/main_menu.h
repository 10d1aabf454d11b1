#pragma once

// The main menu window (frmMain): the controls of the bet unit, the Double Up switch, the running
// total and the way into the four boards and the help screen. Its placement is restored at the
// load and saved at the close; every rule of the menu is its controller's, and the window draws
// what the controller tells it.

// Standard library
#include <functional>
#include <string_view>

// Qt
#include <QMainWindow>
#include <QRect>

// Marivale
#include "engine/game.h"
#include "play/menu_controller.h"
#include "play/menu_view.h"
#include "shell/total_keeper.h"
#include "state/game_state.h"

class QButtonGroup;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace marivale {

class MenuStatusBar;

// What the menu asks of the world outside it; an empty member uses the real thing.
struct MainMenuHooks {
    // Shows the game's board modally over the menu and returns once it has closed.
    std::function<void(GameId, QWidget& menu)> openBoard{};
    // Tells the player about a data file that cannot be written.
    std::function<void(const QString&)> warn{};
};

class MainMenu : public QMainWindow, private MenuView {
    Q_OBJECT
public:
    using Hooks = MainMenuHooks;

    // Builds the window and runs its load: placement, Double Up off, the total from the data
    // file in the current directory.
    MainMenu(GameState& state, Hooks hooks, QWidget* parent = nullptr);
    ~MainMenu() override;

    // From now on the close asks nothing: a logout or a signal is closing the program, so a
    // message about the data file goes to the error output instead of a window.
    void closeUnattended();

    // A checkpoint of the session: keeps the total that closing now would leave while play goes
    // on. Nobody may be there to answer, so a problem goes to the error output.
    void checkpoint();

signals:
    // The close sequence has run; the program may end.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildControls();
    void buildStatusBar();
    void applySavedPlacement();
    void fixPlacementOnceFramed();

    // What the controller asks of the window.
    void setText(MenuText target, std::string_view text) override;
    void hideMenu() override;
    void showMenu() override;
    void openBoard(GameId game) override;
    void showHelp() override;
    void warn(std::string_view message) override;
    void closeOtherWindows() override;

    Hooks hooks_{};
    TotalKeeper keeper_{};
    MenuController controller_;
    QRect placedRect_{};            // the outer rectangle the load applied, in pixels
    bool placementUnframed_{false}; // applied before the window manager framed the window

    QLabel* title_{nullptr};
    QGroupBox* playFrame_{nullptr};
    QButtonGroup* playSettings_{nullptr};
    QGroupBox* statFrame_{nullptr};
    QLineEdit* winLoss_{nullptr};
    MenuStatusBar* statusBar_{nullptr};
};

} // namespace marivale
