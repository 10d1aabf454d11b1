// The player's record at a million hands: builds a database of 1,000,000 generated hands once
// (or reuses the one given), then prints its size, the time recording one more hand takes on
// the calling thread, and the time the statistics window takes to open on it with the lifetime
// figures and the first page of recorded hands shown.
//
//   marivale-record-bench [DATABASE]   (default: record-bench.sqlite in the working folder)

// Standard library
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

// Qt
#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTabWidget>

// Marivale
#include "board/stats/stats_window.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/pay_scale.h"
#include "play/strategy/game_odds_cache.h"
#include "record/record_query.h"
#include "record/record_rows.h"
#include "record/record_store.h"

using namespace marivale;
using Clock = std::chrono::steady_clock;

namespace {

constexpr long long kHands = 1000000;
constexpr int kBatch = 10000;

// A hand of a random game with made-up cards, pay and judgement.
HandRecord madeUpHand(std::mt19937& random, int number) {
    HandRecord hand;
    hand.number = number;
    hand.visit = 1 + number / 500;
    hand.game = kAllGames[static_cast<std::size_t>(number) % kAllGames.size()];
    hand.bet = 1.25f;
    std::vector<int> deck(52);
    for (int c = 0; c < 52; ++c) {
        deck[static_cast<std::size_t>(c)] = c;
    }
    std::shuffle(deck.begin(), deck.end(), random);
    for (int p = 0; p < kHandSize; ++p) {
        hand.dealt[static_cast<std::size_t>(p)] = deck[static_cast<std::size_t>(p)];
        hand.finalCards[static_cast<std::size_t>(p)] = deck[static_cast<std::size_t>(p + 5)];
    }
    hand.holds = static_cast<unsigned>(random() % 32);
    hand.played = true;
    hand.finished = true;
    hand.code = static_cast<std::uint8_t>(random() % 3 == 0 ? 1 + random() % 5 : 0);
    hand.name = hand.code > 0 ? "Two Pair" : "";
    hand.paid = hand.code > 0 ? hand.bet * static_cast<float>(hand.code) : 0.0f;
    if (number % 2 == 0) {
        const bool mistake = random() % 5 == 0;
        hand.judgement = HoldJudgement{.best = static_cast<unsigned>(random() % 32),
                                       .cost = mistake ? 0.05f * float(random() % 10) : 0.0f,
                                       .mistake = mistake};
    }
    return hand;
}

long long handsIn(const QSqlDatabase& db) {
    QSqlQuery query(db);
    return query.exec(QStringLiteral("SELECT COALESCE(SUM(hands), 0) FROM totals")) && query.next()
               ? query.value(0).toLongLong()
               : 0;
}

void build(RecordStore& store) {
    QSqlDatabase db = store.database();
    RecordRows rows(db);
    std::mt19937 random(21);
    const auto start = Clock::now();
    for (long long n = handsIn(db); n < kHands; n += kBatch) {
        QSqlQuery(db).exec(QStringLiteral("BEGIN"));
        for (int i = 0; i < kBatch; ++i) {
            rows.addHand(store.run(), 1700000000000 + n + i, madeUpHand(random, int(n) + i + 1));
        }
        QSqlQuery(db).exec(QStringLiteral("COMMIT"));
    }
    QSqlQuery(db).exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    std::printf("built in %.1f s\n", std::chrono::duration<double>(Clock::now() - start).count());
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    const QString path =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("record-bench.sqlite");
    RecordStore store(path);
    if (!store.recording()) {
        std::fprintf(stderr, "can't record in %s\n", qPrintable(path));
        return 1;
    }
    build(store);
    std::printf("hands: %lld, file: %.1f MB\n", handsIn(store.database()),
                double(QFileInfo(path).size()) / 1e6);

    std::mt19937 random(7);
    std::vector<double> record;
    for (int i = 0; i < 1000; ++i) {
        const HandRecord hand = madeUpHand(random, 2000000 + i);
        const auto start = Clock::now();
        store.handEnded(hand);
        record.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    std::sort(record.begin(), record.end());
    std::printf("recording a hand: median %.0f us, 99th percentile %.0f us, slowest %.0f us\n",
                median(record), record[record.size() * 99 / 100], record.back());

    // The whole-game odds the window shows are worked out once per process, off its thread;
    // worked out here first, so that they don't share the machine with the timings.
    for (const GameId game : kAllGames) {
        if (const auto odds =
                odds::analyzeGame(odds::DrawTables::forGame(game), odds::ownPayScale(game),
                                  odds::defaultThreadCount(), std::stop_token{})) {
            storeGameOdds(*odds);
        }
    }
    const auto reading = Clock::now();
    const auto figures = lifetimeFigures(store.database());
    const auto read = Clock::now();
    const auto points = progressOf(store.database(), figures[0].game, figures[0].payTable);
    const auto charted = Clock::now();
    const auto page = historyPage(store.database(), {}, std::nullopt, 200);
    const auto paged = Clock::now();
    using Ms = std::chrono::duration<double, std::milli>;
    std::printf("reading the all-time figures %.1f ms, a table's %zu chart points %.1f ms, the "
                "first %zu hands %.1f ms\n",
                Ms(read - reading).count(), points.size(), Ms(charted - read).count(), page.size(),
                Ms(paged - charted).count());
    SessionStats stats;
    // The process's first window pays for Qt's own start (fonts, styles, charts) once.
    const auto first = Clock::now();
    {
        StatsWindow window(stats);
        window.show();
        QApplication::processEvents();
    }
    std::printf("statistics window without the record, first of the process: %.1f ms\n",
                std::chrono::duration<double, std::milli>(Clock::now() - first).count());
    std::vector<double> opening;
    for (int i = 0; i < 7; ++i) {
        const auto start = Clock::now();
        auto* window = new StatsWindow(stats, nullptr, &store);
        window->show();
        auto* tabs = window->findChild<QTabWidget*>(QStringLiteral("StatsTabs"));
        window->findChild<QComboBox*>(QStringLiteral("LifetimeScope"))->setCurrentIndex(1);
        tabs->setCurrentIndex(2);
        QApplication::processEvents();
        tabs->setCurrentIndex(3);
        QApplication::processEvents();
        opening.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        delete window;
    }
    std::printf("statistics window open with all time and recorded hands: median %.1f ms, "
                "slowest %.1f ms\n",
                median(opening), *std::max_element(opening.begin(), opening.end()));
    return 0;
}
