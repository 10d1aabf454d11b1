#include "board/stats/lifetime_view.h"

// Qt
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineSeries>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "play/game_variant.h"
#include "play/strategy/game_odds_cache.h"
#include "record/record_rows.h"
#include "record/record_store.h"
#include "record/run_figures.h"
#include "ui/money_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

QString percent(std::optional<double> share) {
    return share ? percentText(*share, 2) : QStringLiteral("\u2014");
}

QString gameTitle(GameId game) {
    const std::string_view title = variantFor(game).title;
    return QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()));
}

QTableWidget* makeTable(const QStringList& headers, QWidget* parent) {
    auto* table = new QTableWidget(0, static_cast<int>(headers.size()), parent);
    table->setHorizontalHeaderLabels(headers);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return table;
}

void setRow(QTableWidget& table, int row, const QStringList& texts) {
    for (int column = 0; column < texts.size(); ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setTextAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter
                                           : Qt::AlignRight | Qt::AlignVCenter);
        table.setItem(row, column, item);
    }
}

} // namespace

LifetimeView::LifetimeView(const SessionStats& stats, RecordStore* store, QWidget* parent)
    : QWidget(parent), stats_(stats), store_(store) {
    setObjectName(QStringLiteral("Lifetime"));
    auto* layout = new QVBoxLayout(this);
    auto* choices = new QHBoxLayout;
    scope_ = new QComboBox(this);
    scope_->setObjectName(QStringLiteral("LifetimeScope"));
    scope_->addItems({tr("This run"), tr("All time")});
    table_ = new QComboBox(this);
    table_->setObjectName(QStringLiteral("LifetimeTable"));
    forget_ = new QPushButton(tr("Forget M&y History\u2026"), this);
    forget_->setObjectName(QStringLiteral("ForgetHistory"));
    forget_->setToolTip(tr("Delete every recorded hand of every run"));
    choices->addWidget(scope_);
    choices->addWidget(table_, 1);
    choices->addWidget(forget_);
    layout->addLayout(choices);

    auto* tables = new QHBoxLayout;
    summary_ = makeTable({tr("Figure"), tr("Value")}, this);
    summary_->setObjectName(QStringLiteral("LifetimeSummary"));
    frequencies_ = makeTable({tr("Hand"), tr("Count"), tr("Observed"), tr("Expected")}, this);
    lines_ = makeTable({tr("Best hold's line"), tr("Judged"), tr("Mistakes"), tr("Cost")}, this);
    lines_->setObjectName(QStringLiteral("LifetimeLines"));
    tables->addWidget(summary_);
    tables->addWidget(frequencies_);
    tables->addWidget(lines_, 1);
    layout->addLayout(tables, 1);
    chart_ = new QChartView(this);
    chart_->setMinimumHeight(180);
    layout->addWidget(chart_, 1);

    connect(scope_, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(table_, &QComboBox::currentIndexChanged, this, [this] { showTable(); });
    connect(forget_, &QPushButton::clicked, this, [this] { forgetHistory(); });
    const bool recorded = store_ != nullptr && store_->recording();
    scope_->setEnabled(recorded);
    forget_->setEnabled(recorded);
    refresh();
}

bool LifetimeView::allTime() const {
    return scope_->currentIndex() == 1 && store_ != nullptr && store_->recording();
}

void LifetimeView::refresh() {
    const QString chosen = table_->currentText();
    figures_ = allTime() ? lifetimeFigures(store_->database()) : runFigures(stats_);
    const QSignalBlocker blocker(table_);
    table_->clear();
    for (const TableFigures& f : figures_) {
        table_->addItem(gameTitle(f.game) + QStringLiteral(" \u2014 ") + f.payTable);
    }
    table_->setCurrentIndex(std::max(0, table_->findText(chosen)));
    showTable();
}

void LifetimeView::showTable() {
    const int index = table_->currentIndex();
    summary_->setRowCount(0);
    frequencies_->setRowCount(0);
    lines_->setRowCount(0);
    auto* chart = new QChart;
    chart_->setChart(chart); // the view deletes the chart it showed before
    if (index < 0 || index >= static_cast<int>(figures_.size())) {
        return;
    }
    const TableFigures& f = figures_[static_cast<std::size_t>(index)];
    const auto odds = f.payTable == payTableText(f.game) ? cachedGameOdds(f.game) : std::nullopt;
    const std::optional<double> actual =
        f.bet > 0.0 ? std::optional<double>(f.paid / f.bet) : std::nullopt;
    const QStringList rows{
        tr("Hands"),        tr("Bet"),          tr("Paid"),     tr("Actual return"),
        tr("Exact return"), tr("Judged hands"), tr("Mistakes"), tr("Cost of mistakes")};
    const QStringList values{countText(f.hands),
                             moneyText(static_cast<float>(f.bet)),
                             moneyText(static_cast<float>(f.paid)),
                             percent(actual),
                             odds ? percent(odds->expectedReturn) : QStringLiteral("\u2014"),
                             countText(f.judged),
                             countText(f.mistakes),
                             moneyText(static_cast<float>(f.cost))};
    summary_->setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < rows.size(); ++row) {
        setRow(*summary_, row, {rows[row], values[row]});
    }
    long long drawn = 0;
    for (const long long count : f.codes) {
        drawn += count;
    }
    for (int code = topCode(f.game); code >= 1; --code) {
        const auto slot = static_cast<std::size_t>(code);
        const std::string_view name =
            HandName(f.game, static_cast<std::uint8_t>(code), GameState{}, false);
        const int row = frequencies_->rowCount();
        frequencies_->insertRow(row);
        setRow(*frequencies_, row,
               {QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())),
                countText(f.codes[slot]),
                percent(drawn > 0 ? std::optional<double>(double(f.codes[slot]) / double(drawn))
                                  : std::nullopt),
                percent(odds ? std::optional<double>(odds->codeProbability[slot]) : std::nullopt)});
    }
    const auto lines = allTime() ? lineCosts(store_->database(), f.game, f.payTable)
                                 : runLineCosts(stats_, f.game);
    for (const LineCost& line : lines) {
        const int row = lines_->rowCount();
        lines_->insertRow(row);
        setRow(*lines_, row,
               {line.line, countText(line.judged), countText(line.mistakes),
                moneyText(static_cast<float>(line.cost))});
    }
    const auto points = allTime() ? progressOf(store_->database(), f.game, f.payTable)
                                  : runProgress(stats_, f.game);
    auto* net = new QLineSeries;
    net->setName(tr("Running net ($)"));
    auto* cost = new QLineSeries;
    cost->setName(tr("Cost per 100 hands ($)"));
    net->append(0.0, 0.0);
    for (const ProgressPoint& point : points) {
        net->append(static_cast<double>(point.hands), point.net);
        if (point.costPer100) {
            cost->append(static_cast<double>(point.hands), *point.costPer100);
        }
    }
    chart->addSeries(net);
    chart->addSeries(cost);
    chart->createDefaultAxes();
    chart->setTitle(tr("Running net and the cost of mistakes"));
}

QString LifetimeView::summaryText(const QString& row) const {
    for (int r = 0; r < summary_->rowCount(); ++r) {
        if (summary_->item(r, 0)->text() == row) {
            return summary_->item(r, 1)->text();
        }
    }
    return {};
}

bool LifetimeView::forgetHistory(bool ask) {
    if (store_ == nullptr) {
        return false;
    }
    if (ask && QMessageBox::question(this, tr("Forget My History"),
                                     tr("Delete every recorded hand, purchase and cash-out of "
                                        "every run? This can't be undone."),
                                     QMessageBox::Yes | QMessageBox::No,
                                     QMessageBox::No) != QMessageBox::Yes) {
        return false;
    }
    if (!store_->forget()) {
        QMessageBox::warning(this, tr("Forget My History"),
                             tr("Your playing record could not be emptied."));
        return false;
    }
    refresh();
    emit forgotten();
    return true;
}

} // namespace marivale
