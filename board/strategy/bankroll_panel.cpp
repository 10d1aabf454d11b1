#include "board/strategy/bankroll_panel.h"

// Standard library
#include <algorithm>
#include <cmath>

// Qt
#include <QChart>
#include <QChartView>
#include <QFormLayout>
#include <QLabel>
#include <QLineSeries>
#include <QScatterSeries>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QValueAxis>

// Marivale
#include "ui/money_text.h"
#include "ui/number_box.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr double kMostDollars = 10'000'000.0;
// The chart runs to the bankroll of this risk, and shows at most this many points.
constexpr double kChartRisk = 0.001;
constexpr int kChartPoints = 300;
constexpr double kMostStretch = 2.0;
// The chart's least width, and its least height beside the lines of text its axes take.
constexpr int kChartWidth = 380;
constexpr int kPlotHeight = 150;
constexpr int kChartTextLines = 6;

QString money(double dollars) {
    return moneyText(static_cast<float>(dollars));
}

QString percent(double risk) {
    return percentText(risk, 4);
}

// A whole number of bets, rounded down, with its thousands.
QString betsText(double bets) {
    return countText(static_cast<long long>(std::floor(bets)));
}

} // namespace

BankrollPanel::BankrollPanel(float bet, QWidget* parent)
    : QGroupBox(tr("Bankroll for a session"), parent), bet_(bet) {
    setObjectName(QStringLiteral("BankrollPanel"));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    bankroll_ = new NumberBox(this);
    bankroll_->setObjectName(QStringLiteral("Bankroll"));
    bankroll_->setRange(0.0, kMostDollars);
    bankroll_->setDecimals(2);
    bankroll_->setPrefix(QStringLiteral("$"));
    bankroll_->setValue(kDefaultBets * std::max(bet, 0.0f));
    form->addRow(tr("Bankroll:"), bankroll_);
    hands_ = new NumberBox(this);
    hands_->setObjectName(QStringLiteral("Hands"));
    hands_->setDecimals(0);
    hands_->setRange(1, kMostHands);
    hands_->setSingleStep(100);
    hands_->setValue(kDefaultHands);
    form->addRow(tr("Hands:"), hands_);
    layout->addLayout(form);
    inputNote_ = new QLabel(this);
    inputNote_->setObjectName(QStringLiteral("BankrollNote"));
    inputNote_->setWordWrap(true);
    inputNote_->hide();
    layout->addWidget(inputNote_);

    risk_ = new QLabel(this);
    risk_->setObjectName(QStringLiteral("RiskOfRuin"));
    risk_->setWordWrap(true);
    // Room for two lines each, however the window's width wraps them.
    risk_->setMinimumHeight(2 * risk_->fontMetrics().lineSpacing());
    layout->addWidget(risk_);
    targets_ = new QLabel(this);
    targets_->setObjectName(QStringLiteral("RiskTargets"));
    targets_->setWordWrap(true);
    targets_->setMinimumHeight(2 * targets_->fontMetrics().lineSpacing());
    layout->addWidget(targets_);

    auto* chart = new QChart;
    chart->legend()->hide();
    chart->setMargins(QMargins(4, 4, 4, 4));
    line_ = new QLineSeries(chart);
    mark_ = new QScatterSeries(chart);
    mark_->setMarkerSize(9.0);
    chart->addSeries(line_);
    chart->addSeries(mark_);
    xAxis_ = new QValueAxis(chart);
    xAxis_->setTitleText(tr("Bankroll ($)"));
    xAxis_->setLabelFormat(QStringLiteral("%.0f"));
    yAxis_ = new QValueAxis(chart);
    yAxis_->setTitleText(tr("Risk of ruin (%)"));
    yAxis_->setRange(0.0, 100.0);
    yAxis_->setLabelFormat(QStringLiteral("%.0f"));
    chart->addAxis(xAxis_, Qt::AlignBottom);
    chart->addAxis(yAxis_, Qt::AlignLeft);
    for (QAbstractSeries* series :
         {static_cast<QAbstractSeries*>(line_), static_cast<QAbstractSeries*>(mark_)}) {
        series->attachAxis(xAxis_);
        series->attachAxis(yAxis_);
    }
    chart_ = new QChartView(chart, this);
    chart_->setObjectName(QStringLiteral("RiskChart"));
    chart_->setRenderHint(QPainter::Antialiasing);
    chart_->setMinimumSize(kChartWidth,
                           kPlotHeight + kChartTextLines * chart_->fontMetrics().lineSpacing());
    layout->addWidget(chart_, 1);

    connect(bankroll_, &QDoubleSpinBox::valueChanged, this, [this](double dollars) {
        inputNote_->hide();
        showRisk();
        drawChart();
        emit bankrollChanged(dollars);
    });
    connect(hands_, &QDoubleSpinBox::valueChanged, this, [this] {
        inputNote_->hide();
        showComputing();
        emit handsChanged(hands());
    });
    connect(bankroll_, &NumberBox::refused, this, [this](const QString& typed) {
        inputNote_->setText(tr("\u201c%1\u201d is not a bankroll from %2 to %3.")
                                .arg(typed, money(0.0), money(kMostDollars)));
        inputNote_->show();
    });
    connect(hands_, &NumberBox::refused, this, [this](const QString& typed) {
        inputNote_->setText(tr("\u201c%1\u201d is not a number of hands from 1 to %2.")
                                .arg(typed, countText(kMostHands)));
        inputNote_->show();
    });
    showComputing();
}

int BankrollPanel::hands() const {
    return static_cast<int>(std::lround(hands_->value()));
}

double BankrollPanel::bankroll() const {
    return bankroll_->value();
}

void BankrollPanel::setBet(float bet) {
    bet_ = bet;
    if (bankroll_->value() == 0.0 && bet > 0.0f) {
        // No bankroll yet: open with the usual one at this bet.
        const QSignalBlocker quiet(bankroll_);
        bankroll_->setValue(kDefaultBets * bet);
    }
    showRisk();
    drawChart();
}

void BankrollPanel::showComputing() {
    curve_.reset();
    risk_->setText(tr("Risk of ruin: computing\u2026"));
    targets_->clear();
    line_->clear();
    mark_->clear();
    showAxes(false);
}

// Axes without a curve would only show a meaningless scale.
void BankrollPanel::showAxes(bool shown) {
    xAxis_->setVisible(shown);
    yAxis_->setVisible(shown);
}

void BankrollPanel::showTooMuch() {
    showComputing();
    risk_->setText(tr("Risk of ruin: too much work at these pays over so many hands; try fewer "
                      "hands."));
}

void BankrollPanel::showCurve(const odds::RuinCurve& curve) {
    curve_ = curve;
    showRisk();
    drawChart();
}

void BankrollPanel::showRisk() {
    if (!curve_) {
        return;
    }
    if (!(bet_ > 0.0f)) {
        risk_->setText(tr("Risk of ruin: no bet on the board"));
        targets_->clear();
        return;
    }
    const double bets = bankroll_->value() / bet_;
    risk_->setText(tr("Risk of ruin: <b>%1</b> (%2 bets of %3 over %4 hands)")
                       .arg(percent(curve_->riskAt(bets)), betsText(bets), money(bet_),
                            countText(curve_->hands)));
    QStringList needs;
    for (const double target : kTargets) {
        const double needed = curve_->bankrollFor(target);
        needs << tr("%1 risk: <b>%2</b> (%3 bets)")
                     .arg(percentText(target, 0), money(needed * bet_), betsText(needed));
    }
    targets_->setText(tr("Bankroll for ") + needs.join(tr("; for ")));
    if (!curve_->exact) {
        targets_->setText(targets_->text() + tr(" (pays rounded down to 1/64 bet)"));
    }
}

// Risk against bankroll in dollars, up to where the risk falls below 0.1%, with the player's
// bankroll marked; a bankroll far beyond that point stretches the chart no further than twice.
void BankrollPanel::drawChart() {
    line_->clear();
    mark_->clear();
    if (!curve_ || !(bet_ > 0.0f) || curve_->risk.empty()) {
        return;
    }
    showAxes(true);
    const double bets = bankroll_->value() / bet_;
    const double riskEnd = std::max(curve_->bankrollFor(kChartRisk), curve_->unit);
    const double end = std::max(riskEnd, std::min(1.2 * bets, kMostStretch * riskEnd));
    const double step = std::max(curve_->unit, end / kChartPoints);
    QList<QPointF> points;
    for (double x = 0.0; x <= end + step / 2; x += step) {
        points.append({x * bet_, 100.0 * curve_->riskAt(x)});
    }
    line_->replace(points);
    if (bets <= end) {
        mark_->append(bets * bet_, 100.0 * curve_->riskAt(bets));
    }
    xAxis_->setRange(0.0, end * bet_);
    xAxis_->applyNiceNumbers();
}

} // namespace marivale
