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

    void firstStartShowsNothingWon();
    void controlsCarryTheirCaptions();
    void clicksReachTheMenusRules();
    void statusPanelsAreWhole_data();
    void statusPanelsAreWhole();
    void accessKeysOpenTheBoards_data();
    void accessKeysOpenTheBoards();
    void unwritableFileIsReportedAndTheMenuStillCloses();
    void helpOpensModally();

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

// No data file: it is written holding 0 at once, and the menu opens with nothing won (each
// kind of unreadable file is the total keeper's part).
void MainMenuTest::firstStartShowsNothingWon() {
    auto menu = openMenu();
    QCOMPARE(dataFile(), QByteArray("0\r\n"));
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString("$0.00"));
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), QString());
    QCOMPARE(control<QLabel>(*menu, "sbPanel1")->text(), QString("Status: DoubleUp Not Enabled"));
    QCOMPARE(control<QLabel>(*menu, "sbPanel2")->text(),
             QLocale().toString(QDate::currentDate(), MenuStatusBar::dateFormat(QLocale())));
    QVERIFY(!control<QLabel>(*menu, "sbPanel3")->text().isEmpty());
    QVERIFY(control<QRadioButton>(*menu, "PSettings1")->isChecked());
    QVERIFY(warnings_.isEmpty());
}

void MainMenuTest::controlsCarryTheirCaptions() {
    auto menu = openMenu();
    QCOMPARE(menu->objectName(), QString("frmMain"));
    QCOMPARE(menu->windowTitle(), QString("Marivale Poker"));
    const auto* title = control<QLabel>(*menu, "Label1");
    QCOMPARE(title->text(), QString("Marivale Poker"));
    // The design face whatever the desktop's font: 13.5 pt is 18 pixels at 96 dots per inch.
    QVERIFY(title->font().bold());
    QCOMPARE(title->font().family(), QString("Liberation Sans"));
    QCOMPARE(title->font().pixelSize(), 18);
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
    // Green with white text on the window's own controls, as the player sees them.
    const QColor green(0, 128, 0);
    QWidget* client = menu->centralWidget();
    const QImage drawn = client->grab().toImage();
    QCOMPARE(drawn.pixelColor(client->width() - 2, 2), green);
    for (const char* name : {"Label1", "PlayFrame", "PSettings4", "StatFrame", "WinLoss"}) {
        const QWidget* widget = control<QWidget>(*menu, name);
        const QPoint inside =
            widget->mapTo(client, QPoint(widget->width() - 6, widget->height() - 6));
        QCOMPARE(drawn.pixelColor(inside), green);
        QCOMPARE(widget->palette().color(widget->foregroundRole()), QColor(Qt::white));
        QVERIFY2(widget->font().bold(), name);
        QCOMPARE(widget->font().family(), QString("Liberation Sans"));
        if (widget != title) {
            QCOMPARE(widget->font().pixelSize(), 11); // 8.25 pt
        }
    }
    QVERIFY(control<QLineEdit>(*menu, "WinLoss")->isReadOnly());
    QWidget* exit = control<QWidget>(*menu, "ExBtn");
    QVERIFY(exit->grab().toImage().pixelColor(exit->width() / 2, 3) != green);
}

// Each click reaches the menu's rules and the window shows what they say; the options and the
// Double Up status survive a visit, during which the menu is hidden. Exit writes the total.
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
    for (const char* name : {"C", "en_US", "en_GB", "de_DE", "fr_FR", "ja_JP", "ru_RU"}) {
        for (const int points : {9, 12}) {
            QTest::addRow("%s, desktop font %d pt", name, points) << QString(name) << points;
        }
    }
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

void MainMenuTest::accessKeysOpenTheBoards_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("game");
    QTest::newRow("Alt+D") << int(Qt::Key_D) << int(GameId::DeucesWild);
    QTest::newRow("Alt+K") << int(Qt::Key_K) << int(GameId::JacksOrBetter);
    QTest::newRow("Alt+J") << int(Qt::Key_J) << int(GameId::JokerWild);
    QTest::newRow("Alt+T") << int(Qt::Key_T) << int(GameId::TreasureTrips);
}

void MainMenuTest::accessKeysOpenTheBoards() {
    QFETCH(int, key);
    QFETCH(int, game);
    auto menu = openMenu();
    menu->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(menu.get()));
    QTest::keyClick(menu->windowHandle(), static_cast<Qt::Key>(key), Qt::AltModifier);
    // An access key clicks at once, so keys typed quickly act in the order typed.
    QCOMPARE(visits_.size(), std::size_t{1});
    QCOMPARE(static_cast<int>(visits_.front()), game);
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

void MainMenuTest::helpOpensModally() {
    auto menu = openMenu();
    QTest::mouseClick(control<QPushButton>(*menu, "HpBtn"), Qt::LeftButton);
    QCOMPARE(modals_, QStringList{"frmHelp"});
    QVERIFY(menu->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

} // namespace marivale

QTEST_MAIN(marivale::MainMenuTest)
#include "main_menu_test.moc"
