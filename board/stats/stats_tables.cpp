#include "board/stats/stats_tables.h"

// Standard library
#include <array>
#include <functional>
#include <utility>

// Qt
#include <QHeaderView>
#include <QTableWidget>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "play/stats/history_csv.h"
#include "ui/money_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr int kRowHeight = 20;
const QString kNone = QStringLiteral("-");
const QString kComputing = QStringLiteral("\u2026");

QString percent(std::optional<double> ratio, const QString& otherwise = kNone) {
    return ratio ? decimalText(100.0 * *ratio, 2) + QLatin1Char('%') : otherwise;
}

void setCell(QTableWidget& table, int row, int column, const QString& text,
             Qt::Alignment alignment = Qt::AlignRight) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    item->setFlags(Qt::ItemIsEnabled);
    table.setItem(row, column, item);
}

// A read-only table that shows all its rows without scrolling.
QTableWidget* makeTable(int rows, const QStringList& headers, QWidget* parent) {
    auto* table = new QTableWidget(rows, static_cast<int>(headers.size()), parent);
    table->setHorizontalHeaderLabels(headers);
    table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setFocusPolicy(Qt::NoFocus);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return table;
}

// Fits the table's size to its rows and columns once their texts are in.
void fitTable(QTableWidget& table) {
    table.resizeColumnsToContents();
    table.resizeRowsToContents();
    int width = 2 * table.frameWidth() + table.verticalHeader()->width();
    for (int column = 0; column < table.columnCount(); ++column) {
        width += table.columnWidth(column);
    }
    int height = 2 * table.frameWidth() + table.horizontalHeader()->height();
    for (int row = 0; row < table.rowCount(); ++row) {
        height += table.rowHeight(row);
    }
    table.setFixedSize(width, height);
}

// Trainer mode's mistakes or their cost; a dash when no hand was played in trainer mode.
QString trainerCell(const TrainerSummary& summary, bool cost) {
    if (summary.judged == 0 && summary.pending == 0) {
        return kNone;
    }
    if (summary.pending > 0) {
        return kComputing;
    }
    return cost ? moneyText(summary.cost) : countText(summary.mistakes);
}

// The result, the best play's average, the luck and the mistakes' cost, in bets; a dash before
// a hand is settled and an ellipsis while odds or judgements are being worked out.
void luckRows(const LuckSummary& luck, const std::function<void(SummaryRow, QString)>& row) {
    const auto bets = [](std::optional<double> value) {
        return value ? decimalText(*value, 2, true) : kComputing;
    };
    if (luck.hands == 0) {
        for (const SummaryRow r : {SummaryRow::ResultBets, SummaryRow::ExpectedBets,
                                   SummaryRow::Luck, SummaryRow::SkillCost}) {
            row(r, kNone);
        }
        return;
    }
    row(SummaryRow::ResultBets, bets(luck.result));
    row(SummaryRow::ExpectedBets, bets(luck.expected));
    const auto deviations = luck.luckDeviations();
    row(SummaryRow::Luck, luck.luck()
                              ? QObject::tr("%1 (%2 SD)")
                                    .arg(bets(luck.luck()), deviations ? bets(deviations) : kNone)
                              : kComputing);
    const auto cost = luck.skillCost();
    row(SummaryRow::SkillCost, cost ? decimalText(*cost, 2) : kComputing);
}

} // namespace

QTableWidget* makeSummaryTable(QWidget* parent) {
    auto* table = makeTable(static_cast<int>(SummaryRow::Count),
                            {QObject::tr("This visit"), QObject::tr("This run")}, parent);
    table->setObjectName(QStringLiteral("Summary"));
    table->setVerticalHeaderLabels({
        QObject::tr("Hands played"),
        QObject::tr("Total bet"),
        QObject::tr("Total paid"),
        QObject::tr("Return"),
        QObject::tr("Exact return, best play"),
        QObject::tr("Result, settled hands (bets)"),
        QObject::tr("Expected, best play (bets)"),
        QObject::tr("Luck (bets, SD)"),
        QObject::tr("Skill: mistakes' cost, all holds (bets)"),
        QObject::tr("Double Up offered"),
        QObject::tr("Double Up played"),
        QObject::tr("Double Up won"),
        QObject::tr("Highest Double Up factor"),
        QObject::tr("Treasure Hunt bonuses"),
        QObject::tr("Average bonus factor"),
        QObject::tr("Trainer mistakes"),
        QObject::tr("Cost of the mistakes"),
        QObject::tr("Hinted hands"),
    });
    const std::pair<SummaryRow, QString> tips[] = {
        {SummaryRow::ResultBets, QObject::tr("What the settled hands paid less their bets, each "
                                             "over its own bet, added up")},
        {SummaryRow::ExpectedBets,
         QObject::tr("What the same hands return on average when every hold is the best")},
        {SummaryRow::Luck,
         QObject::tr("The result less what the holds played return on average, in bets and in "
                     "standard deviations of the result; shown once every hold is judged")},
        {SummaryRow::SkillCost,
         QObject::tr("What the settled hands' holds gave away against the best holds, trainer "
                     "mode or not; shown once every hold is judged")},
    };
    for (const auto& [row, tip] : tips) {
        table->verticalHeaderItem(static_cast<int>(row))->setToolTip(tip);
    }
    return table;
}

void showSummaryTable(QTableWidget& table, const SessionStats& stats,
                      std::optional<double> visitExact, std::optional<double> runExact,
                      const std::array<LuckSummary, 2>& luck) {
    const Tally run = stats.run();
    const std::array<const Tally*, 2> tallies{&stats.visit(), &run};
    const std::array<std::optional<double>, 2> exact{visitExact, runExact};
    const std::array<TrainerSummary, 2> trainer{stats.trainer(true), stats.trainer(false)};
    for (int column = 0; column < 2; ++column) {
        const std::size_t c = column;
        const Tally& t = *tallies[c];
        const auto factor = t.averageBonusFactor();
        const auto row = [&](SummaryRow r, const QString& text) {
            setCell(table, static_cast<int>(r), column, text);
        };
        row(SummaryRow::Hands, countText(t.hands));
        row(SummaryRow::Bet, moneyText(t.bet));
        row(SummaryRow::Paid, moneyText(t.paid));
        row(SummaryRow::Return, percent(t.actualReturn()));
        row(SummaryRow::ExactReturn,
            t.hands == 0 && column == kRunColumn ? kNone : percent(exact[c], kComputing));
        luckRows(luck[c], row);
        row(SummaryRow::DoubleUpOffered, countText(t.doubleUp.offered));
        row(SummaryRow::DoubleUpPlayed, countText(t.doubleUp.played));
        row(SummaryRow::DoubleUpWon, countText(t.doubleUp.won));
        row(SummaryRow::DoubleUpHighest,
            t.doubleUp.highestFactor > 1
                ? QStringLiteral("\u00d7%1").arg(countText(t.doubleUp.highestFactor))
                : kNone);
        row(SummaryRow::Bonuses, countText(t.bonuses));
        row(SummaryRow::BonusFactor, factor ? decimalText(*factor, 1) : kNone);
        row(SummaryRow::Mistakes, trainerCell(trainer[c], false));
        row(SummaryRow::MistakeCost, trainerCell(trainer[c], true));
        row(SummaryRow::Hinted, countText(stats.hinted(column == kVisitColumn)));
    }
    fitTable(table);
}

QTableWidget* makeFrequencyTable(QWidget* parent) {
    auto* table = makeTable(0,
                            {QObject::tr("Hand"), QObject::tr("Visit"), QObject::tr("Expected"),
                             QObject::tr("Run"), QObject::tr("Expected")},
                            parent);
    table->setObjectName(QStringLiteral("HandFrequencies"));
    table->verticalHeader()->hide();
    return table;
}

void showFrequencyTable(QTableWidget& table, const SessionStats& stats,
                        const std::optional<odds::GameOdds>& gameOdds) {
    const GameId game = stats.visitGame();
    const bool bonusRow = facts(game).bonus != Bonus::None;
    table.setRowCount(topCode(game) + (bonusRow ? 1 : 0));
    const std::array<const Tally*, 2> tallies{&stats.visit(), &stats.game(game)};
    const auto fill = [&](int row, const QString& name, const std::array<int, 2>& came,
                          std::optional<double> probability) {
        setCell(table, row, 0, name, Qt::AlignLeft);
        for (std::size_t t = 0; t < tallies.size(); ++t) {
            const int column = 1 + 2 * static_cast<int>(t);
            setCell(table, row, column, countText(came[t]));
            setCell(table, row, column + 1,
                    probability ? decimalText(*probability * tallies[t]->drawn, 2) : kComputing);
        }
    };
    int row = 0;
    for (int code = topCode(game); code >= 1; --code, ++row) {
        const std::size_t slot = code;
        const std::string_view name = RowName(game, static_cast<std::uint8_t>(code));
        fill(row, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())),
             {tallies[0]->codes[slot], tallies[1]->codes[slot]},
             gameOdds ? std::optional(gameOdds->codeProbability[slot]) : std::nullopt);
    }
    if (bonusRow) {
        fill(row, QObject::tr("Treasure Hunt"), {tallies[0]->bonuses, tallies[1]->bonuses},
             gameOdds ? std::optional(gameOdds->bonusProbability) : std::nullopt);
    }
    fitTable(table);
}

} // namespace marivale
