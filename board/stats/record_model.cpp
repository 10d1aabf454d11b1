#include "board/stats/record_model.h"

// Standard library
#include <array>

// Qt
#include <QColor>
#include <QDateTime>

// Marivale
#include "engine/card_text.h"
#include "play/game_variant.h"
#include "play/stats/history_csv.h"
#include "ui/money_text.h"

namespace marivale {
namespace {

constexpr int kPage = 200;
const QColor kMistakeInk(192, 0, 0);

QString cards(const HandCards& hand, unsigned mask = ~0u) {
    return QString::fromStdString(cardsText(hand, mask, CardForm::Face));
}

} // namespace

RecordModel::RecordModel(QObject* parent) : QAbstractTableModel(parent) {}

void RecordModel::show(const QSqlDatabase& db, const HistoryFilter& filter) {
    beginResetModel();
    db_ = db;
    filter_ = filter;
    rows_ = historyPage(db_, filter_, std::nullopt, kPage);
    more_ = static_cast<int>(rows_.size()) == kPage;
    endResetModel();
}

const RecordedHand* RecordModel::hand(int row) const {
    return row >= 0 && row < rowCount() ? &rows_[static_cast<std::size_t>(row)] : nullptr;
}

int RecordModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecordModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count;
}

bool RecordModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && more_;
}

// The next page, older than the oldest row shown.
void RecordModel::fetchMore(const QModelIndex& parent) {
    if (parent.isValid() || !more_ || rows_.empty()) {
        return;
    }
    std::vector<RecordedHand> page = historyPage(db_, filter_, rows_.back().id, kPage);
    more_ = static_cast<int>(page.size()) == kPage;
    if (page.empty()) {
        return;
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(page.size()) - 1);
    rows_.insert(rows_.end(), page.begin(), page.end());
    endInsertRows();
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const std::array<QString, Count> kHeaders{
        tr("Time"), tr("Game"), tr("Bet"),       tr("Dealt"),          tr("Held"), tr("Final"),
        tr("Hand"), tr("Paid"), tr("Double Up"), tr("Best hold line"), tr("Cost")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= Count) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return kHeaders[section];
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
    const RecordedHand* row = hand(index.row());
    if (!index.isValid() || row == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return text(*row, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == Bet || index.column() == Paid || index.column() == Cost
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (index.column() == Cost && row->hand.judgement && row->hand.judgement->mistake) {
            return kMistakeInk;
        }
        return {};
    default:
        return {};
    }
}

QString RecordModel::text(const RecordedHand& row, int column) const {
    const HandRecord& hand = row.hand;
    switch (column) {
    case Time:
        return QDateTime::fromMSecsSinceEpoch(row.time).toString(
            QStringLiteral("yyyy-MM-dd HH:mm"));
    case Game: {
        const std::string_view title = variantFor(hand.game).title;
        return QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()));
    }
    case Bet:
        return moneyText(hand.bet);
    case Dealt:
        return cards(hand.dealt);
    case Held:
        return hand.played ? cards(hand.dealt, hand.holds) : QString();
    case Final:
        return hand.finished && hand.played ? cards(hand.finalCards) : QString();
    case Result:
        if (!hand.finished) {
            return QString::fromStdString(unsettledText(hand));
        }
        return hand.name.empty() ? tr("nothing") : QString::fromStdString(hand.name);
    case Paid:
        return moneyText(hand.paid);
    case DoubleUp:
        return QString::fromStdString(doubleUpText(hand));
    case Line:
        return row.bestLine;
    case Cost:
        return !hand.judgement           ? QString()
               : hand.judgement->mistake ? moneyText(hand.judgement->cost)
                                         : tr("none");
    default:
        return {};
    }
}

} // namespace marivale
