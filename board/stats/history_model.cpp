#include "board/stats/history_model.h"

// Standard library
#include <array>

// Qt
#include <QColor>

// Marivale
#include "board/stats/stats_tables.h"
#include "engine/card_text.h"
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "play/game_variant.h"
#include "play/stats/history_csv.h"
#include "ui/money_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

const QColor kMistakeInk(192, 0, 0);

// The faces of the cards in the mask; "none" for an empty mask.
QString cards(const HandCards& hand, unsigned mask = ~0u) {
    return QString::fromStdString(cardsText(hand, mask, CardForm::Face));
}

QString title(GameId game) {
    const std::string_view text = variantFor(game).title;
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Money for a cost; "none" for a hold as good as the best, and a cost below a cent says so.
QString costText(const HoldJudgement& judgement) {
    constexpr float kCent = 0.01f;
    if (!judgement.mistake) {
        return HistoryModel::tr("none");
    }
    return judgement.cost < kCent / 2 ? QStringLiteral("<") + moneyText(kCent)
                                      : moneyText(judgement.cost);
}

} // namespace

HistoryModel::HistoryModel(const SessionStats& stats, QObject* parent)
    : QAbstractTableModel(parent), stats_(stats) {}

const HandRecord* HistoryModel::hand(int row) const {
    const auto& history = stats_.history();
    if (row < 0 || static_cast<std::size_t>(row) >= history.size()) {
        return nullptr;
    }
    return &history[history.size() - 1 - static_cast<std::size_t>(row)];
}

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
        return countText(hand.number);
    case Game:
        return title(hand.game);
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
        return hand.judgement ? costText(*hand.judgement) : QString();
    default:
        return {};
    }
}

QStringList HistoryModel::sampleTexts(int column) {
    constexpr CardCode kTen = makeCard(Rank::Ten, Suit::Clubs);
    constexpr HandCards kTens{kTen, kTen + kRanksPerSuit, kTen + 2 * kRanksPerSuit,
                              kTen + 3 * kRanksPerSuit, makeCard(Rank::Queen, Suit::Spades)};
    QStringList texts;
    HandRecord hand;
    switch (column) {
    case Number:
        return {countText(99999)};
    case Game:
        for (const GameId game : kAllGames) {
            texts << title(game);
        }
        return texts;
    case Dealt:
    case Held:
    case Final:
    case Best:
        return {cards(kTens)};
    case Result:
        texts << tr("nothing") << QString::fromStdString(unsettledText(hand));
        hand.abandoned = true;
        texts << QString::fromStdString(unsettledText(hand));
        for (const GameId game : kAllGames) {
            for (int code = 1; code <= topCode(game); ++code) {
                const std::string_view name =
                    HandName(game, static_cast<std::uint8_t>(code), GameState{}, false);
                texts << QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
            }
        }
        return texts;
    case DoubleUp:
        hand.doubleFactor = 1024;
        for (const auto result : {DoubleUpResult::TookScore, DoubleUpResult::Won}) {
            hand.doubleUp = result;
            texts << QString::fromStdString(doubleUpText(hand));
        }
        return texts;
    case Bet:
        return {moneyText(99.99f)};
    case Cost:
        return {moneyText(99.99f), tr("none")};
    case Paid:
        return {moneyText(99999.99f)};
    default:
        return {};
    }
}

void HistoryModel::refresh() {
    beginResetModel();
    endResetModel();
}

} // namespace marivale
