#include "bonus/double_up_dialog.h"

// Qt
#include <QLabel>
#include <QPushButton>

// Marivale
#include "engine/bonus_games.h"
#include "ui/card_pictures.h"
#include "ui/design_look.h"
#include "ui/dialog_setup.h"
#include "ui/twips.h"
#include "ui/wrap_button.h"

namespace marivale {

namespace {

// Design places of the window and its controls, in twips.
constexpr TwipRect kWindow{0, 0, 5400, 3600};
constexpr TwipRect kTitleRect{0, 150, 5400, 540};
constexpr TwipRect kCardRect{2115, 900, 1155, 1545};
constexpr TwipRect kLowRect{360, 900, 1500, 1545};
constexpr TwipRect kHighRect{3540, 900, 1500, 1545};
constexpr TwipRect kLimitRect{0, 2535, 5400, 270};
constexpr TwipRect kReturnRect{360, 2865, 4680, 525};

const QString kTakeCaption = QStringLiteral("&Take Doubled Winnings");
const QString kReturnCaption = QStringLiteral("Re&turn");

} // namespace

DoubleUpDialog::DoubleUpDialog(GameState& state, RandomSource& random, CardPictures& pictures,
                               QWidget* parent)
    : QDialog(parent), state_(state), random_(random), pictures_(pictures) {
    buildWindow();
    load();
}

void DoubleUpDialog::buildWindow() {
    setUpModalWindow(*this, {.name = QStringLiteral("frmDup"),
                             .caption = QStringLiteral("Double Up"),
                             .size = fromTwips(kWindow).size(),
                             .ground = QColor(255, 255, 0),
                             .text = Qt::black});

    title_ = new QLabel(QStringLiteral("Double Up"), this);
    title_->setObjectName(QStringLiteral("Label1"));
    title_->setFont(designFont(18, true));
    title_->setAlignment(Qt::AlignCenter);
    title_->setGeometry(fromTwips(kTitleRect));

    // The card only shows; a click on it does nothing.
    card_ = new QPushButton(this);
    card_->setObjectName(QStringLiteral("DUCard"));
    card_->setFocusPolicy(Qt::NoFocus);
    card_->setAutoDefault(false);
    card_->setGeometry(fromTwips(kCardRect));

    low_ = new WrapButton(QStringLiteral("&Low Card  2 - 7 Wins"), this);
    low_->setObjectName(QStringLiteral("Low"));
    low_->setGeometry(fromTwips(kLowRect));

    high_ = new WrapButton(QStringLiteral("&High Card 9 - A Wins"), this);
    high_->setObjectName(QStringLiteral("High"));
    high_->setGeometry(fromTwips(kHighRect));

    limitNote_ = new QLabel(QStringLiteral("Table limit reached: take your winnings"), this);
    limitNote_->setObjectName(QStringLiteral("LimitNote"));
    limitNote_->setAlignment(Qt::AlignCenter);
    limitNote_->setGeometry(fromTwips(kLimitRect));

    return_ = new QPushButton(this);
    return_->setObjectName(QStringLiteral("RetBtn"));
    return_->setGeometry(fromTwips(kReturnRect));

    connect(low_, &QPushButton::clicked, this, [this] { guess(DoubleUpGuess::Low); });
    connect(high_, &QPushButton::clicked, this, [this] { guess(DoubleUpGuess::High); });
    connect(return_, &QPushButton::clicked, this, &QDialog::accept);
}

// The opening of the game each time the window is built.
void DoubleUpDialog::load() {
    canGuess_ = kTrue;
    pictures_.showOn(*card_, QStringLiteral("bb.gif"));
    state_.DoubleUpFactor = 1;
    return_->setEnabled(false);
    limitNote_->hide();
}

// Draws a card, shows it, and doubles the factor or loses it.
void DoubleUpDialog::guess(DoubleUpGuess choice) {
    if (!isSet(canGuess_) || state_.DoubleUpFactor >= kTableLimit) {
        return;
    }
    const GuessResult result = playGuess(state_, random_, choice);
    pictures_.showOn(*card_, QString::number(result.card) + QStringLiteral(".gif"));

    // RetBtn is enabled before the guess buttons go, so the focus lands on it.
    return_->setEnabled(true);
    if (result.won) {
        return_->setText(kTakeCaption);
        if (state_.DoubleUpFactor >= kTableLimit) {
            limitNote_->show();
            low_->setEnabled(false);
            high_->setEnabled(false);
        }
    } else {
        canGuess_ = kFalse;
        return_->setText(kReturnCaption);
        high_->setEnabled(false);
        low_->setEnabled(false);
    }
}

} // namespace marivale
