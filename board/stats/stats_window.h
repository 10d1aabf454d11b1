#pragma once

// The session statistics window, a companion to a board: the visit's and the run's hands, bets
// and payouts, the actual return beside the game's exact one, luck and skill in bets, how often
// each paying hand came against how often it should, Double Up and the Treasure Hunt, trainer
// mode's mistakes, a chart of the visit's result in bets beside the best play's, and the history
// of every hand with the cost of its hold. It only draws
// the statistics model; closing it changes nothing. The odds it needs are worked out on a
// background thread, so the board never waits for them.

// Qt
#include <QWidget>

// Marivale
#include "play/background_job.h"
#include "play/stats/session_stats.h"

class QLabel;
class QTableView;
class QTableWidget;
class QTabWidget;

namespace marivale {

class CreditChart;
class HistoryModel;
class LifetimeView;
class RecordHistory;
class RecordStore;

class StatsWindow : public QWidget {
    Q_OBJECT
public:
    // With the player's record, the window also shows the figures of all time and every
    // recorded hand.
    explicit StatsWindow(SessionStats& stats, QWidget* parent = nullptr,
                         RecordStore* record = nullptr);
    ~StatsWindow() override;

    // Writes the whole history as CSV, judging any hold still waiting first; false when the
    // file cannot be written.
    bool exportTo(const QString& path);
    // True while holds or whole-game odds are being worked out.
    bool working() const { return working_; }

signals:
    // The player opened a hand of the history to see it again in the Strategy window.
    void replayAsked(const HandRecord& hand);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void scheduleRefresh();
    void refresh();
    void showSummary();
    void showFrequencies();
    void startWork();
    void workDone();
    void exportClicked();
    void refreshRecordTabs();

    SessionStats& stats_;
    bool refreshPending_{false};
    bool working_{false};

    QLabel* heading_{nullptr};
    QTableWidget* summary_{nullptr};
    QTableWidget* frequencies_{nullptr};
    QTabWidget* tabs_{nullptr};
    CreditChart* chart_{nullptr};
    HistoryModel* historyModel_{nullptr};
    QTableView* history_{nullptr};
    LifetimeView* lifetime_{nullptr};
    RecordHistory* recorded_{nullptr};

    // Last member: stopped and joined first when the window goes.
    BackgroundJob work_{};
};

} // namespace marivale
