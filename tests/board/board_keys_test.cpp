// Keyboard play on a real board: 1 to 5 on the top row and the keypad hold as a click on the
// card does, Enter, Return and the keypad's Enter act as a click on DrawDeal, and Enter never
// reaches the button that has the focus.

#include <QtTest>

// Qt
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

// Marivale
#include "board/board_companions.h"
#include "board/board_keys.h"
#include "tests/support/board_fixture.h"

using namespace marivale;
using marivale::testing::BoardFixture;

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class BoardKeysTest : public QObject {
    Q_OBJECT
private slots:
    void holdKeys_data();
    void holdKeys();
    void enterPlaysEveryPhase_data();
    void enterPlaysEveryPhase();
    void enterNeverReachesTheFocusedControl();
    void keysDoNoMoreThanAClick();
    void accessKeysActAtOnce();
    void companionsStandWholeOnScreen();
    void tooltipsNameTheKeys();
};

void BoardKeysTest::holdKeys_data() {
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("top row") << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("keypad") << Qt::KeyboardModifiers(Qt::KeypadModifier);
}

// Each key toggles its own position only, and only while the cards are dealt.
void BoardKeysTest::holdKeys() {
    QFETCH(Qt::KeyboardModifiers, modifiers);
    BoardFixture f(GameId::JacksOrBetter);
    f.buy(4);
    QTest::keyClick(f.board.get(), Qt::Key_1, modifiers);
    QCOMPARE(f.text("Card0Ind"), QString());
    f.script("2c 5d 9h Js Kd");
    f.click("DrawDeal");
    const std::array<Qt::Key, 5> keys{Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5};
    for (int p = 0; p < 5; ++p) {
        QTest::keyClick(f.board.get(), keys[p], modifiers);
        for (int q = 0; q < 5; ++q) {
            QCOMPARE(f.text(QStringLiteral("Card%1Ind").arg(q)),
                     q <= p ? QStringLiteral("Hold") : QString());
            QCOMPARE(f.state.Held[q], q <= p ? kTrue : kFalse);
        }
    }
    QTest::keyClick(f.board.get(), Qt::Key_3, modifiers);
    QCOMPARE(f.text("Card2Ind"), QString());
    QCOMPARE(f.state.Held[2], kFalse);
    // Other digits and a held Alt do nothing.
    QTest::keyClick(f.board.get(), Qt::Key_6, modifiers);
    QTest::keyClick(f.board.get(), Qt::Key_1, modifiers | Qt::AltModifier);
    QCOMPARE(f.text("Card0Ind"), QStringLiteral("Hold"));
}

void BoardKeysTest::enterPlaysEveryPhase_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Return") << int(Qt::Key_Return) << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter)
                                  << Qt::KeyboardModifiers(Qt::KeypadModifier);
}

// Deal, draw to a pair of Jacks, then with Double Up on deal, stand and take the score.
void BoardKeysTest::enterPlaysEveryPhase() {
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f, true);
    f.buy(4);
    f.script("Jc Jd 9h 4s 2d");
    QTest::keyClick(f.board.get(), Qt::Key(key), modifiers);
    QCOMPARE(f.state.DrawPhase, 1);
    QCOMPARE(f.text("Credit"), QStringLiteral("$19.00"));
    QTest::keyClick(f.board.get(), Qt::Key_1, modifiers);
    QTest::keyClick(f.board.get(), Qt::Key_2, modifiers);
    f.script("2c 2c Kd 8s 3h");
    QTest::keyClick(f.board.get(), Qt::Key(key), modifiers);
    QCOMPARE(f.state.DrawPhase, 2);
    QCOMPARE(f.text("DrawDeal"), QStringLiteral("&Take Score"));
    QTest::keyClick(f.board.get(), Qt::Key(key), modifiers);
    QCOMPARE(f.state.DrawPhase, 0);
    QCOMPARE(f.text("Output2"), QStringLiteral("Pair of Jacks"));
    QCOMPARE(f.text("Credit"), QStringLiteral("$20.00"));
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
        QVERIFY2(QApplication::activeModalWidget() == nullptr ||
                     QApplication::activeModalWidget() == f.board.get(),
                 qPrintable(name));
        QCOMPARE(f.state.DrawPhase, 1);
        QCOMPARE(f.state.Credits, credits - 1.0f);
        QCOMPARE(f.state.TotalPurchased, 20.0f);
        QCOMPARE(f.state.BetAmount, 1.0f);
        f.click("Stand");
        QCOMPARE(f.state.DrawPhase, 0);
    }
    for (QPushButton* button : f.board->findChildren<QPushButton*>()) {
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    }
}

// A disabled DrawDeal stays deaf to Enter, and a key held down plays once.
void BoardKeysTest::keysDoNoMoreThanAClick() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    f.buy(4);
    f.find("DrawDeal")->setEnabled(false);
    QTest::keyClick(f.board.get(), Qt::Key_Return);
    QCOMPARE(f.state.DrawPhase, 0);
    f.find("DrawDeal")->setEnabled(true);

    f.script("2c 5d 9h Js Kd");
    QTest::keyClick(f.board.get(), Qt::Key_Return);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"), true);
    QApplication::sendEvent(f.board.get(), &repeat);
    QCOMPARE(f.text("Card0Ind"), QString());
    QKeyEvent repeatEnter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(f.board.get(), &repeatEnter);
    QCOMPARE(f.state.DrawPhase, 1);
}

// Alt+P then Enter at typing speed buys the credits before it deals.
void BoardKeysTest::accessKeysActAtOnce() {
    BoardFixture f(GameId::JacksOrBetter, 0.0f, 1.0f);
    QApplication::setActiveWindow(f.board.get());
    f.script("2c 5d 9h Js Kd");
    QTest::keyClick(f.board.get(), Qt::Key_P, Qt::AltModifier);
    QTest::keyClick(f.board.get(), Qt::Key_Return);
    QCOMPARE(f.state.TotalPurchased, 20.0f);
    QCOMPARE(f.state.DrawPhase, 1);
    QCOMPARE(f.text("Credit"), QStringLiteral("$19.00"));
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

void BoardKeysTest::tooltipsNameTheKeys() {
    BoardFixture f(GameId::DeucesWild);
    for (int p = 0; p < 5; ++p) {
        const QString tip = f.find(QStringLiteral("Card%1").arg(p))->toolTip();
        QVERIFY2(tip.contains(QStringLiteral("press %1 ").arg(p + 1)), qPrintable(tip));
    }
    QVERIFY(f.find("DrawDeal")->toolTip().contains(QStringLiteral("Enter")));
}

QTEST_MAIN(BoardKeysTest)
#include "board_keys_test.moc"
