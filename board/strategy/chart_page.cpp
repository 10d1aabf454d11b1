#include "board/strategy/chart_page.h"

// Qt
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QShowEvent>
#include <QTableWidget>
#include <QVBoxLayout>

// Marivale
#include "board/strategy/chart_print.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/named_tables.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr QRgb kDealtRowColour = 0xfffff0b3;
constexpr int kMinimumLinesHeight = 260;

QTableWidgetItem* makeItem(const QString& text, Qt::Alignment alignment) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

} // namespace

ChartPage::ChartPage(GameId game, const odds::PayScale& scale, QWidget* parent)
    : QWidget(parent), game_(game), scale_(scale), tableName_(tr("The board's pay table")) {
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    kind_ = new QComboBox(this);
    kind_->setObjectName(QStringLiteral("ChartKind"));
    kind_->addItem(tr("Complete chart"));
    kind_->addItem(tr("Simple chart (at most %1 lines)").arg(odds::kSimpleChartLines));
    top->addWidget(kind_);
    top->addStretch(1);
    print_ = new QPushButton(tr("Pr&int\u2026"), this);
    print_->setObjectName(QStringLiteral("PrintChart"));
    pdf_ = new QPushButton(tr("Save as PD&F\u2026"), this);
    pdf_->setObjectName(QStringLiteral("SaveChartPdf"));
    top->addWidget(print_);
    top->addWidget(pdf_);
    layout->addLayout(top);

    summary_ = new QLabel(this);
    summary_->setObjectName(QStringLiteral("ChartSummary"));
    summary_->setWordWrap(true);
    layout->addWidget(summary_);

    lines_ = new QTableWidget(0, 6, this);
    lines_->setObjectName(QStringLiteral("ChartLines"));
    lines_->setHorizontalHeaderLabels(
        {tr("#"), tr("Line"), tr("Example"), tr("Played"), tr("Return"), tr("Worth")});
    lines_->verticalHeader()->hide();
    lines_->setSelectionMode(QAbstractItemView::NoSelection);
    lines_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lines_->setMinimumHeight(kMinimumLinesHeight);
    lines_->horizontalHeaderItem(5)->setToolTip(
        tr("The return the chart loses were the line left out"));
    layout->addWidget(lines_, 1);

    dealtNote_ = new QLabel(this);
    dealtNote_->setObjectName(QStringLiteral("ChartDealt"));
    dealtNote_->setWordWrap(true);
    layout->addWidget(dealtNote_);

    connect(kind_, &QComboBox::currentIndexChanged, this, [this] {
        stale_ = true;
        startWork();
    });
    connect(print_, &QPushButton::clicked, this, &ChartPage::print);
    connect(pdf_, &QPushButton::clicked, this, &ChartPage::askPdf);
    print_->setEnabled(false);
    pdf_->setEnabled(false);
}

void ChartPage::setTable(const odds::PayScale& scale, bool edited) {
    scale_ = scale;
    const odds::NamedTable* named = edited ? odds::findNamedTable(game_, scale) : nullptr;
    tableName_ = named != nullptr ? QString::fromUtf8(named->title.data(),
                                                      static_cast<qsizetype>(named->title.size()))
                 : edited         ? tr("An edited pay table")
                                  : tr("The board's pay table");
    stale_ = true;
    if (isVisible()) {
        startWork();
    }
}

void ChartPage::setDeal(const std::optional<HandCards>& dealt) {
    dealt_ = dealt;
    markDealt();
}

void ChartPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (stale_) {
        startWork();
    }
}

// Derives the chart of the table and kind on show off the user-interface thread.
void ChartPage::startWork() {
    stale_ = false;
    ++generation_;
    print_->setEnabled(false);
    pdf_->setEnabled(false);
    summary_->setText(tr("Working out the chart over every deal\u2026"));
    const auto kind =
        kind_->currentIndex() == 1 ? odds::ChartKind::Simple : odds::ChartKind::Complete;
    work_.start(
        [this, game = game_, scale = scale_, kind, generation = generation_](std::stop_token stop) {
            const odds::DrawTables* tables = odds::DrawTables::forGameUnlessStopped(game, stop);
            if (tables == nullptr) {
                return;
            }
            auto chart = odds::deriveStrategyChart(*tables, scale, kind, stop);
            if (!chart) {
                return;
            }
            QMetaObject::invokeMethod(
                this,
                [this, found = std::move(*chart), generation]() mutable {
                    if (generation == generation_) {
                        showChart(std::move(found));
                    }
                },
                Qt::QueuedConnection);
        });
}

void ChartPage::showChart(odds::DerivedChart chart) {
    chart_ = std::move(chart);
    summary_->setText(tr("%1: chart return %2, best play %3, cost %4. Hold the first line the "
                         "deal has.")
                          .arg(tableName_, percentText(chart_->expectedReturn, 4),
                               percentText(chart_->bestReturn, 4), percentText(chart_->cost, 4)));
    lines_->setRowCount(static_cast<int>(chart_->rows.size()));
    for (int row = 0; row < lines_->rowCount(); ++row) {
        const odds::ChartRow& line = chart_->rows[static_cast<std::size_t>(row)];
        lines_->setItem(row, 0, makeItem(countText(row + 1), Qt::AlignRight));
        lines_->setItem(row, kLineColumn,
                        makeItem(QString::fromStdString(line.name), Qt::AlignLeft));
        auto* example = new QLabel(chartExampleHtml(line.example, line.exampleHold), lines_);
        example->setTextFormat(Qt::RichText);
        example->setContentsMargins(4, 0, 4, 0);
        lines_->setItem(row, kExampleColumn, makeItem(QString(), Qt::AlignLeft));
        lines_->setCellWidget(row, kExampleColumn, example);
        lines_->setItem(row, 3, makeItem(percentText(line.share, 3), Qt::AlignRight));
        lines_->setItem(row, 4, makeItem(decimalText(line.meanReturn, 4), Qt::AlignRight));
        lines_->setItem(row, 5, makeItem(percentText(line.worth, 4), Qt::AlignRight));
    }
    markDealt();
    // The page widens to show every column, the marked row's bold type too, without scrolling
    // sideways.
    lines_->resizeColumnsToContents();
    lines_->setMinimumWidth(lines_->horizontalHeader()->length() +
                            lines_->verticalScrollBar()->sizeHint().width() +
                            2 * lines_->frameWidth());
    print_->setEnabled(true);
    pdf_->setEnabled(true);
    emit chartShown();
}

// Marks the row of the hand on show and brings it into view.
void ChartPage::markDealt() {
    dealtRow_.reset();
    if (chart_ && dealt_) {
        dealtRow_ = chart_->rowOf(*dealt_);
    }
    for (int row = 0; row < lines_->rowCount(); ++row) {
        const bool dealtHere = dealtRow_ == row;
        for (int column = 0; column < lines_->columnCount(); ++column) {
            QTableWidgetItem* item = lines_->item(row, column);
            item->setBackground(dealtHere ? QBrush(QColor::fromRgba(kDealtRowColour)) : QBrush());
            QFont font = item->font();
            font.setBold(dealtHere);
            item->setFont(font);
        }
    }
    if (!dealtRow_) {
        dealtNote_->setText(chart_ && dealt_ ? tr("No line of this chart is in the hand on show.")
                                             : QString());
        return;
    }
    // Once the rows are laid out, so that a chart that has just arrived scrolls too.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (dealtRow_ && *dealtRow_ < lines_->rowCount()) {
                lines_->scrollToItem(lines_->item(*dealtRow_, 0));
            }
        },
        Qt::QueuedConnection);
    dealtNote_->setText(
        tr("The hand on show plays line %1: %2.")
            .arg(countText(*dealtRow_ + 1),
                 QString::fromStdString(chart_->rows[static_cast<std::size_t>(*dealtRow_)].name)));
}

QString ChartPage::pageHtml() const {
    return chartPageHtml(*chart_, scale_, tableName_);
}

void ChartPage::print() {
    if (!chart_) {
        return;
    }
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) {
        printChartPage(pageHtml(), printer);
    }
}

bool ChartPage::savePdf(const QString& path) {
    return chart_ && saveChartPdf(pageHtml(), path);
}

void ChartPage::askPdf() {
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the chart as PDF"),
                                                      tr("strategy-chart.pdf"), tr("PDF (*.pdf)"));
    if (!path.isEmpty() && !savePdf(path)) {
        QMessageBox::warning(this, tr("Save as PDF"),
                             tr("The chart could not be saved to %1.").arg(path));
    }
}

} // namespace marivale
