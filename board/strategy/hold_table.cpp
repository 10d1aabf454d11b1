#include "board/strategy/hold_table.h"

// Standard library
#include <algorithm>

// Qt
#include <QFontMetrics>
#include <QHeaderView>
#include <QStyle>

// Marivale
#include "ui/card_text.h"
#include "ui/money_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr int kColumns = 8;
// Column widths in pixels: rank, five cards, bets, dollars.
constexpr std::array<int, kColumns> kColumnWidth{44, 50, 50, 50, 50, 50, 70, 84};
constexpr int kRowHeight = 20;
// Rows on show without scrolling: the best holds.
constexpr int kVisibleRows = 14;
constexpr QRgb kBestRowColour = 0xffd9f2d0;
constexpr QRgb kDiscardColour = 0xffeeeeee;
constexpr QRgb kPlayedRowColour = 0xffd6e4f5;

QTableWidgetItem* makeItem(const QString& text, Qt::Alignment alignment) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(alignment);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

// The design's widths, each widened to the widest text its column can show in bold in the
// table's font, so that a large desktop font never cuts off "Best" or a top-bet amount.
std::array<int, kColumns> fittedWidths(QFont font) {
    font.setBold(true);
    const QFontMetrics metrics(font);
    const std::array<QString, kColumns> widest{
        HoldTable::tr("Best"),      QStringLiteral("10\u2660"),   QStringLiteral("10\u2660"),
        QStringLiteral("10\u2660"), QStringLiteral("10\u2660"),   QStringLiteral("10\u2660"),
        QStringLiteral("800.0000"), QStringLiteral("$160,000.00")};
    constexpr int kCellPadding = 12;
    std::array<int, kColumns> widths = kColumnWidth;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        widths[column] =
            std::max(widths[column], metrics.horizontalAdvance(widest[column]) + kCellPadding);
    }
    return widths;
}

QString dollars(double bets, float bet) {
    return moneyText(static_cast<float>(bets) * bet);
}

} // namespace

HoldTable::HoldTable(QWidget* parent) : QTableWidget(odds::kHoldCount, kColumns, parent) {
    setObjectName(QStringLiteral("Holds"));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    const std::array<int, kColumns> widths = fittedWidths(font());
    for (int column = 0; column < kColumns; ++column) {
        setColumnWidth(column, widths[column]);
    }
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWordWrap(false);
    int width = 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
    for (const int column : widths) {
        width += column;
    }
    setFixedWidth(width);
    setMinimumHeight(2 * frameWidth() + horizontalHeader()->sizeHint().height() +
                     kVisibleRows * kRowHeight);
    showNoDeal();
}

void HoldTable::setHeaderCards(const HandCards* dealt) {
    setHorizontalHeaderItem(kRankColumn, new QTableWidgetItem(QString()));
    for (int p = 0; p < kHandSize; ++p) {
        auto* header =
            new QTableWidgetItem(dealt ? cardFaceText((*dealt)[p]) : QStringLiteral("-"));
        if (dealt) {
            header->setForeground(cardInk((*dealt)[p]));
        }
        setHorizontalHeaderItem(kFirstCardColumn + p, header);
    }
    setHorizontalHeaderItem(kBetsColumn, new QTableWidgetItem(tr("Bets")));
    setHorizontalHeaderItem(kDollarsColumn, new QTableWidgetItem(tr("Dollars")));
}

void HoldTable::clearRows() {
    clearSpans();
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < kColumns; ++column) {
            setItem(row, column, nullptr);
        }
    }
}

void HoldTable::showNoDeal() {
    setHeaderCards(nullptr);
    clearRows();
}

void HoldTable::showComputing(const HandCards& dealt) {
    setHeaderCards(&dealt);
    clearRows();
    setSpan(0, kRankColumn, 1, kColumns);
    setItem(0, kRankColumn, makeItem(tr("computing\u2026"), Qt::AlignCenter));
}

// The hold the player made: its row's texts on a colour of their own (the best row and the
// discards keep theirs), in view.
void HoldTable::markPlayed(int row) {
    for (int column = 0; column < kColumns; ++column) {
        QTableWidgetItem* cell = item(row, column);
        if (cell != nullptr && row != 0 && !cell->text().isEmpty()) {
            cell->setBackground(QColor::fromRgba(kPlayedRowColour));
        }
    }
    scrollToItem(item(row, kRankColumn));
}

void HoldTable::showOdds(const HandCards& dealt, const odds::HandOdds& odds, float bet,
                         std::optional<unsigned> played) {
    setHeaderCards(&dealt);
    clearRows();
    const auto order = odds.ranking();
    for (int row = 0; row < odds::kHoldCount; ++row) {
        const unsigned held = order[row];
        const odds::HoldOdds& hold = odds.holds[held];
        const bool best = static_cast<int>(held) == odds.best;
        QString rankText = best ? tr("Best") : countText(row + 1);
        if (played == held) {
            rankText = tr("%1, played").arg(rankText);
        }
        auto* rank = makeItem(rankText, Qt::AlignCenter);
        rank->setData(kHeldRole, held);
        setItem(row, kRankColumn, rank);
        if (held == 0) {
            setSpan(row, kFirstCardColumn, 1, kHandSize);
            auto* all = makeItem(tr("discard all five"), Qt::AlignCenter);
            all->setForeground(QColor(Qt::darkGray));
            setItem(row, kFirstCardColumn, all);
        }
        for (int p = 0; p < kHandSize && held != 0; ++p) {
            const bool kept = ((held >> p) & 1u) != 0;
            const CardCode card = dealt[p];
            auto* cell = makeItem(kept ? cardFaceText(card) : QString(), Qt::AlignCenter);
            if (kept) {
                cell->setForeground(cardInk(card));
            } else {
                cell->setBackground(QColor::fromRgba(kDiscardColour));
            }
            setItem(row, kFirstCardColumn + p, cell);
        }
        setItem(row, kBetsColumn,
                makeItem(decimalText(hold.expectedReturn, 4), Qt::AlignRight | Qt::AlignVCenter));
        setItem(row, kDollarsColumn,
                makeItem(dollars(hold.expectedReturn, bet), Qt::AlignRight | Qt::AlignVCenter));
        if (best) {
            for (int column = 0; column < kColumns; ++column) {
                if (QTableWidgetItem* cell = item(row, column)) {
                    QFont font = cell->font();
                    font.setBold(true);
                    cell->setFont(font);
                    cell->setBackground(QColor::fromRgba(kBestRowColour));
                }
            }
        }
    }
    scrollToTop();
    if (played) {
        const auto found = std::find(order.begin(), order.end(), *played);
        if (found != order.end()) {
            markPlayed(static_cast<int>(found - order.begin()));
        }
    }
}

} // namespace marivale
