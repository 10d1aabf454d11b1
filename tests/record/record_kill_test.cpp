// The recording of real play killed with SIGKILL at random points: every hand reported settled
// is in the database, no hand is there in part, and the database opens and records again. Then
// two copies play at once to the end.

#include <gtest/gtest.h>

// Standard library
#include <csignal>
#include <cstdio>
#include <random>
#include <string>

// POSIX
#include <sys/wait.h>
#include <unistd.h>

// Qt
#include <QCoreApplication>
#include <QSqlQuery>
#include <QTemporaryDir>

// Marivale
#include "record/record_store.h"

namespace marivale {
namespace {

struct Driver {
    pid_t pid{0};
    FILE* out{nullptr};
    long last{0}; // the last hand it reported settled
};

Driver start(const QString& path, long hands) {
    int pipeEnds[2];
    if (::pipe(pipeEnds) != 0) {
        return {};
    }
    const std::string database = path.toStdString();
    const std::string count = std::to_string(hands);
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(pipeEnds[1], STDOUT_FILENO);
        ::close(pipeEnds[0]);
        ::execl(MARIVALE_RECORD_DRIVER, "record_driver", database.c_str(), count.c_str(),
                static_cast<char*>(nullptr));
        ::_exit(127);
    }
    ::close(pipeEnds[1]);
    return {pid, ::fdopen(pipeEnds[0], "r")};
}

// Reads the driver's reports up to hand `until` (or their end); the last hand reported.
long readUntil(Driver& driver, long until) {
    char line[64];
    while (driver.last < until && std::fgets(line, sizeof line, driver.out) != nullptr) {
        driver.last = std::atol(line + 8); // after "settled "
    }
    return driver.last;
}

double scalar(const QSqlDatabase& db, const QString& sql) {
    QSqlQuery query(db);
    EXPECT_TRUE(query.exec(sql) && query.next()) << sql.toStdString();
    return query.value(0).toDouble();
}

TEST(RecordKill, EverySettledHandSurvivesSigkill) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("record.sqlite"));
    std::mt19937 random(21);
    double before = 0;
    for (int round = 1; round <= 6; ++round) {
        SCOPED_TRACE(round);
        Driver driver = start(path, 1000000);
        ASSERT_GT(driver.pid, 0);
        readUntil(driver, std::uniform_int_distribution<long>(1, 300)(random));
        ::kill(driver.pid, SIGKILL);
        int status = 0;
        ::waitpid(driver.pid, &status, 0);
        // The reports still in the pipe were written before the kill.
        const long settled = readUntil(driver, 1L << 40);
        std::fclose(driver.out);
        ASSERT_GT(settled, 0);
        RecordStore store(path);
        ASSERT_TRUE(store.recording());
        const QSqlDatabase db = store.database();
        const QString run = QString::number(store.run() - 1);
        const double hands = scalar(db, "SELECT COUNT(*) FROM hands WHERE run = " + run);
        EXPECT_GE(hands, double(settled));
        EXPECT_LE(hands, double(settled) + 1); // the hand in play was written, not yet reported
        EXPECT_EQ(scalar(db, "SELECT MAX(number) FROM hands WHERE run = " + run), hands);
        EXPECT_EQ(scalar(db, "SELECT COUNT(*) FROM hands WHERE run = " + run +
                                 " AND (final IS NULL OR abandoned = 1)"),
                  0);
        const double all = scalar(db, QStringLiteral("SELECT COUNT(*) FROM hands"));
        EXPECT_EQ(scalar(db, QStringLiteral("SELECT SUM(hands) FROM totals")), all);
        EXPECT_EQ(scalar(db, QStringLiteral("SELECT SUM(hands) FROM progress")), all);
        EXPECT_EQ(all, before + hands);
        before = all;
    }
}

TEST(RecordKill, TwoCopiesPlayAtOnce) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("record.sqlite"));
    Driver copies[] = {start(path, 400), start(path, 400)};
    for (Driver& driver : copies) {
        EXPECT_EQ(readUntil(driver, 400), 400);
        int status = 0;
        ::waitpid(driver.pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        std::fclose(driver.out);
    }
    RecordStore store(path);
    EXPECT_EQ(scalar(store.database(), QStringLiteral("SELECT COUNT(*) FROM hands")), 800);
    QSqlQuery check(store.database());
    ASSERT_TRUE(check.exec(QStringLiteral("PRAGMA integrity_check")) && check.next());
    EXPECT_EQ(check.value(0).toString(), QStringLiteral("ok"));
}

} // namespace
} // namespace marivale

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
