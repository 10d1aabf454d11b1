#pragma once

// The chart of a visit's result in bets: after every hand, what the hands so far paid less their
// bets, over their bets, with each purchase and cash-out marked on the line. Beside it the best
// play's average result, hand by hand, in a band of one and two standard deviations; while the
// game's odds are being worked out the result shows alone, with a note that says so.

// Standard library
#include <array>
#include <optional>

// Qt
#include <QChartView>

// Marivale
#include "engine/odds/game_odds.h"
#include "play/stats/session_stats.h"

class QAreaSeries;
class QLineSeries;
class QScatterSeries;
class QValueAxis;

namespace marivale {

class CreditChart : public QChartView {
    Q_OBJECT
public:
    explicit CreditChart(QWidget* parent = nullptr);

    // Draws the visit; the odds are those of the visit's game, nothing while being worked out.
    void showVisit(const SessionStats& stats, const std::optional<odds::GameOdds>& gameOdds);

private:
    QLineSeries* result_{nullptr};
    QLineSeries* expected_{nullptr};
    std::array<QAreaSeries*, 2> bands_{}; // one and two standard deviations
    QScatterSeries* purchases_{nullptr};
    QScatterSeries* cashOuts_{nullptr};
    QValueAxis* hands_{nullptr};
    QValueAxis* bets_{nullptr};
};

} // namespace marivale
