// A session at the main menu with the real boards. Each menu button opens its own board modally
// with the menu hidden; the board is played by clicking its controls, closes, and the menu shows
// and keeps the folded total. Closing for a logout: a signal received by this very process goes
// through the signal bridge and closes the windows from the top down as their close boxes
// would, so that a board with Double Up open settles and folds its visit before the main menu
// writes the total. A second signal changes nothing. A checkpoint of the session writes the
// total and play goes on.

// Standard library
#include <csignal>

// Qt
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
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

using testing::click;
using testing::once;
using testing::visibleTopLevel;

namespace {

GameState startupState() {
    GameState state{};
    applyStartupDefaults(state);
    return state;
}

QByteArray dataFile() {
    QFile file("mpdata.dat");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

// The program's main menu over its own state and scripted cards of the 52-card deck, wired as the
// program is: a signal marks the menu's close unattended and starts the quit sequence, a
// checkpoint goes to the menu. The warnings the menu would show are collected.
struct Session {
    explicit Session(std::initializer_list<int> cards = {}) {
        for (const int code : cards) {
            random.pushIndex(code, 52);
        }
        QObject::connect(&bridge, &SignalBridge::closeRequested, &menu, [this] {
            menu.closeUnattended();
            quit.start();
        });
        QObject::connect(&bridge, &SignalBridge::checkpointRequested, &menu, &MainMenu::checkpoint);
        bridge.watchSessionManager(*qGuiApp);
        menu.show();
        exposed = QTest::qWaitForWindowExposed(&menu);
    }
    MainMenu::Hooks hooks() {
        MainMenu::Hooks hooks = programMenuHooks(state, random, stats);
        hooks.warn = [this](const QString& text) {
            warnings.append(text);
        };
        return hooks;
    }
    void clickMenu(const char* name) {
        QTest::mouseClick(menu.findChild<QWidget*>(name), Qt::LeftButton);
    }

    GameState state = startupState();
    ScriptedRandomSource random{};
    SessionStats stats{};
    QStringList warnings{};
    MainMenu menu{state, hooks()};
    SignalBridge bridge{};
    QuitSequence quit{menu, [this] {
                          menu.close();
                      }};
    QSignalSpy closed{&menu, &MainMenu::closed};
    bool exposed{false};
};

} // namespace

class MenuSessionTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void visit_data();
    void visit();
    void signalClosesDoubleUpThenTheBoardThenTheMenu_data();
    void signalClosesDoubleUpThenTheBoardThenTheMenu();
    void signalClosesTheHelpScreenAndTheMenu();
    void checkpointKeepsTheTotalAndPlayGoesOn_data();
    void checkpointKeepsTheTotalAndPlayGoesOn();

private:
    QTemporaryDir config_{};
    std::unique_ptr<QTemporaryDir> folder_{};
    QString programDirectory_{};
};

void MenuSessionTest::initTestCase() {
    QVERIFY(config_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config_.path());
    programDirectory_ = QDir::currentPath();
}

// A data folder of its own, holding links to the pictures and the bell as the launcher makes,
// and a kept total of -12.5.
void MenuSessionTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(testing::enterDataFolder(*folder_, programDirectory_));
    QSettings("Vandrine", "Vandrine").clear();
    QFile file("mpdata.dat");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("-12.5\r\n");
}

void MenuSessionTest::cleanup() {
    QDir::setCurrent(programDirectory_);
    folder_.reset();
}

void MenuSessionTest::visit_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("board");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("Jacks or Better: buy $20, leave")
        << "JBBtn"
        << "JBBoard" << QStringList{"Purchase"} << "-$12.50" << QByteArray("-12.5\r\n");
    QTest::newRow("Treasure Trips: look in")
        << "TTBtn"
        << "TTBoard" << QStringList{} << "-$12.50" << QByteArray("-12.5\r\n");
    QTest::newRow("Joker Wild: look in")
        << "WJBtn"
        << "WJBoard" << QStringList{} << "-$12.50" << QByteArray("-12.5\r\n");
    QTest::newRow("Deuces Wild: one losing hand")
        << "DWBtn"
        << "DWBoard" << QStringList{"Purchase", "DrawDeal", "DrawDeal"} << "-$12.75"
        << QByteArray("-12.75\r\n");
}

void MenuSessionTest::visit() {
    QFETCH(QString, button);
    QFETCH(QString, board);
    QFETCH(QStringList, clicks);
    QFETCH(QString, shown);
    QFETCH(QByteArray, stored);
    // Deuces Wild deals Three, Four, Seven, Ten, Queen and draws Five, Eight, Jack, King, Nine.
    Session s({2, 16, 32, 48, 11, 4, 20, 36, 51, 8});
    QVERIFY(s.exposed);
    bool boardSeen = false;
    bool menuHidden = false;
    QTimer::singleShot(0, [&] {
        once(board, [&](QWidget& window) {
            boardSeen = true;
            menuHidden = !s.menu.isVisible();
            for (const QString& name : clicks) {
                click(window, name);
            }
            click(window, QStringLiteral("Exit"));
            if (window.isVisible()) {
                window.close(); // the Exit click failed: the test goes on
            }
        });
    });
    s.clickMenu(qPrintable(button));

    QVERIFY(boardSeen);
    QVERIFY(menuHidden);
    QVERIFY(s.menu.isVisible());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QVERIFY2(window->objectName() != board, "the board outlived its visit");
    }
    QCOMPARE(s.menu.findChild<QLineEdit*>("WinLoss")->text(), shown);
    QCOMPARE(s.menu.findChild<QGroupBox*>("StatFrame")->title(), QStringLiteral("Losses"));
    s.menu.close();
    QCOMPARE(dataFile(), stored);
    QVERIFY(s.warnings.isEmpty());
}

void MenuSessionTest::signalClosesDoubleUpThenTheBoardThenTheMenu_data() {
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
void MenuSessionTest::signalClosesDoubleUpThenTheBoardThenTheMenu() {
    QFETCH(int, first);
    QFETCH(int, second);
    Session s({27, 30, 34, 36, 38, 0});
    QVERIFY(s.exposed);
    s.clickMenu("sbPanel1");
    s.clickMenu("PSettings2");
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
    s.clickMenu("JBBtn");
    QTRY_COMPARE(s.closed.count(), 1);
    QVERIFY(doubleUpSeen);
    QCOMPARE(dataFile(), QByteArray("-8.5\r\n"));
    QVERIFY(!s.menu.isVisible());
    QVERIFY(visibleTopLevel("JBBoard") == nullptr);
    QVERIFY(QSettings("Vandrine", "Vandrine").contains("Settings/MainLeft"));
    QVERIFY(s.warnings.isEmpty());
    // Another signal after the close finds nothing more to do.
    std::raise(SIGTERM);
    QTest::qWait(50);
    QCOMPARE(s.closed.count(), 1);
}

// The help screen over the menu is closed, then the menu writes the total it shows.
void MenuSessionTest::signalClosesTheHelpScreenAndTheMenu() {
    Session s;
    QVERIFY(s.exposed);
    s.clickMenu("ClBtn");
    bool helpSeen = false;
    QTimer::singleShot(0, [&] {
        once("frmHelp", [&](QWidget&) {
            helpSeen = true;
            std::raise(SIGTERM);
        });
    });
    s.clickMenu("HpBtn");
    QTRY_COMPARE(s.closed.count(), 1);
    QVERIFY(helpSeen);
    QVERIFY(visibleTopLevel("frmHelp") == nullptr);
    QCOMPARE(dataFile(), QByteArray("0\r\n"));
}

void MenuSessionTest::checkpointKeepsTheTotalAndPlayGoesOn_data() {
    QTest::addColumn<bool>("quitEvent");
    QTest::newRow("then SIGTERM") << false;
    QTest::newRow("then the session's end") << true;
}

// Jacks or Better at $1 from -12.5: $20 bought and a hand lost leave 19 credits. The session's
// checkpoint writes -13.5, what closing the board now would leave, and changes nothing; play
// goes on, and the end of the session, a SIGTERM or a request to quit, closes everything with
// the next hand lost too: -14.5.
void MenuSessionTest::checkpointKeepsTheTotalAndPlayGoesOn() {
    QFETCH(bool, quitEvent);
    Session s({1, 19, 34, 42, 23, 2, 20, 35, 43, 25}); // 2c 7d 9h 4s Jd, 3c 8d ...
    QVERIFY(s.exposed);
    s.clickMenu("PSettings2");
    QByteArray atCheckpoint;
    bool boardStayed = false;
    QTimer::singleShot(0, [&] {
        once("JBBoard", [&](QWidget& board) {
            click(board, "Purchase");
            click(board, "DrawDeal");
            click(board, "Stand");
            s.bridge.commitData();
            QTest::qWait(50);
            atCheckpoint = dataFile();
            boardStayed = board.isVisible() && s.closed.count() == 0 && s.state.Credits == 19.0F &&
                          s.state.NetWinLoss == -12.5F;
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
    s.clickMenu("JBBtn");
    QTRY_COMPARE(s.closed.count(), 1);
    QCOMPARE(atCheckpoint, QByteArray("-13.5\r\n"));
    QVERIFY(boardStayed);
    QCOMPARE(dataFile(), QByteArray("-14.5\r\n"));
    QVERIFY(!s.menu.isVisible());
    s.bridge.commitData();
    QCOMPARE(dataFile(), QByteArray("-14.5\r\n"));
}

} // namespace marivale

QTEST_MAIN(marivale::MenuSessionTest)
#include "menu_session_test.moc"
