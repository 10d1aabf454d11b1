// Start-up: the one game state with its defaults, the random source, then the main menu.
// The program finds its data file and pictures in the directory it is started from.

// Qt
#include <QApplication>
#include <QIcon>
#include <QMessageBox>

// Marivale
#include "engine/random_source.h"
#include "play/stats/session_stats.h"
#include "program/program_windows.h"
#include "record/record_store.h"
#include "shell/main_menu.h"
#include "shell/quit_sequence.h"
#include "shell/signal_bridge.h"
#include "state/game_state.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Marivale Poker");
    QApplication::setWindowIcon(QIcon(":/icons/marivale-poker.png"));
    QGuiApplication::setDesktopFileName("marivale-poker");
    // The program ends when the main menu has run its close sequence, not when a board closes
    // while the menu is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    // A logout, a shutdown or Ctrl+C closes the program as "E&xit" does, from the start on; a
    // checkpoint of the session keeps the total and play goes on.
    marivale::SignalBridge bridge;
    bridge.watchSessionManager(app);

    marivale::GameState state{};
    marivale::applyStartupDefaults(state);
    marivale::ClockRandomSource random;

    marivale::SessionStats stats{}; // the run's statistics, kept across every board visit
    // The player's record of every run; a problem with it is told once and play goes on.
    marivale::RecordStore record(marivale::RecordStore::defaultPath(), [](const QString& text) {
        QMetaObject::invokeMethod(
            qApp,
            [text] {
                auto* box =
                    new QMessageBox(QMessageBox::Information, QApplication::applicationName(), text,
                                    QMessageBox::Ok, QApplication::activeWindow());
                box->setAttribute(Qt::WA_DeleteOnClose);
                box->setObjectName(QStringLiteral("RecordNotice"));
                box->show();
            },
            Qt::QueuedConnection);
    });
    stats.setSink(&record);
    marivale::MainMenu menu(state, marivale::programMenuHooks(state, random, stats));
    bool menuClosed = false;
    QObject::connect(&menu, &marivale::MainMenu::closed, &app, [&menuClosed, &bridge] {
        menuClosed = true;
        bridge.allowQuit();
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    marivale::QuitSequence quit(menu, [&menu] { menu.close(); });
    const auto closeUnattended = [&menu, &quit] {
        menu.closeUnattended();
        quit.start();
    };
    QObject::connect(&bridge, &marivale::SignalBridge::closeRequested, &app, closeUnattended);
    QObject::connect(&bridge, &marivale::SignalBridge::checkpointRequested, &menu,
                     &marivale::MainMenu::checkpoint);
    if (bridge.requested()) {
        closeUnattended();
    }
    // Should the program be told to quit some other way, the total is still written.
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &menu, [&menu, &menuClosed] {
        if (!menuClosed) {
            menu.closeUnattended();
            menu.close();
        }
    });
    menu.show();
    return QApplication::exec();
}
