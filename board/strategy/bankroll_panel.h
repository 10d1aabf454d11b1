#pragma once

// The bankroll panel of the Strategy window: a bankroll in dollars at the board's bet and a
// session's hands, the exact risk of ruin under the best play, the bankrolls for a 1% and a 5%
// risk, and a chart of the risk against the bankroll.

// Standard library
#include <optional>

// Qt
#include <QGroupBox>

// Marivale
#include "engine/odds/risk_of_ruin.h"

class QChartView;
class QLabel;
class QLineSeries;
class QScatterSeries;
class QValueAxis;

namespace marivale {

class NumberBox;

class BankrollPanel : public QGroupBox {
    Q_OBJECT
public:
    static constexpr int kMostHands = 10'000;
    static constexpr int kDefaultHands = 1'600;   // four hours at 400 hands an hour
    static constexpr double kDefaultBets = 160.0; // the bankroll it opens with, in bets
    static constexpr std::array<double, 2> kTargets{0.01, 0.05};

    explicit BankrollPanel(float bet, QWidget* parent = nullptr);

    int hands() const;
    double bankroll() const; // in dollars
    // The board's bet changed: the bankroll keeps its dollars (an empty one takes 160 bets).
    void setBet(float bet);
    void showComputing();
    void showCurve(const odds::RuinCurve& curve);
    // No curve for this table and these hands: too much work.
    void showTooMuch();
    const std::optional<odds::RuinCurve>& curve() const { return curve_; }

signals:
    void handsChanged(int hands);
    void bankrollChanged(double dollars);

private:
    void showRisk();
    void drawChart();
    void showAxes(bool shown);

    float bet_{0.0f};
    std::optional<odds::RuinCurve> curve_{};
    NumberBox* bankroll_{nullptr};
    NumberBox* hands_{nullptr};
    QLabel* inputNote_{nullptr}; // what the player typed and the panel refused
    QLabel* risk_{nullptr};
    QLabel* targets_{nullptr};
    QChartView* chart_{nullptr};
    QLineSeries* line_{nullptr};
    QScatterSeries* mark_{nullptr};
    QValueAxis* xAxis_{nullptr};
    QValueAxis* yAxis_{nullptr};
};

} // namespace marivale
