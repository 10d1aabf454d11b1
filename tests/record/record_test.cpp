// The player's record: hands played through the real controller read back as rows and lifetime
// totals, a late judgement, the steps from every earlier version, two copies at once, and each
// bad case with its one message while play goes on.

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <functional>
#include <string>

// Qt
#include <QCoreApplication>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>

// Marivale
#include "play/stats/session_stats.h"
#include "play/strategy/hold_judgement.h"
#include "record/record_query.h"
#include "record/record_rows.h"
#include "record/record_schema.h"
#include "record/record_store.h"
#include "tests/support/fake_view.h"
#include "tests/support/hand_text.h"
#include "tests/support/unprivileged.h"

namespace marivale {
namespace {

using testing::Table;

double scalar(const QSqlDatabase& db, const QString& sql) {
    QSqlQuery query(db);
    EXPECT_TRUE(query.exec(sql) && query.next()) << sql.toStdString();
    return query.value(0).toDouble();
}

struct Folder {
    QTemporaryDir dir{};
    QString path() const { return dir.filePath(QStringLiteral("record.sqlite")); }
};

struct Heard {
    std::vector<QString> notices{};
    RecordStore::Notice notice() {
        return [this](const QString& text) {
            notices.push_back(text);
        };
    }
};

// A visit of three hands at $1: a flush (5), nothing, a pair of Jacks (1).
void playVisit(SessionStats& stats) {
    Table t(GameId::JacksOrBetter, 0.0f, 1.0f, &stats);
    t.buy(4);
    t.hand("2h 5h 9h Jh Kd", 0b01111, "Ks Ks Ks Ks 3h");
    t.hand("2c 5d 9h Js Kd", 0x1f);
    t.hand("Jc Jd 9h 4s 2d", 0x1f);
}

TEST(Record, LifetimeFiguresOfTwoRuns) {
    Folder folder;
    float cost = 0.0f;
    for (int runNumber = 1; runNumber <= 2; ++runNumber) {
        RecordStore store(folder.path());
        ASSERT_TRUE(store.recording());
        EXPECT_EQ(store.run(), runNumber);
        SessionStats stats;
        stats.setSink(&store);
        playVisit(stats);
        judgeAll(stats); // judged after each hand ended
        for (const HandRecord& hand : stats.history()) {
            cost += hand.judgement->cost;
        }
    }
    RecordStore reader(folder.path());
    const QSqlDatabase rdb = reader.database();
    const struct {
        const char* sql;
        double expected;
    } figures[] = {
        {"SELECT COUNT(*) FROM hands", 6},
        {"SELECT SUM(hands) FROM totals", 6},
        {"SELECT SUM(bet) FROM totals", 6.0},
        {"SELECT SUM(paid) FROM totals", 12.0},
        {"SELECT hands FROM totals WHERE code = 0", 2},
        {"SELECT SUM(net) FROM progress", 6.0},
        {"SELECT SUM(hands) FROM progress WHERE block = 0", 6},
        {"SELECT SUM(judged) FROM progress", 6},
        {"SELECT SUM(judged) FROM line_costs", 6},
        {"SELECT COUNT(*) FROM money WHERE kind = 0 AND amount = 20", 2},
        {"SELECT COUNT(*) FROM hands WHERE final = '2h 5h 9h Jh 3h' AND name = 'Flush'", 2},
        {"SELECT COUNT(*) FROM runs", 3},
    };
    for (const auto& figure : figures) {
        EXPECT_DOUBLE_EQ(scalar(rdb, QString::fromLatin1(figure.sql)), figure.expected)
            << figure.sql;
    }
    EXPECT_NEAR(scalar(rdb, QStringLiteral("SELECT SUM(cost) FROM line_costs")), double(cost),
                1e-4);
    EXPECT_EQ(scalar(rdb, QStringLiteral("SELECT COUNT(*) FROM hands WHERE best_line IS NULL")), 0);
}

// The lifetime figures read back, the hands paged newest first, and a filter as CSV.
TEST(Record, FiguresPagesAndCsvOfAFilter) {
    Folder folder;
    RecordStore store(folder.path());
    SessionStats stats;
    stats.setSink(&store);
    playVisit(stats);
    playVisit(stats);
    judgeAll(stats);
    // A practice hand is kept apart: in no figure, no page and no CSV.
    store.drillHand(GameId::JacksOrBetter, testing::cardsFromText("As Ks Qs Js 2c"),
                    {.best = 0b01111,
                     .bestLine = "4 to a Royal Flush",
                     .held = 0,
                     .cost = 6.1,
                     .mistake = true});
    EXPECT_DOUBLE_EQ(
        scalar(store.database(), QStringLiteral("SELECT cost FROM hands WHERE drill = 1 AND bet = 0"
                                                " AND best_line = '4 to a Royal Flush'")),
        6.1);
    const std::vector<TableFigures> figures = lifetimeFigures(store.database());
    ASSERT_EQ(figures.size(), 1u);
    EXPECT_EQ(figures[0].payTable.toStdString(), "250 100 25 8 5 4 3 1 1");
    EXPECT_EQ(figures[0].hands, 6);
    EXPECT_DOUBLE_EQ(figures[0].paid, 12.0);
    EXPECT_EQ(figures[0].codes[0], 2);
    EXPECT_EQ(figures[0].judged, 6);
    std::vector<qint64> ids;
    for (auto page = historyPage(store.database(), {}, std::nullopt, 4); !page.empty();
         page = historyPage(store.database(), {}, ids.back(), 4)) {
        for (const RecordedHand& row : page) {
            EXPECT_TRUE(ids.empty() || row.id < ids.back());
            ids.push_back(row.id);
        }
    }
    EXPECT_EQ(ids.size(), 6u);
    const QString csv = folder.dir.filePath(QStringLiteral("mistakes.csv"));
    ASSERT_TRUE(
        exportRecord(store.database(), {.game = GameId::JacksOrBetter, .mistakesOnly = true}, csv));
    QFile file(csv);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    const auto mistakes = std::count_if(stats.history().begin(), stats.history().end(),
                                        [](const HandRecord& h) { return h.judgement->mistake; });
    ASSERT_EQ(lines.size(), mistakes + 2); // the header and the end of the last line
    EXPECT_EQ(lines[0].toStdString(),
              "Time,Run,Visit,Hand,Game,Pay Table,Bet,Dealt,Held,Final,Result,Paid,Double Up,"
              "Bonus,Best Hold,Best Line,Cost");
    EXPECT_EQ(lines[1].section(QLatin1Char(','), 1, 14).toStdString(),
              "1,1,2,Jacks or Better,250 100 25 8 5 4 3 1 1,1.00,2c 5d 9h Js Kd,2c 5d 9h Js Kd,"
              "2c 5d 9h Js Kd,,0.00,,0.00,Js Kd");
}

// A database of each earlier version, with a hand in it where the version kept hands, comes up
// to the current version with its totals worked out from the hands.
TEST(Record, MigratesFromEveryEarlierVersion) {
    for (int version = 0; version < kRecordVersion; ++version) {
        SCOPED_TRACE(version);
        Folder folder;
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "old");
            db.setDatabaseName(folder.path());
            ASSERT_TRUE(db.open());
            ASSERT_TRUE(createRecordAt(db, version));
            if (version >= 1) {
                QSqlQuery query(db);
                ASSERT_TRUE(query.exec(QStringLiteral(
                    "INSERT INTO hands(run, visit, number, time, game, pay_table, bet, dealt,"
                    " holds, final, code, name, paid, double_up, double_factor, bonus,"
                    " bonus_factor, abandoned, trainer, best_line, cost, mistake) VALUES"
                    " (1, 1, 1, 0, 0, '800', 1.25, 'As', 3, 'As', 1, 'Jacks', 2.5, 0, 0, 0, 0,"
                    " 0, 1, 'High Pair', 0.5, 1), (1, 1, 2, 0, 0, '800', 1.25, 'As', 0, 'As', 0,"
                    " '', 0, 0, 0, 0, 0, 0, 1, NULL, NULL, NULL)")));
            }
            db.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("old"));
        RecordStore store(folder.path());
        ASSERT_TRUE(store.recording());
        const QSqlDatabase db = store.database();
        EXPECT_EQ(recordVersion(db), kRecordVersion);
        const double kept = version >= 1 ? 2 : 0;
        EXPECT_EQ(scalar(db, QStringLiteral("SELECT COALESCE(SUM(hands), 0) FROM totals")), kept);
        EXPECT_EQ(scalar(db, QStringLiteral("SELECT COALESCE(SUM(net), 0) FROM progress")), 0.0);
        EXPECT_EQ(scalar(db, QStringLiteral("SELECT COALESCE(SUM(cost), 0) FROM line_costs")),
                  version >= 1 ? 0.5 : 0.0);
    }
}

// Two copies of the game write to one database at once, each its own run.
TEST(Record, TwoCopiesAtOnce) {
    Folder folder;
    RecordStore first(folder.path());
    RecordStore second(folder.path());
    SessionStats a;
    SessionStats b;
    a.setSink(&first);
    b.setSink(&second);
    playVisit(a);
    playVisit(b);
    playVisit(a);
    EXPECT_TRUE(first.recording() && second.recording());
    EXPECT_NE(first.run(), second.run());
    EXPECT_EQ(scalar(first.database(), QStringLiteral("SELECT COUNT(*) FROM hands")), 9);
    EXPECT_EQ(scalar(second.database(), QStringLiteral("SELECT SUM(hands) FROM totals")), 9);
}

// A copy that holds the database past the wait keeps this one's hand waiting, not lost.
TEST(Record, LockedByAnotherCopy) {
    Folder folder;
    Heard heard;
    RecordStore store(folder.path(), heard.notice());
    QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "other");
    other.setDatabaseName(folder.path());
    ASSERT_TRUE(other.open());
    QSqlQuery hold(other);
    ASSERT_TRUE(hold.exec(QStringLiteral("BEGIN IMMEDIATE")));
    SessionStats stats;
    stats.setSink(&store);
    playVisit(stats);
    EXPECT_EQ(store.waiting(), 4); // the purchase and three hands
    ASSERT_TRUE(hold.exec(QStringLiteral("COMMIT")));
    playVisit(stats);
    EXPECT_EQ(store.waiting(), 0);
    EXPECT_TRUE(store.recording());
    EXPECT_TRUE(heard.notices.empty());
    EXPECT_EQ(scalar(other, QStringLiteral("SELECT COUNT(*) FROM hands")), 6);
    hold = QSqlQuery();
    other.close();
    other = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
}

// A full disk stops the recording with one message; what was written stays whole.
TEST(Record, FullDisk) {
    Folder folder;
    Heard heard;
    RecordStore store(folder.path(), heard.notice());
    QSqlDatabase db = store.database();
    const double pages = scalar(db, QStringLiteral("PRAGMA page_count"));
    QSqlQuery(db).exec(QStringLiteral("PRAGMA max_page_count = %1").arg(pages + 2));
    SessionStats stats;
    stats.setSink(&store);
    for (int visit = 0; visit < 200 && store.recording(); ++visit) {
        playVisit(stats);
    }
    EXPECT_FALSE(store.recording());
    playVisit(stats);
    ASSERT_EQ(heard.notices.size(), 1u);
    EXPECT_EQ(heard.notices[0].toStdString(),
              "The disk is full, so your playing record has stopped; the hands recorded so far "
              "are kept. Play goes on.");
    const double hands = scalar(db, QStringLiteral("SELECT COUNT(*) FROM hands"));
    EXPECT_GT(hands, 0);
    EXPECT_EQ(scalar(db, QStringLiteral("SELECT SUM(hands) FROM totals")), hands);
}

// A file that can't be used at the start: each case says one thing, and play goes on.
TEST(Record, BadFilesAtTheStart) {
    const struct {
        const char* name;
        std::function<void(const Folder&)> spoil;
        bool recording;
        std::string message;
    } cases[] = {
        {"corrupt",
         [](const Folder& f) {
             QFile file(f.path());
             ASSERT_TRUE(file.open(QIODevice::WriteOnly));
             file.write(QByteArray(8192, 'x'));
         },
         true, "Your playing record could not be read. It was kept as "},
        {"newer",
         [](const Folder& f) {
             RecordStore store(f.path());
             QSqlQuery(store.database()).exec(QStringLiteral("PRAGMA user_version = 99"));
         },
         false,
         "Your playing record was written by a newer version of Marivale Poker, so the "
         "hands of this run are not recorded. Play goes on."},
        {"read-only folder",
         [](const Folder& f) {
             QFile::setPermissions(f.dir.path(), QFile::ReadOwner | QFile::ExeOwner);
         },
         false, "Your playing record at "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Folder folder;
        runUnprivileged(folder.dir.path().toStdString(), [&] {
            c.spoil(folder);
            Heard heard;
            RecordStore store(folder.path(), heard.notice());
            EXPECT_EQ(store.recording(), c.recording);
            SessionStats stats;
            stats.setSink(&store);
            playVisit(stats);
            ASSERT_EQ(heard.notices.size(), 1u);
            EXPECT_EQ(heard.notices[0].toStdString().substr(0, c.message.size()), c.message);
            if (!store.keptAside().isEmpty()) {
                QFile aside(store.keptAside());
                ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
                EXPECT_EQ(aside.readAll(), QByteArray(8192, 'x'));
                EXPECT_EQ(scalar(store.database(), QStringLiteral("SELECT COUNT(*) FROM hands")),
                          3);
            }
        });
    }
}

} // namespace
} // namespace marivale

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
