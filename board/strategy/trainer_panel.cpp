#include "board/strategy/trainer_panel.h"

// Qt
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

// Marivale
#include "engine/odds/chart_line.h"
#include "ui/card_text.h"
#include "ui/money_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

// A hold by its chart line, with the cards it keeps as coloured text and its return.
QString holdHtml(GameId game, const HandCards& dealt, unsigned held, double bets) {
    const QString line =
        QString::fromStdString(
            odds::lineName(game, odds::chartLineOf(odds::ChartKind::Complete, game, dealt, held)))
            .toHtmlEscaped();
    if (held == 0) {
        return QObject::tr("%1 (%2 bets)").arg(line, decimalText(bets, 4));
    }
    return QObject::tr("%1 (%2, %3 bets)").arg(line, cardsHtml(dealt, held), decimalText(bets, 4));
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

void TrainerPanel::setOn(bool on) {
    trainer_->setChecked(on);
}

void TrainerPanel::clearVerdict() {
    verdict_->clear();
}

void TrainerPanel::showChecking() {
    verdict_->setText(tr("Checking your hold\u2026"));
}

HoldJudgement TrainerPanel::judge(GameId game, const odds::HandOdds& odds, const HandCards& dealt,
                                  unsigned played, float bet, bool listEdited) {
    const HoldJudgement verdict = judgeHold(odds, played, bet);
    // An edited table's list may rank the holds otherwise: the verdict names its own table.
    const QString table = listEdited ? tr("By the board's pay table: ") : QString();
    if (verdict.mistake) {
        verdict_->setText(table + tr("<b>Mistake:</b> you held %1; the chart says %2. It cost %3.")
                                      .arg(holdHtml(game, dealt, played, verdict.playedReturn),
                                           holdHtml(game, dealt, verdict.best, verdict.bestReturn),
                                           moneyText(verdict.cost)));
    } else {
        verdict_->setText(
            table + tr("Best hold played (%1 bets).").arg(decimalText(verdict.playedReturn, 4)));
    }
    return verdict;
}

void TrainerPanel::showTally(const TrainerSummary& summary) {
    tallyLabel_->setText(
        tr("Mistakes: %1   Cost: %2").arg(summary.mistakes).arg(moneyText(summary.cost)));
    tallyLabel_->setEnabled(trainer_->isChecked());
}

} // namespace marivale
