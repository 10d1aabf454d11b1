#pragma once

// The statistics window's "This run" and "All time" figures of one game at one pay table:
// hands, amounts bet and paid, the actual return beside the exact one, how often each hand came
// against how often it should, mistakes and their cost by the chart line of the best hold, and a
// chart of the running net and of the cost per hundred hands. "Forget my history" empties the
// player's record after a confirmation.

// Standard library
#include <vector>

// Qt
#include <QWidget>

// Marivale
#include "record/record_query.h"

class QChartView;
class QComboBox;
class QPushButton;
class QTableWidget;

namespace marivale {

class RecordStore;

class LifetimeView : public QWidget {
    Q_OBJECT
public:
    // Without a store, or with one that is not recording, only this run can be shown.
    LifetimeView(const SessionStats& stats, RecordStore* store, QWidget* parent = nullptr);

    // Reads the figures again, keeping the scope and table chosen where they still exist.
    void refresh();
    // Asks, then forgets the record; true when it was forgotten.
    bool forgetHistory(bool ask = true);
    // The summary's value on a row ("Hands", "Actual return", ...), for tests and readers.
    QString summaryText(const QString& row) const;

signals:
    void forgotten();

private:
    bool allTime() const;
    void showTable();

    const SessionStats& stats_;
    RecordStore* store_{nullptr};
    std::vector<TableFigures> figures_{};
    QComboBox* scope_{nullptr};
    QComboBox* table_{nullptr};
    QPushButton* forget_{nullptr};
    QTableWidget* summary_{nullptr};
    QTableWidget* frequencies_{nullptr};
    QTableWidget* lines_{nullptr};
    QChartView* chart_{nullptr};
};

} // namespace marivale
