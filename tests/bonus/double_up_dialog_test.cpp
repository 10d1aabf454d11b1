// The Double Up window: its opening, a guess from each button, closing before a guess, and the
// table limit. Which cards win and the doubling are the side game's rules.

// Qt
#include <QLabel>
#include <QPushButton>
#include <QtTest>

// Marivale
#include "bonus/double_up_dialog.h"
#include "tests/support/test_support.h"
#include "ui/card_pictures.h"

using namespace marivale;

namespace {

const QString kTake = QStringLiteral("&Take Doubled Winnings");
const QString kReturn = QStringLiteral("Re&turn");

// One Double Up window over its own state, scripted cards and pictures.
struct Game {
    GameState state{};
    testing::RecordingRandomSource random{};
    CardPictures pictures{};
    DoubleUpDialog dialog{state, random, pictures};

    QPushButton* button(const char* name) { return dialog.findChild<QPushButton*>(name); }
    QString cardShown() { return button("DUCard")->property("pictureFile").toString(); }

    // Queues the card and clicks the guess button.
    void guess(const char* name, int card) {
        random.scripted.pushIndex(card, 52);
        QTest::mouseClick(button(name), Qt::LeftButton);
    }
};

} // namespace

class DoubleUpTest : public QObject {
    Q_OBJECT
private slots:
    void opensFaceDownAtFactorOne();
    void guessFromEachButton_data();
    void guessFromEachButton();
    void escapeBeforeAGuessKeepsFactorOne();
    void guessesStopAtTheTableLimit();
};

// The window opens on a state with no factor yet (0) and starts the game at factor 1.
void DoubleUpTest::opensFaceDownAtFactorOne() {
    Game game;
    game.dialog.show();
    QCOMPARE(game.dialog.objectName(), QStringLiteral("frmDup"));
    QCOMPARE(game.dialog.windowTitle(), QStringLiteral("Double Up"));
    QVERIFY(game.dialog.isModal());
    QCOMPARE(game.dialog.findChild<QLabel*>("Label1")->text(), QStringLiteral("Double Up"));
    QCOMPARE(game.state.DoubleUpFactor, std::int16_t{1});
    QCOMPARE(game.cardShown(), QStringLiteral("bb.gif"));
    QCOMPARE(game.button("Low")->text(), QStringLiteral("&Low Card  2 - 7 Wins"));
    QCOMPARE(game.button("High")->text(), QStringLiteral("&High Card 9 - A Wins"));
    QVERIFY(!game.button("RetBtn")->isEnabled());
    QVERIFY(game.button("RetBtn")->text().isEmpty());
    QVERIFY(game.random.log.empty());
}

void DoubleUpTest::guessFromEachButton_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("card");
    QTest::addColumn<bool>("wins");
    QTest::newRow("Low on a Five") << QStringLiteral("Low") << 4 << true;
    QTest::newRow("High on a Seven") << QStringLiteral("High") << 6 << false;
}

// A guess against a drawn card: the card shown, the factor and which buttons stay open.
void DoubleUpTest::guessFromEachButton() {
    QFETCH(QString, button);
    QFETCH(int, card);
    QFETCH(bool, wins);
    Game game;
    game.dialog.show();
    game.guess(button.toLatin1().constData(), card);

    QCOMPARE(game.cardShown(), QString::number(card) + QStringLiteral(".gif"));
    QPushButton* ret = game.button("RetBtn");
    QVERIFY(ret->isEnabled());
    QCOMPARE(ret->text(), wins ? kTake : kReturn);
    QCOMPARE(game.state.DoubleUpFactor, static_cast<std::int16_t>(wins ? 2 : 0));
    QCOMPARE(game.button("Low")->isEnabled(), wins);
    QCOMPARE(game.button("High")->isEnabled(), wins);
    QVERIFY(game.dialog.isVisible());
}

// Escape closes the window before a guess as its close box does, and the factor stays 1.
void DoubleUpTest::escapeBeforeAGuessKeepsFactorOne() {
    Game game;
    game.dialog.show();
    QTest::keyClick(&game.dialog, Qt::Key_Escape);
    QVERIFY(!game.dialog.isVisible());
    QCOMPARE(game.state.DoubleUpFactor, std::int16_t{1});
}

// The guess that reaches the table limit shows the note and leaves only the winnings to take.
void DoubleUpTest::guessesStopAtTheTableLimit() {
    Game game;
    game.dialog.show();
    game.state.DoubleUpFactor = DoubleUpDialog::kTableLimit / 2;
    QLabel* note = game.dialog.findChild<QLabel*>("LimitNote");
    QVERIFY(!note->isVisible());
    game.guess("High", 12); // King
    QCOMPARE(game.state.DoubleUpFactor, DoubleUpDialog::kTableLimit);
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(), QStringLiteral("Table limit reached: take your winnings"));
    QVERIFY(!game.button("Low")->isEnabled());
    QVERIFY(!game.button("High")->isEnabled());
    QCOMPARE(game.button("RetBtn")->text(), kTake);
    QVERIFY(game.button("RetBtn")->isEnabled());
    testing::saveShot(game.dialog, QStringLiteral("frmDup-limit.png"));
}

QTEST_MAIN(DoubleUpTest)
#include "double_up_dialog_test.moc"
