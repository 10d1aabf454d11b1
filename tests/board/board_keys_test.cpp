// Keyboard play on a real board: 1 to 5 on the top row and the keypad hold as a click on the
// card does, Enter, Return and the keypad's Enter act as a click on DrawDeal, and Enter never
// reaches the button that has the focus.

#include <QtTest>

// Qt
#include <QAbstractButton>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>

// Marivale
#include "board/board_companions.h"
#include "board/board_keys.h"
#include "board/stats/stats_tables.h"
#include "board/strategy/hold_table.h"
#include "engine/odds/draw_tables.h"
#include "play/board_captions.h"
#include "play/stats/session_stats.h"
#include "tests/support/board_fixture.h"

using namespace marivale;
using marivale::testing::BoardFixture;

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class BoardKeysTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void warningAndHintByKeys();
    void keysPlayAHand_data();
    void keysPlayAHand();
    void enterNeverReachesTheFocusedControl();
    void keysActAtOnceAndOnce();
    void companionsStandWholeOnScreen();
    void trainerModeLastsTheRun();
    void historyHandOpensInStrategy();
    void companionAccessKeysNeverClashWithTheBoards();
    void tooltipsNameTheKeys();
};

void BoardKeysTest::keysPlayAHand_data() {
    QTest::addColumn<int>("enter");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Return, top row")
        << int(Qt::Key_Return) << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Enter, top row") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("keypad") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::KeypadModifier);
}

// Enter deals; each digit holds its own position only; Enter draws to the pair of Jacks and,
// with Double Up on, takes the score.
void BoardKeysTest::keysPlayAHand() {
    QFETCH(int, enter);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f, true);
    f.buy(4);
    f.script("Jc Jd 9h 4s 2d");
    QTest::keyClick(f.board.get(), Qt::Key(enter), modifiers);
    QCOMPARE(f.state.DrawPhase, 1);
    const std::array<Qt::Key, 5> keys{Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5};
    for (int p = 0; p < 5; ++p) {
        QTest::keyClick(f.board.get(), keys[p], modifiers);
        for (int q = 0; q < 5; ++q) {
            QCOMPARE(f.text(QStringLiteral("Card%1Ind").arg(q)),
                     q <= p ? QStringLiteral("Hold") : QString());
        }
    }
    // Other digits and a held Alt do nothing; 3 to 5 again release their cards.
    QTest::keyClick(f.board.get(), Qt::Key_6, modifiers);
    QTest::keyClick(f.board.get(), Qt::Key_1, modifiers | Qt::AltModifier);
    for (int p = 2; p < 5; ++p) {
        QTest::keyClick(f.board.get(), keys[p], modifiers);
    }
    f.script("2c 2c Kd 8s 3h");
    QTest::keyClick(f.board.get(), Qt::Key(enter), modifiers);
    QCOMPARE(f.state.DrawPhase, 2);
    QTest::keyClick(f.board.get(), Qt::Key(enter), modifiers);
    QCOMPARE(f.text("Output2"), QStringLiteral("Pair of Jacks"));
}

// Whichever control has the focus, Return deals the hand: it never buys credits, changes the
// bet, cashes out, leaves the board or opens the help screen.
void BoardKeysTest::enterNeverReachesTheFocusedControl() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    f.buy(4);
    for (const QString& name :
         {QStringLiteral("Purchase"), QStringLiteral("BetUp"), QStringLiteral("BetDn"),
          QStringLiteral("Exit"), QStringLiteral("Help"), QStringLiteral("Stand"),
          QStringLiteral("Card0"), QStringLiteral("POption0"), QStringLiteral("DrawDeal")}) {
        QWidget* control = f.find(name);
        QVERIFY2(control != nullptr, qPrintable(name));
        control->setFocus();
        const float credits = f.state.Credits;
        f.script("2c 5d 9h Js Kd");
        QTest::keyClick(control, Qt::Key_Return);
        QVERIFY2(f.board->isVisible(), qPrintable(name));
        // One deal at the same bet: no purchase, no bet change and no cash-out came first.
        QCOMPARE(f.state.DrawPhase, 1);
        QCOMPARE(f.state.Credits, credits - 1.0f);
        f.click("Stand");
    }
    for (QPushButton* button : f.board->findChildren<QPushButton*>()) {
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    }
}

// Alt+P then Enter at typing speed buys the credits before it deals; a key held down acts
// once, even when the toolkit misses a repeat, and a disabled DrawDeal stays deaf to Enter.
void BoardKeysTest::keysActAtOnceAndOnce() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    QApplication::setActiveWindow(f.board.get());
    f.script("2c 5d 9h Js Kd");
    QTest::keyClick(f.board.get(), Qt::Key_P, Qt::AltModifier);
    QTest::keyClick(f.board.get(), Qt::Key_Return);
    QCOMPARE(f.state.TotalPurchased, 20.0f);
    QCOMPARE(f.state.DrawPhase, 1);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"), true);
    QApplication::sendEvent(f.board.get(), &repeat);
    QCOMPARE(f.text("Card0Ind"), QString());
    QKeyEvent repeatEnter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(f.board.get(), &repeatEnter);
    QCOMPARE(f.state.DrawPhase, 1);
    // A repeat the toolkit left unmarked: its release and press carry one time stamp.
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    release.setTimestamp(500);
    QApplication::sendEvent(f.board.get(), &release);
    QKeyEvent unmarked(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    unmarked.setTimestamp(500);
    QApplication::sendEvent(f.board.get(), &unmarked);
    QCOMPARE(f.state.DrawPhase, 1);
    f.find("DrawDeal")->setEnabled(false);
    QTest::keyClick(f.board.get(), Qt::Key_Return);
    QCOMPARE(f.state.DrawPhase, 1);
}

// A companion takes its preferred side where it fits, the other side where only that fits, and
// is never left partly off the screen.
void BoardKeysTest::companionsStandWholeOnScreen() {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget board;
    board.resize(200, 150);
    QWidget companion;
    companion.resize(150, 100);
    struct Case {
        int boardLeft;
        Side side;
        int expectedLeft; // -1: anywhere, as long as it is whole
    };
    const int right = screen.right();
    const std::array<Case, 5> cases{{
        {400, Side::Left, 400 - 150 - 8},
        {400, Side::Right, 400 + 199 + 8},
        {0, Side::Left, 199 + 8},
        {right - 199, Side::Right, right - 199 - 150 - 8},
        {right - 100, Side::Right, -1},
    }};
    for (const Case& c : cases) {
        board.move(c.boardLeft, 50);
        placeBeside(companion, board, c.side);
        const QRect placed(companion.pos(), companion.size());
        QVERIFY2(screen.contains(placed),
                 qPrintable(QStringLiteral("board at %1").arg(c.boardLeft)));
        if (c.expectedLeft >= 0) {
            QCOMPARE(placed.left(), c.expectedLeft);
        }
    }
}

// Trainer mode switched on at one visit is still on when Strategy opens at the next.
void BoardKeysTest::trainerModeLastsTheRun() {
    SessionStats run;
    for (const bool expected : {false, true}) {
        BoardFixture f(GameId::JacksOrBetter, 0.0f, 0.25f, false, nullptr, &run);
        QTest::keyClick(f.board.get(), Qt::Key_F2);
        auto* trainer = f.find<QCheckBox>(QStringLiteral("Trainer"));
        QVERIFY(trainer != nullptr);
        QCOMPARE(trainer->isChecked(), expected);
        trainer->setChecked(true);
    }
}

// A hand of the history opens in the Strategy window as it was dealt, at its own bet, with the
// hold the player made marked; a hand in play afterwards is the hand on show again.
void BoardKeysTest::historyHandOpensInStrategy() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    f.buy(4);
    f.script("As Ks Qs Js 2c");
    f.click("DrawDeal");
    f.click("Stand"); // stands on four to the royal: a hold of all five
    f.click("BetUp");
    QTest::keyClick(f.board.get(), Qt::Key_F3);
    auto* history = f.find<QTableView>(QStringLiteral("HandHistory"));
    QVERIFY(history != nullptr);
    history->setCurrentIndex(history->model()->index(0, 0));
    QTest::keyClick(history, Qt::Key_Return);
    auto* strategy = f.find<QWidget>(QStringLiteral("Strategy"));
    QVERIFY(strategy != nullptr && strategy->isVisible());
    const QString dealt = f.find<QLabel>(QStringLiteral("Dealt"))->text();
    QVERIFY2(dealt.startsWith(QStringLiteral("Hand 1 again: Dealt")), qPrintable(dealt));
    QVERIFY2(dealt.endsWith(QStringLiteral("bet $1.00")), qPrintable(dealt));
    auto* holds = f.find<QTableWidget>(QStringLiteral("Holds"));
    const auto playedRow = [holds] {
        for (int row = 0; row < holds->rowCount(); ++row) {
            const QTableWidgetItem* rank = holds->item(row, HoldTable::kRankColumn);
            if (rank != nullptr && rank->text().endsWith(QStringLiteral(", played"))) {
                return row;
            }
        }
        return -1;
    };
    QTRY_VERIFY_WITH_TIMEOUT(playedRow() >= 0, 120'000);
    QCOMPARE(holds->item(playedRow(), HoldTable::kRankColumn)->data(HoldTable::kHeldRole).toUInt(),
             0x1fu);

    f.script("2c 5d 9h Js Kd");
    f.click("DrawDeal");
    QVERIFY(f.find<QLabel>(QStringLiteral("Dealt"))->text().contains(QStringLiteral("$2.00")));
}

// The access keys of a window's buttons, labels with a buddy and tabs.
QList<QKeySequence> accessKeys(const QWidget& window) {
    QList<QKeySequence> keys;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        keys << QKeySequence::mnemonic(button->text());
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            keys << QKeySequence::mnemonic(label->text());
        }
    }
    for (const QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            keys << QKeySequence::mnemonic(tabs->tabText(tab));
        }
    }
    keys.removeAll(QKeySequence());
    return keys;
}

// A companion counts the board as active too, so a shared access key would act on neither: each
// key of Strategy, the statistics and Practice is one the board never uses in any phase.
void BoardKeysTest::companionAccessKeysNeverClashWithTheBoards() {
    BoardFixture f(GameId::JacksOrBetter);
    QList<QKeySequence> board;
    for (const QPushButton* button : f.board->findChildren<QPushButton*>()) {
        board << QKeySequence::mnemonic(button->text());
    }
    for (const Phase phase : {Phase::BeforeDeal, Phase::Dealt, Phase::DoubleUpChoice}) {
        for (const std::string_view caption :
             {phaseCaptions(phase).drawDeal, phaseCaptions(phase).stand}) {
            board << QKeySequence::mnemonic(QString::fromLatin1(caption.data(), caption.size()));
        }
    }
    QTest::keyClick(f.board.get(), Qt::Key_F2);
    QTest::keyClick(f.board.get(), Qt::Key_F3);
    QTest::keyClick(f.board.get(), Qt::Key_F4);
    for (const char* name : {"Strategy", "Statistics", "Practice"}) {
        const QWidget* companion = f.find<QWidget>(QString::fromLatin1(name));
        QVERIFY(companion != nullptr);
        const QList<QKeySequence> keys = accessKeys(*companion);
        QVERIFY(!keys.isEmpty());
        for (const QKeySequence& key : keys) {
            QVERIFY2(
                !board.contains(key),
                qPrintable(
                    QStringLiteral("%1 in %2").arg(key.toString(), QString::fromLatin1(name))));
            QCOMPARE(keys.count(key), 1);
        }
    }
}

void BoardKeysTest::tooltipsNameTheKeys() {
    BoardFixture f(GameId::DeucesWild);
    for (int p = 0; p < 5; ++p) {
        const QString tip = f.find(QStringLiteral("Card%1").arg(p))->toolTip();
        QVERIFY2(tip.contains(QStringLiteral("press %1 ").arg(p + 1)), qPrintable(tip));
    }
    QVERIFY(f.find("DrawDeal")->toolTip().contains(QStringLiteral("Enter")));
}

// The options the player sets are kept in a folder of the test's own.
void BoardKeysTest::initTestCase() {
    static QTemporaryDir config;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config.path());
}

// With the warning on, Enter on a costly hold leaves the board as it was and tells the cost in
// Strategy; Enter again draws with that hold, counted once. F5 frames the best hold's cards
// until the draw.
void BoardKeysTest::warningAndHintByKeys() {
    odds::DrawTables::forGame(GameId::JacksOrBetter);
    SessionStats run;
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f, false, nullptr, &run);
    QWidget* board = f.board.get();
    f.buy(4);
    QTest::keyClick(board, Qt::Key_F2);
    auto* warn = f.find<QCheckBox>(QStringLiteral("WarnBeforeMistake"));
    QVERIFY(warn != nullptr && !warn->isChecked());
    warn->setChecked(true);
    QTest::keyClick(board, Qt::Key_F2);
    f.script("Ah Kh Qh Jh 2c");
    QTest::keyClick(board, Qt::Key_Return);
    QTest::keyClick(board, Qt::Key_F5);
    for (int p = 0; p < 5; ++p) {
        QCOMPARE(f.find(QStringLiteral("Hint%1").arg(p))->isVisibleTo(board), p < 4);
    }
    QTest::keyClick(board, Qt::Key_1);
    QTest::keyClick(board, Qt::Key_2);
    const QString dealtPicture = f.picture(4);
    QTest::keyClick(board, Qt::Key_Return);
    QCOMPARE(f.state.DrawPhase, 1);
    QCOMPARE(f.text("DrawDeal"), QStringLiteral("D&raw"));
    QCOMPARE(f.text("Card1Ind"), QStringLiteral("Hold"));
    QCOMPARE(f.text("Card2Ind"), QString());
    QCOMPARE(f.picture(4), dealtPicture);
    QVERIFY(f.find(QStringLiteral("Strategy"))->isVisible());
    QVERIFY(f.find<QLabel>(QStringLiteral("TrainerVerdict"))
                ->text()
                .startsWith(QStringLiteral(
                    "<b>Your hold costs 6.24 bets ($6.24): you held Suited AK; the chart says 4 "
                    "to a Royal Flush, 1 gap, 4 high cards. Draw or Stand again to play it.</b>")));
    f.script("2d 3s 4c 5d 6s");
    QTest::keyClick(board, Qt::Key_Return);
    QCOMPARE(f.state.DrawPhase, 0);
    QCOMPARE(f.find(QStringLiteral("Hint0"))->isVisibleTo(board), false);
    QCOMPARE(run.history().size(), std::size_t{1});
    const HandRecord& hand = run.history()[0];
    QCOMPARE(hand.holds, 0b00011U);
    QVERIFY(hand.hinted && hand.warned);
    QCOMPARE(run.hinted(true), 1);
    QCOMPARE(run.visit().hands, 1);
    QCOMPARE(run.visit().bet, 1.0f);
    QTest::keyClick(board, Qt::Key_F3);
    auto* summary = f.find<QTableWidget>(QStringLiteral("Summary"));
    const int hinted = static_cast<int>(SummaryRow::Hinted);
    QCOMPARE(summary->verticalHeaderItem(hinted)->text(), QStringLiteral("Hinted hands"));
    QCOMPARE(summary->item(hinted, kVisitColumn)->text(), QStringLiteral("1"));
    warn->setChecked(false);
}

QTEST_MAIN(BoardKeysTest)
#include "board_keys_test.moc"
