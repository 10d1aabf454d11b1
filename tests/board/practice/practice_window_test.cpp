// The Practice window's wiring: F4 opens it beside a board and closes it, keys and clicks hold
// and submit, the answer and the score show at once, and the weak spots come from outside.

#include <QtTest>

// Qt
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

// Marivale
#include "board/practice/practice_window.h"
#include "tests/support/board_fixture.h"

using namespace marivale;
using marivale::testing::BoardFixture;

class PracticeWindowTest : public QObject {
    Q_OBJECT
private slots:
    void f4OpensBesideTheBoardAndLeavesItAlone();
    void keysHoldSubmitAndDealTheNext();
    void weakSpotsAskForTheRecord();
};

namespace {

QString text(const QWidget& window, const char* name) {
    return window.findChild<QLabel*>(QString::fromLatin1(name))->text();
}

} // namespace

// The board's state and its random source are as they were after a drill hand.
void PracticeWindowTest::f4OpensBesideTheBoardAndLeavesItAlone() {
    BoardFixture f(GameId::JacksOrBetter);
    f.buy(4);
    f.script("As Ks Qs Js 2c");
    f.click("DrawDeal");
    const GameState before = f.state;
    const std::size_t scripted = f.random.remaining();
    QTest::keyClick(f.board.get(), Qt::Key_F4);
    auto* practice = f.find<PracticeWindow>(QStringLiteral("Practice"));
    QVERIFY(practice != nullptr && practice->isVisible());
    QCOMPARE(practice->windowTitle(), QStringLiteral("Practice"));
    QCOMPARE(practice->parentWidget(), f.board.get());
    QTRY_VERIFY_WITH_TIMEOUT(!practice->working(), 120'000);
    QTest::keyClick(practice, Qt::Key_1);
    QTest::keyClick(practice, Qt::Key_Return);
    QCOMPARE(practice->drill().score().hands(), 1);
    QCOMPARE(f.random.remaining(), scripted);
    QVERIFY(f.state.Hand == before.Hand && f.state.Held == before.Held);
    QCOMPARE(f.state.Credits, before.Credits);
    QTest::keyClick(practice, Qt::Key_F4);
    QVERIFY(!practice->isVisible());
    QTest::keyClick(f.board.get(), Qt::Key_F4);
    QVERIFY(practice->isVisible());
    QTest::keyClick(practice, Qt::Key_Escape);
    QVERIFY(!practice->isVisible());
}

void PracticeWindowTest::keysHoldSubmitAndDealTheNext() {
    PracticeWindow window(GameId::JacksOrBetter, nullptr, std::make_unique<SeededRandomSource>(22));
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!window.working(), 120'000);
    auto* submit = window.findChild<QPushButton*>(QStringLiteral("DrillSubmit"));
    auto* next = window.findChild<QPushButton*>(QStringLiteral("DrillNext"));
    QVERIFY(submit->isEnabled() && !next->isEnabled());
    QCOMPARE(QKeySequence::mnemonic(submit->text()), QKeySequence(Qt::ALT | Qt::Key_M));

    QTest::keyClick(&window, Qt::Key_2);
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("DrillCard4")), Qt::LeftButton);
    QCOMPARE(window.drill().held(), 0b10010u);
    for (int p = 0; p < 5; ++p) {
        const char* mark = p == 1 || p == 4 ? "HELD" : "";
        QCOMPARE(text(window, qPrintable(QStringLiteral("DrillHeld%1").arg(p))),
                 QString::fromLatin1(mark));
    }

    QTest::keyClick(&window, Qt::Key_Enter);
    const DrillVerdict& verdict = *window.drill().verdict();
    const QString answer = text(window, "DrillVerdict");
    QVERIFY2(answer.contains(QStringLiteral("Best hold: ")) &&
                 answer.contains(QString::fromStdString(verdict.bestLine).toHtmlEscaped()) &&
                 answer.contains(QStringLiteral("Your hold: ")) &&
                 answer.contains(QString::fromStdString(verdict.heldLine).toHtmlEscaped()),
             qPrintable(answer));
    QVERIFY(answer.contains(verdict.mistake ? QStringLiteral("Cost: ") : QStringLiteral("Right:")));
    QVERIFY(text(window, "DrillScore").startsWith(QStringLiteral("Hands 1 ")));
    QVERIFY(!submit->isEnabled() && next->isEnabled());

    QTest::keyClick(&window, Qt::Key_Return);
    QVERIFY(!window.drill().verdict().has_value());
    QCOMPARE(window.drill().held(), 0u);
    QCOMPARE(window.drill().score().hands(), 1);
    submit->click();
    QCOMPARE(window.drill().score().hands(), 2);
}

void PracticeWindowTest::weakSpotsAskForTheRecord() {
    PracticeWindow window(GameId::JacksOrBetter);
    QSignalSpy asked(&window, &PracticeWindow::weakLinesWanted);
    window.findChild<QComboBox*>(QStringLiteral("DrillMode"))->setCurrentIndex(2);
    QCOMPARE(asked.size(), 1);
    QCOMPARE(window.drill().mode(), DrillMode::WeakSpots);
    window.setWeakLines({{"Suited KQ", 3}, {"4 to a Flush, 1 high card", 1}});
    QCOMPARE(text(window, "DrillWeakLines"),
             QStringLiteral("Weak spots: Suited KQ (3), 4 to a Flush, 1 high card (1)"));
}

QTEST_MAIN(PracticeWindowTest)
#include "practice_window_test.moc"
