#include "board/strategy/trainer_panel.h"

// Standard library
#include <algorithm>

// Qt
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

// Marivale
#include "engine/odds/chart_line.h"
#include "ui/card_text.h"
#include "ui/money_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr const char* kApplication = "Vandrine";
constexpr const char* kWarnKey = "Trainer/WarnBeforeCostlyHold";
constexpr const char* kThresholdKey = "Trainer/WarnThresholdBets";
constexpr double kMostThreshold = 5.0;

QString lineText(GameId game, const HandCards& dealt, unsigned held) {
    return QString::fromStdString(
        odds::lineName(game, odds::chartLineOf(odds::ChartKind::Complete, game, dealt, held)));
}

// A hold by its chart line, with the cards it keeps as coloured text and its return.
QString holdHtml(GameId game, const HandCards& dealt, unsigned held, double bets) {
    const QString line = lineText(game, dealt, held).toHtmlEscaped();
    if (held == 0) {
        return QObject::tr("%1 (%2 bets)").arg(line, decimalText(bets, 4));
    }
    return QObject::tr("%1 (%2, %3 bets)").arg(line, cardsHtml(dealt, held), decimalText(bets, 4));
}

} // namespace

WarningOption savedWarningOption() {
    const QSettings store(kApplication, kApplication);
    return WarningOption{
        store.value(kWarnKey, false).toBool(),
        std::clamp(store.value(kThresholdKey, 0.0).toDouble(), 0.0, kMostThreshold)};
}

void saveWarningOption(const WarningOption& option) {
    QSettings store(kApplication, kApplication);
    store.setValue(kWarnKey, option.on);
    store.setValue(kThresholdKey, option.threshold);
}

QString warningText(GameId game, const MistakeWarning& warning) {
    const HoldJudgement& j = warning.judgement;
    return QObject::tr("Your hold costs %1 bets (%2): you held %3; the chart says %4. Draw or "
                       "Stand again to play it.")
        .arg(decimalText(j.bestReturn - j.playedReturn, 2), moneyText(j.cost),
             lineText(game, warning.dealt, warning.held), lineText(game, warning.dealt, j.best));
}

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

    auto* warnRow = new QHBoxLayout;
    warn_ = new QCheckBox(tr("&Warn before a hold that costs more than"), this);
    warn_->setObjectName(QStringLiteral("WarnBeforeMistake"));
    warnRow->addWidget(warn_);
    threshold_ = new QDoubleSpinBox(this);
    threshold_->setObjectName(QStringLiteral("WarnThreshold"));
    threshold_->setRange(0.0, kMostThreshold);
    threshold_->setDecimals(2);
    threshold_->setSingleStep(0.05);
    threshold_->setSuffix(tr(" bets"));
    threshold_->setSpecialValueText(tr("nothing (any loss)"));
    threshold_->setToolTip(tr("The least loss in bets worth a warning; 0 warns of any loss"));
    warnRow->addWidget(threshold_);
    warnRow->addStretch(1);
    layout->addLayout(warnRow);

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
    setWarningOption(savedWarningOption());
    connect(warn_, &QCheckBox::toggled, this, &TrainerPanel::warningEdited);
    connect(threshold_, &QDoubleSpinBox::valueChanged, this, &TrainerPanel::warningEdited);
}

void TrainerPanel::setWarningOption(const WarningOption& option) {
    const QSignalBlocker blockWarn(warn_);
    const QSignalBlocker blockThreshold(threshold_);
    warn_->setChecked(option.on);
    threshold_->setValue(option.threshold);
}

void TrainerPanel::warningEdited() {
    const WarningOption option{warn_->isChecked(), threshold_->value()};
    saveWarningOption(option);
    emit warningChanged(option);
}

void TrainerPanel::showWarning(GameId game, const MistakeWarning& warning) {
    const HoldJudgement& j = warning.judgement;
    verdict_->setText(QStringLiteral("<b>%1</b><br>%2")
                          .arg(warningText(game, warning).toHtmlEscaped(),
                               tr("Yours: %1 &nbsp; Best: %2")
                                   .arg(holdHtml(game, warning.dealt, warning.held, j.playedReturn),
                                        holdHtml(game, warning.dealt, j.best, j.bestReturn))));
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
