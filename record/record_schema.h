#pragma once

// The player's record in SQLite: its tables by version, and the steps that bring a database of
// any earlier version up to this one. A database's version is its `user_version`; 0 is a new,
// empty file.

// Qt
#include <QSqlDatabase>
#include <QSqlError>

namespace marivale {

inline constexpr int kRecordVersion = 2;

enum class SchemaResult { Ready, Newer, Failed };

// Brings the database up to kRecordVersion in one transaction per step.
SchemaResult migrateRecord(QSqlDatabase& db, QSqlError* error = nullptr);

// Builds the tables of an earlier version exactly as that version made them, for tests of the
// steps after it.
bool createRecordAt(QSqlDatabase& db, int version);

int recordVersion(const QSqlDatabase& db);

} // namespace marivale
