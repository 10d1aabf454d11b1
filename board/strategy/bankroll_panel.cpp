#include "board/strategy/bankroll_panel.h"

// Standard library
#include <algorithm>
#include <cmath>

// Qt
#include <QChart>
#include <QChartView>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineSeries>
#include <QLocale>
#include <QScatterSeries>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QValueAxis>

// Marivale
#include "ui/money_text.h"

namespace marivale {
namespace {

constexpr double kMostDollars = 10'000'000.0;
// The chart runs to the bankroll of this risk, and shows at most this many points.
constexpr double kChartRisk = 0.001;
constexpr int kChartPoints = 300;
constexpr QSize kChartSize{380, 220};

QString money(double dollars) {
    return moneyText(static_cast<float>(dollars));
}

QString percent(double risk) {
    return QString::number(100.0 * risk, 'f', 4) + '%';
}

} // namespace

BankrollPanel::BankrollPanel(float bet, QWidget* parent)
    : QGroupBox(tr("Bankroll for a session"), parent), bet_(bet) {
    setObjectName(QStringLiteral("BankrollPanel"));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    bankroll_ = new QDoubleSpinBox(this);
    bankroll_->setObjectName(QStringLiteral("Bankroll"));
    bankroll_->setRange(0.0, kMostDollars);
    bankroll_->setDecimals(2);
    bankroll_->setPrefix(QStringLiteral("$"));
    bankroll_->setKeyboardTracking(false);
    bankroll_->setValue(kDefaultBets * std::max(bet, 0.0f));
    form->addRow(tr("Bankroll:"), bankroll_);
    hands_ = new QSpinBox(this);
    hands_->setObjectName(QStringLiteral("Hands"));
    hands_->setRange(1, kMostHands);
    hands_->setSingleStep(100);
    hands_->setKeyboardTracking(false);
    hands_->setValue(kDefaultHands);
    form->addRow(tr("Hands:"), hands_);
    layout->addLayout(form);

    risk_ = new QLabel(this);
    risk_->setObjectName(QStringLiteral("RiskOfRuin"));
    risk_->setWordWrap(true);
    layout->addWidget(risk_);
    targets_ = new QLabel(this);
    targets_->setObjectName(QStringLiteral("RiskTargets"));
    targets_->setWordWrap(true);
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
    chart_->setMinimumSize(kChartSize);
    layout->addWidget(chart_, 1);

    connect(bankroll_, &QDoubleSpinBox::valueChanged, this, [this](double dollars) {
        showRisk();
        drawChart();
        emit bankrollChanged(dollars);
    });
    connect(hands_, &QSpinBox::valueChanged, this, [this](int hands) {
        showComputing();
        emit handsChanged(hands);
    });
    showComputing();
}

int BankrollPanel::hands() const {
    return hands_->value();
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
                       .arg(percent(curve_->riskAt(bets)), QString::number(std::floor(bets)),
                            money(bet_), QLocale().toString(curve_->hands)));
    QStringList needs;
    for (const double target : kTargets) {
        const double needed = curve_->bankrollFor(target);
        needs << tr("%1 risk: <b>%2</b> (%3 bets)")
                     .arg(QString::number(100.0 * target) + '%', money(needed * bet_),
                          QString::number(needed));
    }
    targets_->setText(tr("Bankroll for ") + needs.join(tr("; for ")));
    if (!curve_->exact) {
        targets_->setText(targets_->text() + tr(" (pays rounded down to 1/64 bet)"));
    }
}

// Risk against bankroll in dollars, up to where the risk falls below 0.1%, with the player's
// bankroll marked.
void BankrollPanel::drawChart() {
    line_->clear();
    mark_->clear();
    if (!curve_ || !(bet_ > 0.0f) || curve_->risk.empty()) {
        return;
    }
    const double bets = bankroll_->value() / bet_;
    const double end = std::max({curve_->bankrollFor(kChartRisk), 1.2 * bets, curve_->unit});
    const double step = std::max(curve_->unit, end / kChartPoints);
    QList<QPointF> points;
    for (double x = 0.0; x <= end + step / 2; x += step) {
        points.append({x * bet_, 100.0 * curve_->riskAt(x)});
    }
    line_->replace(points);
    mark_->append(bets * bet_, 100.0 * curve_->riskAt(bets));
    xAxis_->setRange(0.0, end * bet_);
    xAxis_->applyNiceNumbers();
}

} // namespace marivale
