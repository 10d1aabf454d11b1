#pragma once

// The recorded hands of every run under a filter, newest first, read from the player's record
// a page at a time as the view scrolls down to them, so that any number of hands opens at once.

// Standard library
#include <optional>
#include <vector>

// Qt
#include <QAbstractTableModel>
#include <QSqlDatabase>

// Marivale
#include "record/record_query.h"

namespace marivale {

class RecordModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Time, Game, Bet, Dealt, Held, Final, Result, Paid, DoubleUp, Line, Cost, Count };

    explicit RecordModel(QObject* parent = nullptr);

    // Reads from this database under this filter, from the newest hand again.
    void show(const QSqlDatabase& db, const HistoryFilter& filter);
    const HistoryFilter& filter() const { return filter_; }
    const RecordedHand* hand(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    QString text(const RecordedHand& row, int column) const;

    QSqlDatabase db_{};
    HistoryFilter filter_{};
    std::vector<RecordedHand> rows_{};
    bool more_{false};
};

} // namespace marivale
