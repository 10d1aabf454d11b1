#pragma once

// The session goals of the Strategy window: a win goal and a stop-loss, in bets or in dollars at
// the board's bet, for the bankroll panel's bankroll and hands, and the exact chances under the
// best play of reaching the goal first, the stop-loss or ruin first, or neither, with the hands
// played on average. The odds are worked out on a background thread that stops whenever an
// input changes.

// Standard library
#include <optional>
#include <vector>

// Qt
#include <QGroupBox>

// Marivale
#include "engine/odds/risk_of_ruin.h"
#include "engine/odds/session_goal.h"
#include "play/background_job.h"

class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace marivale {

class GoalPanel : public QGroupBox {
    Q_OBJECT
public:
    enum class Unit { Bets, Dollars };

    static constexpr double kDefaultGoal = 100.0;     // in bets
    static constexpr double kDefaultStopLoss = 160.0; // in bets: the bankroll panel's own
    static constexpr double kMostBets = 1'000'000.0;
    static constexpr double kMostDollars = 10'000'000.0;

    explicit GoalPanel(QWidget* parent = nullptr);

    // The pays under the best play of the table on show; none while they are worked out.
    void setPayouts(std::vector<odds::Payout> payouts);
    // The board's bet, and the bankroll in dollars and the hands of the bankroll panel.
    void setSession(float bet, double bankroll, int hands);

private:
    void unitChosen();
    // The goal or the stop-loss in bets at the board's bet.
    double inBets(const QDoubleSpinBox* box) const;
    void start();
    void showOdds(const odds::SessionGoalOdds& found);

    std::vector<odds::Payout> payouts_{};
    float bet_{0.0f};
    double bankroll_{0.0};
    int hands_{0};
    Unit unit_{Unit::Bets};
    int generation_{0}; // counts the inputs asked about, so late results of older ones are dropped

    QDoubleSpinBox* goal_{nullptr};
    QDoubleSpinBox* stopLoss_{nullptr};
    QComboBox* unitBox_{nullptr};
    QLabel* result_{nullptr};

    // Last member: stopped and joined first when the panel goes.
    BackgroundJob work_{};
};

} // namespace marivale
