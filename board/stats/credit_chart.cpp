#include "board/stats/credit_chart.h"

// Standard library
#include <algorithm>

// Qt
#include <QChart>
#include <QLineSeries>
#include <QScatterSeries>
#include <QValueAxis>

namespace marivale {
namespace {

constexpr qreal kMarkerSize = 11.0;
const QColor kLineColour(0, 96, 160);
const QColor kPurchaseColour(0, 150, 60);
const QColor kCashOutColour(200, 40, 40);

QScatterSeries* makeMarks(const QString& objectName, const QString& name, const QColor& colour,
                          QScatterSeries::MarkerShape shape, QObject* parent) {
    auto* series = new QScatterSeries(parent);
    series->setObjectName(objectName);
    series->setName(name);
    series->setMarkerShape(shape);
    series->setMarkerSize(kMarkerSize);
    series->setColor(colour);
    series->setBorderColor(colour.darker(130));
    return series;
}

} // namespace

CreditChart::CreditChart(QWidget* parent) : QChartView(parent) {
    setObjectName(QStringLiteral("CreditChart"));
    setRenderHint(QPainter::Antialiasing);
    auto* chart = new QChart;
    chart->setTitle(tr("Credits after each hand of this visit"));
    chart->legend()->setAlignment(Qt::AlignBottom);

    credits_ = new QLineSeries(chart);
    credits_->setObjectName(QStringLiteral("Credits"));
    credits_->setName(tr("Credits"));
    credits_->setColor(kLineColour);
    credits_->setPointsVisible(true);
    purchases_ = makeMarks(QStringLiteral("Purchases"), tr("Purchases"), kPurchaseColour,
                           QScatterSeries::MarkerShapeTriangle, chart);
    cashOuts_ = makeMarks(QStringLiteral("CashOuts"), tr("Cash-outs"), kCashOutColour,
                          QScatterSeries::MarkerShapeRectangle, chart);
    for (QAbstractSeries* series :
         {static_cast<QAbstractSeries*>(credits_), static_cast<QAbstractSeries*>(purchases_),
          static_cast<QAbstractSeries*>(cashOuts_)}) {
        chart->addSeries(series);
    }

    hands_ = new QValueAxis(chart);
    hands_->setTitleText(tr("Hand"));
    hands_->setLabelFormat(QStringLiteral("%d"));
    dollars_ = new QValueAxis(chart);
    dollars_->setTitleText(tr("Credits ($)"));
    dollars_->setLabelFormat(QStringLiteral("%.0f"));
    chart->addAxis(hands_, Qt::AlignBottom);
    chart->addAxis(dollars_, Qt::AlignLeft);
    for (QAbstractSeries* series : chart->series()) {
        series->attachAxis(hands_);
        series->attachAxis(dollars_);
    }
    setChart(chart);
    setMinimumSize(420, 260);
}

void CreditChart::showVisit(const SessionStats& stats) {
    QList<QPointF> line;
    qreal highest = stats.visitStartCredits();
    const std::vector<float>& credits = stats.visitCredits();
    for (std::size_t hand = 0; hand < credits.size(); ++hand) {
        line.append(QPointF(static_cast<qreal>(hand + 1), credits[hand]));
        highest = std::max<qreal>(highest, credits[hand]);
    }
    credits_->replace(line);

    QList<QPointF> bought;
    QList<QPointF> cashed;
    for (const CreditMark& mark : stats.visitMarks()) {
        const QPointF point(mark.afterHands, mark.credits);
        (mark.kind == CreditMarkKind::Purchase ? bought : cashed).append(point);
        highest = std::max<qreal>(highest, mark.credits);
    }
    purchases_->replace(bought);
    cashOuts_->replace(cashed);

    const int hands = static_cast<int>(credits.size());
    hands_->setRange(0, std::max(hands, 10));
    hands_->applyNiceNumbers();
    dollars_->setRange(0, std::max<qreal>(highest * 1.05, 10.0));
    dollars_->applyNiceNumbers();
}

} // namespace marivale
