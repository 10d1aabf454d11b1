// The real board windows, driven by their controls: design, the clicks of a whole hand, the
// modal windows and what the board pays from them, the picture files and a missing picture.
// The rules of play and money are the play tests' part; the colours and fonts are the look
// test's part.

#include <QtTest>

// Qt
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QTemporaryDir>

// Marivale
#include "engine/money_format.h"
#include "engine/pay_table.h"
#include "tests/support/board_fixture.h"
#include "ui/bell.h"

using namespace marivale;
using marivale::testing::answerModal;
using marivale::testing::BoardFixture;
using marivale::testing::clickIn;

Q_DECLARE_METATYPE(marivale::GameId)

class BoardPlayTest : public QObject {
    Q_OBJECT
private slots:
    void design();
    void clicksPlayAHandToAFlush();
    void picturesFollowTheBoard_data();
    void picturesFollowTheBoard();
    void doubleUpWinIsPaid();
    void treasureHuntChestIsPaid();
    void cashOutAndBetButtons();
    void missingPicturesAreToldOnce();
};

void BoardPlayTest::design() {
    const struct {
        GameId game;
        const char* name;
        const char* caption;
        const char* title;
        const char* noteName; // "": the board has no note
        const char* note;
    } designs[] = {
        {GameId::TreasureTrips, "TTBoard", "Treasure Trips", "Treasure Trips", "Label10",
         "Win Bonus for 3 or More 3's"},
        {GameId::DeucesWild, "DWBoard", "Deuces Wild", "Deuces Wild", "", ""},
        {GameId::JokerWild, "WJBoard", "Wild Joker", "Joker Wild", "Label31",
         "Deck Includes 1 Joker"},
        {GameId::JacksOrBetter, "JBBoard", "Jacks or Better", "Jacks or Better", "Label10",
         "Pays For Pair Jacks or More"},
    };
    const char* boxes[kGameCount][kPayRows] = {
        {"FiveKind", "Royal", "StraightF", "FourKind", "FullHouse", "Flush", "Straight",
         "ThreeKind", "TwoPair"},
        {"NRoyal", "FourDeuces", "WRoyal", "FiveKind", "StraightF", "FourKind", "FullHouse",
         "Flush", "ThreeKind"},
        {"FiveKind", "Royal", "StraightF", "FourKind", "FullHouse", "Flush", "Straight",
         "ThreeKind", "TwoPair"},
        {"Royal", "StraightF", "FourKind", "FullHouse", "Flush", "Straight", "ThreeKind", "TwoPair",
         "Pair"}};
    for (const auto& d : designs) {
        BoardFixture t(d.game);
        QCOMPARE(t.board->objectName(), d.name);
        QCOMPARE(t.board->windowTitle(), d.caption);
        QCOMPARE(t.board->size(), QSize(632, 453));
        QCOMPARE(t.text("Label1"), d.title);
        if (*d.noteName == '\0') {
            QVERIFY(t.find("Label10") == nullptr && t.find("Label31") == nullptr);
        } else {
            QCOMPARE(t.text(d.noteName), d.note);
        }
        // Each box shows its row's amount at the bet (the amounts are the pay table tests' part).
        for (int row = 0; row < kPayRows; ++row) {
            const PayRow& pay = payTable(d.game)[static_cast<std::size_t>(row)];
            QCOMPARE(t.text(boxes[static_cast<std::size_t>(d.game)][row]),
                     QString::fromStdString(FormatMoney(t.state.*pay.field, pay.pattern)));
        }
        // The captions the board gives its controls, and the boxes the play fills.
        QCOMPARE(t.text("Last"), QStringLiteral("$0.00"));
        QCOMPARE(t.text("PLTitle"), QStringLiteral("Net Winnings"));
        QCOMPARE(t.text("Purchase"), QStringLiteral("&Purchase"));
        QCOMPARE(t.text("BetUp"), QStringLiteral("Bet &Up"));
        QCOMPARE(t.text("BetDn"), QStringLiteral("Bet D&n"));
        QCOMPARE(t.text("Help"), QStringLiteral("&Help"));
        QCOMPARE(t.text("Exit"), QStringLiteral("E&xit"));
        QCOMPARE(t.text("POption0"), QStringLiteral("$1,000.00"));
        QCOMPARE(t.text("POption7"), QStringLiteral("$1.00"));
        QVERIFY(t.find<QRadioButton>("POption4")->isChecked());
        for (int p = 0; p < 5; ++p) {
            QCOMPARE(t.picture(p), QStringLiteral("bb.gif"));
            QCOMPARE(t.text(QStringLiteral("Card%1Ind").arg(p)), QString());
        }
    }
}

// The board's buttons reach the play and its boxes show the outcome; Help in the middle of the
// hand leaves it alone. The captions and money of each step are the play tests' part.
void BoardPlayTest::clicksPlayAHandToAFlush() {
    BoardFixture t(GameId::JacksOrBetter, 0.0f, 1.0f);
    t.buy(4);
    t.script("2h 5h 9h Jh Kd");
    t.click("DrawDeal");
    QCOMPARE(t.text("DrawDeal"), QStringLiteral("D&raw"));
    QVERIFY(!t.find("Exit")->isEnabled());
    for (int p = 0; p < 4; ++p) {
        t.click(QStringLiteral("Card%1").arg(p));
    }
    QString opened;
    answerModal([&](QWidget& help) {
        opened = help.objectName();
        clickIn(help, "Command1");
    });
    t.click("Help");
    QCOMPARE(opened, QStringLiteral("frmHelp"));
    QCOMPARE(t.text("Card3Ind"), QStringLiteral("Hold"));
    t.script("Ks Ks Ks Ks 3h");
    t.click("DrawDeal");
    QCOMPARE(t.text("Output2"), QStringLiteral("Flush"));
    QCOMPARE(t.text("Win"), QStringLiteral("$5.00"));
    QCOMPARE(t.text("Credit"), QStringLiteral("$24.00"));
    const auto* bell = t.board->findChild<Bell*>("MMControl1");
    QVERIFY(bell != nullptr);
    QCOMPARE(bell->commands(), (QStringList{"Open", "Play", "Prev"}));
}

void BoardPlayTest::picturesFollowTheBoard_data() {
    QTest::addColumn<GameId>("game");
    QTest::addColumn<QString>("deal");
    QTest::addColumn<QStringList>("pictures");
    QTest::newRow("TT") << GameId::TreasureTrips << QStringLiteral("3s Jk 2c 3c 2d")
                        << QStringList{"41T.gif", "52.gif", "1.gif", "2T.gif", "14.gif"};
    QTest::newRow("DW") << GameId::DeucesWild << QStringLiteral("3s 2h 2c 3c 2d")
                        << QStringList{"41.gif", "27W.gif", "1W.gif", "2.gif", "14W.gif"};
    QTest::newRow("JB") << GameId::JacksOrBetter << QStringLiteral("3s 2h 2c 3c 2d")
                        << QStringList{"41.gif", "27.gif", "1.gif", "2.gif", "14.gif"};
}

void BoardPlayTest::picturesFollowTheBoard() {
    QFETCH(GameId, game);
    QFETCH(QString, deal);
    QFETCH(QStringList, pictures);
    BoardFixture t(game, 5.0f);
    t.script(deal.toLatin1().constData());
    t.click("DrawDeal");
    for (int p = 0; p < 5; ++p) {
        QCOMPARE(t.picture(p), pictures[p]);
    }
}

// Stand on a flush opens the Double Up window; the board pays the factor it leaves.
void BoardPlayTest::doubleUpWinIsPaid() {
    BoardFixture t(GameId::JacksOrBetter, 0.0f, 1.0f, true);
    t.buy(4);
    t.script("2h 5h 9h Jh Kh");
    t.click("DrawDeal");
    t.click("Stand");
    QCOMPARE(t.text("Stand"), QStringLiteral("&Double      Up"));
    t.random.pushIndex(4, 52); // a Five
    QString opened;
    answerModal([&](QWidget& dup) {
        opened = dup.objectName();
        clickIn(dup, "Low");
        clickIn(dup, "RetBtn");
    });
    t.click("Stand");
    QCOMPARE(opened, QStringLiteral("frmDup"));
    QCOMPARE(t.text("Win"), QStringLiteral("$10.00"));
    QCOMPARE(t.text("Credit"), QStringLiteral("$29.00"));
}

// A bonus hand opens the Treasure Hunt window; the board pays the bonus it leaves.
void BoardPlayTest::treasureHuntChestIsPaid() {
    BoardFixture t(GameId::TreasureTrips, 0.0f, 1.0f, true);
    t.buy(4);
    t.script("3s 3d 3h Jk Kd");
    t.click("DrawDeal");
    t.random.push(0.35); // factor 12
    QString opened;
    answerModal([&](QWidget& hunt) {
        opened = hunt.objectName();
        clickIn(hunt, "Tr2");
        clickIn(hunt, "TClose");
    });
    t.click("Stand");
    QCOMPARE(opened, QStringLiteral("TrTrip"));
    QCOMPARE(t.text("Win"), QStringLiteral("$27.00"));
}

// Stand before a deal cashes out; the bet buttons change the bet and the pay boxes follow.
void BoardPlayTest::cashOutAndBetButtons() {
    BoardFixture t(GameId::DeucesWild, 9.75f);
    t.buy(7);
    QCOMPARE(t.text("TotPurchased"), QStringLiteral("$1.00"));
    t.click("Stand");
    QCOMPARE(t.text("Credit"), QStringLiteral("$0.00"));
    QCOMPARE(t.text("TotWinGame"), QStringLiteral("$10.75"));
    QCOMPARE(t.text("ProfLoss"), QStringLiteral("9.75"));
    t.click("BetUp");
    t.click("BetUp");
    t.click("BetDn");
    QCOMPARE(t.text("Bet"), QStringLiteral("$0.50"));
    QCOMPARE(t.text("NRoyal"), QStringLiteral("$125.00"));
}

void BoardPlayTest::missingPicturesAreToldOnce() {
    const QString home = QDir::currentPath();
    QTemporaryDir empty;
    QVERIFY(QDir::setCurrent(empty.path()));
    {
        BoardFixture t(GameId::JacksOrBetter, 10.0f);
        QTRY_VERIFY(t.board->findChild<QMessageBox*>("MissingPictures") != nullptr);
        auto* box = t.board->findChild<QMessageBox*>("MissingPictures");
        QVERIFY(box->text().contains("bb.gif"));
        box->close();
        QCoreApplication::processEvents();
        t.script("Jc Jd 9h 4s 2d");
        t.click("DrawDeal");
        QCoreApplication::processEvents();
        for (const QMessageBox* other : t.board->findChildren<QMessageBox*>()) {
            QVERIFY(!other->isVisible());
        }
        QCOMPARE(t.state.DrawPhase, 1);
    }
    QVERIFY(QDir::setCurrent(home));
}

QTEST_MAIN(BoardPlayTest)
#include "board_play_test.moc"
