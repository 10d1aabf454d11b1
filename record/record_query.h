#pragma once

// What the statistics window reads from the player's record: the lifetime figures of each game
// and pay table from the running totals, mistakes by chart line, the running net and cost by
// hundreds of hands, the recorded hands a page at a time under a filter, and a filter as CSV.

// Standard library
#include <array>
#include <optional>
#include <vector>

// Qt
#include <QSqlDatabase>
#include <QString>

// Marivale
#include "engine/odds/outcome.h"
#include "play/stats/session_stats.h"

namespace marivale {

// The figures of one game at one pay table.
struct TableFigures {
    GameId game{GameId::JacksOrBetter};
    QString payTable{};
    long long hands{0};
    double bet{0.0};
    double paid{0.0};
    std::array<long long, odds::kCodeSlots> codes{}; // drawn hands by final code
    long long judged{0};
    long long mistakes{0};
    double cost{0.0};
};

struct LineCost {
    QString line{};
    long long judged{0};
    long long mistakes{0};
    double cost{0.0};
};

// After so many hands of a game and table: the net won so far and the cost of mistakes in the
// last hundred judged hands, scaled to a hundred.
struct ProgressPoint {
    long long hands{0};
    double net{0.0};
    std::optional<double> costPer100{};
};

struct HistoryFilter {
    std::optional<GameId> game{};
    std::optional<qint64> from{}; // milliseconds since the epoch, inclusive
    std::optional<qint64> to{};   // exclusive
    bool mistakesOnly{false};
};

struct RecordedHand {
    qint64 id{0};
    qint64 time{0};
    qint64 run{0};
    QString payTable{};
    QString bestLine{};
    HandRecord hand{};
};

std::vector<TableFigures> lifetimeFigures(const QSqlDatabase& db);
std::vector<LineCost> lineCosts(const QSqlDatabase& db, GameId game, const QString& payTable);
std::vector<ProgressPoint> progressOf(const QSqlDatabase& db, GameId game, const QString& payTable);

// Up to `limit` hands of the filter, newest first, older than the hand `before` when given.
std::vector<RecordedHand> historyPage(const QSqlDatabase& db, const HistoryFilter& filter,
                                      std::optional<qint64> before, int limit);

// Every hand of the filter, oldest first, as CSV with "." for decimals; false when the file
// can't be written.
bool exportRecord(const QSqlDatabase& db, const HistoryFilter& filter, const QString& path);

} // namespace marivale
