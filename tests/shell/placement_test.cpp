// The main window's saved placement: defaults, restore, save at close, damaged values, a window
// left off every screen, and the minimised and maximised cases.

// Standard library
#include <array>
#include <memory>

// Qt
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

// Marivale
#include "shell/main_menu.h"
#include "shell/placement.h"

namespace marivale {

class PlacementTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void smallStoredSizeStillShowsTheWholeDesign();
    void closeStoresThePlacementInTwips();
    void unchangedOrMinimisedPlacementIsStoredUnchanged();
    void storedPlacement_data();
    void storedPlacement();
    void maximisedCloseStoresTheMaximisedPlacement();

private:
    std::unique_ptr<MainMenu> openMenu();
    static void store(const QStringList& values);
    static QStringList stored();

    QTemporaryDir config_{};
    QTemporaryDir folder_{};
    QString startDirectory_{};
    GameState state_{};
    QStringList problems_{}; // warnings shown and menus never exposed; each fails the test
};

void PlacementTest::initTestCase() {
    QVERIFY(config_.isValid());
    QVERIFY(folder_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config_.path());
    startDirectory_ = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder_.path()));
}

void PlacementTest::init() {
    problems_.clear();
    QSettings("Vandrine", "Vandrine").clear();
    state_ = GameState{};
    applyStartupDefaults(state_);
}

void PlacementTest::cleanup() {
    QVERIFY2(problems_.isEmpty(), qPrintable(problems_.join('\n')));
}

std::unique_ptr<MainMenu> PlacementTest::openMenu() {
    MainMenu::Hooks hooks;
    hooks.warn = [this](const QString& text) {
        problems_ << "unexpected warning: " + text;
    };
    hooks.openBoard = [](GameId, QWidget&) {
    };
    auto menu = std::make_unique<MainMenu>(state_, hooks);
    menu->show();
    if (!QTest::qWaitForWindowExposed(menu.get())) {
        problems_ << QStringLiteral("the menu was not exposed");
    }
    return menu;
}

void PlacementTest::store(const QStringList& values) {
    QSettings settings("Vandrine", "Vandrine");
    settings.beginGroup("Settings");
    const std::array<const char*, 4> keys{"MainLeft", "MainTop", "MainWidth", "MainHeight"};
    for (std::size_t i = 0; i < keys.size(); ++i) {
        settings.setValue(keys[i], values[i]);
    }
}

QStringList PlacementTest::stored() {
    QSettings settings("Vandrine", "Vandrine");
    settings.beginGroup("Settings");
    return {settings.value("MainLeft", "<none>").toString(),
            settings.value("MainTop", "<none>").toString(),
            settings.value("MainWidth", "<none>").toString(),
            settings.value("MainHeight", "<none>").toString()};
}

// However small the stored size, the menu keeps room for every control above its status bar.
void PlacementTest::smallStoredSizeStillShowsTheWholeDesign() {
    store({"1500", "1800", "600", "450"});
    auto menu = openMenu();
    QCOMPARE(menu->frameGeometry().topLeft(), QPoint(100, 120));
    const QWidget* exit = menu->findChild<QWidget*>("ExBtn");
    QVERIFY(exit != nullptr);
    const QRect exitPlace(exit->mapTo(menu.get(), QPoint(0, 0)), exit->size());
    QVERIFY(exitPlace.right() < menu->width());
    QVERIFY(menu->statusBar()->geometry().top() > exitPlace.bottom());
    QCOMPARE(menu->statusBar()->geometry().bottom(), menu->height() - 1);
}

void PlacementTest::closeStoresThePlacementInTwips() {
    auto menu = openMenu();
    menu->move(150, 90);
    menu->resize(420, 330);
    // Stored is the outer rectangle: the client area plus the window frame.
    const QRect outer = menu->frameGeometry();
    QCOMPARE(outer.topLeft(), QPoint(150, 90));
    QVERIFY(outer.width() >= 420 && outer.height() >= 330);
    menu->close();
    QCOMPARE(stored(), (QStringList{"2250", "1350", QString::number(outer.width() * 15),
                                    QString::number(outer.height() * 15)}));
    // Where the store lives: application "Vandrine", section "Settings".
    QSettings file(QDir(config_.path()).filePath("Vandrine/Vandrine.conf"), QSettings::IniFormat);
    QCOMPARE(file.value("Settings/MainLeft").toString(), QString("2250"));
}

// Closing unmoved stores what was read, time after time; closing minimised keeps the placement
// from before, wherever the window was moved.
void PlacementTest::unchangedOrMinimisedPlacementIsStoredUnchanged() {
    const QStringList placement{"1500", "1800", "6000", "4500"};
    store(placement);
    for (int run = 0; run < 2; ++run) {
        auto menu = openMenu();
        menu->close();
        QCOMPARE(stored(), placement);
    }
    auto menu = openMenu();
    menu->move(10, 10);
    menu->showMinimized();
    QVERIFY(menu->isMinimized());
    menu->close();
    QCOMPARE(stored(), placement);
}

// Nothing stored gives the designed placement; each stored value that is not a number falls back
// to its designed one; a window that would be lost off the screen comes back to the designed
// place.
void PlacementTest::storedPlacement_data() {
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("nothing stored") << QStringList{} << QRect(67, 67, 310, 257);
    QTest::newRow("applied") << QStringList{"1500", "1800", "6000", "4500"}
                             << QRect(100, 120, 400, 300);
    QTest::newRow("left is text") << QStringList{"abc", "1800", "6000", "4500"}
                                  << QRect(67, 120, 400, 300);
    QTest::newRow("top is empty") << QStringList{"1500", "", "6000", "4500"}
                                  << QRect(100, 67, 400, 300);
    QTest::newRow("width is garbage")
        << QStringList{"1500", "1800", "60x0", "4500"} << QRect(100, 120, 310, 300);
    QTest::newRow("height is negative")
        << QStringList{"1500", "1800", "6000", "-4500"} << QRect(100, 120, 400, 257);
    QTest::newRow("absurd size") << QStringList{"1500", "1800", "1e30", "4500"}
                                 << QRect(100, 120, 310, 300);
    QTest::newRow("decimals are rounded")
        << QStringList{"1500.4", " 1800 ", "6000", "4500"} << QRect(100, 120, 400, 300);

    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect home(area.topLeft() + QPoint(67, 67), QSize(310, 257));
    const auto twips = [](int pixels) {
        return QString::number(pixels * 15);
    };
    QTest::newRow("far left and up") << QStringList{"-150000", "-150000", "4650", "3850"} << home;
    QTest::newRow("beyond the right edge")
        << QStringList{twips(screen.right() + 50), "1500", "4650", "3850"} << home;
    QTest::newRow("below the bottom edge")
        << QStringList{"1500", twips(screen.bottom() + 1), "4650", "3850"} << home;
    QTest::newRow("title bar above the screen")
        << QStringList{"1500", twips(screen.top() - 300), "4650", "3850"} << home;
    QTest::newRow("only a sliver on screen")
        << QStringList{twips(screen.right() - 20), "1500", "4650", "3850"} << home;
    const QRect partly(screen.right() - 100, 100, 310, 257);
    QTest::newRow("partly on screen stays")
        << QStringList{twips(partly.x()), "1500", "4650", "3850"} << partly;
    QTest::newRow("too big for the screen comes back at its corner")
        << QStringList{"-150000", "1500", twips(area.width() + 200), "3850"}
        << QRect(area.left(), area.top() + 67, area.width() + 200, 257);
}

void PlacementTest::storedPlacement() {
    QFETCH(QStringList, values);
    QFETCH(QRect, expected);
    if (!values.isEmpty()) {
        store(values);
    }
    auto menu = openMenu();
    QCOMPARE(menu->frameGeometry(), expected);
}

void PlacementTest::maximisedCloseStoresTheMaximisedPlacement() {
    auto menu = openMenu();
    menu->showMaximized();
    QTRY_VERIFY(menu->isMaximized());
    QTRY_VERIFY(menu->frameGeometry().width() > 310);
    const QRect maximised = menu->frameGeometry();
    menu->close();
    const Placement expected = placementOf(maximised);
    QCOMPARE(stored(),
             (QStringList{QString::number(expected.left), QString::number(expected.top),
                          QString::number(expected.width), QString::number(expected.height)}));
}

} // namespace marivale

QTEST_MAIN(marivale::PlacementTest)
#include "placement_test.moc"
