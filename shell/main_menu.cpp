#include "shell/main_menu.h"

// Standard library
#include <array>
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
#include "play/game_variant.h"
#include "shell/help_dialog.h"
#include "shell/menu_status_bar.h"
#include "shell/placement.h"
#include "ui/access_keys.h"
#include "ui/design_look.h"

namespace marivale {

namespace {

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
    : QMainWindow(parent), hooks_(std::move(hooks)), controller_(state, *this, keeper_) {
    setObjectName("frmMain");
    setWindowTitle("Marivale Poker");
    buildControls();
    buildStatusBar();
    applySavedPlacement();
    controller_.load();
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
    connect(playSettings_, &QButtonGroup::idClicked, this,
            [this](int index) { controller_.playSettingClicked(index); });

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
        connect(button, &QPushButton::clicked, this,
                [this, game] { controller_.gameClicked(game); });
    }
    std::array<QPushButton*, kRowButtons.size()> row{};
    for (std::size_t i = 0; i < kRowButtons.size(); ++i) {
        row[i] = new QPushButton(text(kRowButtons[i].caption), client);
        row[i]->setObjectName(text(kRowButtons[i].name));
        place(*row[i], kRowButtons[i].place);
    }
    connect(row[0], &QPushButton::clicked, this, [this] { controller_.clearClicked(); });
    connect(row[1], &QPushButton::clicked, this, [this] { controller_.helpClicked(); });
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
    connect(statusBar_, &MenuStatusBar::clicked, this, [this] { controller_.statusBarClicked(); });
    setMinimumSize(qMax(kDesignClient.width(), statusBar_->minimumSizeHint().width()),
                   kDesignClient.height() + statusBar_->sizeHint().height());
}

// The first step of the load: the saved placement, in pixels on a screen.
void MainMenu::applySavedPlacement() {
    placedRect_ = ontoScreens(pixelRect(loadPlacement()));
    const QMargins frame = frameMarginsOf(*this);
    placementUnframed_ = frame.isNull();
    applyPlacement(*this, placedRect_, frame);
}

void MainMenu::closeUnattended() {
    controller_.closeUnattended();
}

void MainMenu::checkpoint() {
    const QString problem = text(controller_.checkpoint());
    if (problem.isEmpty()) {
        return;
    }
    if (hooks_.warn) {
        hooks_.warn(problem);
        return;
    }
    qWarning("%s", qPrintable(problem));
}

void MainMenu::setText(MenuText target, std::string_view shown) {
    switch (target) {
    case MenuText::WinLoss:
        winLoss_->setText(text(shown));
        break;
    case MenuText::StatFrame:
        statFrame_->setTitle(text(shown));
        break;
    case MenuText::DoubleUpStatus:
        statusBar_->showStatus(text(shown));
        break;
    }
}

void MainMenu::hideMenu() {
    hide();
}

void MainMenu::showMenu() {
    show();
}

void MainMenu::openBoard(GameId game) {
    if (hooks_.openBoard) {
        hooks_.openBoard(game, *this);
    }
}

void MainMenu::showHelp() {
    QPointer<QDialog> help = new HelpDialog(this);
    help->exec();
    delete help.data();
}

// The close: the controller keeps the total and closes the other windows, then the placement
// is saved unless the window is minimised.
void MainMenu::closeEvent(QCloseEvent* event) {
    const bool first = controller_.close();
    if (first && !isMinimized()) {
        savePlacement(placementOf(frameGeometry()));
    }
    event->accept(); // a second close while the first one runs is let through
    if (first) {
        emit closed();
    }
}

void MainMenu::closeOtherWindows() {
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
void MainMenu::warn(std::string_view shown) {
    const QString message = text(shown);
    if (hooks_.warn) {
        hooks_.warn(message);
        return;
    }
    if (controller_.unattended()) {
        qWarning("%s", qPrintable(message));
        return;
    }
    if (controller_.closing()) {
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
