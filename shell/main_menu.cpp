#include "shell/main_menu.h"

// Standard library
#include <array>
#include <string>
#include <utility>

// Qt
#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

// Marivale
#include "engine/money_format.h"
#include "play/game_variant.h"
#include "shell/help_dialog.h"
#include "shell/menu_status_bar.h"
#include "shell/placement.h"
#include "ui/access_keys.h"
#include "ui/design_look.h"

namespace marivale {

namespace {

constexpr std::string_view kTotalPattern = "$#,###,##0.00";
const QColor kGreen(0, 128, 0);

// The colours of the window's own controls: green, white text, white frame lines. The buttons
// keep the system look; the options take their white text from their palette, so that their
// circles keep the system's colours. The texts are in the design face, 8.25 pt bold (13.5 pt
// for the title), set as fonts.
constexpr std::string_view kClientStyle =
    "QLabel { color: white; }"
    "QGroupBox { color: white; background: transparent; border: 1px solid white;"
    " border-radius: 3px; margin-top: 7px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; }"
    "QLineEdit { color: white; background: rgb(0, 128, 0); border: 1px solid white;"
    " padding: 0 2px; }";

constexpr qreal kTextPoints = 8.25;
constexpr qreal kTitlePoints = 13.5;

// The design's client area above the status bar: every control lies inside it.
constexpr QSize kDesignClient{302, 209};

constexpr std::string_view kDoubleUpOff = "Status: DoubleUp Not Enabled";
constexpr std::string_view kDoubleUpOn = "Status: DoubleUp Enabled";

// The Play Settings options: index, caption and the bet unit in dollars.
struct PlayOption {
    int index;
    std::string_view caption;
    float unit;
};
constexpr std::array<PlayOption, 4> kPlayOptions{{
    {1, "$0.25 Game", 0.25f},
    {2, "$1.00 Game", 1.00f},
    {3, "$5.00 Game", 5.00f},
    {4, "$10.00 Game", 10.00f},
}};

// A control's rectangle in the client area, in pixels.
struct Place {
    int x;
    int y;
    int width;
    int height;
};

// The design: title, frames, the first option and the total inside their frames.
constexpr Place kTitlePlace{8, 2, 286, 26};
constexpr Place kPlayFramePlace{8, 30, 132, 96};
constexpr Place kFirstOptionPlace{10, 18, 116, 18};
constexpr Place kStatFramePlace{8, 130, 132, 44};
constexpr Place kWinLossPlace{8, 17, 116, 21};

// The game buttons of the right column, top to bottom, with their places.
struct GameButton {
    GameId game;
    Place place;
};
constexpr std::array<GameButton, kGameCount> kGameButtons{{
    {GameId::DeucesWild, {152, 36, 142, 25}},
    {GameId::JacksOrBetter, {152, 66, 142, 25}},
    {GameId::JokerWild, {152, 96, 142, 25}},
    {GameId::TreasureTrips, {152, 126, 142, 25}},
}};

// The bottom row: name, caption, place.
struct RowButton {
    std::string_view name;
    std::string_view caption;
    Place place;
};
constexpr std::array<RowButton, 3> kRowButtons{{
    {"ClBtn", "&Clear", {8, 180, 90, 25}},
    {"HpBtn", "&Help", {106, 180, 90, 25}},
    {"ExBtn", "E&xit", {204, 180, 90, 25}},
}};

QString text(std::string_view view) {
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

void place(QWidget& widget, const Place& where) {
    widget.setGeometry(where.x, where.y, where.width, where.height);
}

} // namespace

MainMenu::MainMenu(GameState& state, Hooks hooks, QWidget* parent)
    : QMainWindow(parent), state_(state), hooks_(std::move(hooks)) {
    setObjectName("frmMain");
    setWindowTitle("Marivale Poker");
    buildControls();
    buildStatusBar();
    loadWindow();
}

MainMenu::~MainMenu() = default;

void MainMenu::buildControls() {
    auto* client = new QWidget(this);
    client->setObjectName("frmMainClient");
    QPalette green = client->palette();
    green.setColor(QPalette::Window, kGreen);
    green.setColor(QPalette::WindowText, Qt::white);
    client->setPalette(green);
    client->setAutoFillBackground(true);
    client->setStyleSheet(QString::fromLatin1(kClientStyle.data(), kClientStyle.size()));
    setCentralWidget(client);

    title_ = new QLabel("Marivale Poker", client);
    title_->setObjectName("Label1");
    title_->setAlignment(Qt::AlignCenter);
    place(*title_, kTitlePlace);

    playFrame_ = new QGroupBox("Play Settings", client);
    playFrame_->setObjectName("PlayFrame");
    place(*playFrame_, kPlayFramePlace);
    playSettings_ = new QButtonGroup(this);
    for (const PlayOption& option : kPlayOptions) {
        auto* button = new QRadioButton(text(option.caption), playFrame_);
        // White text beside the system's white circle with its dark dot.
        QPalette optionColours = button->palette();
        optionColours.setColor(QPalette::WindowText, Qt::white);
        button->setPalette(optionColours);
        button->setObjectName(QString("PSettings%1").arg(option.index));
        Place where = kFirstOptionPlace;
        where.y += (option.index - 1) * kFirstOptionPlace.height;
        place(*button, where);
        playSettings_->addButton(button, option.index);
    }
    playSettings_->button(kPlayOptions.front().index)->setChecked(true);
    connect(playSettings_, &QButtonGroup::idClicked, this, &MainMenu::setPlayUnit);

    statFrame_ = new QGroupBox(QString(), client);
    statFrame_->setObjectName("StatFrame");
    place(*statFrame_, kStatFramePlace);
    winLoss_ = new QLineEdit(statFrame_);
    winLoss_->setObjectName("WinLoss");
    winLoss_->setReadOnly(true);
    place(*winLoss_, kWinLossPlace);

    for (const GameButton& entry : kGameButtons) {
        const GameVariant& variant = variantFor(entry.game);
        auto* button = new QPushButton(text(variant.menuCaption), client);
        button->setObjectName(text(variant.menuButton));
        place(*button, entry.place);
        const GameId game = entry.game;
        connect(button, &QPushButton::clicked, this, [this, game] { visitBoard(game); });
    }
    std::array<QPushButton*, kRowButtons.size()> row{};
    for (std::size_t i = 0; i < kRowButtons.size(); ++i) {
        row[i] = new QPushButton(text(kRowButtons[i].caption), client);
        row[i]->setObjectName(text(kRowButtons[i].name));
        place(*row[i], kRowButtons[i].place);
    }
    connect(row[0], &QPushButton::clicked, this, &MainMenu::clearTotal);
    connect(row[1], &QPushButton::clicked, this, &MainMenu::showHelp);
    connect(row[2], &QPushButton::clicked, this, &QWidget::close);
    clickAccessKeysAtOnce(*this);

    // Each control gets the design face itself: a style sheet rule that matches a control would
    // otherwise give it a font of its own choosing.
    for (QWidget* control : client->findChildren<QWidget*>()) {
        control->setFont(designFont(control == title_ ? kTitlePoints : kTextPoints, true));
    }
}

// The status bar, and a window never smaller than the design with its status bar.
void MainMenu::buildStatusBar() {
    statusBar_ = new MenuStatusBar(this);
    setStatusBar(statusBar_);
    connect(statusBar_, &MenuStatusBar::clicked, this, &MainMenu::toggleDoubleUp);
    setMinimumSize(qMax(kDesignClient.width(), statusBar_->minimumSizeHint().width()),
                   kDesignClient.height() + statusBar_->sizeHint().height());
}

// The window's load: placement, Double Up off, then the total or the recovery.
void MainMenu::loadWindow() {
    placedRect_ = ontoScreens(pixelRect(loadPlacement()));
    const QMargins frame = frameMarginsOf(*this);
    placementUnframed_ = frame.isNull();
    applyPlacement(*this, placedRect_, frame);

    state_.DoubleUpEnabled = kFalse;
    showDoubleUpStatus();

    // The total, or the recovery's 0; a file that cannot be kept is reported once.
    const TotalKeeper::Loaded loaded = keeper_.load();
    state_.NetWinLoss = loaded.total;
    showTotal("");
    if (!loaded.warning.empty()) {
        warnPlayer(QString::fromStdString(loaded.warning));
    }
}

void MainMenu::closeUnattended() {
    unattended_ = true;
}

void MainMenu::setPlayUnit(int index) {
    for (const PlayOption& option : kPlayOptions) {
        if (option.index == index) {
            state_.PlayUnit = option.unit;
        }
    }
}

void MainMenu::toggleDoubleUp() {
    state_.DoubleUpEnabled = isSet(state_.DoubleUpEnabled) ? kFalse : kTrue;
    showDoubleUpStatus();
}

void MainMenu::clearTotal() {
    state_.NetWinLoss = 0.0f;
    showTotal("Stats");
}

void MainMenu::showHelp() {
    QPointer<QDialog> help = new HelpDialog(this);
    help->exec();
    delete help.data();
}

void MainMenu::visitBoard(GameId game) {
    hide();
    if (hooks_.openBoard) {
        hooks_.openBoard(game, *this);
    }
    showTotal(variantFor(game).statCaptionAtZero);
    if (unattended_) {
        return; // the program is closing: the menu closes without showing itself again
    }
    show();
}

// Both displays of the total; captionAtZero is the path's caption for a total of exactly 0.
void MainMenu::showTotal(std::string_view captionAtZero) {
    const float total = state_.NetWinLoss;
    winLoss_->setText(QString::fromStdString(FormatMoney(total, kTotalPattern)));
    if (total > 0.0f) {
        statFrame_->setTitle("Winnings");
    } else if (total < 0.0f) {
        statFrame_->setTitle("Losses");
    } else {
        statFrame_->setTitle(text(captionAtZero));
    }
}

void MainMenu::showDoubleUpStatus() {
    statusBar_->showStatus(text(isSet(state_.DoubleUpEnabled) ? kDoubleUpOn : kDoubleUpOff));
}

// The close sequence: the total first, then the other windows, then the placement.
void MainMenu::closeEvent(QCloseEvent* event) {
    if (closing_) {
        event->accept(); // a second close while the first one runs
        return;
    }
    closing_ = true;
    const std::string problem = keeper_.save(state_.NetWinLoss);
    if (!problem.empty()) {
        warnPlayer(QString::fromStdString(problem));
    }
    unloadOtherWindows();
    if (!isMinimized()) {
        savePlacement(placementOf(frameGeometry()));
    }
    event->accept();
    emit closed();
}

void MainMenu::unloadOtherWindows() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    QList<QPointer<QWidget>> others;
    for (QWidget* window : windows) {
        if (window != this) {
            others.append(window);
        }
    }
    for (auto it = others.rbegin(); it != others.rend(); ++it) {
        if (!it->isNull()) {
            (*it)->close();
        }
    }
}

// At the close the player reads the message before the program ends, unless nobody is there
// to answer; otherwise it shows beside the menu without stopping anything.
void MainMenu::warnPlayer(const QString& message) {
    if (hooks_.warn) {
        hooks_.warn(message);
        return;
    }
    if (unattended_) {
        qWarning("%s", qPrintable(message));
        return;
    }
    if (closing_) {
        QMessageBox::warning(this, "Marivale Poker", message);
        return;
    }
    auto* box =
        new QMessageBox(QMessageBox::Warning, "Marivale Poker", message, QMessageBox::Ok, this);
    box->setObjectName("DataFileWarning");
    box->setAttribute(Qt::WA_DeleteOnClose);
    QTimer::singleShot(0, box, [box] { box->open(); });
}

void MainMenu::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    fixPlacementOnceFramed();
}

void MainMenu::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    fixPlacementOnceFramed();
}

// The stored size is the outer size: once the window manager has added its frame, the
// client area is shrunk by the frame so that the window as a whole has the stored size.
void MainMenu::fixPlacementOnceFramed() {
    if (!placementUnframed_ || isMinimized() || isMaximized() || isFullScreen()) {
        return;
    }
    const QMargins frame = frameMarginsOf(*this);
    if (frame.isNull()) {
        return;
    }
    placementUnframed_ = false;
    applyPlacement(*this, placedRect_, frame);
}

} // namespace marivale
