// The warning before a costly hold: the draw waits once for a costly hold and the board stays
// as it was; the same hold pressed again plays, a changed hold is checked again, and the money
// and the statistics count the hand once.

#include <gtest/gtest.h>

// Marivale
#include "engine/odds/draw_tables.h"
#include "play/stats/session_stats.h"
#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

constexpr GameId JB = GameId::JacksOrBetter;
constexpr unsigned kRoyalDraw = 0b01111; // Ah Kh Qh Jh of "Ah Kh Qh Jh 2c"

class Warning : public ::testing::Test {
protected:
    static void SetUpTestSuite() { odds::DrawTables::forGame(JB); }

    // Deals the hand at a $1.00 bet and holds the positions in the mask.
    void deal(Table& t, unsigned holds) {
        t.script("Ah Kh Qh Jh 2c");
        t.controller.drawDealClicked();
        for (int p = 0; p < kHandSize; ++p) {
            if ((holds >> p) & 1U) {
                t.controller.cardClicked(p);
            }
        }
    }
};

// What a warned press leaves: the hand still dealt, its captions, holds and money untouched.
void expectWaiting(const Table& t, unsigned holds, float credits) {
    EXPECT_EQ(t.state.DrawPhase, 1);
    EXPECT_EQ(t.view.text(Control::DrawDeal), "D&raw");
    EXPECT_EQ(t.view.text(Control::Stand), "&Stand");
    EXPECT_EQ(t.state.Credits, credits);
    for (int p = 0; p < kHandSize; ++p) {
        EXPECT_EQ(t.view.text(holdMark(p)), (holds >> p) & 1U ? "Hold" : "");
    }
}

TEST_F(Warning, ACostlyHoldWaitsOnceThenDraws) {
    SessionStats stats;
    Table t(JB, 0.0f, 1.0f, &stats);
    t.useWarning(WarningOption{true, 0.0});
    t.buy(4);
    const float credits = t.state.Credits - 1.0f;
    deal(t, 0b00011); // Ah Kh
    t.controller.drawDealClicked();
    expectWaiting(t, 0b00011, credits);
    ASSERT_EQ(t.view.warnings.size(), 1U);
    const MistakeWarning& w = t.view.warnings[0];
    EXPECT_EQ(w.held, 0b00011U);
    EXPECT_EQ(w.judgement.best, kRoyalDraw);
    EXPECT_NEAR(w.judgement.bestReturn - w.judgement.playedReturn, 6.2418748, 1e-6);
    EXPECT_NEAR(w.judgement.cost, 6.24187f, 1e-4);
    EXPECT_EQ(stats.history().back().holds, 0U); // nothing heard of the hold yet

    t.script("2d 3s 4c 5d 6s");
    t.controller.drawDealClicked();
    EXPECT_EQ(t.view.warnings.size(), 1U);
    EXPECT_EQ(t.state.DrawPhase, 0);
    EXPECT_EQ(t.view.lastHolds, (HandHolds{true, true, false, false, false}));
    EXPECT_EQ(stats.visit().hands, 1);
    EXPECT_EQ(stats.visit().drawn, 1);
    EXPECT_EQ(stats.visit().bet, 1.0f);
    ASSERT_EQ(stats.history().size(), 1U);
    EXPECT_EQ(stats.history()[0].holds, 0b00011U);
    EXPECT_EQ(t.state.Credits, credits);
}

// A changed hold is checked again: a costly one waits once more, then a stand and the best hold.
TEST_F(Warning, AChangedHoldIsCheckedAgain) {
    struct Case {
        const char* name;
        unsigned change; // positions clicked after the first warning
        bool stand;
        std::size_t warnings;
        int phase;
    };
    const Case cases[] = {
        {"to the best hold", 0b01100, false, 1, 0},
        {"to another costly hold", 0b00100, false, 2, 1},
        {"to a stand", 0, true, 2, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Table t(JB, 0.0f, 1.0f);
        t.useWarning(WarningOption{true, 0.0});
        t.buy(4);
        deal(t, 0b00011);
        t.controller.drawDealClicked();
        for (int p = 0; p < kHandSize; ++p) {
            if ((c.change >> p) & 1U) {
                t.controller.cardClicked(p);
            }
        }
        t.script("2d 3s 4c 5d 6s");
        c.stand ? t.controller.standClicked() : t.controller.drawDealClicked();
        EXPECT_EQ(t.view.warnings.size(), c.warnings);
        EXPECT_EQ(t.state.DrawPhase, c.phase);
    }
}

// The threshold in bets: a loss up to it plays at once, off plays everything, a best hold never
// waits, and a new deal warns again.
TEST_F(Warning, ThresholdAndOff) {
    struct Case {
        WarningOption option;
        unsigned holds;
        std::size_t warnings;
    };
    const Case cases[] = {
        {{false, 0.0}, 0b00011, 0},  {{true, 0.0}, kRoyalDraw, 0}, {{true, 0.0}, 0b00111, 1},
        {{true, 100.0}, 0b00111, 0}, {{true, 0.0}, 0b11111, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.holds);
        Table t(JB, 0.0f, 1.0f);
        t.useWarning(c.option);
        t.buy(4);
        deal(t, c.holds);
        t.script("2d 3s 4c 5d 6s");
        t.controller.drawDealClicked();
        EXPECT_EQ(t.view.warnings.size(), c.warnings);
    }
}

} // namespace
} // namespace marivale
