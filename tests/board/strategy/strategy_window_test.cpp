// The Strategy window: the best hold first with its exact return, dollars that follow the bet,
// trainer mode's count of weaker holds and their cost, the game's figures once worked out, an
// edited pay table with the board's table one click away, and the risk of ruin and the goals of a
// session.

// Standard library
#include <algorithm>

// Qt
#include <QAbstractAxis>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineSeries>
#include <QPushButton>
#include <QTableWidget>
#include <QValueAxis>
#include <QtTest>

// Marivale
#include "board/strategy/game_figures.h"
#include "board/strategy/hold_table.h"
#include "board/strategy/strategy_window.h"
#include "engine/card.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/risk_of_ruin.h"
#include "engine/odds/session_goal.h"
#include "state/game_state.h"
#include "tests/support/hand_text.h"

using namespace marivale;

namespace {

// Building a game's tables takes a moment, much longer in a debug or sanitizer build.
constexpr int kTablesTimeoutMs = 120'000;

// A Strategy window over its own state, with a hand dealt at a bet.
struct Strategy {
    GameState state{};
    StrategyWindow window;

    explicit Strategy(GameId game) : window(game, state) {}

    void deal(const char* cards, float bet) {
        state.BetAmount = bet;
        testing::putHand(state, cards);
        window.handDealt();
    }
    bool waitForHolds() {
        return QTest::qWaitFor([this] { return window.handOdds().has_value(); }, kTablesTimeoutMs);
    }
    QTableWidget* holds() { return window.findChild<QTableWidget*>("Holds"); }
    QString cell(int row, int column) { return holds()->item(row, column)->text(); }
    unsigned heldOfRow(int row) {
        return holds()->item(row, HoldTable::kRankColumn)->data(HoldTable::kHeldRole).toUInt();
    }
    QString label(const char* name) { return window.findChild<QLabel*>(name)->text(); }
    void trainer(bool on) { window.findChild<QCheckBox*>("Trainer")->setChecked(on); }
    QDoubleSpinBox* pay(int code) {
        return window.findChild<QDoubleSpinBox*>(QStringLiteral("Pay%1").arg(code));
    }
    bool waitForGame() {
        return QTest::qWaitFor([this] { return window.gameFiguresReady(); }, kTablesTimeoutMs);
    }
    bool waitForRisk() {
        return QTest::qWaitFor([this] { return window.riskReady(); }, kTablesTimeoutMs);
    }
};

// 9/6 Jacks or Better from the Royal Flush (code 9) down.
constexpr std::array<double, 9> kNineSix{800, 50, 25, 9, 6, 4, 3, 2, 1};

} // namespace

class StrategyWindowTest : public QObject {
    Q_OBJECT
private slots:
    // Every figure must read the same under a desktop locale that writes numbers otherwise.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void bestHoldFirstWithItsExactReturn_data();
    void bestHoldFirstWithItsExactReturn();
    void trainerCountsWeakerHoldsAndTheirCost();
    void toolWindowShowsNoHoldsForAHandThatIsNoDeal();
    void gameFiguresShowTheReturnOnceWorkedOut();
    void editedPayTableShowsItsFiguresUntilTheBoardTableComesBack();
    void riskOfRuinFollowsTheBankrollHandsAndBet();
    void typedNumbersAreTakenAsMeantOrRefusedAloud();
    void escapeClosesTheWindow();
    void sessionGoalsFollowTheBankrollAndTheirUnit();
};

void StrategyWindowTest::bestHoldFirstWithItsExactReturn_data() {
    QTest::addColumn<int>("game");
    QTest::addColumn<QString>("cards");
    QTest::addColumn<float>("bet");
    QTest::addColumn<unsigned>("best");
    QTest::addColumn<QString>("bets");
    QTest::addColumn<QString>("dollars");

    // Four to a royal at 250/100/25/8/5/4/3/1/1: (250 + 8 * 5 + 3 * 4 + 12 * 1) / 47 bets.
    QTest::newRow("Jacks, four to a royal")
        << int(GameId::JacksOrBetter) << "2c As Ks Qs Js" << 1.0f << 0b11110u << "6.6809"
        << "$6.68";
#ifdef MARIVALE_ODDS_OPTIMISED
    // Another game's own tables: four deuces pay 200 whatever the fifth card, so keeping them
    // ties with standing. It takes tens of seconds to build in a sanitizer build.
    QTest::newRow("Deuces, four deuces")
        << int(GameId::DeucesWild) << "2c 2d 2h 2s 7c" << 0.25f << 0b01111u << "200.0000"
        << "$50.00";
#endif
}

void StrategyWindowTest::bestHoldFirstWithItsExactReturn() {
    QFETCH(int, game);
    QFETCH(QString, cards);
    QFETCH(float, bet);
    QFETCH(unsigned, best);
    QFETCH(QString, bets);
    QFETCH(QString, dollars);

    Strategy strategy(static_cast<GameId>(game));
    strategy.deal(cards.toLatin1().constData(), bet);
    QVERIFY(strategy.waitForHolds());
    QCOMPARE(strategy.heldOfRow(0), best);
    QCOMPARE(strategy.cell(0, HoldTable::kRankColumn), QStringLiteral("Best"));
    QCOMPARE(strategy.cell(0, HoldTable::kBetsColumn), bets);
    QCOMPARE(strategy.cell(0, HoldTable::kDollarsColumn), dollars);
    QCOMPARE(strategy.holds()->horizontalHeaderItem(HoldTable::kFirstCardColumn)->text(),
             QStringLiteral("2\u2663"));
    QCOMPARE(strategy.holds()->rowCount(), 32);
    QCOMPARE(strategy.cell(1, HoldTable::kRankColumn), QStringLiteral("2"));
}

void StrategyWindowTest::trainerCountsWeakerHoldsAndTheirCost() {
    Strategy strategy(GameId::JacksOrBetter);
    // A new bet after the deal leaves the hand on show at its own bet; with the trainer off a
    // weak hold is not judged.
    strategy.deal("2c As Ks Qs Js", 1.0f);
    QVERIFY(strategy.waitForHolds());
    strategy.state.BetAmount = 5.0f;
    strategy.window.betChanged();
    QCOMPARE(strategy.cell(0, HoldTable::kDollarsColumn), QStringLiteral("$6.68"));
    QCOMPARE(strategy.cell(0, HoldTable::kBetsColumn), QStringLiteral("6.6809"));
    QVERIFY(strategy.label("Dealt").contains("$1.00"));
    strategy.window.handPlayed({true, true, true, true, true});
    QVERIFY(strategy.label("TrainerVerdict").isEmpty());
    strategy.trainer(true);
    QCOMPARE(strategy.label("TrainerTally"), QStringLiteral("Mistakes: 0   Cost: $0.00"));

    // Standing on four to a royal and a Two: nothing (0 bets) instead of 314/47. The verdict
    // shows it and goes out to the statistics, which keep the tally.
    QSignalSpy judged(&strategy.window, &StrategyWindow::holdJudged);
    strategy.deal("2c As Ks Qs Js", 1.0f);
    QVERIFY(strategy.waitForHolds());
    strategy.window.handPlayed({true, true, true, true, true});
    QVERIFY(strategy.label("TrainerVerdict")
                .startsWith("<b>Mistake:</b> you held 5 cards, 4 high cards ("));
    QVERIFY(strategy.label("TrainerVerdict")
                .contains("the chart says 4 to a Royal Flush, 1 gap, 4 high cards ("));
    QVERIFY(strategy.label("TrainerVerdict").endsWith("It cost $6.68."));
    QCOMPARE(judged.count(), 1);
    QVERIFY(judged.at(0).at(0).value<HoldJudgement>().mistake);

    // The best hold is no mistake, and the next deal clears the verdict.
    strategy.deal("2c As Ks Qs Js", 1.0f);
    QVERIFY(strategy.label("TrainerVerdict").isEmpty());
    strategy.window.handPlayed({false, true, true, true, true});
    QVERIFY(strategy.label("TrainerVerdict").startsWith("Best hold played"));
    QCOMPARE(judged.count(), 2);
    strategy.window.showTrainerTally({.judged = 2, .pending = 0, .mistakes = 1, .cost = 6.68f});
    QCOMPARE(strategy.label("TrainerTally"), QStringLiteral("Mistakes: 1   Cost: $6.68"));
}

void StrategyWindowTest::toolWindowShowsNoHoldsForAHandThatIsNoDeal() {
    Strategy strategy(GameId::JacksOrBetter);
    QCOMPARE(strategy.window.objectName(), QStringLiteral("Strategy"));
    QCOMPARE(strategy.window.windowTitle(), QStringLiteral("Strategy"));
    QVERIFY(strategy.window.windowFlags().testFlag(Qt::Tool));
    QCOMPARE(strategy.window.findChild<QCheckBox*>("Trainer")->text(),
             QStringLiteral("Trainer mode"));
    QVERIFY(!strategy.window.findChild<QCheckBox*>("Trainer")->isChecked());
    strategy.trainer(true);
    strategy.state.BetAmount = 1.0f;
    strategy.state.Hand = {}; // five Aces of clubs: not a deal
    strategy.window.handDealt();
    strategy.window.handPlayed({true, false, false, false, false});
    QVERIFY(!strategy.window.handOdds());
    QVERIFY(strategy.holds()->item(0, HoldTable::kBetsColumn) == nullptr);
    QVERIFY(strategy.label("Dealt").startsWith("Deal a hand"));
}

void StrategyWindowTest::gameFiguresShowTheReturnOnceWorkedOut() {
#ifndef MARIVALE_ODDS_OPTIMISED
    QSKIP("a whole game: optimised builds only");
#endif
    Strategy strategy(GameId::JokerWild);
    QVERIFY(strategy.label("GameReturn").contains(QStringLiteral("computing\u2026")));
    QVERIFY(QTest::qWaitFor([&] { return strategy.window.gameFiguresReady(); }, kTablesTimeoutMs));
    QVERIFY(strategy.label("GameReturn").contains("81.4339%"));
    QCOMPARE(strategy.label("GameVariance"),
             QStringLiteral("Variance of a hand: <b>10.0341</b> bets\u00b2 &nbsp; standard "
                            "deviation: <b>3.1677</b> bets"));
    auto* hits = strategy.window.findChild<QTableWidget*>("HitFrequencies");
    QCOMPARE(hits->item(0, 0)->text(), QStringLiteral("Five of a Kind"));
    QCOMPARE(strategy.pay(9)->text(), QStringLiteral("\u00d7200.00"));

    // A second window of the same game shows the kept figures at once.
    Strategy again(GameId::JokerWild);
    QVERIFY(again.window.gameFiguresReady());
}

void StrategyWindowTest::editedPayTableShowsItsFiguresUntilTheBoardTableComesBack() {
#ifndef MARIVALE_ODDS_OPTIMISED
    QSKIP("whole games: optimised builds only");
#endif
    Strategy strategy(GameId::JacksOrBetter);
    auto* boardTable = strategy.window.findChild<QPushButton*>("BoardTable");
    QCOMPARE(strategy.label("PayTableNote"), QStringLiteral("The board's pay table."));
    QVERIFY(!boardTable->isEnabled());
    QVERIFY(strategy.waitForGame());
    strategy.trainer(true);

    for (int code = 9; code >= 1; --code) {
        strategy.pay(code)->setValue(kNineSix[9 - code]);
    }
    // Typed by hand, 9/6 is known by its name.
    auto* choice = strategy.window.findChild<QComboBox*>("PayTableChoice");
    QVERIFY(strategy.window.payTableEdited());
    QVERIFY(strategy.label("PayTableNote").contains("9/6 Jacks or Better"));
    QCOMPARE(choice->currentText(), QStringLiteral("9/6 Jacks or Better"));
    QVERIFY(boardTable->isEnabled());
    QVERIFY(strategy.waitForGame());
    QVERIFY(strategy.label("GameReturn").contains("99.5439%"));
    auto* hits = strategy.window.findChild<QTableWidget*>("HitFrequencies");
    QCOMPARE(hits->item(8, GameFigures::kFrequencyColumn)->text(), QStringLiteral("21.4585%"));

    // Four to a royal under 9/6: (800 + 8 * 6 + 3 * 4 + 12) / 47 bets on show; the trainer
    // still judges by the board's table, where standing on it costs 314 / 47 bets.
    strategy.deal("2c As Ks Qs Js", 1.0f);
    QVERIFY(strategy.waitForHolds());
    QCOMPARE(strategy.cell(0, HoldTable::kBetsColumn), QStringLiteral("18.5532"));
    strategy.window.handPlayed({true, true, true, true, true});
    QVERIFY(strategy.label("TrainerVerdict").startsWith("By the board's pay table: "));
    QVERIFY(strategy.label("TrainerVerdict").contains("$6.68"));

    // A huge pay's figures wrap: the window needs no more room than before.
    const int width = strategy.window.layout()->minimumSize().width();
    strategy.pay(9)->setValue(99999.0);
    QVERIFY(strategy.waitForGame());
    QVERIFY(!strategy.label("GameReturn").contains("computing"));
    QVERIFY(strategy.window.layout()->minimumSize().width() <= width);
    strategy.pay(9)->setValue(800.0);

    // The next well-known table is one key away; a pay of its own makes it edited by hand.
    QTest::keyClick(choice, Qt::Key_Down);
    QCOMPARE(strategy.pay(6)->value(), 8.0);
    QVERIFY(strategy.waitForGame());
    QVERIFY(strategy.label("GameReturn").contains("97.2984%"));
    strategy.pay(1)->setValue(2.0);
    QCOMPARE(choice->currentText(), QStringLiteral("Edited by hand"));
    QVERIFY(strategy.label("PayTableNote").contains("Edited pay table"));

    QTest::mouseClick(boardTable, Qt::LeftButton);
    QVERIFY(!strategy.window.payTableEdited());
    QCOMPARE(choice->currentText(), QStringLiteral("The board's table"));
    QCOMPARE(choice->count(), 3);
    QCOMPARE(strategy.label("PayTableNote"), QStringLiteral("The board's pay table."));
    QVERIFY(!boardTable->isEnabled());
    QCOMPARE(strategy.pay(9)->value(), 250.0);
    QVERIFY(strategy.waitForGame());
    QVERIFY(strategy.label("GameReturn").contains("83.7875%"));
    QCOMPARE(strategy.cell(0, HoldTable::kBetsColumn), QStringLiteral("6.6809"));
}

void StrategyWindowTest::riskOfRuinFollowsTheBankrollHandsAndBet() {
#ifndef MARIVALE_ODDS_OPTIMISED
    QSKIP("a whole game: optimised builds only");
#endif
    // The board's own Jacks or Better table at a dollar, from 160 bets over 1,600 hands.
    Strategy strategy(GameId::JacksOrBetter);
    strategy.state.BetAmount = 1.0f;
    strategy.window.betChanged();
    QVERIFY(strategy.waitForRisk());
    const auto scale = odds::ownPayScale(GameId::JacksOrBetter);
    const auto game = odds::analyzeGame(odds::DrawTables::forGame(GameId::JacksOrBetter), scale);
    const auto payouts = odds::payoutDistribution(*game, scale);
    const auto session = *odds::ruinCurve(payouts, 1600);
    const auto percent = [](double risk) {
        return QString::number(100.0 * risk, 'f', 4) + '%';
    };
    QCOMPARE(strategy.label("RiskOfRuin"),
             QStringLiteral("Risk of ruin: <b>%1</b> (160 bets of $1.00 over 1,600 hands)")
                 .arg(percent(session.riskAt(160))));
    QVERIFY(strategy.label("RiskTargets")
                .startsWith(QStringLiteral("Bankroll for 1% risk: <b>$%1.00</b>")
                                .arg(session.bankrollFor(0.01))));
    auto* chart = strategy.window.findChild<QChartView*>("RiskChart");
    const auto* line = qobject_cast<QLineSeries*>(chart->chart()->series().front());
    QVERIFY(line->count() > 10);
    QCOMPARE(line->at(0).y(), 100.0);

    // Half a bet covers nothing; at a quarter a bet the same dollars are four times the bets.
    auto* bankroll = strategy.window.findChild<QDoubleSpinBox*>("Bankroll");
    bankroll->setValue(0.5);
    QVERIFY(strategy.label("RiskOfRuin").contains("<b>100.0000%</b>"));
    bankroll->setValue(40.0);
    strategy.state.BetAmount = 0.25f;
    strategy.window.betChanged();
    QVERIFY(strategy.label("RiskOfRuin").contains(percent(session.riskAt(160))));
    // The largest bankroll counts its bets in full and stretches the chart no further than twice
    // the 0.1% risk.
    bankroll->setValue(10'000'000.0);
    QVERIFY(strategy.label("RiskOfRuin").contains("(40,000,000 bets of $0.25"));
    const auto* dollars = qobject_cast<QValueAxis*>(chart->chart()->axes(Qt::Horizontal).front());
    QVERIFY(dollars->max() <= 4.0 * session.bankrollFor(0.001) * 0.25); // with its nice numbers
    bankroll->setValue(40.0);

    // Fewer hands: a new curve.
    // While it is worked out the chart shows no axes, never a scale of nothing.
    strategy.window.findChild<QDoubleSpinBox*>("Hands")->setValue(100);
    QVERIFY(strategy.label("RiskOfRuin").contains(QStringLiteral("computing")));
    const auto axes = chart->chart()->axes();
    QVERIFY(
        std::none_of(axes.begin(), axes.end(), [](QAbstractAxis* a) { return a->isVisible(); }));
    QVERIFY(strategy.waitForRisk());
    QVERIFY(std::all_of(axes.begin(), axes.end(), [](QAbstractAxis* a) { return a->isVisible(); }));
    QCOMPARE(strategy.label("RiskOfRuin"),
             QStringLiteral("Risk of ruin: <b>%1</b> (160 bets of $0.25 over 100 hands)")
                 .arg(percent(odds::ruinCurve(payouts, 100)->riskAt(160))));
}

// What a player types is taken as meant in either convention, never multiplied; a number out of
// range or no number at all is refused with a note, and the box keeps its value.
void StrategyWindowTest::typedNumbersAreTakenAsMeantOrRefusedAloud() {
    Strategy strategy(GameId::JacksOrBetter);
    strategy.state.BetAmount = 0.25f;
    strategy.window.betChanged();
    auto* bankroll = strategy.window.findChild<QDoubleSpinBox*>("Bankroll");
    auto* hands = strategy.window.findChild<QDoubleSpinBox*>("Hands");
    QCOMPARE(bankroll->text(), QStringLiteral("$40.00"));
    QCOMPARE(hands->text(), QStringLiteral("1,600"));
    QCOMPARE(strategy.pay(8)->text(), QStringLiteral("\u00d7100.00"));
    const auto type = [](QDoubleSpinBox* box, const QString& text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    };
    struct Typed {
        QDoubleSpinBox* box;
        const char* text;
        double value;
    };
    const std::array<Typed, 5> taken{{
        {strategy.pay(1), "8.5", 8.5},
        {strategy.pay(2), "2,5", 2.5},
        {bankroll, "40.5", 40.5},
        {bankroll, "1,250", 1250.0},
        {hands, "2,000", 2000.0},
    }};
    for (const Typed& t : taken) {
        type(t.box, QString::fromUtf8(t.text));
        QCOMPARE(t.box->value(), t.value);
    }
    QVERIFY(strategy.window.findChild<QLabel*>("BankrollNote")->isHidden());

    struct Refused {
        QDoubleSpinBox* box;
        const char* text;
        const char* note;
        const char* noteName;
    };
    const std::array<Refused, 3> refused{{
        {hands, "-5", "\u201c-5\u201d is not a number of hands from 1 to 10,000.", "BankrollNote"},
        {bankroll, "99999999999",
         "\u201c99999999999\u201d is not a bankroll from $0.00 to $10,000,000.00.", "BankrollNote"},
        {strategy.pay(3), "abc", "\u201cabc\u201d is not a multiplier from 0 to 100,000.",
         "PayNote"},
    }};
    for (const Refused& r : refused) {
        const double before = r.box->value();
        type(r.box, QString::fromUtf8(r.text));
        QCOMPARE(r.box->value(), before);
        QCOMPARE(strategy.label(r.noteName), QString::fromUtf8(r.note));
        QVERIFY(!strategy.window.findChild<QLabel*>(r.noteName)->isHidden());
    }
}

void StrategyWindowTest::escapeClosesTheWindow() {
    Strategy strategy(GameId::DeucesWild);
    strategy.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strategy.window));
    QTest::keyClick(&strategy.window, Qt::Key_Escape);
    QVERIFY(!strategy.window.isVisible());
}

void StrategyWindowTest::sessionGoalsFollowTheBankrollAndTheirUnit() {
#ifndef MARIVALE_ODDS_OPTIMISED
    QSKIP("a whole game: optimised builds only");
#endif
    // 160 bets of a quarter over 1,600 hands, a goal of 100 bets and a stop-loss of 160.
    Strategy strategy(GameId::JacksOrBetter);
    strategy.state.BetAmount = 0.25f;
    strategy.window.betChanged();
    QCOMPARE(strategy.window.findChild<QGroupBox*>("SessionGoals")->title(), "Session goals");
    const auto ready = [&] {
        return !strategy.label("GoalOdds").contains("computing\u2026");
    };
    QVERIFY(QTest::qWaitFor(ready, kTablesTimeoutMs));
    const auto scale = odds::ownPayScale(GameId::JacksOrBetter);
    const auto game = odds::analyzeGame(odds::DrawTables::forGame(GameId::JacksOrBetter), scale);
    const auto payouts = odds::payoutDistribution(*game, scale);
    const auto session = *odds::sessionGoalOdds(payouts, 160, 100, 160, 1600);
    const auto percent = [](double chance) {
        return QString::number(100.0 * chance, 'f', 4) + '%';
    };
    const QString text =
        QStringLiteral("Win goal of $25.00 first: <b>%1</b><br>Stop-loss of $40.00 "
                       "or ruin first: <b>%2</b><br>Neither in 1,600 hands: "
                       "<b>%3</b><br>Hands played on average: <b>%4</b>")
            .arg(percent(session.goal), percent(session.stopLoss), percent(session.neither))
            .arg(session.expectedHands, 0, 'f', 1);
    QCOMPARE(strategy.label("GoalOdds"), text);

    // In dollars the amounts keep their worth; a smaller bankroll asks again.
    auto* goal = strategy.window.findChild<QDoubleSpinBox*>("WinGoal");
    strategy.window.findChild<QComboBox*>("GoalUnit")->setCurrentIndex(1);
    QCOMPARE(goal->text(), QStringLiteral("$25.00"));
    QVERIFY(QTest::qWaitFor(ready, kTablesTimeoutMs));
    QCOMPARE(strategy.label("GoalOdds"), text);
    goal->setValue(2500.0);
    QCOMPARE(goal->text(), QStringLiteral("$2,500.00"));
    strategy.window.findChild<QDoubleSpinBox*>("Bankroll")->setValue(10.0);
    QVERIFY(strategy.label("GoalOdds").contains("computing"));
    QVERIFY(QTest::qWaitFor(ready, kTablesTimeoutMs));
    QVERIFY(strategy.label("GoalOdds")
                .contains("or ruin first: <b>" +
                          percent(odds::sessionGoalOdds(payouts, 40, 1e4, 160, 1600)->stopLoss)));
}

QTEST_MAIN(StrategyWindowTest)
#include "strategy_window_test.moc"
