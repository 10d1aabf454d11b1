#include "board/stats/stats_window.h"

// Standard library
#include <algorithm>
#include <utility>
#include <vector>

// Qt
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

// Marivale
#include "board/stats/credit_chart.h"
#include "board/stats/history_model.h"
#include "board/stats/lifetime_view.h"
#include "board/stats/record_history.h"
#include "board/stats/stats_tables.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/pay_scale.h"
#include "play/stats/history_csv.h"
#include "play/stats/luck.h"
#include "play/strategy/game_odds_cache.h"
#include "play/strategy/hold_judgement.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr QSize kOpeningSize(900, 680);

// The width the hand history needs to show every column whole, at its font, for the widest
// texts of each column.
int historyWidth(const QTableView& view) {
    const QFontMetrics metrics = view.fontMetrics();
    const QStyle& style = *view.style();
    const int margin = 2 * (style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1);
    int width =
        2 * view.frameWidth() + style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &view);
    for (int column = 0; column < HistoryModel::Count; ++column) {
        int widest = view.horizontalHeader()->sectionSizeHint(column);
        for (const QString& text : HistoryModel::sampleTexts(column)) {
            widest = std::max(widest, metrics.horizontalAdvance(text) + margin);
        }
        width += widest;
    }
    return width;
}

} // namespace

StatsWindow::StatsWindow(SessionStats& stats, QWidget* parent, RecordStore* record)
    : QWidget(parent, Qt::Tool), stats_(stats) {
    setObjectName(QStringLiteral("Statistics"));
    setWindowTitle(tr("Session Statistics"));

    auto* layout = new QVBoxLayout(this);
    heading_ = new QLabel(this);
    heading_->setObjectName(QStringLiteral("StatsHeading"));
    layout->addWidget(heading_);

    auto* tablesRow = new QHBoxLayout;
    summary_ = makeSummaryTable(this);
    frequencies_ = makeFrequencyTable(this);
    tablesRow->addWidget(summary_, 0, Qt::AlignTop | Qt::AlignLeft);
    tablesRow->addSpacing(12);
    tablesRow->addWidget(frequencies_, 1, Qt::AlignTop | Qt::AlignLeft);
    layout->addLayout(tablesRow);

    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("StatsTabs"));
    chart_ = new CreditChart(tabs_);
    tabs_->addTab(chart_, tr("Resu&lt"));

    auto* historyPage = new QWidget(tabs_);
    auto* historyLayout = new QVBoxLayout(historyPage);
    historyModel_ = new HistoryModel(stats_, this);
    history_ = new QTableView(historyPage);
    history_->setObjectName(QStringLiteral("HandHistory"));
    history_->setModel(historyModel_);
    history_->verticalHeader()->hide();
    history_->setWordWrap(false);
    history_->verticalHeader()->setDefaultSectionSize(history_->fontMetrics().height() + 6);
    history_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    history_->setSelectionBehavior(QAbstractItemView::SelectRows);
    history_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    history_->horizontalHeader()->setStretchLastSection(true);
    historyLayout->addWidget(history_);
    history_->setToolTip(tr("Double-click a hand or press Enter to see it again in Strategy"));
    connect(history_, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
        if (const HandRecord* hand = historyModel_->hand(index.row())) {
            emit replayAsked(*hand);
        }
    });
    auto* exportRow = new QHBoxLayout;
    exportRow->addStretch(1);
    auto* exportButton = new QPushButton(tr("&Export CSV\u2026"), historyPage);
    exportButton->setObjectName(QStringLiteral("ExportCsv"));
    exportButton->setToolTip(tr("Write the whole hand history to a CSV file"));
    exportRow->addWidget(exportButton);
    historyLayout->addLayout(exportRow);
    tabs_->addTab(historyPage, tr("Hand H&istory"));
    lifetime_ = new LifetimeView(stats_, record, tabs_);
    tabs_->addTab(lifetime_, tr("&All Time"));
    if (record != nullptr) {
        recorded_ = new RecordHistory(*record, tabs_);
        tabs_->addTab(recorded_, tr("E&very Hand"));
        connect(lifetime_, &LifetimeView::forgotten, recorded_, &RecordHistory::refresh);
    }
    connect(tabs_, &QTabWidget::currentChanged, this, &StatsWindow::refreshRecordTabs);
    layout->addWidget(tabs_, 1);

    connect(exportButton, &QPushButton::clicked, this, &StatsWindow::exportClicked);
    stats_.setListener([this] { scheduleRefresh(); });
    refresh();
    // Opens wide enough for every column of the history, as far as the screen allows.
    history_->setMinimumWidth(historyWidth(*history_));
    const int width = std::max(kOpeningSize.width(), minimumSizeHint().width());
    history_->setMinimumWidth(0);
    resize(std::min(width, screen()->availableGeometry().width()), kOpeningSize.height());
}

StatsWindow::~StatsWindow() {
    stats_.setListener({});
    work_.stop();
}

void StatsWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

// F3, which opened the window from the board, closes it again, as Escape does.
void StatsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F3 || event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

// Many events arrive in one hand; the window draws once after them.
void StatsWindow::scheduleRefresh() {
    if (refreshPending_ || !isVisible()) {
        return;
    }
    refreshPending_ = true;
    QTimer::singleShot(0, this, [this] {
        refreshPending_ = false;
        refresh();
    });
}

void StatsWindow::refresh() {
    const std::string_view name = facts(stats_.visitGame()).name;
    const auto hands = static_cast<long long>(stats_.history().size());
    heading_->setText(tr("<b>%1</b> &nbsp; visit %2 of this run &nbsp; %3 %4 in the run")
                          .arg(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())))
                          .arg(countText(stats_.visits()))
                          .arg(countText(hands))
                          .arg(hands == 1 ? tr("hand") : tr("hands")));
    OddsByGame gameOdds{};
    std::array<std::optional<double>, kGameCount> returns{};
    for (const GameId game : kAllGames) {
        const auto& found = gameOdds[gameIndex(game)] = cachedGameOdds(game);
        if (found) {
            returns[gameIndex(game)] = found->expectedReturn;
        }
    }
    const auto& history = stats_.history();
    showSummaryTable(*summary_, stats_, returns[gameIndex(stats_.visitGame())],
                     expectedReturn(stats_.games(), returns),
                     {luckOf(history, stats_.visits(), gameOdds), luckOf(history, 0, gameOdds)});
    const auto& visitOdds = gameOdds[gameIndex(stats_.visitGame())];
    showFrequencyTable(*frequencies_, stats_, visitOdds);
    chart_->showVisit(stats_, visitOdds);
    historyModel_->refresh();
    if (tabs_->currentWidget() == lifetime_) {
        lifetime_->refresh();
    }
    if (isVisible()) {
        startWork();
    }
}

// Judges the holds still waiting and works out the whole-game odds of every game played, off
// the user-interface thread; the results come back as queued calls.
void StatsWindow::startWork() {
    if (working_) {
        return;
    }
    std::vector<HoldQuestion> questions = stats_.unjudged();
    std::vector<GameId> games;
    for (const GameId game : kAllGames) {
        const bool played = stats_.game(game).hands > 0 || game == stats_.visitGame();
        if (played && !cachedGameOdds(game)) {
            games.push_back(game);
        }
    }
    if (questions.empty() && games.empty()) {
        return;
    }
    working_ = true;
    work_.start(
        [this, questions = std::move(questions), games = std::move(games)](std::stop_token stop) {
            std::vector<std::pair<std::size_t, HoldJudgement>> judged;
            for (const HoldQuestion& question : questions) {
                if (stop.stop_requested()) {
                    return;
                }
                if (const auto judgement =
                        judgeHold(question.game, question.dealt, question.holds, question.bet)) {
                    judged.emplace_back(question.index, *judgement);
                }
            }
            QMetaObject::invokeMethod(
                this,
                [this, judged = std::move(judged)] {
                    for (const auto& [index, judgement] : judged) {
                        stats_.setJudgement(index, judgement);
                    }
                },
                Qt::QueuedConnection);
            for (const GameId game : games) {
                const auto result =
                    odds::analyzeGame(odds::DrawTables::forGame(game), odds::ownPayScale(game),
                                      odds::defaultThreadCount(), stop);
                if (!result) {
                    return;
                }
                storeGameOdds(*result);
            }
            QMetaObject::invokeMethod(
                this, [this] { workDone(); }, Qt::QueuedConnection);
        });
}

// The record's pages are read when they are shown, not after every hand.
void StatsWindow::refreshRecordTabs() {
    if (tabs_->currentWidget() == lifetime_) {
        lifetime_->refresh();
    } else if (recorded_ != nullptr && tabs_->currentWidget() == recorded_) {
        recorded_->refresh();
    }
}

void StatsWindow::workDone() {
    working_ = false;
    refresh();
}

bool StatsWindow::exportTo(const QString& path) {
    judgeAll(stats_);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    const std::string csv = historyCsv(stats_.history());
    const auto size = static_cast<qint64>(csv.size());
    return file.write(csv.data(), size) == size && file.flush();
}

void StatsWindow::exportClicked() {
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export Hand History"),
                                     QStringLiteral("hand-history.csv"), tr("CSV files (*.csv)"));
    if (path.isEmpty()) {
        return;
    }
    if (!exportTo(path)) {
        QMessageBox::warning(this, tr("Export Hand History"),
                             tr("The hand history could not be written to %1.").arg(path));
    }
}

} // namespace marivale
