// The play of a hand: phases, captions, holds, draw and stand, Take Score, Double Up, the bonus.

#include <gtest/gtest.h>

#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId TT = GameId::TreasureTrips;

void expectPhaseZero(const Table& t) {
    EXPECT_EQ(t.state.DrawPhase, 0);
    EXPECT_EQ(t.view.text(Control::DrawDeal), "&Deal");
    EXPECT_EQ(t.view.text(Control::Stand), "&Cash Out");
    for (const Control c : {Control::Purchase, Control::BetUp, Control::BetDn, Control::Exit}) {
        EXPECT_TRUE(t.view.enabled(c));
    }
    for (int p = 0; p < 5; ++p) {
        EXPECT_EQ(t.view.text(holdMark(p)), "");
        EXPECT_EQ(t.state.Held[p], 0);
    }
}

TEST(Deal, RefusedWithoutEnoughCredits) {
    Table t(JB);
    const int backs = t.view.backsShown;
    t.controller.drawDealClicked();
    EXPECT_EQ(t.view.text(Control::Output2), "Not Enough Credits To Play");
    EXPECT_EQ(t.view.backsShown, backs + 1);
    EXPECT_EQ(t.state.DrawPhase, 0);
    EXPECT_EQ(t.view.text(Control::Credit), "$0.00");
}

TEST(Deal, CreditsEqualToTheBetAreEnough) {
    Table t(JB, 0.25f);
    t.script("2c 5d 9h Js Kd");
    t.controller.drawDealClicked();
    EXPECT_EQ(t.state.Credits, 0.0f);
    EXPECT_EQ(t.view.text(Control::Credit), "$0.00");
    EXPECT_EQ(t.state.DrawPhase, 1);
    EXPECT_EQ(t.view.text(Control::DrawDeal), "D&raw");
    EXPECT_EQ(t.view.text(Control::Stand), "&Stand");
    for (const Control c : {Control::Purchase, Control::BetUp, Control::BetDn, Control::Exit}) {
        EXPECT_FALSE(t.view.enabled(c));
    }
    EXPECT_TRUE(t.view.faceUp);
}

TEST(Holds, ToggleOnlyWhileCardsAreDealt) {
    Table t(JB);
    t.buy(4);
    t.controller.cardClicked(2);
    EXPECT_EQ(t.view.text(Control::Card2Ind), "");
    t.script("2c 5d 9h Js Kd");
    t.controller.drawDealClicked();
    t.controller.cardClicked(2);
    EXPECT_EQ(t.view.text(Control::Card2Ind), "Hold");
    EXPECT_EQ(t.state.Held[2], -1);
    t.controller.cardClicked(4);
    t.controller.cardClicked(2);
    EXPECT_EQ(t.view.text(Control::Card2Ind), "");
    EXPECT_EQ(t.state.Held[2], 0);
    EXPECT_EQ(t.state.Held[4], -1);
}

// Draw to a flush with Double Up off: named, rung once, paid, and the hand ends.
TEST(Draw, PaysAtOnceWithDoubleUpOff) {
    Table t(JB, 0.0f, 1.0f);
    t.buy(4);
    t.script("2h 5h 9h Jh Kd");
    t.controller.drawDealClicked();
    for (int p = 0; p < 4; ++p) {
        t.controller.cardClicked(p);
    }
    t.script("Ks Ks Ks Ks 3h"); // positions 0..3 are held and consume a draw each
    t.controller.drawDealClicked();
    EXPECT_EQ(t.state.HandRank, 5);
    EXPECT_EQ(t.view.text(Control::Output2), "Flush");
    EXPECT_EQ(t.view.bells,
              (std::vector<BellCommand>{BellCommand::Open, BellCommand::Play, BellCommand::Prev}));
    EXPECT_EQ(t.view.text(Control::Credit), "$24.00");
    EXPECT_EQ(t.view.text(Control::Win), "$5.00");
    EXPECT_EQ(t.view.lastHolds, (HandHolds{true, true, true, true, false}));
    expectPhaseZero(t);
}

TEST(Stand, OnANothingHandEndsQuietly) {
    Table t(JB);
    t.buy(4);
    t.script("2c 5d 9h Js Kd");
    t.controller.drawDealClicked();
    t.controller.cardClicked(1);
    t.controller.standClicked();
    EXPECT_EQ(t.state.HandRank, 0);
    EXPECT_EQ(t.view.text(Control::Output2), "");
    EXPECT_EQ(t.view.bells.size(), 1u);
    EXPECT_EQ(t.state.Credits, 19.75f);
    expectPhaseZero(t);
}

TEST(DoubleUp, OfferedForAPayingHandThenTakeScore) {
    Table t(JB);
    t.state.DoubleUpEnabled = -1;
    t.buy(4);
    t.script("Jc Jd 9h 4s 2d");
    t.controller.drawDealClicked();
    t.controller.cardClicked(3);
    t.controller.standClicked();
    EXPECT_EQ(t.state.DrawPhase, 2);
    EXPECT_EQ(t.view.text(Control::Stand), "&Double      Up");
    EXPECT_EQ(t.view.text(Control::DrawDeal), "&Take Score");
    EXPECT_EQ(t.view.text(Control::Card3Ind), "");
    EXPECT_FALSE(t.view.enabled(Control::Exit));
    EXPECT_EQ(t.view.text(Control::Output2), "");
    t.controller.cardClicked(0);
    EXPECT_EQ(t.view.text(Control::Card0Ind), "");
    t.controller.drawDealClicked();
    EXPECT_EQ(t.view.text(Control::Output2), "Pair of Jacks");
    EXPECT_EQ(t.view.text(Control::Win), "$0.25");
    EXPECT_EQ(t.state.Credits, 20.0f);
    expectPhaseZero(t);
}

struct DoubleUpCase {
    const char* what;
    int factor;
    float creditsAfter;
    const char* win;
    const char* name;
};

// A flush at $1.00 risked in Double Up: kept, doubled three times, or lost.
TEST(DoubleUp, PaysTheFactorReached) {
    const DoubleUpCase cases[] = {
        {"closed before a guess", 1, 24.0f, "$5.00", "Flush"},
        {"three correct guesses", 8, 59.0f, "$40.00", "Flush"},
        {"a wrong guess", 0, 19.0f, "$0.00", ""},
    };
    for (const DoubleUpCase& c : cases) {
        Table t(JB, 0.0f, 1.0f);
        t.state.DoubleUpEnabled = -1;
        t.buy(4);
        t.script("2h 5h 9h Jh Kh");
        t.controller.drawDealClicked();
        t.controller.standClicked();
        ASSERT_EQ(t.state.DrawPhase, 2) << c.what;
        t.view.doubleUpPlay = [f = c.factor](GameState& s) {
            s.DoubleUpFactor = static_cast<std::int16_t>(f);
        };
        t.controller.standClicked();
        EXPECT_EQ(t.view.doubleUps, 1) << c.what;
        EXPECT_FALSE(t.view.faceUp) << c.what;
        EXPECT_EQ(t.state.Credits, c.creditsAfter) << c.what;
        EXPECT_EQ(t.view.text(Control::Win), c.win) << c.what;
        EXPECT_EQ(t.view.text(Control::Output2), c.name) << c.what;
        EXPECT_EQ(t.state.DoubleUpFactor, 0) << c.what;
        expectPhaseZero(t);
        t.script("2c 5d 9h Js Kd");
        t.controller.drawDealClicked();
        EXPECT_EQ(t.view.text(Control::Last), c.win) << c.what;
    }
}

// Treasure Trips pays a bonus hand at once, even with Double Up on, then turns the cards over.
TEST(TreasureTrips, BonusHandIsSettledAtOnce) {
    for (const bool byDraw : {false, true}) {
        Table t(TT, 0.0f, 1.0f);
        t.state.DoubleUpEnabled = -1;
        t.buy(4);
        t.view.chests = {6};
        t.script(byDraw ? "3s 3d 9h 4c Kd" : "3s 3d 3h 4c Kd");
        t.controller.drawDealClicked();
        if (byDraw) {
            t.controller.cardClicked(0);
            t.controller.cardClicked(1);
            t.script("Qc Qd 3h 5c 8d");
            t.controller.drawDealClicked();
        } else {
            t.controller.standClicked();
        }
        EXPECT_EQ(t.view.bonusGames, 1);
        EXPECT_EQ(t.view.doubleUps, 0);
        EXPECT_EQ(t.view.text(Control::Output2), "Three of a Kind");
        EXPECT_EQ(t.view.text(Control::Win), "$7.00");
        EXPECT_EQ(t.state.Credits, 26.0f);
        EXPECT_FALSE(t.view.faceUp);
        expectPhaseZero(t);
    }
}

TEST(Phases, ClicksInAnUnknownPhaseDoNothing) {
    Table t(JB, 50.0f);
    t.state.DrawPhase = 7;
    t.controller.drawDealClicked();
    t.controller.standClicked();
    EXPECT_EQ(t.state.Credits, 50.0f);
    EXPECT_EQ(t.view.text(Control::Output2), "");
}

} // namespace
} // namespace marivale
