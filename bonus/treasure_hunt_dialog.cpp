#include "bonus/treasure_hunt_dialog.h"

// Standard library
#include <algorithm>

// Qt
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

// Marivale
#include "engine/bonus_games.h"
#include "ui/design_look.h"
#include "ui/dialog_setup.h"
#include "ui/money_text.h"
#include "ui/twips.h"

// The chest pictures are compiled into this library; a static library must load them itself.
static void initChestArt() {
    Q_INIT_RESOURCE(bonus);
}

namespace marivale {

namespace {

// Design places of the window and its controls, in twips.
constexpr TwipRect kWindow{0, 0, 4950, 3450};
constexpr TwipRect kTitleRect{0, 120, 4950, 540};
constexpr TwipRect kPromptRect{0, 660, 4950, 330};
constexpr std::array<TwipRect, 3> kChestRects{
    TwipRect{600, 1620, 780, 780}, TwipRect{2085, 1140, 780, 780}, TwipRect{3570, 1620, 780, 780}};
constexpr TwipRect kPayRect{1560, 2040, 1830, 360};
constexpr TwipRect kCloseRect{1575, 2640, 1800, 450};

constexpr int kChestSize = 32;
const QString kChestResource = QStringLiteral(":/chest.png");
const QString kChestResource2x = QStringLiteral(":/chest@2x.png");

// The chest picture at both pixel densities, from the pictures compiled into this library.
QIcon chestIcon() {
    initChestArt();
    QIcon icon;
    icon.addFile(kChestResource);
    icon.addFile(kChestResource2x);
    return icon;
}

} // namespace

TreasureHuntDialog::TreasureHuntDialog(RandomSource& random, QWidget* parent)
    : QDialog(parent), random_(random) {
    buildWindow();
}

void TreasureHuntDialog::buildWindow() {
    setUpModalWindow(*this, {.name = QStringLiteral("TrTrip"),
                             .caption = QStringLiteral("Treasure Hunt"),
                             .size = fromTwips(kWindow).size(),
                             .ground = QColor(0, 0, 192),
                             .text = Qt::white});

    title_ = new QLabel(QStringLiteral("Treasure Hunt"), this);
    title_->setObjectName(QStringLiteral("Label1"));
    title_->setFont(designFont(18, true));
    title_->setAlignment(Qt::AlignCenter);
    title_->setGeometry(fromTwips(kTitleRect));

    prompt_ = new QLabel(QStringLiteral("Select Your Bonus Treasure"), this);
    prompt_->setObjectName(QStringLiteral("Label2"));
    prompt_->setFont(designFont(9.75, true));
    prompt_->setAlignment(Qt::AlignCenter);
    prompt_->setGeometry(fromTwips(kPromptRect));

    const QIcon chest = chestIcon();
    for (std::size_t i = 0; i < chests_.size(); ++i) {
        QPushButton* button = new QPushButton(this);
        button->setObjectName(QStringLiteral("Tr%1").arg(i + 1));
        button->setIcon(chest);
        button->setIconSize(QSize(kChestSize, kChestSize));
        button->setGeometry(fromTwips(kChestRects[i]));
        connect(button, &QPushButton::clicked, this, &TreasureHuntDialog::chooseChest);
        chests_[i] = button;
    }

    pay_ = new QLineEdit(this);
    pay_->setObjectName(QStringLiteral("TrPay"));
    pay_->setReadOnly(true);
    pay_->setFocusPolicy(Qt::NoFocus);
    pay_->setAlignment(Qt::AlignCenter);
    pay_->setGeometry(fromTwips(kPayRect));

    close_ = new QPushButton(QStringLiteral("&Open Chest"), this);
    close_->setObjectName(QStringLiteral("TClose"));
    close_->setGeometry(fromTwips(kCloseRect));
    connect(close_, &QPushButton::clicked, this, &QDialog::accept);
}

void TreasureHuntDialog::load(GameState& state) {
    state_ = &state;
    chosen_ = false;
    close_->hide();
    pay_->clear();
    show();
}

void TreasureHuntDialog::play(GameState& state) {
    load(state);
    exec();
}

// Multiplies the bonus by a fresh chest factor and shows it.
void TreasureHuntDialog::chooseChest() {
    if (state_ == nullptr) {
        return;
    }
    openChest(*state_, random_);
    chosen_ = true;
    pay_->setText(moneyText(state_->BonusAmount, pattern::kBonus));
    close_->show();
}

// Escape closes the window only once a chest has been chosen, and never as a held key's repeat:
// a key held from before the choice must not end the hunt as soon as one chest is open.
void TreasureHuntDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) && (!chosen_ || event->isAutoRepeat())) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace marivale
