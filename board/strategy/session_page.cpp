#include "board/strategy/session_page.h"

// Standard library
#include <utility>

// Qt
#include <QVBoxLayout>

// Marivale
#include "board/strategy/bankroll_panel.h"
#include "board/strategy/goal_panel.h"

namespace marivale {

SessionPage::SessionPage(float bet, QWidget* parent) : QWidget(parent), bet_(bet) {
    auto* layout = new QVBoxLayout(this);
    bankroll_ = new BankrollPanel(bet, this);
    layout->addWidget(bankroll_, 1);
    goals_ = new GoalPanel(this);
    layout->addWidget(goals_);
    connect(bankroll_, &BankrollPanel::handsChanged, this, [this] {
        startRuinWork();
        sessionChanged();
    });
    connect(bankroll_, &BankrollPanel::bankrollChanged, this, &SessionPage::sessionChanged);
    sessionChanged();
}

void SessionPage::setPayouts(std::vector<odds::Payout> payouts) {
    payouts_ = std::move(payouts);
    ++generation_;
    goals_->setPayouts(payouts_);
    startRuinWork();
}

void SessionPage::setBet(float bet) {
    bet_ = bet;
    bankroll_->setBet(bet);
    sessionChanged();
}

bool SessionPage::riskReady() const {
    return bankroll_->curve().has_value();
}

// The goals follow the bet and the bankroll panel's session.
void SessionPage::sessionChanged() {
    goals_->setSession(bet_, bankroll_->bankroll(), bankroll_->hands());
}

// The risk curve of the pays on show over the panel's hands, off the user-interface thread.
void SessionPage::startRuinWork() {
    ruinWork_.stop();
    bankroll_->showComputing();
    if (payouts_.empty()) {
        return;
    }
    ruinWork_.start([this, payouts = payouts_, hands = bankroll_->hands(),
                     generation = generation_](std::stop_token stop) {
        auto curve = odds::ruinCurve(payouts, hands, stop);
        if (!curve && stop.stop_requested()) {
            return;
        }
        QMetaObject::invokeMethod(
            this,
            [this, found = std::move(curve), generation] {
                if (generation != generation_) {
                    return;
                }
                if (found) {
                    bankroll_->showCurve(*found);
                } else {
                    bankroll_->showTooMuch();
                }
            },
            Qt::QueuedConnection);
    });
}

} // namespace marivale
