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
    // Positions 0..3 are held and consume a draw each.
    t.hand("2h 5h 9h Jh Kd", 0b01111, "Ks Ks Ks Ks 3h");
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

struct DoubleUpCase {
    const char* what;
    bool takeScore;
    int factor;
    float creditsAfter;
    const char* win;
    const char* name;
};

// A pair of Jacks at $1.00, stood on with a card held, waits with Double Up on; the score is
// taken, or it is risked in Double Up and kept, doubled three times, or lost.
TEST(DoubleUp, PaysTheScoreOrTheFactorReached) {
    const DoubleUpCase cases[] = {
        {"score taken", true, 0, 20.0f, "$1.00", "Pair of Jacks"},
        {"closed before a guess", false, 1, 20.0f, "$1.00", "Pair of Jacks"},
        {"three correct guesses", false, 8, 27.0f, "$8.00", "Pair of Jacks"},
        {"a wrong guess", false, 0, 19.0f, "$0.00", ""},
    };
    for (const DoubleUpCase& c : cases) {
        SCOPED_TRACE(c.what);
        Table t(JB, 0.0f, 1.0f);
        t.state.DoubleUpEnabled = -1;
        t.buy(4);
        t.script("Jc Jd 9h 4s 2d");
        t.controller.drawDealClicked();
        t.controller.cardClicked(3);
        t.controller.standClicked();
        ASSERT_EQ(t.state.DrawPhase, 2);
        EXPECT_EQ(t.view.text(Control::Stand), "&Double      Up");
        EXPECT_EQ(t.view.text(Control::DrawDeal), "&Take Score");
        EXPECT_EQ(t.view.text(Control::Card3Ind), "");
        EXPECT_FALSE(t.view.enabled(Control::Exit));
        EXPECT_EQ(t.view.text(Control::Output2), "");
        t.controller.cardClicked(0);
        EXPECT_EQ(t.view.text(Control::Card0Ind), "");
        t.view.doubleUpPlay = [f = c.factor](GameState& s) {
            s.DoubleUpFactor = static_cast<std::int16_t>(f);
        };
        if (c.takeScore) {
            t.controller.drawDealClicked();
        } else {
            t.controller.standClicked();
            EXPECT_FALSE(t.view.faceUp);
        }
        EXPECT_EQ(t.view.doubleUps, c.takeScore ? 0 : 1);
        EXPECT_EQ(t.state.Credits, c.creditsAfter);
        EXPECT_EQ(t.view.text(Control::Win), c.win);
        EXPECT_EQ(t.view.text(Control::Output2), c.name);
        EXPECT_EQ(t.state.DoubleUpFactor, 0);
        expectPhaseZero(t);
        t.script("2c 5d 9h Js Kd");
        t.controller.drawDealClicked();
        EXPECT_EQ(t.view.text(Control::Last), c.win);
    }
}

// Treasure Trips pays a bonus hand at once, even with Double Up on, then turns the cards over.
TEST(TreasureTrips, BonusHandIsSettledAtOnce) {
    for (const bool byDraw : {false, true}) {
        Table t(TT, 0.0f, 1.0f);
        t.state.DoubleUpEnabled = -1;
        t.buy(4);
        t.view.chests = {6};
        if (byDraw) {
            t.hand("3s 3d 9h 4c Kd", 0b00011, "Qc Qd 3h 5c 8d");
        } else {
            t.hand("3s 3d 3h 4c Kd", 0x1f);
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

} // namespace
} // namespace marivale
