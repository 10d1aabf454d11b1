// The money of a visit: load and unload, purchases, the bet, cash-out and the statistics.

#include <gtest/gtest.h>

#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

constexpr GameId JB = GameId::JacksOrBetter;

TEST(Visit, PositiveTotalBecomesCreditsAndComesBack) {
    Table t(JB, 35.5f);
    EXPECT_EQ(t.view.text(Control::Credit), "$35.50");
    EXPECT_EQ(t.state.NetWinLoss, 0.0f);
    EXPECT_EQ(t.view.text(Control::Bet), "$0.25");
    EXPECT_EQ(t.view.text(Control::Win), "$0.00");
    EXPECT_EQ(t.view.text(Control::Last), "$0.00");
    EXPECT_EQ(t.view.text(Control::TotPurchased), "$0.00");
    EXPECT_EQ(t.view.text(Control::ProfLoss), "$0.00");
    EXPECT_EQ(t.view.text(Control::PLTitle), "Net Winnings");
    EXPECT_EQ(t.view.pay.back(), "0.25");
    EXPECT_EQ(t.view.backsShown, 1);
    t.controller.unload();
    EXPECT_EQ(t.state.NetWinLoss, 35.5f);
    EXPECT_EQ(t.view.bells.back(), BellCommand::Close);
}

TEST(Visit, NegativeTotalStaysAndPurchasesAreCashedOutAtClose) {
    Table t(JB, -40.0f);
    EXPECT_EQ(t.view.text(Control::Credit), "$0.00");
    t.buy(4);
    t.controller.unload();
    EXPECT_EQ(t.state.NetWinLoss, -40.0f);
    EXPECT_EQ(t.state.Credits, 0.0f);
}

TEST(Visit, ClosingMidHandLosesTheBetAndAPendingWin) {
    Table t(JB);
    t.state.DoubleUpEnabled = -1;
    t.buy(5);
    t.script("Ac Ad 9h 4s 2d");
    t.controller.drawDealClicked();
    t.controller.standClicked();
    ASSERT_EQ(t.state.DrawPhase, 2);
    t.controller.unload();
    EXPECT_EQ(t.state.NetWinLoss, -0.25f);
    Table next(JB, t.state.NetWinLoss);
    EXPECT_EQ(next.state.DrawPhase, 0);
}

TEST(Visit, SmallCreditsStillReachTheTotalAtClose) {
    Table t(JB, 9.75f);
    t.controller.unload();
    EXPECT_EQ(t.state.NetWinLoss, 9.75f);
}

TEST(Purchase, EveryOptionAndTheStatistics) {
    const float amounts[] = {1000, 500, 100, 50, 20, 10, 5, 1};
    for (int option = 0; option < 8; ++option) {
        Table t(JB);
        t.buy(option);
        EXPECT_EQ(t.state.Credits, amounts[option]);
        EXPECT_EQ(t.state.TotalPurchased, amounts[option]);
    }
    Table t(JB);
    t.buy(0);
    t.buy(0);
    EXPECT_EQ(t.view.text(Control::Credit), "$2,000.00");
    EXPECT_EQ(t.view.text(Control::TotPurchased), "$2,000.00");
    EXPECT_EQ(t.view.text(Control::ProfLoss), "-$2,000.00");
    EXPECT_EQ(t.view.text(Control::PLTitle), "Net Losses");
}

TEST(Bet, StepsFromOneUnitToTwenty) {
    Table t(JB);
    for (int click = 0; click < 20; ++click) {
        t.controller.betUpClicked();
    }
    EXPECT_EQ(t.view.text(Control::Bet), "$5.00");
    EXPECT_EQ(t.view.pay.front(), "$1,250.00");
    EXPECT_EQ(t.view.pay.back(), "5.00");
    for (int click = 0; click < 25; ++click) {
        t.controller.betDnClicked();
    }
    EXPECT_EQ(t.view.text(Control::Bet), "$0.25");
    EXPECT_EQ(t.view.pay.front(), "$62.50");

    Table tens(GameId::DeucesWild, 0.0f, 10.0f);
    EXPECT_EQ(tens.view.text(Control::Bet), "$10.00");
    for (int click = 0; click < 30; ++click) {
        tens.controller.betUpClicked();
    }
    EXPECT_EQ(tens.state.BetAmount, 200.0f);
    EXPECT_EQ(tens.view.text(Control::Bet), "$200.00");
}

struct CashOutCase {
    float credits;
    bool allowed;
    const char* profLoss;
    const char* title;
};

TEST(CashOut, FromTenDollarsUp) {
    const CashOutCase cases[] = {
        {10.0f, true, "-10.00", "Net Losses"},
        {9.75f, false, "-20.00", "Net Losses"},
        {35.0f, true, "15.00", "Net Winnings"},
        {20.0f, true, "0.00", "Net Losses"},
    };
    for (const CashOutCase& c : cases) {
        Table t(JB);
        t.buy(4);
        t.state.Credits = c.credits;
        t.controller.standClicked();
        if (c.allowed) {
            EXPECT_EQ(t.view.text(Control::Credit), "$0.00");
            EXPECT_EQ(t.state.GameWinnings, c.credits);
            EXPECT_EQ(t.view.text(Control::ProfLoss), c.profLoss);
            EXPECT_EQ(t.view.text(Control::PLTitle), c.title);
        } else {
            EXPECT_EQ(t.view.text(Control::Output2), "Credits Must Be > $10.00 to Cash Out");
            EXPECT_EQ(t.state.Credits, c.credits);
            EXPECT_EQ(t.view.text(Control::ProfLoss), "-$20.00");
        }
    }
}

TEST(CashOut, TheNextPurchaseShowsTheDollarSignAgain) {
    Table t(JB);
    t.buy(4);
    t.state.Credits = 15.0f;
    t.controller.standClicked();
    EXPECT_EQ(t.view.text(Control::ProfLoss), "-5.00");
    t.buy(6);
    EXPECT_EQ(t.view.text(Control::ProfLoss), "-$10.00");
}

} // namespace
} // namespace marivale
