#include "board/stats/credit_chart.h"

// Standard library
#include <algorithm>
#include <cmath>

// Qt
#include <QAreaSeries>
#include <QChart>
#include <QLineSeries>
#include <QScatterSeries>
#include <QValueAxis>

// Marivale
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr qreal kMarkerSize = 11.0;
// Points on the result line while they stand apart.
constexpr int kMostPoints = 60;
// Labelled steps along the hands, and along the shorter axis of the bets, at most.
constexpr int kMostHandSteps = 6;
constexpr int kMostBetSteps = 4;
const QColor kResultColour(0, 96, 160);
const QColor kExpectedColour(70, 70, 70);
const std::array<QColor, 2> kBandColours{QColor(255, 180, 40, 120), QColor(255, 180, 40, 60)};
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

QAreaSeries* makeBand(const QString& objectName, const QString& name, const QColor& colour,
                      QObject* parent) {
    auto* band = new QAreaSeries(new QLineSeries(parent), new QLineSeries(parent));
    band->setParent(parent);
    band->setObjectName(objectName);
    band->setName(name);
    band->setColor(colour);
    band->setPen(Qt::NoPen);
    return band;
}

// Rounds the axis out to steps of 1, 2 or 5 times a power of ten, no finer than the finest step,
// with a label at each step and as many decimals as the step needs.
void setRoundRange(QValueAxis& axis, double low, double high, double finest, int mostSteps) {
    const double span = std::max(high - low, finest);
    const double power = std::pow(10.0, std::floor(std::log10(span / mostSteps)));
    double step = 10.0 * power;
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power * mostSteps >= span) {
            step = factor * power;
            break;
        }
    }
    step = std::max(step, finest);
    const double from = std::floor(low / step + 1e-9) * step;
    const double to = std::max(std::ceil(high / step - 1e-9) * step, from + step);
    axis.setRange(from, to);
    axis.setTickCount(static_cast<int>(std::lround((to - from) / step)) + 1);
    const int decimals = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)));
    axis.setLabelFormat(QStringLiteral("%.%1f").arg(decimals));
}

} // namespace

CreditChart::CreditChart(QWidget* parent) : QChartView(parent) {
    setObjectName(QStringLiteral("CreditChart"));
    setRenderHint(QPainter::Antialiasing);
    auto* chart = new QChart;
    chart->legend()->setAlignment(Qt::AlignRight);
    // Axis labels keep the window's "," between thousands and "." point whatever the locale.
    chart->setLocalizeNumbers(true);
    chart->setLocale(numberLocale());

    bands_ = {makeBand(QStringLiteral("OneDeviation"), tr("\u00b11 SD"), kBandColours[0], chart),
              makeBand(QStringLiteral("TwoDeviations"), tr("\u00b12 SD"), kBandColours[1], chart)};
    expected_ = new QLineSeries(chart);
    expected_->setObjectName(QStringLiteral("Expected"));
    expected_->setName(tr("Expected, best play"));
    expected_->setPen(QPen(kExpectedColour, 1.5, Qt::DashLine));
    result_ = new QLineSeries(chart);
    result_->setObjectName(QStringLiteral("Result"));
    result_->setName(tr("Result"));
    result_->setPen(QPen(kResultColour, 2.0));
    purchases_ = makeMarks(QStringLiteral("Purchases"), tr("Purchases"), kPurchaseColour,
                           QScatterSeries::MarkerShapeTriangle, chart);
    cashOuts_ = makeMarks(QStringLiteral("CashOuts"), tr("Cash-outs"), kCashOutColour,
                          QScatterSeries::MarkerShapeRectangle, chart);
    // Drawn in this order: the wider band under the narrower, the lines, then the marks.
    for (QAbstractSeries* series : std::initializer_list<QAbstractSeries*>{
             bands_[1], bands_[0], expected_, result_, purchases_, cashOuts_}) {
        chart->addSeries(series);
    }

    hands_ = new QValueAxis(chart);
    hands_->setTitleText(tr("Hand of this visit"));
    bets_ = new QValueAxis(chart);
    bets_->setTitleText(tr("Result (bets)"));
    chart->addAxis(hands_, Qt::AlignBottom);
    chart->addAxis(bets_, Qt::AlignLeft);
    for (QAbstractSeries* series : chart->series()) {
        series->attachAxis(hands_);
        series->attachAxis(bets_);
    }
    setChart(chart);
    setMinimumSize(420, 260);
}

void CreditChart::showVisit(const SessionStats& stats,
                            const std::optional<odds::GameOdds>& gameOdds) {
    const std::vector<double>& results = stats.visitResults();
    const int hands = static_cast<int>(results.size());
    QList<QPointF> line{{0.0, 0.0}};
    for (int hand = 1; hand <= hands; ++hand) {
        line.append(QPointF(hand, results[static_cast<std::size_t>(hand - 1)]));
    }
    result_->replace(line);
    result_->setPointsVisible(hands <= kMostPoints);
    double low = 0.0;
    double high = 0.0;
    for (const QPointF& point : line) {
        low = std::min(low, point.y());
        high = std::max(high, point.y());
    }

    QList<QPointF> bought;
    QList<QPointF> cashed;
    for (const CreditMark& mark : stats.visitMarks()) {
        const auto after = static_cast<qsizetype>(mark.afterHands);
        const QPointF point = line.value(after, line.constLast());
        (mark.kind == CreditMarkKind::Purchase ? bought : cashed).append(point);
    }
    purchases_->replace(bought);
    cashOuts_->replace(cashed);

    // The best play's average and spread after so many hands of the game.
    QList<QPointF> expected;
    std::array<QList<QPointF>, 2> upper;
    std::array<QList<QPointF>, 2> lower;
    for (int hand = 0; gameOdds && hand <= hands; ++hand) {
        const double mean = hand * (gameOdds->expectedReturn - 1.0);
        const double deviation = std::sqrt(hand * gameOdds->variance);
        expected.append(QPointF(hand, mean));
        for (std::size_t band = 0; band < bands_.size(); ++band) {
            const double width = static_cast<double>(band + 1) * deviation;
            upper[band].append(QPointF(hand, mean + width));
            lower[band].append(QPointF(hand, mean - width));
        }
        low = std::min(low, mean - 2.0 * deviation);
        high = std::max(high, mean + 2.0 * deviation);
    }
    expected_->replace(expected);
    expected_->setVisible(gameOdds.has_value());
    for (std::size_t band = 0; band < bands_.size(); ++band) {
        bands_[band]->upperSeries()->replace(upper[band]);
        bands_[band]->lowerSeries()->replace(lower[band]);
        bands_[band]->setVisible(gameOdds.has_value());
    }
    chart()->setTitle(gameOdds ? tr("Result in bets after each hand of this visit")
                               : tr("Result in bets after each hand of this visit "
                                    "(computing the expected line\u2026)"));

    setRoundRange(*hands_, 0.0, std::max(hands, 10), 1.0, kMostHandSteps);
    setRoundRange(*bets_, low, high, 0.01, kMostBetSteps);
}

} // namespace marivale
