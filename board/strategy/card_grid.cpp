#include "board/strategy/card_grid.h"

// Qt
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

// Marivale
#include "ui/card_text.h"

namespace marivale {

CardGrid::CardGrid(GameId game, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("CardGrid"));
    setWindowTitle(tr("Pick five cards"));
    auto* layout = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    layout->addLayout(grid);
    buttons_.assign(static_cast<std::size_t>(deckSize(game)), nullptr);
    for (CardCode card = 0; card < deckSize(game); ++card) {
        auto* button = new QToolButton(this);
        button->setObjectName(QStringLiteral("Pick%1").arg(card));
        button->setText(cardFaceText(card));
        button->setCheckable(true);
        button->setAutoRaise(false);
        button->setMinimumWidth(
            button->fontMetrics().horizontalAdvance(QStringLiteral("10\u2660")) + 12);
        button->setStyleSheet(
            QStringLiteral("QToolButton { color: %1; }").arg(cardInk(card).name()));
        connect(button, &QToolButton::toggled, this, &CardGrid::pickedChanged);
        buttons_[static_cast<std::size_t>(card)] = button;
        if (card == kJoker) {
            grid->addWidget(button, kSuitCount, 0);
        } else {
            grid->addWidget(button, suitIndex(card), rankIndex(card));
        }
    }
    box_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(box_);
    connect(box_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    pickedChanged();
}

std::optional<HandCards> CardGrid::picked() const {
    HandCards cards{};
    int count = 0;
    for (std::size_t card = 0; card < buttons_.size(); ++card) {
        if (buttons_[card]->isChecked()) {
            if (count == kHandSize) {
                return std::nullopt;
            }
            cards[static_cast<std::size_t>(count++)] = static_cast<CardCode>(card);
        }
    }
    if (count != kHandSize) {
        return std::nullopt;
    }
    return cards;
}

void CardGrid::toggle(CardCode card) {
    if (card >= 0 && static_cast<std::size_t>(card) < buttons_.size() &&
        buttons_[static_cast<std::size_t>(card)]->isEnabled()) {
        buttons_[static_cast<std::size_t>(card)]->toggle();
    }
}

// Five cards and no more: OK takes them, and the other cards wait until one is put back.
void CardGrid::pickedChanged() {
    int count = 0;
    for (const QToolButton* button : buttons_) {
        count += button->isChecked() ? 1 : 0;
    }
    for (QToolButton* button : buttons_) {
        button->setEnabled(button->isChecked() || count < kHandSize);
    }
    box_->button(QDialogButtonBox::Ok)->setEnabled(count == kHandSize);
}

} // namespace marivale
