#pragma once

// The Session page of the Strategy window: the bankroll panel with its exact risk of ruin, and the
// session goals, both under the pays of the table on show. The risk curve is worked out on a
// background thread that stops as soon as the page goes.

// Standard library
#include <vector>

// Qt
#include <QWidget>

// Marivale
#include "engine/odds/risk_of_ruin.h"
#include "play/background_job.h"

namespace marivale {

class BankrollPanel;
class GoalPanel;

class SessionPage : public QWidget {
    Q_OBJECT
public:
    SessionPage(float bet, QWidget* parent = nullptr);

    // What a hand pays under the table on show; empty while that is being worked out.
    void setPayouts(std::vector<odds::Payout> payouts);
    // The board's bet changed.
    void setBet(float bet);
    // True once the risk of ruin of the pays on show is on show.
    bool riskReady() const;

private:
    void startRuinWork();
    void sessionChanged();

    float bet_{0.0f};
    std::vector<odds::Payout> payouts_{};
    int generation_{0}; // counts the pays shown, so late results of older ones are dropped
    BankrollPanel* bankroll_{nullptr};
    GoalPanel* goals_{nullptr};

    // Last member: stopped and joined first when the page goes.
    BackgroundJob ruinWork_{};
};

} // namespace marivale
