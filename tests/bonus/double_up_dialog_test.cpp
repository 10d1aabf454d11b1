// Qt
#include <QLabel>
#include <QPushButton>
#include <QTimer>
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
    void everyCardAgainstEachGuess_data();
    void everyCardAgainstEachGuess();
    void closingBeforeAGuessKeepsFactorOne_data();
    void closingBeforeAGuessKeepsFactorOne();
    void returnButtonClosesTheModalWindow();
    void doublingStopsAtTheTableLimit();
};

void DoubleUpTest::opensFaceDownAtFactorOne() {
    Game game;
    game.state.DoubleUpFactor = 0;
    DoubleUpDialog dialog(game.state, game.random, game.pictures);
    dialog.show();

    QCOMPARE(dialog.objectName(), QStringLiteral("frmDup"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Double Up"));
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.findChild<QLabel*>("Label1")->text(), QStringLiteral("Double Up"));
    QCOMPARE(game.state.DoubleUpFactor, std::int16_t{1});
    QCOMPARE(dialog.canGuess(), kTrue);
    QCOMPARE(dialog.findChild<QPushButton*>("DUCard")->property("pictureFile").toString(),
             QStringLiteral("bb.gif"));
    QCOMPARE(dialog.findChild<QPushButton*>("Low")->text(),
             QStringLiteral("&Low Card  2 - 7 Wins"));
    QCOMPARE(dialog.findChild<QPushButton*>("High")->text(),
             QStringLiteral("&High Card 9 - A Wins"));
    QPushButton* ret = dialog.findChild<QPushButton*>("RetBtn");
    QVERIFY(!ret->isEnabled());
    QVERIFY(ret->text().isEmpty());
    QVERIFY(game.random.log.empty());
}

void DoubleUpTest::everyCardAgainstEachGuess_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("card");
    QTest::addColumn<bool>("wins");
    // Which cards win is the side game's rule; here each button reaches it once either way.
    QTest::newRow("Low on a Five") << QStringLiteral("Low") << 4 << true;
    QTest::newRow("High on a Seven") << QStringLiteral("High") << 6 << false;
}

// A guess against a drawn card: the card shown, the factor and which buttons stay open.
void DoubleUpTest::everyCardAgainstEachGuess() {
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
    QCOMPARE(game.dialog.canGuess(), wins ? kTrue : kFalse);
    QCOMPARE(game.button("Low")->isEnabled(), wins);
    QCOMPARE(game.button("High")->isEnabled(), wins);
    QVERIFY(game.dialog.isVisible());
}

void DoubleUpTest::closingBeforeAGuessKeepsFactorOne_data() {
    QTest::addColumn<bool>("escape");
    QTest::newRow("close box") << false;
    QTest::newRow("Escape") << true;
}

void DoubleUpTest::closingBeforeAGuessKeepsFactorOne() {
    QFETCH(bool, escape);
    Game game;
    game.dialog.show();
    if (escape) {
        QTest::keyClick(&game.dialog, Qt::Key_Escape);
    } else {
        game.dialog.close();
    }
    QVERIFY(!game.dialog.isVisible());
    QCOMPARE(game.state.DoubleUpFactor, std::int16_t{1});
}

// The board waits in exec(); a winning guess and RetBtn bring it back with the doubled factor.
void DoubleUpTest::returnButtonClosesTheModalWindow() {
    Game game;
    game.random.scripted.pushIndex(4, 52); // Five
    QTimer::singleShot(0, &game.dialog, [&game] {
        QTest::mouseClick(game.button("Low"), Qt::LeftButton);
        testing::saveShot(game.dialog, QStringLiteral("frmDup.png"));
        QTest::mouseClick(game.button("RetBtn"), Qt::LeftButton);
    });
    game.dialog.exec();
    QVERIFY(!game.dialog.isVisible());
    QCOMPARE(game.state.DoubleUpFactor, std::int16_t{2});
}

// Fourteen correct guesses reach 16384; the guess buttons then stop and the factor stays put.
void DoubleUpTest::doublingStopsAtTheTableLimit() {
    Game game;
    game.dialog.show();
    QLabel* note = game.dialog.findChild<QLabel*>("LimitNote");
    for (int n = 1; n <= 14; ++n) {
        QVERIFY(!note->isVisible());
        game.guess("High", 12); // King
        QCOMPARE(game.state.DoubleUpFactor, static_cast<std::int16_t>(1 << n));
    }
    QCOMPARE(game.state.DoubleUpFactor, DoubleUpDialog::kTableLimit);
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(), QStringLiteral("Table limit reached: take your winnings"));
    QVERIFY(!game.button("Low")->isEnabled());
    QVERIFY(!game.button("High")->isEnabled());
    QCOMPARE(game.button("RetBtn")->text(), kTake);
    QVERIFY(game.button("RetBtn")->isEnabled());
    testing::saveShot(game.dialog, QStringLiteral("frmDup-limit.png"));

    // A 15th guess cannot be made.
    game.random.scripted.pushIndex(12, 52);
    QTest::mouseClick(game.button("High"), Qt::LeftButton);
    QCOMPARE(game.state.DoubleUpFactor, DoubleUpDialog::kTableLimit);
    QCOMPARE(game.random.log.size(), std::size_t{14});
}

QTEST_MAIN(DoubleUpTest)
#include "double_up_dialog_test.moc"
