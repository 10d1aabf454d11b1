#include "board/strategy/trainer_panel.h"

// Qt
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

// Marivale
#include "ui/card_text.h"
#include "ui/money_text.h"

namespace marivale {
namespace {

// The cards a hold keeps, as coloured text; "nothing" for a draw of five.
QString heldHtml(const HandCards& dealt, unsigned held) {
    const QString cards = cardsHtml(dealt, held);
    return cards.isEmpty() ? QObject::tr("nothing") : cards;
}

} // namespace

TrainerPanel::TrainerPanel(QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* trainerRow = new QHBoxLayout;
    trainer_ = new QCheckBox(tr("Trainer mode"), this);
    trainer_->setObjectName(QStringLiteral("Trainer"));
    trainerRow->addWidget(trainer_);
    trainerRow->addStretch(1);
    tallyLabel_ = new QLabel(this);
    tallyLabel_->setObjectName(QStringLiteral("TrainerTally"));
    trainerRow->addWidget(tallyLabel_);
    layout->addLayout(trainerRow);

    verdict_ = new QLabel(this);
    verdict_->setObjectName(QStringLiteral("TrainerVerdict"));
    verdict_->setTextFormat(Qt::RichText);
    verdict_->setWordWrap(true);
    verdict_->setMinimumHeight(2 * verdict_->fontMetrics().lineSpacing());
    verdict_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(verdict_);

    connect(trainer_, &QCheckBox::toggled, this, [this](bool on) {
        if (!on) {
            verdict_->clear();
        }
        tallyLabel_->setEnabled(on);
        emit switched(on);
    });
    showTally(TrainerSummary{});
}

bool TrainerPanel::isOn() const {
    return trainer_->isChecked();
}

void TrainerPanel::clearVerdict() {
    verdict_->clear();
}

void TrainerPanel::showChecking() {
    verdict_->setText(tr("Checking your hold\u2026"));
}

HoldJudgement TrainerPanel::judge(const odds::HandOdds& odds, const HandCards& dealt,
                                  unsigned played, float bet) {
    const HoldJudgement verdict = judgeHold(odds, played, bet);
    if (verdict.mistake) {
        verdict_->setText(
            tr("<b>Mistake:</b> you held %1 (%2 bets); the best hold was %3 (%4 bets). "
               "It cost %5.")
                .arg(heldHtml(dealt, played), QString::number(verdict.playedReturn, 'f', 4),
                     heldHtml(dealt, verdict.best), QString::number(verdict.bestReturn, 'f', 4),
                     moneyText(verdict.cost)));
    } else {
        verdict_->setText(
            tr("Best hold played (%1 bets).").arg(QString::number(verdict.playedReturn, 'f', 4)));
    }
    return verdict;
}

void TrainerPanel::showTally(const TrainerSummary& summary) {
    tallyLabel_->setText(
        tr("Mistakes: %1   Cost: %2").arg(summary.mistakes).arg(moneyText(summary.cost)));
    tallyLabel_->setEnabled(trainer_->isChecked());
}

} // namespace marivale
