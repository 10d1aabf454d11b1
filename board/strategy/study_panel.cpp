#include "board/strategy/study_panel.h"

// Standard library
#include <variant>

// Qt
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

// Marivale
#include "board/strategy/card_grid.h"
#include "engine/card_text.h"
#include "engine/odds/chart_line.h"
#include "play/game_variant.h"
#include "play/strategy/hold_judgement.h"
#include "play/strategy/study_hand.h"
#include "ui/card_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

QString problemText(GameId game, const StudyError& error) {
    switch (error.problem) {
    case StudyProblem::NotACard:
        return StudyPanel::tr("\"%1\" is not a card: type a rank (A, 2 to 9, T or 10, J, Q, K) "
                              "and a suit (c, d, h, s), or Jk for the joker.")
            .arg(QString::fromStdString(error.text).toHtmlEscaped());
    case StudyProblem::TooFew:
    case StudyProblem::TooMany:
        return StudyPanel::tr("A hand is five cards, not %1.").arg(error.count);
    case StudyProblem::Twice:
        return StudyPanel::tr("%1 is there twice: the deck has one of each card.")
            .arg(cardHtml(error.card));
    case StudyProblem::NoJoker: {
        const std::string_view title = variantFor(game).title;
        return StudyPanel::tr("%1 is played without the joker.")
            .arg(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())));
    }
    }
    return {};
}

} // namespace

StudyPanel::StudyPanel(GameId game, QWidget* parent) : QWidget(parent), game_(game) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    cards_ = new QLineEdit(this);
    cards_->setObjectName(QStringLiteral("StudyCards"));
    cards_->setPlaceholderText(tr("Any hand, e.g. As Kd Tc 5h 9s"));
    cards_->setToolTip(tr("Type five cards and press Enter to see every way to hold them"));
    row->addWidget(cards_, 1);
    auto* pick = new QPushButton(tr("Pic&k\u2026"), this);
    pick->setObjectName(QStringLiteral("PickCards"));
    row->addWidget(pick);
    auto* study = new QPushButton(tr("Anal&yse"), this);
    study->setObjectName(QStringLiteral("Study"));
    row->addWidget(study);
    layout->addLayout(row);
    note_ = new QLabel(this);
    note_->setObjectName(QStringLiteral("StudyNote"));
    note_->setTextFormat(Qt::RichText);
    note_->setWordWrap(true);
    layout->addWidget(note_);

    connect(cards_, &QLineEdit::returnPressed, this, &StudyPanel::study);
    connect(study, &QPushButton::clicked, this, &StudyPanel::study);
    connect(pick, &QPushButton::clicked, this, &StudyPanel::pick);
}

void StudyPanel::study() {
    const auto read = readStudyHand(game_, cards_->text().toStdString());
    if (const auto* error = std::get_if<StudyError>(&read)) {
        note_->setText(QStringLiteral("<span style=\"color:#b00000\">%1</span>")
                           .arg(problemText(game_, *error)));
        return;
    }
    note_->clear();
    emit studied(std::get<HandCards>(read));
}

void StudyPanel::showBestPlay(const HandCards& cards, const odds::HandOdds& odds) {
    const unsigned best = judgeHold(odds, 0, 1.0f).best;
    const QString line = QString::fromStdString(
        odds::lineName(game_, odds::chartLineOf(odds::ChartKind::Complete, game_, cards, best)));
    note_->setText(tr("Best play: %1 (%2), %3 bets.")
                       .arg(line.toHtmlEscaped(),
                            best == 0 ? tr("draw five") : cardsHtml(cards, best),
                            decimalText(odds.holds[best].expectedReturn, 4)));
}

void StudyPanel::pick() {
    CardGrid grid(game_, this);
    if (grid.exec() == QDialog::Accepted) {
        if (const auto cards = grid.picked()) {
            cards_->setText(QString::fromStdString(cardsText(*cards)));
            study();
        }
    }
}

} // namespace marivale
