#include "board/strategy/trainer_panel.h"

// Qt
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

// Marivale
#include "board/strategy/card_text.h"
#include "engine/money_format.h"

namespace marivale {
namespace {

constexpr std::string_view kDollarPattern = "$#,##0.00";

QString money(float dollars) {
    return QString::fromStdString(FormatMoney(dollars, kDollarPattern));
}

// The cards a hold keeps, as coloured text; "nothing" for a draw of five.
QString heldHtml(const DealtCards& dealt, unsigned held) {
    QStringList cards;
    for (std::size_t p = 0; p < dealt.size(); ++p) {
        if ((held >> p) & 1u) {
            cards << cardHtml(dealt[p]);
        }
    }
    return cards.isEmpty() ? QObject::tr("nothing") : cards.join(' ');
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
        showTally();
    });
    showTally();
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

void TrainerPanel::judge(const odds::HandOdds& odds, const DealtCards& dealt, unsigned played,
                         float bet) {
    const TrainerVerdict verdict = tally_.judge(odds, played, bet);
    if (verdict.mistake) {
        verdict_->setText(
            tr("<b>Mistake:</b> you held %1 (%2 bets); the best hold was %3 (%4 bets). "
               "It cost %5.")
                .arg(heldHtml(dealt, verdict.played), QString::number(verdict.playedReturn, 'f', 4),
                     heldHtml(dealt, verdict.best), QString::number(verdict.bestReturn, 'f', 4),
                     money(verdict.cost)));
    } else {
        verdict_->setText(
            tr("Best hold played (%1 bets).").arg(QString::number(verdict.playedReturn, 'f', 4)));
    }
    showTally();
}

void TrainerPanel::showTally() {
    tallyLabel_->setText(
        tr("Mistakes: %1   Cost: %2").arg(tally_.mistakes()).arg(money(tally_.cost())));
    tallyLabel_->setEnabled(trainer_->isChecked());
}

} // namespace marivale
