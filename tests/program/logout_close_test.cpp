// Closing for a logout: a signal received by this very process goes through the signal bridge
// and closes the windows from the top down as their close boxes would, so that a board with
// Double Up open settles and folds its visit before the main menu writes the total. A second
// signal changes nothing. A checkpoint of the session writes the total and play goes on.

// Standard library
#include <csignal>
#include <functional>
#include <memory>

// Qt
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

// Marivale
#include "program/program_windows.h"
#include "shell/main_menu.h"
#include "shell/quit_sequence.h"
#include "shell/signal_bridge.h"
#include "tests/support/data_folder.h"
#include "tests/support/scripted_random_source.h"

namespace marivale {

class LogoutCloseTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void signalClosesDoubleUpThenTheBoardThenTheMenu_data();
    void signalClosesDoubleUpThenTheBoardThenTheMenu();
    void signalClosesTheHelpScreenAndTheMenu();
    void checkpointKeepsTheTotalAndPlayGoesOn_data();
    void checkpointKeepsTheTotalAndPlayGoesOn();

private:
    QByteArray dataFile() const;

    QTemporaryDir config_{};
    std::unique_ptr<QTemporaryDir> folder_{};
    QString programDirectory_{};
};

using testing::click;
using testing::once;
using testing::visibleTopLevel;

namespace {

// The program's wiring: a signal marks the menu's close unattended and starts the sequence; a
// checkpoint goes to the menu.
struct LogoutWiring {
    explicit LogoutWiring(MainMenu& menu) : quit(menu, [&menu] { menu.close(); }) {
        QObject::connect(&bridge, &SignalBridge::closeRequested, &menu, [&menu, this] {
            menu.closeUnattended();
            quit.start();
        });
        QObject::connect(&bridge, &SignalBridge::checkpointRequested, &menu, &MainMenu::checkpoint);
        bridge.watchSessionManager(*qGuiApp);
    }
    SignalBridge bridge;
    QuitSequence quit;
};

} // namespace

void LogoutCloseTest::initTestCase() {
    QVERIFY(config_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config_.path());
    programDirectory_ = QDir::currentPath();
}

void LogoutCloseTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(testing::enterDataFolder(*folder_, programDirectory_));
    QSettings("Vandrine", "Vandrine").clear();
    QFile file("mpdata.dat");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("-12.5\r\n");
}

void LogoutCloseTest::cleanup() {
    QDir::setCurrent(programDirectory_);
    folder_.reset();
}

QByteArray LogoutCloseTest::dataFile() const {
    QFile file("mpdata.dat");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void LogoutCloseTest::signalClosesDoubleUpThenTheBoardThenTheMenu_data() {
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("SIGTERM, then SIGTERM") << SIGTERM << SIGTERM;
    QTest::newRow("SIGHUP, then SIGINT") << SIGHUP << SIGINT;
    QTest::newRow("SIGINT, then SIGTERM") << SIGINT << SIGTERM;
}

// Jacks or Better at $1 deals a heart flush ($5) and the player opens Double Up on it. The
// signal closes Double Up as its close box does, which takes the $5; the board then folds
// 19 + 5 credits against $20 bought: -12.5 + 4 = -8.5. Closing the board first would lose the
// $5 and store -13.5.
void LogoutCloseTest::signalClosesDoubleUpThenTheBoardThenTheMenu() {
    QFETCH(int, first);
    QFETCH(int, second);
    GameState state{};
    applyStartupDefaults(state);
    ScriptedRandomSource random;
    for (const int code : {27, 30, 34, 36, 38, 0}) {
        random.pushIndex(code, 52);
    }
    SessionStats stats;
    MainMenu::Hooks hooks = programMenuHooks(state, random, stats);
    QStringList warnings;
    hooks.warn = [&warnings](const QString& text) {
        warnings.append(text);
    };
    MainMenu menu(state, hooks);
    LogoutWiring wiring(menu);
    QSignalSpy closed(&menu, &MainMenu::closed);
    menu.show();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QTest::mouseClick(menu.findChild<QWidget*>("sbPanel1"), Qt::LeftButton);
    QTest::mouseClick(menu.findChild<QRadioButton*>("PSettings2"), Qt::LeftButton);

    bool doubleUpSeen = false;
    QTimer::singleShot(0, [&] {
        once("JBBoard", [&](QWidget& board) {
            click(board, "Purchase");
            click(board, "DrawDeal");
            click(board, "Stand");
            QTimer::singleShot(0, [&] {
                QWidget* dup = QApplication::activeModalWidget();
                doubleUpSeen = dup != nullptr && dup->objectName() == "frmDup";
                std::raise(first);
                std::raise(second);
            });
            click(board, "Stand"); // opens Double Up and returns once the board has settled
        });
    });
    QTest::mouseClick(menu.findChild<QPushButton*>("JBBtn"), Qt::LeftButton);
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(doubleUpSeen);
    QCOMPARE(dataFile(), QByteArray("-8.5\r\n"));
    QVERIFY(!menu.isVisible());
    QVERIFY(visibleTopLevel("JBBoard") == nullptr);
    QVERIFY(QSettings("Vandrine", "Vandrine").contains("Settings/MainLeft"));
    QVERIFY(warnings.isEmpty());
    // Another signal after the close finds nothing more to do.
    std::raise(SIGTERM);
    QTest::qWait(50);
    QCOMPARE(closed.count(), 1);
}

// The help screen over the menu is closed, then the menu writes the total it shows.
void LogoutCloseTest::signalClosesTheHelpScreenAndTheMenu() {
    GameState state{};
    applyStartupDefaults(state);
    ScriptedRandomSource random;
    SessionStats stats;
    MainMenu menu(state, programMenuHooks(state, random, stats));
    LogoutWiring wiring(menu);
    QSignalSpy closed(&menu, &MainMenu::closed);
    menu.show();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QTest::mouseClick(menu.findChild<QPushButton*>("ClBtn"), Qt::LeftButton);
    bool helpSeen = false;
    QTimer::singleShot(0, [&] {
        once("frmHelp", [&](QWidget&) {
            helpSeen = true;
            std::raise(SIGTERM);
        });
    });
    QTest::mouseClick(menu.findChild<QPushButton*>("HpBtn"), Qt::LeftButton);
    QTRY_COMPARE(closed.count(), 1);
    QVERIFY(helpSeen);
    QVERIFY(visibleTopLevel("frmHelp") == nullptr);
    QCOMPARE(dataFile(), QByteArray("0\r\n"));
}

void LogoutCloseTest::checkpointKeepsTheTotalAndPlayGoesOn_data() {
    QTest::addColumn<bool>("quitEvent");
    QTest::newRow("then SIGTERM") << false;
    QTest::newRow("then the session's end") << true;
}

// Jacks or Better at $1 from -12.5: $20 bought and a hand lost leave 19 credits. The session's
// checkpoint writes -13.5, what closing the board now would leave, and changes nothing; play
// goes on, and the end of the session, a SIGTERM or a request to quit, closes everything with
// the next hand lost too: -14.5.
void LogoutCloseTest::checkpointKeepsTheTotalAndPlayGoesOn() {
    QFETCH(bool, quitEvent);
    GameState state{};
    applyStartupDefaults(state);
    ScriptedRandomSource random;
    for (const int code : {1, 19, 34, 42, 23, 2, 20, 35, 43, 25}) { // 2c 7d 9h 4s Jd, 3c 8d ...
        random.pushIndex(code, 52);
    }
    SessionStats stats;
    MainMenu menu(state, programMenuHooks(state, random, stats));
    LogoutWiring wiring(menu);
    QSignalSpy closed(&menu, &MainMenu::closed);
    menu.show();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QTest::mouseClick(menu.findChild<QRadioButton*>("PSettings2"), Qt::LeftButton);

    QByteArray atCheckpoint;
    bool boardStayed = false;
    QTimer::singleShot(0, [&] {
        once("JBBoard", [&](QWidget& board) {
            click(board, "Purchase");
            click(board, "DrawDeal");
            click(board, "Stand");
            wiring.bridge.commitData();
            QTest::qWait(50);
            atCheckpoint = dataFile();
            boardStayed = board.isVisible() && closed.count() == 0 && state.Credits == 19.0F &&
                          state.NetWinLoss == -12.5F;
            click(board, "DrawDeal");
            click(board, "Stand");
            if (quitEvent) {
                QEvent quit(QEvent::Quit);
                QCoreApplication::sendEvent(qApp, &quit);
            } else {
                std::raise(SIGTERM);
            }
        });
    });
    QTest::mouseClick(menu.findChild<QPushButton*>("JBBtn"), Qt::LeftButton);
    QTRY_COMPARE(closed.count(), 1);
    QCOMPARE(atCheckpoint, QByteArray("-13.5\r\n"));
    QVERIFY(boardStayed);
    QCOMPARE(dataFile(), QByteArray("-14.5\r\n"));
    QVERIFY(!menu.isVisible());
    wiring.bridge.commitData();
    QCOMPARE(dataFile(), QByteArray("-14.5\r\n"));
}

} // namespace marivale

QTEST_MAIN(marivale::LogoutCloseTest)
#include "logout_close_test.moc"
