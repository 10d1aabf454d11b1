#include "board/practice/drill_chart.h"

// Standard library
#include <algorithm>

// Qt
#include <QChart>
#include <QLineSeries>
#include <QValueAxis>

// Marivale
#include "ui/design_look.h"

namespace marivale {

DrillChart::DrillChart(QWidget* parent) : QChartView(parent) {
    setObjectName(QStringLiteral("DrillTrend"));
    auto* chart = new QChart;
    chart->legend()->hide();
    chart->setTitle(tr("Cost per 100 hands, in bets"));
    chart->setTitleFont(designFont(9, true));
    cost_ = new QLineSeries(chart);
    chart->addSeries(cost_);
    hands_ = new QValueAxis(chart);
    hands_->setLabelFormat(QStringLiteral("%d"));
    hands_->setTitleText(tr("Hands"));
    bets_ = new QValueAxis(chart);
    bets_->setLabelFormat(QStringLiteral("%.1f"));
    for (QValueAxis* axis : {hands_, bets_}) {
        axis->setLabelsFont(designFont(8));
        axis->setTitleFont(designFont(8));
    }
    chart->addAxis(hands_, Qt::AlignBottom);
    chart->addAxis(bets_, Qt::AlignLeft);
    cost_->attachAxis(hands_);
    cost_->attachAxis(bets_);
    setChart(chart);
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::NoFocus);
    fitAxes(0, 0.0);
}

void DrillChart::showTrend(const std::vector<double>& trend) {
    QList<QPointF> points;
    top_ = 0.0;
    for (std::size_t i = 0; i < trend.size(); ++i) {
        points.append(QPointF(static_cast<double>(i + 1), trend[i]));
        top_ = std::max(top_, trend[i]);
    }
    cost_->replace(points);
    fitAxes(static_cast<int>(trend.size()), top_);
}

void DrillChart::addPoint(int hand, double costPer100) {
    cost_->append(hand, costPer100);
    top_ = std::max(top_, costPer100);
    fitAxes(hand, top_);
}

// Hands from 1 to at least 10, bets from 0 to a little above the highest point.
void DrillChart::fitAxes(int hands, double top) {
    hands_->setRange(1, std::max(10, hands));
    bets_->setRange(0.0, std::max(1.0, top * 1.1));
}

} // namespace marivale
