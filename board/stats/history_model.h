#pragma once

// The hand history as a table, newest hand first: game and bet, the dealt cards, the holds and
// the final cards, the hand and what it paid, the Double Up outcome, the best hold and what the
// player's hold cost. It reads the statistics model and never changes it.

// Qt
#include <QAbstractTableModel>

// Marivale
#include "play/stats/session_stats.h"

namespace marivale {

class HistoryModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column {
        Number,
        Game,
        Bet,
        Dealt,
        Held,
        Final,
        Result,
        Paid,
        DoubleUp,
        Best,
        Cost,
        Count
    };

    explicit HistoryModel(const SessionStats& stats, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    // The model's history changed: show it again.
    void refresh();
    // The hand on a row; nothing past the last.
    const HandRecord* hand(int row) const;

    // The widest texts the column can show, to size the view before the hands that show them.
    static QStringList sampleTexts(int column);

private:
    QString text(const HandRecord& hand, int column) const;

    const SessionStats& stats_;
};

} // namespace marivale
