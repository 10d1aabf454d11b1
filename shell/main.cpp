// Start-up: the one game state with its defaults, the random source, then the main menu.
// The program finds its data file and pictures in the directory it is started from.

// Qt
#include <QApplication>
#include <QIcon>

// Marivale
#include "engine/random_source.h"
#include "shell/main_menu.h"
#include "state/game_state.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Marivale Poker");
    QApplication::setWindowIcon(QIcon(":/icons/marivale-poker.png"));
    QGuiApplication::setDesktopFileName("marivale-poker");
    // The program ends when the main menu has run its close sequence, not when a board closes
    // while the menu is hidden.
    QApplication::setQuitOnLastWindowClosed(false);

    marivale::GameState state{};
    marivale::applyStartupDefaults(state);
    marivale::ClockRandomSource random;

    marivale::MainMenu menu(state, random);
    QObject::connect(&menu, &marivale::MainMenu::closed, &app, &QApplication::quit,
                     Qt::QueuedConnection);
    menu.show();
    return QApplication::exec();
}
