#include "board/stats/history_model.h"

// Standard library
#include <array>

// Qt
#include <QColor>

// Marivale
#include "board/stats/stats_tables.h"
#include "engine/card_text.h"
#include "play/game_variant.h"
#include "play/stats/history_csv.h"
#include "ui/money_text.h"

namespace marivale {
namespace {

const QColor kMistakeInk(192, 0, 0);

// The faces of the cards in the mask; "none" for an empty mask.
QString cards(const HandCards& hand, unsigned mask = ~0u) {
    return QString::fromStdString(cardsText(hand, mask, CardForm::Face));
}

} // namespace

HistoryModel::HistoryModel(const SessionStats& stats, QObject* parent)
    : QAbstractTableModel(parent), stats_(stats) {}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(stats_.history().size());
}

int HistoryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count;
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const std::array<QString, Count> kHeaders{
        tr("#"),    tr("Game"), tr("Bet"),       tr("Dealt"),     tr("Held"), tr("Final"),
        tr("Hand"), tr("Paid"), tr("Double Up"), tr("Best hold"), tr("Cost")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= Count) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return kHeaders[section];
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    const auto& history = stats_.history();
    if (!index.isValid() || index.row() >= static_cast<int>(history.size())) {
        return {};
    }
    const HandRecord& hand = history[history.size() - 1 - static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(hand, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == Number || index.column() == Bet || index.column() == Paid ||
                       index.column() == Cost
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (index.column() == Cost && hand.judgement && hand.judgement->mistake) {
            return kMistakeInk;
        }
        return {};
    default:
        return {};
    }
}

QString HistoryModel::text(const HandRecord& hand, int column) const {
    switch (column) {
    case Number:
        return statsNumber(hand.number);
    case Game:
        return QString::fromUtf8(variantFor(hand.game).title.data(),
                                 static_cast<qsizetype>(variantFor(hand.game).title.size()));
    case Bet:
        return moneyText(hand.bet);
    case Dealt:
        return cards(hand.dealt);
    case Held:
        return hand.played ? cards(hand.dealt, hand.holds) : QString();
    case Final:
        return hand.played ? cards(hand.finalCards) : QString();
    case Result:
        if (!hand.finished) {
            return QString::fromStdString(unsettledText(hand));
        }
        return hand.name.empty() ? tr("nothing") : QString::fromStdString(hand.name);
    case Paid:
        return moneyText(hand.paid);
    case DoubleUp:
        return QString::fromStdString(doubleUpText(hand));
    case Best:
        return hand.judgement ? cards(hand.dealt, hand.judgement->best)
               : hand.played  ? QStringLiteral("\u2026")
                              : QString();
    case Cost:
        return hand.judgement ? QStringLiteral("$") +
                                    QString::fromStdString(fixedText(hand.judgement->cost, 4))
                              : QString();
    default:
        return {};
    }
}

void HistoryModel::refresh() {
    beginResetModel();
    endResetModel();
}

} // namespace marivale
