#include "board/strategy/goal_panel.h"

// Standard library
#include <utility>

// Qt
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

// Marivale
#include "ui/money_text.h"
#include "ui/number_box.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

QString percent(double chance) {
    return percentText(chance, 4);
}

QString money(double dollars) {
    return moneyText(static_cast<float>(dollars));
}

QDoubleSpinBox* amountBox(const char* name, double bets, QWidget* parent) {
    auto* box = new NumberBox(parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setDecimals(2);
    box->setRange(0.0, GoalPanel::kMostBets);
    box->setValue(bets);
    return box;
}

} // namespace

GoalPanel::GoalPanel(QWidget* parent) : QGroupBox(tr("Session goals"), parent) {
    setObjectName(QStringLiteral("SessionGoals"));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    goal_ = amountBox("WinGoal", kDefaultGoal, this);
    form->addRow(tr("Win goal:"), goal_);
    stopLoss_ = amountBox("StopLoss", kDefaultStopLoss, this);
    form->addRow(tr("Stop-loss:"), stopLoss_);
    unitBox_ = new QComboBox(this);
    unitBox_->setObjectName(QStringLiteral("GoalUnit"));
    unitBox_->addItem(tr("bets"));
    unitBox_->addItem(tr("dollars"));
    form->addRow(tr("In:"), unitBox_);
    layout->addLayout(form);
    result_ = new QLabel(this);
    result_->setObjectName(QStringLiteral("GoalOdds"));
    result_->setWordWrap(true);
    layout->addWidget(result_);

    connect(goal_, &QDoubleSpinBox::valueChanged, this, &GoalPanel::start);
    connect(stopLoss_, &QDoubleSpinBox::valueChanged, this, &GoalPanel::start);
    connect(unitBox_, &QComboBox::currentIndexChanged, this, &GoalPanel::unitChosen);
    start();
}

void GoalPanel::setPayouts(std::vector<odds::Payout> payouts) {
    payouts_ = std::move(payouts);
    start();
}

void GoalPanel::setSession(float bet, double bankroll, int hands) {
    bet_ = bet;
    bankroll_ = bankroll;
    hands_ = hands;
    start();
}

// The amounts keep their worth in the other unit: dollars are bets at the board's bet.
void GoalPanel::unitChosen() {
    const auto unit = static_cast<Unit>(unitBox_->currentIndex());
    if (unit == unit_) {
        return;
    }
    const bool toDollars = unit == Unit::Dollars;
    const double factor = bet_ > 0.0f ? static_cast<double>(bet_) : 1.0;
    for (QDoubleSpinBox* box : {goal_, stopLoss_}) {
        const QSignalBlocker quiet(box);
        const double value = toDollars ? box->value() * factor : box->value() / factor;
        box->setRange(0.0, toDollars ? kMostDollars : kMostBets);
        box->setPrefix(toDollars ? QStringLiteral("$") : QString());
        box->setValue(value);
    }
    unit_ = unit;
    start();
}

double GoalPanel::inBets(const QDoubleSpinBox* box) const {
    return unit_ == Unit::Bets ? box->value() : box->value() / static_cast<double>(bet_);
}

// Stops the odds of the inputs before and works out those of the inputs now, off the
// user-interface thread.
void GoalPanel::start() {
    work_.stop();
    const int generation = ++generation_;
    if (!(bet_ > 0.0f)) {
        result_->setText(tr("Session goals: no bet on the board"));
        return;
    }
    result_->setText(tr("Session goals: computing\u2026"));
    if (payouts_.empty()) {
        return;
    }
    work_.start([this, generation, payouts = payouts_, bankroll = bankroll_ / bet_,
                 goal = inBets(goal_), stopLoss = inBets(stopLoss_),
                 hands = hands_](std::stop_token stop) {
        const auto found = odds::sessionGoalOdds(payouts, bankroll, goal, stopLoss, hands, stop);
        if (stop.stop_requested()) {
            return;
        }
        QMetaObject::invokeMethod(
            this,
            [this, found, generation] {
                if (generation != generation_) {
                    return;
                }
                if (found) {
                    showOdds(*found);
                } else {
                    result_->setText(tr("Session goals: too much work for this goal and "
                                        "stop-loss over so many hands; try fewer hands."));
                }
            },
            Qt::QueuedConnection);
    });
}

void GoalPanel::showOdds(const odds::SessionGoalOdds& found) {
    const double bet = bet_;
    QString text =
        tr("Win goal of %1 first: <b>%2</b><br>Stop-loss of %3 or ruin first: <b>%4</b><br>"
           "Neither in %5 hands: <b>%6</b><br>Hands played on average: <b>%7</b>")
            .arg(money(inBets(goal_) * bet), percent(found.goal), money(inBets(stopLoss_) * bet),
                 percent(found.stopLoss), countText(hands_), percent(found.neither),
                 decimalText(found.expectedHands, 1));
    if (!found.exact) {
        text += tr(" (pays rounded down to 1/64 bet)");
    }
    result_->setText(text);
}

} // namespace marivale
