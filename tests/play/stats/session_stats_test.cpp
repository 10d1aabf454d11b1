// The statistics model fed by a real controller from scripted hands: the visit's and the run's
// counts, sums and returns, Double Up and the Treasure Hunt, the running result and marks, and
// the exact cost of the holds the player made.

#include <gtest/gtest.h>

// Marivale
#include "play/stats/history_csv.h"
#include "play/stats/session_stats.h"
#include "play/strategy/hold_judgement.h"
#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId DW = GameId::DeucesWild;
constexpr GameId TT = GameId::TreasureTrips;

TEST(Model, AVisitOfScriptedHands) {
    SessionStats stats;
    Table t(JB, 0.0f, 1.0f, &stats);
    t.buy(4);                                            // $20
    t.hand("2h 5h 9h Jh Kd", 0b01111, "Ks Ks Ks Ks 3h"); // flush: pays 5
    t.hand("2c 5d 9h Js Kd", 0x1f);                      // nothing
    t.state.DoubleUpEnabled = kTrue;
    t.hand("Jc Jd 9h 4s 2d", 0x1f); // jacks: pays 1, doubled to 4
    t.view.doubleUpPlay = [](GameState& s) {
        s.DoubleUpFactor = 4;
    };
    t.controller.standClicked();
    t.hand("Qc Qd 9h 4s 2d", 0x1f); // queens, lost in Double Up
    t.view.doubleUpPlay = [](GameState& s) {
        s.DoubleUpFactor = 0;
    };
    t.controller.standClicked();
    t.buy(7);                       // $1
    t.hand("Kc Kd 9h 4s 2d", 0x1f); // kings, score taken
    t.controller.drawDealClicked();
    t.controller.standClicked(); // cash out $26

    const Tally& v = stats.visit();
    EXPECT_EQ(v.hands, 5);
    EXPECT_EQ(v.drawn, 5);
    EXPECT_FLOAT_EQ(v.bet, 5.0f);
    EXPECT_FLOAT_EQ(v.paid, 10.0f);
    EXPECT_DOUBLE_EQ(*v.actualReturn(), 2.0);
    EXPECT_FLOAT_EQ(v.purchased, 21.0f);
    EXPECT_FLOAT_EQ(v.cashedOut, 26.0f);
    EXPECT_EQ(v.codes, (std::array<int, 11>{1, 3, 0, 0, 0, 1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(v.doubleUp.offered, 3);
    EXPECT_EQ(v.doubleUp.played, 2);
    EXPECT_EQ(v.doubleUp.won, 1);
    EXPECT_EQ(v.doubleUp.highestFactor, 4);

    EXPECT_EQ(stats.visitResults(), (std::vector<double>{4, 3, 6, 5, 5})); // in $1 bets
    ASSERT_EQ(stats.visitMarks().size(), 3u);
    const std::vector<CreditMark>& m = stats.visitMarks();
    EXPECT_EQ(m[0].kind, CreditMarkKind::Purchase);
    EXPECT_EQ(m[0].afterHands, 0);
    EXPECT_FLOAT_EQ(m[0].credits, 20.0f);
    EXPECT_EQ(m[1].afterHands, 4);
    EXPECT_FLOAT_EQ(m[1].credits, 26.0f);
    EXPECT_EQ(m[2].kind, CreditMarkKind::CashOut);
    EXPECT_EQ(m[2].afterHands, 5);
    EXPECT_FLOAT_EQ(m[2].amount, 26.0f);

    const std::vector<HandRecord>& h = stats.history();
    ASSERT_EQ(h.size(), 5u);
    EXPECT_EQ(h[0].holds, 0b01111u);
    EXPECT_EQ(h[0].finalCards, (HandCards{27, 30, 34, 36, 28}));
    EXPECT_EQ(h[0].name, "Flush");
    EXPECT_EQ(h[1].name, "");
    EXPECT_EQ(h[2].doubleUp, DoubleUpResult::Won);
    EXPECT_FLOAT_EQ(h[2].paid, 4.0f);
    EXPECT_EQ(h[3].doubleUp, DoubleUpResult::Lost);
    EXPECT_FLOAT_EQ(h[3].paid, 0.0f);
    EXPECT_EQ(h[4].doubleUp, DoubleUpResult::TookScore);
    EXPECT_EQ(h[4].number, 5);
    EXPECT_TRUE(h[4].finished);
}

// The run adds its visits up; each visit starts a fresh tally and chart.
TEST(Model, TheRunOutlivesItsVisits) {
    SessionStats stats;
    {
        Table jacks(JB, 0.0f, 1.0f, &stats);
        jacks.buy(4);
        jacks.hand("2h 5h 9h Jh Kd", 0b01111, "Ks Ks Ks Ks 3h");
        jacks.hand("2c 5d 9h Js Kd", 0x1f);
        jacks.controller.unload();
    }
    Table deuces(DW, 0.0f, 0.25f, &stats);
    deuces.buy(4);
    deuces.hand("3c 5d 9h Js Kd", 0x1f);
    deuces.hand("2c 2d 2h 2s 7c", 0x1f); // four deuces

    EXPECT_EQ(stats.visits(), 2);
    EXPECT_EQ(stats.visitGame(), DW);
    EXPECT_EQ(stats.visit().hands, 2);
    EXPECT_EQ(stats.visitResults().size(), 2u);
    EXPECT_EQ(stats.game(JB).hands, 2);
    EXPECT_FLOAT_EQ(stats.game(JB).cashedOut, 23.0f);
    const Tally run = stats.run();
    EXPECT_EQ(run.hands, 4);
    EXPECT_FLOAT_EQ(run.bet, 2.5f);
    EXPECT_FLOAT_EQ(run.paid, 5.0f + 50.0f);
    EXPECT_EQ(stats.history().back().visit, 2);
    EXPECT_EQ(stats.history().back().number, 4);

    // $2.00 bet on a 90% game and $0.50 on a 100% one: 92% expected.
    std::array<std::optional<double>, kGameCount> returns{};
    returns[static_cast<std::size_t>(JB)] = 0.9;
    EXPECT_EQ(expectedReturn(stats.games(), returns), std::nullopt);
    returns[static_cast<std::size_t>(DW)] = 1.0;
    EXPECT_DOUBLE_EQ(*expectedReturn(stats.games(), returns), 0.92);
}

// A refused deal or cash-out leaves no trace; a hand dealt is in play until closing the board
// abandons it.
TEST(Model, RefusalsAreSilentAndClosingAbandonsTheHand) {
    SessionStats stats;
    Table t(JB, 0.0f, 1.0f, &stats);
    t.controller.drawDealClicked();
    t.controller.standClicked();
    t.buy(4);
    t.script("2c 5d 9h Js Kd");
    t.controller.drawDealClicked();
    const auto result = [&stats] {
        return historyCsv(stats.history()).find(",in play,") != std::string::npos;
    };
    EXPECT_TRUE(result()) << historyCsv(stats.history());
    t.controller.unload();
    EXPECT_FALSE(result());
    EXPECT_TRUE(stats.history()[0].abandoned);
    EXPECT_EQ(stats.visit().hands, 1);
    EXPECT_EQ(stats.visit().drawn, 0);
    EXPECT_FLOAT_EQ(stats.visit().bet, 1.0f);
    EXPECT_FLOAT_EQ(stats.visit().cashedOut, 19.0f);
    EXPECT_TRUE(stats.visitResults().empty());
    EXPECT_EQ(stats.visitMarks().size(), 1u); // the purchase
    ASSERT_EQ(stats.history().size(), 1u);
    EXPECT_FALSE(stats.history()[0].finished);
    EXPECT_FALSE(stats.history()[0].played);
    EXPECT_TRUE(stats.unjudged().empty());
}

// The bonus is told before the hand is settled, so that it counts with its hand.
TEST(Model, TreasureHuntFactors) {
    SessionStats stats;
    Table t(TT, 0.0f, 1.0f, &stats);
    t.buy(4);
    t.view.chests = {6};
    t.hand("3s 3d 3h 4c Kd", 0x1f);
    t.view.chests = {3, 3};
    t.hand("3s 3d 3h 4c Kd", 0x1f);
    EXPECT_EQ(stats.visit().bonuses, 2);
    EXPECT_EQ(stats.visitResults(), (std::vector<double>{6, 15}));
    EXPECT_DOUBLE_EQ(*stats.visit().averageBonusFactor(), 7.5);
    EXPECT_FLOAT_EQ(stats.history()[1].bonus, 9.0f);
    EXPECT_FLOAT_EQ(stats.visit().paid, 2.0f + 15.0f);
}

struct KnownCost {
    const char* dealt;
    unsigned holds;
    bool trainer;
    unsigned best;
    double lostBets; // best return minus the return of the hold made
};

// Own Jacks or Better table at a $0.25 bet. Standing on A K Q J of spades with the 2c gives up
// four to the royal: (250 + 8 flushes * 5 + 3 straights * 4 + 12 high pairs) / 47. Breaking a
// dealt royal for four to a straight flush keeps (100 + 7 * 5 + 6 * 4 + 9) / 47. Four Aces held
// with or without the kicker return 25 either way.
TEST(Costs, ExactCostOfEachHold) {
    const KnownCost known[] = {
        {"As Ks Qs Js 2c", 0x1f, true, 0b01111, 314.0 / 47.0},
        {"Tc Jc Qc Kc Ac", 0b01111, false, 0b11111, 250.0 - 168.0 / 47.0},
        {"Ac Ad Ah As 7c", 0b01111, true, 0b01111, 0.0},
    };
    SessionStats stats;
    Table t(JB, 0.0f, 0.25f, &stats);
    t.buy(4);
    for (const KnownCost& k : known) {
        stats.setTrainerMode(k.trainer);
        t.hand(k.dealt, k.holds, "2d 2d 2d 2d 3d");
    }
    EXPECT_EQ(stats.trainer(true).pending, 2);
    judgeAll(stats);
    for (std::size_t i = 0; i < std::size(known); ++i) {
        SCOPED_TRACE(known[i].dealt);
        const auto& judgement = stats.history()[i].judgement;
        ASSERT_TRUE(judgement.has_value());
        EXPECT_EQ(judgement->best, known[i].best);
        EXPECT_EQ(judgement->mistake, known[i].lostBets > 0.0);
        EXPECT_FLOAT_EQ(judgement->cost, static_cast<float>(known[i].lostBets) * 0.25f);
    }
    const TrainerSummary trainer = stats.trainer(true);
    EXPECT_EQ(trainer.judged, 2);
    EXPECT_EQ(trainer.pending, 0);
    EXPECT_EQ(trainer.mistakes, 1);
    EXPECT_FLOAT_EQ(trainer.cost, static_cast<float>(314.0 / 47.0) * 0.25f);
    EXPECT_TRUE(stats.unjudged().empty());
}

} // namespace
} // namespace marivale
