// The main menu window, headless: its controls and look, clicks reaching the menu's rules and
// their texts as shown, the real data file at the load and the close, the access keys, the help
// screen, and board visits through a fake board.

// Standard library
#include <memory>
#include <vector>

// Qt
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

// Marivale
#include "shell/main_menu.h"
#include "shell/menu_status_bar.h"

namespace marivale {

class MainMenuTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void firstStartShowsTheDesignAndNothingWon();
    void clicksReachTheMenusRules();
    void statusPanelsAreWhole_data();
    void statusPanelsAreWhole();
    void accessKeysOpenTheBoardsInTheOrderTyped();
    void unwritableFileIsReportedAndTheMenuStillCloses();

private:
    std::unique_ptr<MainMenu> openMenu();
    void writeDataFile(const QByteArray& content) const;
    QByteArray dataFile() const;
    template <typename T> T* control(MainMenu& menu, const char* name) {
        auto* found = menu.findChild<T*>(name);
        if (found == nullptr) {
            qFatal("no control %s", name);
        }
        return found;
    }

    QTemporaryDir config_{};
    std::unique_ptr<QTemporaryDir> folder_{};
    QString startDirectory_{};
    GameState state_{};
    QStringList warnings_{};
    std::vector<GameId> visits_{};
    bool menuSeenDuringVisit_{false};
    QStringList modals_{}; // each modal window that came up, closed at once
    float totalAfterVisit_{0.0f};
};

void MainMenuTest::initTestCase() {
    QVERIFY(config_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config_.path());
    startDirectory_ = QDir::currentPath();
}

void MainMenuTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    QVERIFY(QDir::setCurrent(folder_->path()));
    QSettings("Vandrine", "Vandrine").clear();
    state_ = GameState{};
    applyStartupDefaults(state_);
    warnings_.clear();
    visits_.clear();
    menuSeenDuringVisit_ = false;
    totalAfterVisit_ = 0.0f;
    modals_.clear();
}

void MainMenuTest::cleanup() {
    QLocale::setDefault(QLocale::system());
    QDir::setCurrent(startDirectory_);
    folder_.reset();
}

std::unique_ptr<MainMenu> MainMenuTest::openMenu() {
    MainMenu::Hooks hooks;
    hooks.warn = [this](const QString& text) {
        warnings_.append(text);
    };
    hooks.openBoard = [this](GameId game, QWidget&) {
        visits_.push_back(game);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "frmMain") {
                menuSeenDuringVisit_ = menuSeenDuringVisit_ || window->isVisible();
            }
        }
        state_.NetWinLoss = totalAfterVisit_;
    };
    auto menu = std::make_unique<MainMenu>(state_, hooks);
    // Closes any modal window that comes up, noting it and whether the menu stayed in view.
    auto* closer = new QTimer(menu.get());
    connect(closer, &QTimer::timeout, menu.get(), [this, shown = menu.get()] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            modals_ << modal->objectName() + (shown->isVisible() ? "" : " over a hidden menu");
            modal->close();
        }
    });
    closer->start(10);
    menu->show();
    if (!QTest::qWaitForWindowExposed(menu.get())) {
        QTest::qFail("the menu was not exposed", __FILE__, __LINE__);
    }
    return menu;
}

void MainMenuTest::writeDataFile(const QByteArray& content) const {
    QFile file(QDir(folder_->path()).filePath("mpdata.dat"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray MainMenuTest::dataFile() const {
    QFile file(QDir(folder_->path()).filePath("mpdata.dat"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// No data file: the menu opens with nothing won (what the total keeper makes of each kind of data
// file is its own test's part). The window's own controls are green with
// white bold text in the design face whatever the desktop's font (13.5 pt is 18 pixels at 96 dots
// per inch, 8.25 pt 11); Exit keeps the system look.
void MainMenuTest::firstStartShowsTheDesignAndNothingWon() {
    auto menu = openMenu();
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString("$0.00"));
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), QString());
    QCOMPARE(control<QLabel>(*menu, "sbPanel1")->text(), QString("Status: DoubleUp Not Enabled"));
    QCOMPARE(control<QLabel>(*menu, "sbPanel2")->text(),
             QLocale().toString(QDate::currentDate(), MenuStatusBar::dateFormat(QLocale())));
    QVERIFY(!control<QLabel>(*menu, "sbPanel3")->text().isEmpty());
    QVERIFY(control<QRadioButton>(*menu, "PSettings1")->isChecked());
    QVERIFY(control<QLineEdit>(*menu, "WinLoss")->isReadOnly());
    QVERIFY(warnings_.isEmpty());

    QCOMPARE(menu->objectName(), QString("frmMain"));
    QCOMPARE(menu->windowTitle(), QString("Marivale Poker"));
    const auto* title = control<QLabel>(*menu, "Label1");
    QCOMPARE(title->text(), QString("Marivale Poker"));
    QCOMPARE(control<QGroupBox>(*menu, "PlayFrame")->title(), QString("Play Settings"));
    const std::pair<const char*, const char*> captions[] = {
        {"PSettings1", "$0.25 Game"}, {"PSettings2", "$1.00 Game"},
        {"PSettings3", "$5.00 Game"}, {"PSettings4", "$10.00 Game"},
        {"DWBtn", "&Deuces Wild"},    {"JBBtn", "Jac&ks or Better"},
        {"WJBtn", "&Joker Wild"},     {"TTBtn", "&Treasure Trips"},
        {"ClBtn", "&Clear"},          {"HpBtn", "&Help"},
        {"ExBtn", "E&xit"},
    };
    for (const auto& [name, caption] : captions) {
        QCOMPARE(control<QAbstractButton>(*menu, name)->text(), QString(caption));
    }
    const QColor green(0, 128, 0);
    QWidget* client = menu->centralWidget();
    const QImage drawn = client->grab().toImage();
    for (const char* name : {"Label1", "PlayFrame", "PSettings4", "StatFrame", "WinLoss"}) {
        const QWidget* widget = control<QWidget>(*menu, name);
        QCOMPARE(drawn.pixelColor(
                     widget->mapTo(client, QPoint(widget->width() - 6, widget->height() - 6))),
                 green);
        QCOMPARE(widget->palette().color(widget->foregroundRole()), QColor(Qt::white));
        QVERIFY2(widget->font().bold(), name);
        QCOMPARE(widget->font().family(), QString("Liberation Sans"));
        QCOMPARE(widget->font().pixelSize(), widget == title ? 18 : 11);
    }
    QWidget* exit = control<QWidget>(*menu, "ExBtn");
    QVERIFY(exit->grab().toImage().pixelColor(exit->width() / 2, 3) != green);
}

// Each click reaches the menu's rules and the window shows what they say; the options and the
// Double Up status survive a visit, during which the menu is hidden. Help opens modally over
// the menu. Exit writes the total.
void MainMenuTest::clicksReachTheMenusRules() {
    const char* const off = "Status: DoubleUp Not Enabled";
    const char* const on = "Status: DoubleUp Enabled";
    const struct {
        const char* click;
        float visitLeaves;
        float unit;
        const char* checked;
        const char* status;
        const char* shown;
        const char* caption;
    } steps[] = {
        {"PSettings4", 0.0f, 10.0f, "PSettings4", off, "$12.00", "Winnings"},
        {"sbPanel1", 0.0f, 10.0f, "PSettings4", on, "$12.00", "Winnings"},
        {"sbPanel2", 0.0f, 10.0f, "PSettings4", off, "$12.00", "Winnings"},
        {"sbPanel3", 0.0f, 10.0f, "PSettings4", on, "$12.00", "Winnings"},
        {"DWBtn", 0.0f, 10.0f, "PSettings4", on, "$0.00", "Stat"},
        {"PSettings2", 0.0f, 1.0f, "PSettings2", on, "$0.00", "Stat"},
        {"JBBtn", -40.0f, 1.0f, "PSettings2", on, "-$40.00", "Losses"},
        {"ClBtn", 0.0f, 1.0f, "PSettings2", on, "$0.00", "Stats"},
        {"WJBtn", 0.0f, 1.0f, "PSettings2", on, "$0.00", "Stats"},
        {"TTBtn", 1234.5f, 1.0f, "PSettings2", on, "$1,234.50", "Winnings"},
    };
    writeDataFile("12\r\n");
    auto menu = openMenu();
    for (const auto& step : steps) {
        totalAfterVisit_ = step.visitLeaves;
        QTest::mouseClick(control<QWidget>(*menu, step.click), Qt::LeftButton);
        QVERIFY2(menu->isVisible(), step.click);
        QCOMPARE(state_.PlayUnit, step.unit);
        QVERIFY2(control<QRadioButton>(*menu, step.checked)->isChecked(), step.click);
        QCOMPARE(control<QLabel>(*menu, "sbPanel1")->text(), QString(step.status));
        QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString(step.shown));
        QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), QString(step.caption));
    }
    QCOMPARE(visits_, (std::vector<GameId>{GameId::DeucesWild, GameId::JacksOrBetter,
                                           GameId::JokerWild, GameId::TreasureTrips}));
    QVERIFY(!menuSeenDuringVisit_);
    QCOMPARE(modals_, QStringList());
    QTest::mouseClick(control<QPushButton>(*menu, "HpBtn"), Qt::LeftButton);
    QCOMPARE(modals_, QStringList{"frmHelp"});
    QVERIFY(menu->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    QCOMPARE(dataFile(), QByteArray("12\r\n")); // kept at the close, not before
    QSignalSpy closed(menu.get(), &MainMenu::closed);
    QTest::mouseClick(control<QPushButton>(*menu, "ExBtn"), Qt::LeftButton);
    QVERIFY(!menu->isVisible());
    QCOMPARE(closed.count(), 1);
    QCOMPARE(dataFile(), QByteArray("1234.5\r\n"));
    QVERIFY(warnings_.isEmpty());
}

void MainMenuTest::statusPanelsAreWhole_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("desktopPoints");
    // The C locale falls back to the ISO date; en_US has the widest times, with AM and PM.
    QTest::newRow("C, desktop font 9 pt") << QString("C") << 9;
    QTest::newRow("en_US, desktop font 12 pt") << QString("en_US") << 12;
}

// Every panel shows its whole text, the widest date and times of the locale included, with
// either Double Up status, whatever the desktop's font; the bar lies below the design.
void MainMenuTest::statusPanelsAreWhole() {
    QFETCH(QString, locale);
    QFETCH(int, desktopPoints);
    const QFont desktopFont = QApplication::font();
    QApplication::setFont(QFont("DejaVu Sans", desktopPoints));
    QLocale::setDefault(QLocale(locale));
    auto menu = openMenu();
    QApplication::setFont(desktopFont);
    const QLocale used;
    auto* date = control<QLabel>(*menu, "sbPanel2");
    auto* time = control<QLabel>(*menu, "sbPanel3");
    const QStringList widest{
        used.toString(QDate(2026, 12, 28), MenuStatusBar::dateFormat(used)),
        used.toString(QTime(23, 58), MenuStatusBar::timeFormat(used)),
        used.toString(QTime(12, 58), MenuStatusBar::timeFormat(used)),
    };
    const auto fits = [](const QLabel& panel, const QString& text) {
        return panel.fontMetrics().horizontalAdvance(text) <= panel.contentsRect().width();
    };
    QVERIFY2(fits(*date, widest[0]), qPrintable(widest[0]));
    QVERIFY2(fits(*time, widest[1]), qPrintable(widest[1]));
    QVERIFY2(fits(*time, widest[2]), qPrintable(widest[2]));
    auto* status = control<QLabel>(*menu, "sbPanel1");
    for (int click = 0; click < 2; ++click) {
        for (const QLabel* panel : {status, date, time}) {
            QVERIFY2(fits(*panel, panel->text()), qPrintable(panel->text()));
            QCOMPARE(panel->font().family(), QString("Liberation Sans"));
            QVERIFY(panel->geometry().right() < menu->statusBar()->width());
        }
        QTest::mouseClick(status, Qt::LeftButton);
    }
    const QWidget* exit = control<QWidget>(*menu, "ExBtn");
    QVERIFY(menu->statusBar()->geometry().top() >=
            exit->mapTo(menu.get(), QPoint(0, exit->height())).y());
    if (locale == "C") {
        QVERIFY(QRegularExpression("^\\d{4}-\\d\\d-\\d\\d$").match(date->text()).hasMatch());
    }
}

// An access key clicks at once, so keys typed quickly act in the order typed.
void MainMenuTest::accessKeysOpenTheBoardsInTheOrderTyped() {
    auto menu = openMenu();
    menu->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(menu.get()));
    for (const Qt::Key key : {Qt::Key_D, Qt::Key_K, Qt::Key_J, Qt::Key_T}) {
        QTest::keyClick(menu->windowHandle(), key, Qt::AltModifier);
    }
    QCOMPARE(visits_, (std::vector<GameId>{GameId::DeucesWild, GameId::JacksOrBetter,
                                           GameId::JokerWild, GameId::TreasureTrips}));
}

void MainMenuTest::unwritableFileIsReportedAndTheMenuStillCloses() {
    // A folder where the file should be: neither reading nor replacing works, even for root.
    QVERIFY(QDir(folder_->path()).mkdir("mpdata.dat"));
    const QString path = QDir(folder_->path()).absoluteFilePath("mpdata.dat");
    auto menu = openMenu();
    QCOMPARE(warnings_.size(), 1);
    QVERIFY2(warnings_[0].contains(path), qPrintable(warnings_[0]));
    QSignalSpy closed(menu.get(), &MainMenu::closed);
    QTest::mouseClick(control<QPushButton>(*menu, "ExBtn"), Qt::LeftButton);
    QCOMPARE(warnings_.size(), 1); // the player was told once, at the load
    QVERIFY(!menu->isVisible());
    QCOMPARE(closed.count(), 1);
}

} // namespace marivale

QTEST_MAIN(marivale::MainMenuTest)
#include "main_menu_test.moc"
