#pragma once

// The statistics window's page of recorded hands: every hand of every run, newest first, paged
// in as the list scrolls, filtered by game, by date and to mistakes only, and any filter
// written to a CSV file.

// Qt
#include <QWidget>

// Marivale
#include "record/record_query.h"

class QCheckBox;
class QComboBox;
class QDateEdit;
class QTableView;

namespace marivale {

class RecordModel;
class RecordStore;

class RecordHistory : public QWidget {
    Q_OBJECT
public:
    explicit RecordHistory(RecordStore& store, QWidget* parent = nullptr);

    // Reads the hands again under the filter chosen.
    void refresh();
    HistoryFilter filter() const;
    // Writes the hands of the filter chosen; false when the file can't be written.
    bool exportTo(const QString& path);
    RecordModel& model() { return *model_; }

private:
    void exportClicked();

    RecordStore& store_;
    QComboBox* game_{nullptr};
    QCheckBox* dated_{nullptr};
    QDateEdit* from_{nullptr};
    QDateEdit* to_{nullptr};
    QCheckBox* mistakes_{nullptr};
    RecordModel* model_{nullptr};
    QTableView* view_{nullptr};
};

} // namespace marivale
