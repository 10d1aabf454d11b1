// The main menu, headless: its load and close around the data file, the Play Settings, the
// Double Up switch, the total's display on every path, and board visits through a fake board.

// Standard library
#include <memory>
#include <optional>
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

    void firstStartCreatesTheFileAndShowsNothingWon();
    void controlsCarryTheirCaptions();
    void playSettingsSetTheBetUnit();
    void statusBarClicksToggleDoubleUp_data();
    void statusBarClicksToggleDoubleUp();
    void statusPanelsAreWhole_data();
    void statusPanelsAreWhole();
    void totalFromTheFile_data();
    void totalFromTheFile();
    void clearShowsStatsAndIsStoredAtExit();
    void boardVisit_data();
    void boardVisit();
    void settingsSurviveAVisit();
    void accessKeysOpenTheBoards_data();
    void accessKeysOpenTheBoards();
    void exitWritesTheTotalForTheNextRun();
    void unwritableFileIsReportedAndTheMenuStillCloses();
    void readOnlyFolderIsReported();
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
    std::optional<bool> menuVisibleDuringVisit_{};
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
    menuVisibleDuringVisit_.reset();
    totalAfterVisit_ = 0.0f;
}

void MainMenuTest::cleanup() {
    QLocale::setDefault(QLocale::system());
    QFile::setPermissions(folder_->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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
                menuVisibleDuringVisit_ = window->isVisible();
            }
        }
        state_.NetWinLoss = totalAfterVisit_;
    };
    auto menu = std::make_unique<MainMenu>(state_, hooks);
    menu->show();
    if (!QTest::qWaitForWindowExposed(menu.get())) {
        qWarning("the menu was not exposed");
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

void MainMenuTest::firstStartCreatesTheFileAndShowsNothingWon() {
    state_.DoubleUpEnabled = kTrue;
    state_.NetWinLoss = 55.0f;
    auto menu = openMenu();
    QCOMPARE(dataFile(), QByteArray("0\r\n"));
    QCOMPARE(state_.NetWinLoss, 0.0f);
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString("$0.00"));
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), QString());
    QCOMPARE(state_.DoubleUpEnabled, kFalse);
    QCOMPARE(control<QLabel>(*menu, "sbPanel1")->text(), QString("Status: DoubleUp Not Enabled"));
    QCOMPARE(control<QLabel>(*menu, "sbPanel2")->text(),
             QLocale().toString(QDate::currentDate(), MenuStatusBar::dateFormat(QLocale())));
    QVERIFY(!control<QLabel>(*menu, "sbPanel3")->text().isEmpty());
    QVERIFY(control<QRadioButton>(*menu, "PSettings1")->isChecked());
    QCOMPARE(state_.PlayUnit, 0.25f);
    // 1000, 1000, 4650 and 3850 twips at 15 twips to the pixel.
    QCOMPARE(menu->frameGeometry(), QRect(67, 67, 310, 257));
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

void MainMenuTest::playSettingsSetTheBetUnit() {
    auto menu = openMenu();
    const std::pair<const char*, float> steps[] = {
        {"PSettings4", 10.0f}, {"PSettings2", 1.0f}, {"PSettings3", 5.0f}, {"PSettings1", 0.25f}};
    for (const auto& [name, unit] : steps) {
        QTest::mouseClick(control<QRadioButton>(*menu, name), Qt::LeftButton);
        QCOMPARE(state_.PlayUnit, unit);
        QVERIFY(control<QRadioButton>(*menu, name)->isChecked());
    }
}

void MainMenuTest::statusBarClicksToggleDoubleUp_data() {
    QTest::addColumn<QString>("panel");
    QTest::newRow("status panel") << "sbPanel1";
    QTest::newRow("date panel") << "sbPanel2";
    QTest::newRow("time panel") << "sbPanel3";
}

void MainMenuTest::statusBarClicksToggleDoubleUp() {
    QFETCH(QString, panel);
    auto menu = openMenu();
    auto* clicked = control<QLabel>(*menu, panel.toLatin1().constData());
    auto* status = control<QLabel>(*menu, "sbPanel1");
    QTest::mouseClick(clicked, Qt::LeftButton);
    QCOMPARE(state_.DoubleUpEnabled, kTrue);
    QCOMPARE(status->text(), QString("Status: DoubleUp Enabled"));
    QTest::mouseClick(clicked, Qt::LeftButton);
    QCOMPARE(state_.DoubleUpEnabled, kFalse);
    QCOMPARE(status->text(), QString("Status: DoubleUp Not Enabled"));
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

void MainMenuTest::totalFromTheFile_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<float>("total");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QByteArray>("fileAfterLoad");
    QTest::newRow("loss") << QByteArray("-12.5\r\n") << -12.5f << "-$12.50"
                          << "Losses" << QByteArray("-12.5\r\n");
    QTest::newRow("a quarter lost") << QByteArray("-0.25") << -0.25f << "-$0.25"
                                    << "Losses" << QByteArray("-0.25");
    QTest::newRow("grouped win") << QByteArray("1234.5\r\n") << 1234.5f << "$1,234.50"
                                 << "Winnings" << QByteArray("1234.5\r\n");
    QTest::newRow("comma ends the field") << QByteArray("250,junk") << 250.0f << "$250.00"
                                          << "Winnings" << QByteArray("250,junk");
    QTest::newRow("exponent") << QByteArray("1.5E+07") << 1.5e7f << "$15,000,000.00"
                              << "Winnings" << QByteArray("1.5E+07");
    QTest::newRow("zero") << QByteArray("0\r\n") << 0.0f << "$0.00"
                          << "" << QByteArray("0\r\n");
    QTest::newRow("empty file") << QByteArray() << 0.0f << "$0.00"
                                << "" << QByteArray("0\r\n");
    QTest::newRow("not a number") << QByteArray("abc\r\n") << 0.0f << "$0.00"
                                  << "" << QByteArray("0\r\n");
    QTest::newRow("sign of money") << QByteArray("$5") << 0.0f << "$0.00"
                                   << "" << QByteArray("0\r\n");
}

void MainMenuTest::totalFromTheFile() {
    QFETCH(QByteArray, content);
    QFETCH(float, total);
    QFETCH(QString, shown);
    QFETCH(QString, caption);
    QFETCH(QByteArray, fileAfterLoad);
    writeDataFile(content);
    auto menu = openMenu();
    QCOMPARE(state_.NetWinLoss, total);
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), shown);
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), caption);
    QCOMPARE(dataFile(), fileAfterLoad);
    QVERIFY(warnings_.isEmpty());
}

void MainMenuTest::clearShowsStatsAndIsStoredAtExit() {
    writeDataFile("-0.25\r\n");
    auto menu = openMenu();
    QTest::mouseClick(control<QPushButton>(*menu, "ClBtn"), Qt::LeftButton);
    QCOMPARE(state_.NetWinLoss, 0.0f);
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString("$0.00"));
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), QString("Stats"));
    QCOMPARE(dataFile(), QByteArray("-0.25\r\n"));
    QTest::mouseClick(control<QPushButton>(*menu, "ExBtn"), Qt::LeftButton);
    QCOMPARE(dataFile(), QByteArray("0\r\n"));
}

void MainMenuTest::boardVisit_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("game");
    QTest::addColumn<float>("totalAfter");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char* name, const char* button, GameId game, float total,
                        const char* shown, const char* caption) {
        QTest::newRow(name) << button << static_cast<int>(game) << total << shown << caption;
    };
    row("Deuces Wild at 0", "DWBtn", GameId::DeucesWild, 0.0f, "$0.00", "Stat");
    row("Treasure Trips at 0", "TTBtn", GameId::TreasureTrips, 0.0f, "$0.00", "Stat");
    row("Jacks or Better at 0", "JBBtn", GameId::JacksOrBetter, 0.0f, "$0.00", "Stats");
    row("Joker Wild at 0", "WJBtn", GameId::JokerWild, 0.0f, "$0.00", "Stats");
    row("Deuces Wild won", "DWBtn", GameId::DeucesWild, 35.5f, "$35.50", "Winnings");
    row("Jacks or Better lost", "JBBtn", GameId::JacksOrBetter, -40.0f, "-$40.00", "Losses");
    row("Treasure Trips lost a quarter", "TTBtn", GameId::TreasureTrips, -0.25f, "-$0.25",
        "Losses");
    row("Joker Wild big win", "WJBtn", GameId::JokerWild, 1234567.0f, "$1,234,567.00", "Winnings");
}

void MainMenuTest::boardVisit() {
    QFETCH(QString, button);
    QFETCH(int, game);
    QFETCH(float, totalAfter);
    QFETCH(QString, shown);
    QFETCH(QString, caption);
    writeDataFile("12\r\n");
    auto menu = openMenu();
    totalAfterVisit_ = totalAfter;
    QTest::mouseClick(control<QPushButton>(*menu, button.toLatin1().constData()), Qt::LeftButton);
    QCOMPARE(visits_.size(), std::size_t{1});
    QCOMPARE(static_cast<int>(visits_.front()), game);
    QCOMPARE(menuVisibleDuringVisit_, std::optional<bool>(false));
    QVERIFY(menu->isVisible());
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), shown);
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), caption);
}

void MainMenuTest::settingsSurviveAVisit() {
    auto menu = openMenu();
    QTest::mouseClick(control<QRadioButton>(*menu, "PSettings4"), Qt::LeftButton);
    QTest::mouseClick(control<QLabel>(*menu, "sbPanel1"), Qt::LeftButton);
    QTest::mouseClick(control<QPushButton>(*menu, "JBBtn"), Qt::LeftButton);
    QTest::mouseClick(control<QPushButton>(*menu, "DWBtn"), Qt::LeftButton);
    QCOMPARE(visits_.size(), std::size_t{2});
    QCOMPARE(state_.PlayUnit, 10.0f);
    QVERIFY(control<QRadioButton>(*menu, "PSettings4")->isChecked());
    QCOMPARE(state_.DoubleUpEnabled, kTrue);
    QCOMPARE(control<QLabel>(*menu, "sbPanel1")->text(), QString("Status: DoubleUp Enabled"));
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

void MainMenuTest::exitWritesTheTotalForTheNextRun() {
    writeDataFile("1.5\r\n");
    {
        auto menu = openMenu();
        QSignalSpy closed(menu.get(), &MainMenu::closed);
        totalAfterVisit_ = -3.75f;
        QTest::mouseClick(control<QPushButton>(*menu, "WJBtn"), Qt::LeftButton);
        QTest::mouseClick(control<QPushButton>(*menu, "ExBtn"), Qt::LeftButton);
        QVERIFY(!menu->isVisible());
        QCOMPARE(closed.count(), 1);
        QCOMPARE(dataFile(), QByteArray("-3.75\r\n"));
    }
    state_ = GameState{};
    applyStartupDefaults(state_);
    auto second = openMenu();
    QCOMPARE(state_.NetWinLoss, -3.75f);
    QCOMPARE(control<QLineEdit>(*second, "WinLoss")->text(), QString("-$3.75"));
    QCOMPARE(control<QGroupBox>(*second, "StatFrame")->title(), QString("Losses"));
    // Closing with the close box runs the same sequence.
    second->close();
    QCOMPARE(dataFile(), QByteArray("-3.75\r\n"));
    QVERIFY(warnings_.isEmpty());
}

void MainMenuTest::unwritableFileIsReportedAndTheMenuStillCloses() {
    // A folder where the file should be: neither reading nor replacing works, even for root.
    QVERIFY(QDir(folder_->path()).mkdir("mpdata.dat"));
    const QString path = QDir(folder_->path()).absoluteFilePath("mpdata.dat");
    auto menu = openMenu();
    QCOMPARE(warnings_.size(), 1);
    QVERIFY2(warnings_[0].contains(path), qPrintable(warnings_[0]));
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString("$0.00"));
    QCOMPARE(control<QGroupBox>(*menu, "StatFrame")->title(), QString());

    totalAfterVisit_ = 20.0f;
    QTest::mouseClick(control<QPushButton>(*menu, "TTBtn"), Qt::LeftButton);
    QSignalSpy closed(menu.get(), &MainMenu::closed);
    QTest::mouseClick(control<QPushButton>(*menu, "ExBtn"), Qt::LeftButton);
    QCOMPARE(warnings_.size(), 1); // the player was told once, at the load
    QVERIFY(!menu->isVisible());
    QCOMPARE(closed.count(), 1);
}

void MainMenuTest::readOnlyFolderIsReported() {
    QVERIFY(QFile::setPermissions(folder_->path(), QFile::ReadOwner | QFile::ExeOwner |
                                                       QFile::ReadGroup | QFile::ExeGroup |
                                                       QFile::ReadOther | QFile::ExeOther));
    QFile probe(QDir(folder_->path()).filePath("probe"));
    if (probe.open(QIODevice::WriteOnly)) {
        probe.remove();
        QSKIP("this user may write into a read-only folder (root); the unwritable-file case "
              "covers the messages");
    }
    auto menu = openMenu();
    QCOMPARE(warnings_.size(), 1);
    QCOMPARE(control<QLineEdit>(*menu, "WinLoss")->text(), QString("$0.00"));
    QTest::mouseClick(control<QPushButton>(*menu, "ExBtn"), Qt::LeftButton);
    QCOMPARE(warnings_.size(), 1);
    QVERIFY(!menu->isVisible());
}

void MainMenuTest::helpOpensModally() {
    auto menu = openMenu();
    QString seen;
    bool menuShown = false;
    // Closes the help screen as soon as it is up.
    std::function<void()> closeHelp = [&] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            seen = modal->objectName();
            menuShown = menu->isVisible();
            modal->close();
            return;
        }
        QTimer::singleShot(10, closeHelp);
    };
    QTimer::singleShot(0, closeHelp);
    QTest::mouseClick(control<QPushButton>(*menu, "HpBtn"), Qt::LeftButton);
    QCOMPARE(seen, QString("frmHelp"));
    QVERIFY(menuShown);
    QVERIFY(menu->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

} // namespace marivale

QTEST_MAIN(marivale::MainMenuTest)
#include "main_menu_test.moc"
