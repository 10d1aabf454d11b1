#pragma once

// The trend of a practice drill: the bets given away per 100 hands after every hand so far.

// Standard library
#include <vector>

// Qt
#include <QChartView>

class QLineSeries;
class QValueAxis;

namespace marivale {

class DrillChart : public QChartView {
    Q_OBJECT
public:
    explicit DrillChart(QWidget* parent = nullptr);

    // Draws the cost per 100 hands after each hand, the first hand's first.
    void showTrend(const std::vector<double>& trend);
    // Adds the latest hand's point to a trend already drawn up to the hand before.
    void addPoint(int hand, double costPer100);

private:
    void fitAxes(int hands, double top);

    QLineSeries* cost_{nullptr};
    QValueAxis* hands_{nullptr};
    QValueAxis* bets_{nullptr};
    double top_{0.0};
};

} // namespace marivale
