#include "record/log_checkpointer.h"

// Qt
#include <QSqlDatabase>
#include <QSqlQuery>

namespace marivale {
namespace {

// Writes between two checkpoints: a few hundred kilobytes of log.
constexpr int kWritesPerCheckpoint = 50;

} // namespace

LogCheckpointer::LogCheckpointer(const QString& path)
    : thread_([this, path](std::stop_token stop) { run(path, stop); }) {}

LogCheckpointer::~LogCheckpointer() {
    thread_.request_stop();
}

void LogCheckpointer::written() {
    {
        const std::lock_guard lock(mutex_);
        ++waiting_;
    }
    wake_.notify_one();
}

int LogCheckpointer::done() const {
    const std::lock_guard lock(mutex_);
    return done_;
}

// A connection of the thread's own; a passive checkpoint never blocks a writer.
void LogCheckpointer::run(const QString& path, const std::stop_token& stop) {
    const QString name = QStringLiteral("marivale-checkpoint-%1").arg(quintptr(this), 0, 16);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(path);
        if (db.open()) {
            std::unique_lock lock(mutex_);
            while (wake_.wait(lock, stop, [this] { return waiting_ >= kWritesPerCheckpoint; })) {
                waiting_ = 0;
                lock.unlock();
                QSqlQuery(db).exec(QStringLiteral("PRAGMA wal_checkpoint(PASSIVE)"));
                lock.lock();
                ++done_;
            }
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
}

} // namespace marivale
