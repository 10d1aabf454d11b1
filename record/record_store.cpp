#include "record/record_store.h"

// Standard library
#include <optional>

// Qt
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QThread>

// Marivale
#include "record/log_checkpointer.h"
#include "record/record_rows.h"
#include "record/record_schema.h"

namespace marivale {
namespace {

// Another copy of the game holds the database this long at most before a write waits for the
// next hand.
constexpr int kBusyMilliseconds = 250;
constexpr int kOpenAttempts = 10;

enum class Trouble { Busy, Corrupt, Full, Newer, Other };

// What SQLite's result code says went wrong.
Trouble troubleOf(const QSqlError& error) {
    switch (error.nativeErrorCode().toInt() & 0xFF) {
    case 5: // SQLITE_BUSY
    case 6: // SQLITE_LOCKED
        return Trouble::Busy;
    case 11: // SQLITE_CORRUPT
    case 26: // SQLITE_NOTADB
        return Trouble::Corrupt;
    case 13: // SQLITE_FULL
        return Trouble::Full;
    default:
        return Trouble::Other;
    }
}

QString keptAsideMessage(const QString& aside) {
    return QObject::tr("Your playing record could not be read. It was kept as %1 and a new record "
                       "was started.")
        .arg(aside);
}

QString stoppedMessage(const QString& path) {
    return QObject::tr("Your playing record at %1 can't be written any more, so the rest of this "
                       "run is not recorded. Play goes on.")
        .arg(path);
}

qint64 now() {
    return QDateTime::currentMSecsSinceEpoch();
}

// Puts the open database in write-ahead-log mode, brings its tables up to date and starts
// the run; what went wrong, if anything.
std::optional<Trouble> startRun(QSqlDatabase& db, qint64& run) {
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("PRAGMA journal_mode = WAL")) || !query.next()) {
        return troubleOf(query.lastError());
    }
    if (query.value(0).toString() != QStringLiteral("wal")) {
        return Trouble::Other;
    }
    // Write-ahead logging with NORMAL syncing survives any crash of the program.
    query.exec(QStringLiteral("PRAGMA synchronous = NORMAL"));
    QSqlError error;
    switch (migrateRecord(db, &error)) {
    case SchemaResult::Ready:
        break;
    case SchemaResult::Newer:
        return Trouble::Newer;
    case SchemaResult::Failed:
        return troubleOf(error);
    }
    query.prepare(QStringLiteral("INSERT INTO runs(started) VALUES(?)"));
    query.addBindValue(now());
    if (!query.exec()) {
        return troubleOf(query.lastError());
    }
    run = query.lastInsertId().toLongLong();
    return std::nullopt;
}

} // namespace

QString RecordStore::defaultPath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return QDir(folder).filePath(QStringLiteral("record.sqlite"));
}

RecordStore::RecordStore(const QString& path, Notice notice)
    : path_(path), connection_(QStringLiteral("marivale-record-%1").arg(quintptr(this), 0, 16)),
      notice_(std::move(notice)) {
    recording_ = open();
}

RecordStore::~RecordStore() {
    checkpointer_.reset();
    {
        QSqlDatabase db = database();
        db.close();
    }
    QSqlDatabase::removeDatabase(connection_);
}

QSqlDatabase RecordStore::database() const {
    return QSqlDatabase::database(connection_, false);
}

void RecordStore::say(const QString& message) {
    if (!said_ && notice_) {
        said_ = true;
        notice_(message);
    }
}

void RecordStore::stop(const QString& message) {
    recording_ = false;
    pending_.clear();
    say(message);
}

// Opens the file, and when it is corrupt keeps it aside and starts a new one.
bool RecordStore::open() {
    if (!QDir().mkpath(QFileInfo(path_).absolutePath())) {
        say(QObject::tr("Your playing record can't be kept in %1, so the hands of this run "
                        "are not recorded. Play goes on.")
                .arg(QFileInfo(path_).absolutePath()));
        return false;
    }
    if (openFile()) {
        return true;
    }
    if (keptAside_.isEmpty()) {
        return false;
    }
    if (!openFile()) {
        return false;
    }
    say(keptAsideMessage(keptAside_));
    return true;
}

bool RecordStore::openFile() {
    QSqlDatabase db = QSqlDatabase::contains(connection_)
                          ? database()
                          : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    db.setDatabaseName(path_);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyMilliseconds));
    std::optional<Trouble> trouble;
    if (!db.open()) {
        trouble = troubleOf(db.lastError());
    } else {
        // Another copy starting on the same new file at the same moment holds it only briefly,
        // at times without SQLite waiting for it.
        trouble = startRun(db, run_);
        for (int attempt = 1; attempt < kOpenAttempts && trouble == Trouble::Busy; ++attempt) {
            QThread::msleep(kBusyMilliseconds / kOpenAttempts);
            trouble = startRun(db, run_);
        }
    }
    if (!trouble) {
        QSqlQuery(db).exec(QStringLiteral("PRAGMA wal_autocheckpoint = 0"));
        checkpointer_ = std::make_unique<LogCheckpointer>(path_);
        return true;
    }
    if (trouble == Trouble::Corrupt && keptAside_.isEmpty()) {
        db.close();
        if (setAside()) {
            return false;
        }
    }
    say(trouble == Trouble::Newer
            ? QObject::tr("Your playing record was written by a newer version of Marivale "
                          "Poker, so the hands of this run are not recorded. Play goes on.")
            : QObject::tr("Your playing record at %1 can't be written, so the hands of this "
                          "run are not recorded. Play goes on.")
                  .arg(path_));
    return false;
}

// Renames the file and its log aside, never deleting them.
bool RecordStore::setAside() {
    checkpointer_.reset();
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = path_ + QStringLiteral(".corrupt-") + stamp;
    for (int n = 2; QFile::exists(aside); ++n) {
        aside = path_ + QStringLiteral(".corrupt-%1-%2").arg(stamp).arg(n);
    }
    if (!QFile::rename(path_, aside)) {
        return false;
    }
    for (const char* suffix : {"-wal", "-shm"}) {
        if (QFile::exists(path_ + QLatin1String(suffix))) {
            QFile::rename(path_ + QLatin1String(suffix), aside + QLatin1String(suffix));
        }
    }
    keptAside_ = aside;
    return true;
}

void RecordStore::handEnded(const HandRecord& hand) {
    add({Pending::Kind::Hand, now(), hand, {}});
}

void RecordStore::handJudged(const HandRecord& hand) {
    add({Pending::Kind::Judgement, now(), hand, {}});
}

void RecordStore::moneyMoved(const MoneyRecord& money) {
    add({Pending::Kind::Money, now(), {}, money});
}

void RecordStore::drillHand(GameId game, const HandCards& dealt, const DrillVerdict& verdict) {
    HandRecord hand;
    hand.number = -(++drillHands_);
    hand.game = game;
    hand.dealt = dealt;
    add({Pending::Kind::Drill, now(), hand, {}, verdict});
}

void RecordStore::add(Pending pending) {
    if (!recording_) {
        return;
    }
    pending_.push_back(std::move(pending));
    flush();
}

bool RecordStore::write(RecordRows& rows, const Pending& pending) const {
    switch (pending.kind) {
    case Pending::Kind::Hand:
        return rows.addHand(run_, pending.time, pending.hand);
    case Pending::Kind::Judgement:
        return rows.judgeHand(run_, pending.hand);
    case Pending::Kind::Money:
        return rows.addMoney(run_, pending.time, pending.money);
    case Pending::Kind::Drill:
        return rows.addDrillHand(run_, pending.time, pending.hand.number, pending.hand.game,
                                 pending.hand.dealt, pending.drill);
    }
    return false;
}

// Writes what waits, one transaction each, oldest first; a database held by another copy
// keeps the rest for the next time.
void RecordStore::flush() {
    QSqlError error;
    while (!pending_.empty()) {
        QSqlDatabase db = database();
        QSqlQuery query(db);
        RecordRows rows(db);
        const Pending& next = pending_.front();
        bool written = query.exec(QStringLiteral("BEGIN IMMEDIATE"));
        if (written) {
            written = write(rows, next);
            error = written ? QSqlError() : rows.error();
            written = written && query.exec(QStringLiteral("COMMIT"));
        }
        if (!written) {
            if (!error.isValid()) {
                error = query.lastError();
            }
            query.exec(QStringLiteral("ROLLBACK"));
            break;
        }
        pending_.pop_front();
        checkpointer_->written();
    }
    if (pending_.empty()) {
        return;
    }
    switch (troubleOf(error)) {
    case Trouble::Busy:
        return;
    case Trouble::Corrupt:
        // Found in play: the file goes aside as at the start, and what waits goes in a new one.
        if (keptAside_.isEmpty()) {
            database().close();
            if (setAside() && openFile()) {
                say(keptAsideMessage(keptAside_));
                flush();
                return;
            }
        }
        stop(stoppedMessage(path_));
        return;
    case Trouble::Full:
        stop(QObject::tr("The disk is full, so your playing record has stopped; the hands "
                         "recorded so far are kept. Play goes on."));
        return;
    default:
        stop(stoppedMessage(path_));
        return;
    }
}

bool RecordStore::forget() {
    QSqlDatabase db = database();
    QSqlQuery query(db);
    if (!recording_ || !query.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        return false;
    }
    for (const char* table : {"hands", "money", "totals", "line_costs", "progress"}) {
        if (!query.exec(QStringLiteral("DELETE FROM %1").arg(QLatin1String(table)))) {
            query.exec(QStringLiteral("ROLLBACK"));
            return false;
        }
    }
    pending_.clear();
    return query.exec(QStringLiteral("COMMIT"));
}

} // namespace marivale
