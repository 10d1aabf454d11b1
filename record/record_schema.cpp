#include "record/record_schema.h"

// Standard library
#include <array>
#include <string_view>

// Qt
#include <QSqlQuery>

namespace marivale {
namespace {

// The first version: every hand, purchase and cash-out of every run.
constexpr std::array<std::string_view, 3> kVersion1{
    "CREATE TABLE runs(id INTEGER PRIMARY KEY, started INTEGER NOT NULL)",
    "CREATE TABLE hands(id INTEGER PRIMARY KEY, run INTEGER NOT NULL, visit INTEGER NOT NULL,"
    " number INTEGER NOT NULL, time INTEGER NOT NULL, game INTEGER NOT NULL,"
    " pay_table TEXT NOT NULL, bet REAL NOT NULL, dealt TEXT NOT NULL, holds INTEGER,"
    " final TEXT, code INTEGER, name TEXT, paid REAL NOT NULL, double_up INTEGER NOT NULL,"
    " double_factor INTEGER NOT NULL, bonus REAL NOT NULL, bonus_factor REAL NOT NULL,"
    " abandoned INTEGER NOT NULL, trainer INTEGER NOT NULL, best_holds INTEGER, best_line TEXT,"
    " cost REAL, mistake INTEGER, hint_used INTEGER, warning_used INTEGER,"
    " drill INTEGER NOT NULL DEFAULT 0, UNIQUE(run, number))",
    "CREATE TABLE money(id INTEGER PRIMARY KEY, run INTEGER NOT NULL, visit INTEGER NOT NULL,"
    " time INTEGER NOT NULL, game INTEGER NOT NULL, kind INTEGER NOT NULL,"
    " amount REAL NOT NULL, credits REAL NOT NULL)",
};

// The second: running totals kept beside the hands, so that the lifetime figures never read
// every hand, and the indexes the history's filters page by.
constexpr std::array<std::string_view, 10> kVersion2{
    "ALTER TABLE hands ADD COLUMN block INTEGER NOT NULL DEFAULT 0",
    "UPDATE hands SET block = (SELECT (r.n - 1) / 100 FROM (SELECT id, ROW_NUMBER() OVER"
    " (PARTITION BY game, pay_table ORDER BY id) AS n FROM hands WHERE drill = 0) AS r"
    " WHERE r.id = hands.id) WHERE drill = 0",
    "CREATE TABLE totals(game INTEGER NOT NULL, pay_table TEXT NOT NULL, code INTEGER NOT NULL,"
    " hands INTEGER NOT NULL, bet REAL NOT NULL, paid REAL NOT NULL,"
    " PRIMARY KEY(game, pay_table, code)) WITHOUT ROWID",
    "CREATE TABLE line_costs(game INTEGER NOT NULL, pay_table TEXT NOT NULL, line TEXT NOT NULL,"
    " judged INTEGER NOT NULL, mistakes INTEGER NOT NULL, cost REAL NOT NULL,"
    " PRIMARY KEY(game, pay_table, line)) WITHOUT ROWID",
    "CREATE TABLE progress(game INTEGER NOT NULL, pay_table TEXT NOT NULL,"
    " block INTEGER NOT NULL, hands INTEGER NOT NULL, net REAL NOT NULL,"
    " judged INTEGER NOT NULL, cost REAL NOT NULL,"
    " PRIMARY KEY(game, pay_table, block)) WITHOUT ROWID",
    "INSERT INTO totals SELECT game, pay_table, COALESCE(code, -1), COUNT(*), SUM(bet),"
    " SUM(paid) FROM hands WHERE drill = 0 GROUP BY game, pay_table, COALESCE(code, -1)",
    "INSERT INTO line_costs SELECT game, pay_table, best_line, COUNT(*), SUM(mistake),"
    " SUM(cost) FROM hands WHERE drill = 0 AND best_line IS NOT NULL"
    " GROUP BY game, pay_table, best_line",
    "INSERT INTO progress SELECT game, pay_table, block, COUNT(*), SUM(paid - bet),"
    " COUNT(cost), COALESCE(SUM(cost), 0) FROM hands WHERE drill = 0"
    " GROUP BY game, pay_table, block",
    "CREATE INDEX hands_game ON hands(game, id)",
    "CREATE INDEX hands_mistakes ON hands(game, id) WHERE mistake = 1",
};

template <std::size_t N>
bool runAll(QSqlDatabase& db, const std::array<std::string_view, N>& statements, int version,
            QSqlError* error) {
    QSqlQuery query(db);
    const auto fail = [&] {
        if (error != nullptr) {
            *error = query.lastError();
        }
        query.exec(QStringLiteral("ROLLBACK"));
        return false;
    };
    if (!query.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        return fail();
    }
    // Another copy of the game may have taken this step while this one waited for the lock.
    if (recordVersion(db) >= version) {
        return query.exec(QStringLiteral("COMMIT"));
    }
    for (const std::string_view statement : statements) {
        if (!query.exec(QString::fromLatin1(statement.data(), qsizetype(statement.size())))) {
            return fail();
        }
    }
    if (!query.exec(QStringLiteral("PRAGMA user_version = %1").arg(version)) ||
        !query.exec(QStringLiteral("COMMIT"))) {
        return fail();
    }
    return true;
}

bool step(QSqlDatabase& db, int version, QSqlError* error) {
    switch (version) {
    case 1:
        return runAll(db, kVersion1, 1, error);
    case 2:
        return runAll(db, kVersion2, 2, error);
    default:
        return false;
    }
}

} // namespace

int recordVersion(const QSqlDatabase& db) {
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next()) {
        return -1;
    }
    return query.value(0).toInt();
}

SchemaResult migrateRecord(QSqlDatabase& db, QSqlError* error) {
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next()) {
        if (error != nullptr) {
            *error = query.lastError();
        }
        return SchemaResult::Failed;
    }
    const int found = query.value(0).toInt();
    if (found > kRecordVersion) {
        return SchemaResult::Newer;
    }
    for (int version = found + 1; version <= kRecordVersion; ++version) {
        if (!step(db, version, error)) {
            return SchemaResult::Failed;
        }
    }
    return SchemaResult::Ready;
}

bool createRecordAt(QSqlDatabase& db, int version) {
    for (int v = recordVersion(db) + 1; v <= version; ++v) {
        if (!step(db, v, nullptr)) {
            return false;
        }
    }
    return true;
}

} // namespace marivale
