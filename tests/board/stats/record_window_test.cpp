// The player's record in the statistics window: the figures of this run and of all time side
// by side, the recorded hands paged in as the list scrolls, and Forget My History emptying them.

#include <QtTest>

// Qt
#include <QComboBox>
#include <QTabWidget>
#include <QTemporaryDir>

// Marivale
#include "board/stats/lifetime_view.h"
#include "board/stats/record_history.h"
#include "board/stats/record_model.h"
#include "board/stats/stats_window.h"
#include "record/record_store.h"
#include "tests/support/fake_view.h"

using namespace marivale;

namespace {

// Visits of three hands at $1 each: a flush (5), nothing, a pair of Jacks (1).
void play(SessionStats& stats, int visits) {
    testing::Table t(GameId::JacksOrBetter, 0.0f, 1.0f, &stats);
    for (int visit = 0; visit < visits; ++visit) {
        t.buy(4);
        t.hand("2h 5h 9h Jh Kd", 0b01111, "Ks Ks Ks Ks 3h");
        t.hand("2c 5d 9h Js Kd", 0x1f);
        t.hand("Jc Jd 9h 4s 2d", 0x1f);
    }
}

} // namespace

class RecordWindowTest : public QObject {
    Q_OBJECT
private slots:
    void runAndAllTimePagesAndForget() {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("record.sqlite"));
        {
            RecordStore earlier(path);
            SessionStats stats;
            stats.setSink(&earlier);
            play(stats, 69);
        }
        RecordStore store(path);
        SessionStats stats;
        stats.setSink(&store);
        play(stats, 1);
        StatsWindow window(stats, nullptr, &store);
        auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("StatsTabs"));
        QCOMPARE(tabs->tabText(2), QStringLiteral("&All Time"));
        QCOMPARE(tabs->tabText(3), QStringLiteral("E&very Hand"));
        auto* lifetime = window.findChild<LifetimeView*>();
        tabs->setCurrentIndex(2);
        const struct {
            int scope;
            const char* hands;
            const char* paid;
        } views[] = {{0, "3", "$6.00"}, {1, "210", "$420.00"}};
        for (const auto& view : views) {
            window.findChild<QComboBox*>(QStringLiteral("LifetimeScope"))
                ->setCurrentIndex(view.scope);
            QCOMPARE(lifetime->summaryText(QStringLiteral("Hands")), QString(view.hands));
            QCOMPARE(lifetime->summaryText(QStringLiteral("Paid")), QString(view.paid));
            QCOMPARE(lifetime->summaryText(QStringLiteral("Actual return")),
                     QStringLiteral("200.00%"));
        }
        tabs->setCurrentIndex(3);
        RecordModel& model = window.findChild<RecordHistory*>()->model();
        QCOMPARE(model.rowCount(), 200);
        QVERIFY(model.canFetchMore({}));
        model.fetchMore({});
        QCOMPARE(model.rowCount(), 210);
        QVERIFY(!model.canFetchMore({}));
        QVERIFY(lifetime->forgetHistory(false));
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(lifetime->summaryText(QStringLiteral("Hands")), QString());
    }
};

QTEST_MAIN(RecordWindowTest)
#include "record_window_test.moc"
