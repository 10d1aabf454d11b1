// The statistics window on real boards: F3 opens it beside the board and it changes nothing,
// its figures follow the hands, the chart shows the result in bets with the purchases and
// cash-outs marked and the best play's band beside it, trainer mode's mistakes and the history
// show the cost of each hold, numbers and the export read the same under a comma locale, and the
// run's figures outlive a board.

#include <QtTest>

// Qt
#include <QAbstractItemModel>
#include <QAreaSeries>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QFile>
#include <QGraphicsTextItem>
#include <QHeaderView>
#include <QLabel>
#include <QLineSeries>
#include <QScatterSeries>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QXYSeries>

// Marivale
#include "board/stats/credit_chart.h"
#include "board/stats/history_model.h"
#include "board/stats/stats_tables.h"
#include "board/stats/stats_window.h"
#include "play/stats/session_stats.h"
#include "play/strategy/game_odds_cache.h"
#include "tests/support/board_fixture.h"
#include "tests/support/legibility.h"
#include "tests/support/text_fit.h"

using namespace marivale;
using marivale::testing::BoardFixture;

namespace {

// Odds for a whole game take a moment on a busy machine.
constexpr int kOddsTimeoutMs = 60000;

StatsWindow* openStats(QWidget& board) {
    QTest::keyClick(&board, Qt::Key_F3);
    return board.findChild<StatsWindow*>(QStringLiteral("Statistics"));
}

QString summary(const StatsWindow& window, SummaryRow row, int column) {
    const auto* table = window.findChild<QTableWidget*>(QStringLiteral("Summary"));
    const QTableWidgetItem* item = table->item(static_cast<int>(row), column);
    return item ? item->text() : QStringLiteral("<empty>");
}

const QAbstractItemModel* history(const StatsWindow& window) {
    return window.findChild<QTableView*>(QStringLiteral("HandHistory"))->model();
}

template <typename S = QXYSeries> S* series(const QChartView& view, const QString& name) {
    for (QAbstractSeries* s : view.chart()->series()) {
        if (s->objectName() == name) {
            return qobject_cast<S*>(s);
        }
    }
    return nullptr;
}

// Deals, holds the positions in the mask and draws, or stands when all five are held.
void playHand(BoardFixture& f, const char* dealt, unsigned holds = 0x1f) {
    f.script(dealt);
    f.click("DrawDeal");
    if (holds == 0x1f) {
        f.click("Stand");
        return;
    }
    for (int p = 0; p < 5; ++p) {
        if ((holds >> p) & 1u) {
            f.click(QStringLiteral("Card%1").arg(p));
        }
    }
    f.script("2d 2d 2d 2d 3d");
    f.click("DrawDeal");
}

} // namespace

class StatsWindowTest : public QObject {
    Q_OBJECT
private slots:
    void f3OpensAWindowThatChangesNothing();
    void chartShowsTheResultInBets();
    void trainerAndHistoryShowTheCosts();
    void runFiguresOutliveABoard();
    void numbersIgnoreTheLocale();
    void textsWholeAndReadable();
};

void StatsWindowTest::f3OpensAWindowThatChangesNothing() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    f.buy(4);
    playHand(f, "2h 5h 9h Jh Kd", 0b01111); // draws 2d: no flush
    const GameState before = f.state;
    StatsWindow* window = openStats(*f.board);
    QVERIFY(window != nullptr);
    QVERIFY(window->isVisible());
    QVERIFY(!window->isModal());
    QTRY_VERIFY_WITH_TIMEOUT(!window->working(), kOddsTimeoutMs);
    QCOMPARE(summary(*window, SummaryRow::Hands, kVisitColumn), QStringLiteral("1"));
    QCOMPARE(summary(*window, SummaryRow::Bet, kRunColumn), QStringLiteral("$1.00"));
    QCOMPARE(summary(*window, SummaryRow::Return, kVisitColumn), QStringLiteral("0.00%"));
    QCOMPARE(summary(*window, SummaryRow::ExactReturn, kVisitColumn), QStringLiteral("83.79%"));
    QCOMPARE(summary(*window, SummaryRow::ResultBets, kVisitColumn), QStringLiteral("-1.00"));
    QCOMPARE(summary(*window, SummaryRow::ExpectedBets, kRunColumn), QStringLiteral("-0.16"));
    QVERIFY(summary(*window, SummaryRow::Luck, kVisitColumn).endsWith(QStringLiteral(" SD)")));
    QCOMPARE(summary(*window, SummaryRow::Mistakes, kVisitColumn), QStringLiteral("-"));

    // A hand played with the window open shows at once.
    playHand(f, "Jc Jd 9h 4s 2d");
    QTRY_COMPARE(summary(*window, SummaryRow::Hands, kVisitColumn), QStringLiteral("2"));
    QCOMPARE(summary(*window, SummaryRow::Paid, kVisitColumn), QStringLiteral("$1.00"));
    auto* frequencies = window->findChild<QTableWidget*>(QStringLiteral("HandFrequencies"));
    const int pairRow = frequencies->rowCount() - 1;
    QCOMPARE(frequencies->item(pairRow, 1)->text(), QStringLiteral("1"));
    f.script("2c 5d 9h Js Kd");
    f.click("DrawDeal");
    QTRY_COMPARE(history(*window)->index(0, HistoryModel::Result).data().toString(),
                 QStringLiteral("in play"));
    f.click("Stand");

    const float credits = f.state.Credits;
    window->close();
    QVERIFY(f.board->isVisible());
    QCOMPARE(f.state.Credits, credits);
    QCOMPARE(f.state.TotalPurchased, before.TotalPurchased);
    QCOMPARE(f.state.DrawPhase, 0);
    QCOMPARE(openStats(*f.board), window);
    QVERIFY(window->isVisible());
    openStats(*f.board);
    QVERIFY(!window->isVisible());
    openStats(*f.board);
    QTest::keyClick(window, Qt::Key_F3);
    QVERIFY(!window->isVisible());
}

// The chart shows the visit's result in bets with the purchases and the cash-out on the line and,
// once the game's odds are known, the best play's average in its bands.
void StatsWindowTest::chartShowsTheResultInBets() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    f.buy(4); // $20 before the first hand
    for (int hand = 0; hand < 3; ++hand) {
        playHand(f, "2c 5d 9h Js Kd");
    }
    f.buy(6);                      // $5 after the third
    playHand(f, "2h 5h 9h Jh Kh"); // a flush pays 5 bets
    playHand(f, "2c 5d 9h Js Kd");
    f.click("Stand"); // cashes out
    StatsWindow* window = openStats(*f.board);
    QTRY_VERIFY_WITH_TIMEOUT(!window->working(), kOddsTimeoutMs);
    const auto& chart = *window->findChild<QChartView*>(QStringLiteral("CreditChart"));
    QCOMPARE(series(chart, "Result")->points(),
             (QList<QPointF>{{0, 0}, {1, -1}, {2, -2}, {3, -3}, {4, 1}, {5, 0}}));
    QCOMPARE(series(chart, "Purchases")->points(), (QList<QPointF>{{0, 0}, {3, -3}}));
    QCOMPARE(series(chart, "CashOuts")->points(), (QList<QPointF>{{5, 0}}));

    // The best play loses 1 - R bets a hand on average, give or take the root of the hands'
    // variance.
    const odds::GameOdds odds = cachedGameOdds(GameId::JacksOrBetter).value();
    const auto edge = [&odds](double deviations) {
        QList<QPointF> points;
        for (int hand = 0; hand <= 5; ++hand) {
            points.append({double(hand), hand * (odds.expectedReturn - 1.0) +
                                             deviations * std::sqrt(hand * odds.variance)});
        }
        return points;
    };
    QCOMPARE(series(chart, "Expected")->points(), edge(0));
    const auto* one = series<QAreaSeries>(chart, "OneDeviation");
    const auto* two = series<QAreaSeries>(chart, "TwoDeviations");
    QCOMPARE(one->upperSeries()->points() + one->lowerSeries()->points(), edge(1) + edge(-1));
    QCOMPARE(two->upperSeries()->points() + two->lowerSeries()->points(), edge(2) + edge(-2));
}

// Hands played while the Strategy window's trainer mode is on count their mistakes and cost, and
// the Strategy window shows the tally the statistics keep. The history shows every hand, the
// newest first, with the cost of its hold in money or "none".
void StatsWindowTest::trainerAndHistoryShowTheCosts() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    BoardFixture f(GameId::JacksOrBetter);
    f.buy(4);
    playHand(f, "As Ks Qs Js 2c"); // before trainer mode: not counted
    QTest::keyClick(f.board.get(), Qt::Key_F2);
    auto* trainer = f.board->findChild<QCheckBox*>(QStringLiteral("Trainer"));
    QVERIFY(trainer != nullptr);
    trainer->setChecked(true);
    playHand(f, "As Ks Qs Js 2c");          // gives up four to the royal: $1.67 at $0.25
    playHand(f, "Ac Ad Ah As 7c", 0b01111); // the best hold
    StatsWindow* window = openStats(*f.board);
    QTRY_VERIFY_WITH_TIMEOUT(!window->working(), kOddsTimeoutMs);
    QCOMPARE(summary(*window, SummaryRow::Mistakes, kVisitColumn), QStringLiteral("1"));
    QCOMPARE(summary(*window, SummaryRow::MistakeCost, kRunColumn), QStringLiteral("$1.67"));
    QTRY_COMPARE(f.board->findChild<QLabel*>(QStringLiteral("TrainerTally"))->text(),
                 QStringLiteral("Mistakes: 1   Cost: $1.67"));

    const QAbstractItemModel* model = history(*window);
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(0, HistoryModel::Number).data().toString(), QStringLiteral("3"));
    QCOMPARE(model->index(0, HistoryModel::Result).data().toString(),
             QStringLiteral("Four of a Kind"));
    QCOMPARE(model->index(0, HistoryModel::Cost).data().toString(), QStringLiteral("none"));
    QCOMPARE(model->index(2, HistoryModel::Cost).data().toString(), QStringLiteral("$1.67"));
    QCOMPARE(model->index(2, HistoryModel::Held).data().toString(),
             model->index(2, HistoryModel::Dealt).data().toString());

    // The export reads back with "." decimals under a comma locale (its columns are the history
    // file's own tests' part).
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("history.csv"));
    QVERIFY(window->exportTo(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(rows.size(), 4);
    QVERIFY(rows[0].startsWith(QStringLiteral("Hand,Visit,Game,Bet,Dealt,Held,Final,")));
    QCOMPARE(rows[1], QStringLiteral("1,1,Jacks or Better,0.25,As Ks Qs Js 2c,As Ks Qs Js 2c,"
                                     "As Ks Qs Js 2c,,0.00,,0.00,As Ks Qs Js,1.6702"));
    QVERIFY(!window->exportTo(dir.filePath(QStringLiteral("missing/history.csv"))));
    QLocale::setDefault(QLocale::c());
}

// A run-wide model handed to each board keeps counting across visits.
void StatsWindowTest::runFiguresOutliveABoard() {
    SessionStats stats;
    {
        BoardFixture jacks(GameId::JacksOrBetter, 0.0f, 1.0f, false, nullptr, &stats);
        jacks.buy(4);
        playHand(jacks, "2c 5d 9h Js Kd");
        playHand(jacks, "2c 5d 9h Js Kd");
        openStats(*jacks.board);
    }
    BoardFixture deuces(GameId::DeucesWild, 0.0f, 1.0f, false, nullptr, &stats);
    deuces.buy(4);
    playHand(deuces, "3c 5d 9h Js Kd");
    StatsWindow* window = openStats(*deuces.board);
    QCOMPARE(summary(*window, SummaryRow::Hands, kVisitColumn), QStringLiteral("1"));
    QCOMPARE(summary(*window, SummaryRow::Hands, kRunColumn), QStringLiteral("3"));
    QCOMPARE(summary(*window, SummaryRow::Bet, kRunColumn), QStringLiteral("$3.00"));
    QCOMPARE(history(*window)->rowCount(), 3);
}

// A thousand hands read "1,000" on a German desktop too, which would write "1.000". While the
// odds are worked out the chart shows the result alone and says so, its small range labelled as
// finely as it needs.
void StatsWindowTest::numbersIgnoreTheLocale() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    SessionStats stats;
    stats.visitStarted(GameId::JokerWild, 0.0f);
    for (int hand = 0; hand < 1000; ++hand) {
        stats.dealt({}, 0.25f, 0.0f);
        stats.settled(hand % 2 == 0 ? 0.5f : 0.0f, 0.0f); // one bet up, then even again
    }
    StatsWindow window(stats);
    QCOMPARE(summary(window, SummaryRow::Hands, kRunColumn), QStringLiteral("1,000"));
    QCOMPARE(summary(window, SummaryRow::Return, kVisitColumn), QStringLiteral("100.00%"));
    QCOMPARE(history(window)->index(0, HistoryModel::Number).data().toString(),
             QStringLiteral("1,000"));
    QVERIFY(window.findChild<QLabel*>(QStringLiteral("StatsHeading"))
                ->text()
                .endsWith(QStringLiteral("1,000 hands in the run")));

    const auto& chart = *window.findChild<QChartView*>(QStringLiteral("CreditChart"));
    QCOMPARE(series(chart, "Result")->points().mid(998),
             (QList<QPointF>{{998, 0}, {999, 1}, {1000, 0}}));
    QVERIFY(!series(chart, "Expected")->isVisible());
    QVERIFY(chart.chart()->title().contains(QStringLiteral("computing")));
    window.grab();
    QCoreApplication::processEvents();
    QStringList labels;
    for (QGraphicsItem* item : chart.scene()->items()) {
        if (const auto* text = dynamic_cast<QGraphicsTextItem*>(item)) {
            labels << text->toPlainText();
        }
    }
    for (const char* label : {"0.0", "0.5", "1.0", "1,000"}) {
        QVERIFY2(labels.count(QString::fromLatin1(label)) == 1, qPrintable(labels.join(' ')));
    }
    QLocale::setDefault(QLocale::c());
}

// The window lays itself out for the desktop's font: each text whole and readable, with the
// figures of a Treasure Trips visit in every row, and the history without scrolling.
void StatsWindowTest::textsWholeAndReadable() {
    BoardFixture f(GameId::TreasureTrips, 0.0f, 1.0f);
    f.buy(0);
    f.script("3s 3d 3h 4c Kd");
    f.click("DrawDeal");
    marivale::testing::answerModal([&f](QWidget& hunt) {
        f.random.push(0.95); // the largest chest
        marivale::testing::clickIn(hunt, QStringLiteral("Tr2"));
        marivale::testing::clickIn(hunt, QStringLiteral("TClose"));
    });
    f.click("Stand");
    playHand(f, "As Ks Qs Js 2c", 0b01111);
    playHand(f, "Tc Td Th Ts Qs", 0b00111);
    StatsWindow* window = openStats(*f.board);
    QTRY_VERIFY_WITH_TIMEOUT(!window->working(), kOddsTimeoutMs);
    QCOMPARE(summary(*window, SummaryRow::Bonuses, kVisitColumn), QStringLiteral("1"));
    for (const int tab : {0, 1}) {
        window->findChild<QTabWidget*>(QStringLiteral("StatsTabs"))->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        const QStringList cut = marivale::testing::cutTexts(*window);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
        const QStringList illegible = marivale::testing::illegibleTexts(*window);
        QVERIFY2(illegible.isEmpty(), qPrintable(illegible.join('\n')));
    }
    // Every column of the history shows at the opening size, without scrolling.
    const auto* view = window->findChild<QTableView*>(QStringLiteral("HandHistory"));
    QVERIFY(!view->horizontalScrollBar()->isVisible());
}

QTEST_MAIN(StatsWindowTest)
#include "stats_window_test.moc"
