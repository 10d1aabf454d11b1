// Visits to the real boards from the main menu: each menu button opens its own board modally
// with the menu hidden, the board is played by clicking its controls, closes, and the menu shows
// the folded total. Double Up and the bet unit reaching a board are the logout test's part.

// Standard library
#include <memory>

// Qt
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

// Marivale
#include "program/program_windows.h"
#include "shell/main_menu.h"
#include "tests/support/data_folder.h"
#include "tests/support/scripted_random_source.h"

namespace marivale {

class MenuBoardTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void visit_data();
    void visit();

private:
    QTemporaryDir config_{};
    std::unique_ptr<QTemporaryDir> folder_{};
    QString programDirectory_{};
};

namespace {

// Queues cards of the 52-card deck, by code, for the next draws.
void script(ScriptedRandomSource& random, std::initializer_list<int> codes) {
    for (const int code : codes) {
        random.pushIndex(code, 52);
    }
}

// Menu hooks that collect the warnings the menu would show the player.
MainMenu::Hooks collectingWarnings(QStringList& warnings, GameState& state, RandomSource& random,
                                   SessionStats& stats) {
    MainMenu::Hooks hooks = programMenuHooks(state, random, stats);
    hooks.warn = [&warnings](const QString& text) {
        warnings.append(text);
    };
    return hooks;
}

} // namespace

void MenuBoardTest::initTestCase() {
    QVERIFY(config_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config_.path());
    programDirectory_ = QDir::currentPath();
}

// A data folder of its own, holding links to the pictures and the bell, as the launcher makes.
void MenuBoardTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(testing::enterDataFolder(*folder_, programDirectory_));
}

void MenuBoardTest::cleanup() {
    QDir::setCurrent(programDirectory_);
    folder_.reset();
}

void MenuBoardTest::visit_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("board");
    QTest::addColumn<QByteArray>("storedBefore");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QByteArray>("storedAfter");
    QTest::newRow("Jacks or Better: buy $20, leave")
        << "JBBtn"
        << "JBBoard" << QByteArray("0\r\n") << QStringList{"Purchase"} << "$0.00"
        << "Stats" << QByteArray("0\r\n");
    QTest::newRow("Treasure Trips: look in, leave at 0")
        << "TTBtn"
        << "TTBoard" << QByteArray("0") << QStringList{} << "$0.00"
        << "Stat" << QByteArray("0\r\n");
    QTest::newRow("Joker Wild: winnings ride along")
        << "WJBtn"
        << "WJBoard" << QByteArray("35.5\r\n") << QStringList{} << "$35.50"
        << "Winnings" << QByteArray("35.5\r\n");
    QTest::newRow("Deuces Wild: one losing hand")
        << "DWBtn"
        << "DWBoard" << QByteArray("0\r\n") << QStringList{"Purchase", "DrawDeal", "DrawDeal"}
        << "-$0.25"
        << "Losses" << QByteArray("-0.25\r\n");
}

void MenuBoardTest::visit() {
    QFETCH(QString, button);
    QFETCH(QString, board);
    QFETCH(QByteArray, storedBefore);
    QFETCH(QStringList, clicks);
    QFETCH(QString, shown);
    QFETCH(QString, caption);
    QFETCH(QByteArray, storedAfter);
    {
        QFile file("mpdata.dat");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(storedBefore);
    }
    GameState state{};
    applyStartupDefaults(state);
    // Deuces Wild deals Three, Four, Seven, Ten, Queen and draws Five, Eight, Jack, King, Nine.
    ScriptedRandomSource random;
    script(random, {2, 16, 32, 48, 11, 4, 20, 36, 51, 8});
    QStringList warnings;
    SessionStats stats;
    const MainMenu::Hooks hooks = collectingWarnings(warnings, state, random, stats);
    MainMenu menu(state, hooks);
    menu.show();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));

    bool boardSeen = false;
    bool menuHidden = false;
    QTimer::singleShot(0, [&] {
        testing::once(board, [&](QWidget& window) {
            boardSeen = true;
            menuHidden = !menu.isVisible();
            for (const QString& name : clicks) {
                testing::click(window, name);
            }
            testing::click(window, QStringLiteral("Exit"));
            if (window.isVisible()) {
                window.close(); // the Exit click failed: the test goes on
            }
        });
    });
    QTest::mouseClick(menu.findChild<QPushButton*>(button), Qt::LeftButton);

    QVERIFY(boardSeen);
    QVERIFY(menuHidden);
    QVERIFY(menu.isVisible());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QVERIFY2(window->objectName() != board, "the board outlived its visit");
    }
    QCOMPARE(menu.findChild<QLineEdit*>("WinLoss")->text(), shown);
    QCOMPARE(menu.findChild<QGroupBox*>("StatFrame")->title(), caption);
    menu.close();
    QFile file("mpdata.dat");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), storedAfter);
    QVERIFY(warnings.isEmpty());
}

} // namespace marivale

QTEST_MAIN(marivale::MenuBoardTest)
#include "menu_board_test.moc"
