// The real board windows, driven by their controls: design, a whole hand on every path, the
// modal windows, money boxes with their patterns, and closing in the middle of a hand. The
// colours and fonts are the look test's part.

#include <QtTest>

// Standard library
#include <random>
#include <string_view>

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
    void refusedDealThenDrawToAFlush();
    void boxesShowTheState();
    void picturesFollowTheBoard_data();
    void picturesFollowTheBoard();
    void doubleUpWonAndLost();
    void treasureHuntPaysTheChest();
    void cashOutAndBetLimits();
    void closingMidHandFoldsTheVisit();
    void helpLeavesTheHandAlone();
    void missingPicturesAreToldOnce();
    void strategyWindowOnF2();

private:
    void designOf(GameId game, const QString& name, const QString& caption, const QString& title,
                  const QString& noteName, const QString& note, const char* const* boxes);
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
        designOf(d.game, d.name, d.caption, d.title, d.noteName, d.note,
                 boxes[static_cast<std::size_t>(d.game)]);
    }
}

void BoardPlayTest::designOf(GameId game, const QString& name, const QString& caption,
                             const QString& title, const QString& noteName, const QString& note,
                             const char* const* boxes) {
    BoardFixture t(game);
    QCOMPARE(t.board->objectName(), name);
    QCOMPARE(t.board->windowTitle(), caption);
    QCOMPARE(t.board->size(), QSize(632, 453));
    QCOMPARE(t.text("Label1"), title);
    if (noteName.isEmpty()) {
        QVERIFY(t.find("Label10") == nullptr && t.find("Label31") == nullptr);
    } else {
        QCOMPARE(t.text(noteName), note);
    }
    // Each box shows its row's amount at the bet (the amounts are the pay table tests' part).
    for (int row = 0; row < kPayRows; ++row) {
        const PayRow& pay = payTable(game)[static_cast<std::size_t>(row)];
        QCOMPARE(t.text(QString::fromLatin1(boxes[row])),
                 QString::fromStdString(FormatMoney(t.state.*pay.field, pay.pattern)));
    }
    // The opening captions and boxes.
    QCOMPARE(t.text("DrawDeal"), QStringLiteral("&Deal"));
    QCOMPARE(t.text("Stand"), QStringLiteral("&Cash Out"));
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

// The board's buttons reach the play and its boxes show the outcome; the captions and money of
// each step are checked without a window by the play tests.
void BoardPlayTest::refusedDealThenDrawToAFlush() {
    BoardFixture t(GameId::JacksOrBetter, 0.0f, 1.0f);
    t.click("DrawDeal");
    QCOMPARE(t.text("Output2"), QStringLiteral("Not Enough Credits To Play"));
    t.buy(4);
    QCOMPARE(t.text("ProfLoss"), QStringLiteral("-$20.00"));
    t.script("2h 5h 9h Jh Kd");
    t.click("DrawDeal");
    QCOMPARE(t.text("DrawDeal"), QStringLiteral("D&raw"));
    QVERIFY(!t.find("Exit")->isEnabled());
    for (int p = 0; p < 4; ++p) {
        t.click(QStringLiteral("Card%1").arg(p));
    }
    QCOMPARE(t.text("Card3Ind"), QStringLiteral("Hold"));
    t.script("Ks Ks Ks Ks 3h");
    t.click("DrawDeal");
    QCOMPARE(t.text("Output2"), QStringLiteral("Flush"));
    QCOMPARE(t.text("Win"), QStringLiteral("$5.00"));
    QCOMPARE(t.text("Credit"), QStringLiteral("$24.00"));
    QCOMPARE(t.text("Card3Ind"), QString());
    const auto* bell = t.board->findChild<Bell*>("MMControl1");
    QVERIFY(bell != nullptr);
    QCOMPARE(bell->commands(), (QStringList{"Open", "Play", "Prev"}));
}

// Random clicks on a board: its money boxes always show the state the play keeps (the money
// rules themselves are checked by the play's own random test).
void BoardPlayTest::boxesShowTheState() {
    std::mt19937 pick(7);
    BoardFixture t(GameId::DeucesWild, 40.0f);
    const QStringList controls{"DrawDeal", "Stand", "Card0", "Card3", "BetUp", "BetDn", "Purchase"};
    for (int step = 0; step < 400; ++step) {
        auto* button =
            t.find<QAbstractButton>(controls[static_cast<int>(pick() % controls.size())]);
        if (button->isEnabled()) {
            button->click();
        }
        const auto shown = [&t](const char* box, float value, std::string_view pattern) {
            return t.text(box) == QString::fromStdString(FormatMoney(value, pattern));
        };
        QVERIFY2(shown("Credit", t.state.Credits, pattern::kCredit) &&
                     shown("Bet", t.state.BetAmount, pattern::kBet) &&
                     shown("TotPurchased", t.state.TotalPurchased, pattern::kStatistic),
                 qPrintable(QStringLiteral("step %1").arg(step)));
    }
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

void BoardPlayTest::doubleUpWonAndLost() {
    for (const bool win : {true, false}) {
        BoardFixture t(GameId::JacksOrBetter, 0.0f, 1.0f, true);
        t.buy(4);
        t.script("2h 5h 9h Jh Kh");
        t.click("DrawDeal");
        t.click("Stand");
        QCOMPARE(t.text("Stand"), QStringLiteral("&Double      Up"));
        QCOMPARE(t.text("DrawDeal"), QStringLiteral("&Take Score"));
        QCOMPARE(t.text("Output2"), QString());
        t.random.pushIndex(7, 52);  // an Eight is drawn again
        t.random.pushIndex(26, 52); // the Ace of suit 2
        t.random.pushIndex(4, 52);  // a Five
        QString retCaption;
        answerModal([&](QWidget& dup) {
            QCOMPARE(dup.objectName(), QStringLiteral("frmDup"));
            clickIn(dup, "High");
            clickIn(dup, win ? "Low" : "High");
            retCaption = dup.findChild<QAbstractButton*>("RetBtn")->text();
            clickIn(dup, "RetBtn");
        });
        t.click("Stand");
        QCOMPARE(retCaption,
                 win ? QStringLiteral("&Take Doubled Winnings") : QStringLiteral("Re&turn"));
        QCOMPARE(t.text("Win"), win ? QStringLiteral("$20.00") : QStringLiteral("$0.00"));
        QCOMPARE(t.text("Credit"), win ? QStringLiteral("$39.00") : QStringLiteral("$19.00"));
        QCOMPARE(t.text("Output2"), win ? QStringLiteral("Flush") : QString());
        QCOMPARE(t.picture(0), QStringLiteral("bb.gif"));
        QCOMPARE(t.state.DoubleUpFactor, 0);
        QCOMPARE(t.text("DrawDeal"), QStringLiteral("&Deal"));
    }
}

void BoardPlayTest::treasureHuntPaysTheChest() {
    BoardFixture t(GameId::TreasureTrips, 0.0f, 1.0f, true);
    t.buy(4);
    t.script("3s 3d 3h Jk Kd");
    t.click("DrawDeal");
    t.random.push(0.35); // factor 12
    QString shown;
    answerModal([&](QWidget& hunt) {
        QCOMPARE(hunt.objectName(), QStringLiteral("TrTrip"));
        QVERIFY(!hunt.findChild<QWidget*>("TClose")->isVisible());
        clickIn(hunt, "Tr2");
        shown = hunt.findChild<QLineEdit*>("TrPay")->text();
        clickIn(hunt, "TClose");
    });
    t.click("Stand");
    QCOMPARE(shown, QStringLiteral("$12.00"));
    QCOMPARE(t.text("Output2"), QStringLiteral("Four of a Kind"));
    QCOMPARE(t.text("Win"), QStringLiteral("$27.00"));
    QCOMPARE(t.text("Credit"), QStringLiteral("$46.00"));
    QCOMPARE(t.picture(4), QStringLiteral("bb.gif"));
    QCOMPARE(t.state.DrawPhase, 0);
}

void BoardPlayTest::cashOutAndBetLimits() {
    BoardFixture t(GameId::DeucesWild, 9.75f);
    t.click("Stand");
    QCOMPARE(t.text("Output2"), QStringLiteral("Credits Must Be > $10.00 to Cash Out"));
    t.buy(7);
    t.click("Stand");
    QCOMPARE(t.text("Credit"), QStringLiteral("$0.00"));
    QCOMPARE(t.text("TotWinGame"), QStringLiteral("$10.75"));
    QCOMPARE(t.text("ProfLoss"), QStringLiteral("9.75"));
    for (int i = 0; i < 20; ++i) {
        t.click("BetUp");
    }
    QCOMPARE(t.text("Bet"), QStringLiteral("$5.00"));
    QCOMPARE(t.text("NRoyal"), QStringLiteral("$1,250.00"));
    QCOMPARE(t.text("ThreeKind"), QStringLiteral("$5.00"));
    t.click("BetDn");
    QCOMPARE(t.text("Bet"), QStringLiteral("$4.75"));
}

void BoardPlayTest::closingMidHandFoldsTheVisit() {
    BoardFixture t(GameId::JokerWild, 30.0f, 1.0f, true);
    t.script("As Ad 9h 4s 2d");
    t.click("DrawDeal");
    t.click("Stand");
    QCOMPARE(t.state.DrawPhase, 2);
    t.board->close();
    QCOMPARE(t.state.NetWinLoss, 29.0f);
}

void BoardPlayTest::helpLeavesTheHandAlone() {
    BoardFixture t(GameId::JacksOrBetter, 10.0f);
    t.script("Jc Jd 9h 4s 2d");
    t.click("DrawDeal");
    t.click("Card1");
    QString opened;
    answerModal([&](QWidget& help) {
        opened = help.objectName();
        clickIn(help, "Command1");
    });
    t.click("Help");
    QCOMPARE(opened, QStringLiteral("frmHelp"));
    QCOMPARE(t.state.DrawPhase, 1);
    QCOMPARE(t.text("Card1Ind"), QStringLiteral("Hold"));
    QCOMPARE(t.state.Credits, 9.75f);
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

void BoardPlayTest::strategyWindowOnF2() {
    BoardFixture t(GameId::JacksOrBetter, 10.0f);
    QTest::keyClick(t.board.get(), Qt::Key_F2);
    auto* strategy = t.board->findChild<QWidget*>("Strategy");
    QVERIFY(strategy != nullptr);
    QVERIFY(strategy->isVisible());
    QTest::keyClick(t.board.get(), Qt::Key_F2);
    QVERIFY(!strategy->isVisible());
}

QTEST_MAIN(BoardPlayTest)
#include "board_play_test.moc"
