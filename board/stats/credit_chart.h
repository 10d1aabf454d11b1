#pragma once

// The chart of a visit's credits: one point after every hand, with each purchase and each
// cash-out marked where it happened.

// Qt
#include <QChartView>

// Marivale
#include "play/stats/session_stats.h"

class QLineSeries;
class QScatterSeries;
class QValueAxis;

namespace marivale {

class CreditChart : public QChartView {
    Q_OBJECT
public:
    explicit CreditChart(QWidget* parent = nullptr);

    void showVisit(const SessionStats& stats);

private:
    QLineSeries* credits_{nullptr};
    QScatterSeries* purchases_{nullptr};
    QScatterSeries* cashOuts_{nullptr};
    QValueAxis* hands_{nullptr};
    QValueAxis* dollars_{nullptr};
};

} // namespace marivale
