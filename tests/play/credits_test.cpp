// The money of a visit: load and unload, purchases, the bet, cash-out and the statistics, and
// thousands of random clicks on every board after which the money always balances.

#include <gtest/gtest.h>

// Standard library
#include <cmath>
#include <random>

// Marivale
#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

constexpr GameId JB = GameId::JacksOrBetter;

// Less than the cash-out minimum still comes back whole at the close.
TEST(Visit, PositiveTotalBecomesCreditsAndComesBack) {
    Table t(JB, 9.75f);
    EXPECT_EQ(t.view.text(Control::Credit), "$9.75");
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
    EXPECT_EQ(t.state.NetWinLoss, 9.75f);
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
    t.hand("Ac Ad 9h 4s 2d", 0x1f);
    ASSERT_EQ(t.state.DrawPhase, 2);
    t.controller.unload();
    EXPECT_EQ(t.state.NetWinLoss, -0.25f);
    Table next(JB, t.state.NetWinLoss);
    EXPECT_EQ(next.state.DrawPhase, 0);
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
    const char* afterPurchase; // the net once $5.00 more is bought
};

// After $20.00 bought. The net after a cash-out is shown without its dollar sign, until the next
// purchase.
TEST(CashOut, FromTenDollarsUp) {
    const CashOutCase cases[] = {
        {10.0f, true, "-10.00", "Net Losses", "-$15.00"},
        {9.75f, false, "-$20.00", "Net Losses", "-$25.00"},
        {35.0f, true, "15.00", "Net Winnings", "$10.00"},
        {20.0f, true, "0.00", "Net Losses", "-$5.00"},
    };
    for (const CashOutCase& c : cases) {
        SCOPED_TRACE(c.credits);
        Table t(JB);
        t.buy(4);
        t.state.Credits = c.credits;
        t.controller.standClicked();
        if (c.allowed) {
            EXPECT_EQ(t.view.text(Control::Credit), "$0.00");
            EXPECT_EQ(t.state.GameWinnings, c.credits);
        } else {
            EXPECT_EQ(t.view.text(Control::Output2), "Credits Must Be > $10.00 to Cash Out");
            EXPECT_EQ(t.state.Credits, c.credits);
        }
        EXPECT_EQ(t.view.text(Control::ProfLoss), c.profLoss);
        EXPECT_EQ(t.view.text(Control::PLTitle), c.title);
        t.buy(6);
        EXPECT_EQ(t.view.text(Control::ProfLoss), c.afterPurchase);
    }
}

TEST(RandomPlay, MoneyBalancesAfterEveryClick) {
    for (const GameId game : kAllGames) {
        std::mt19937 pick(static_cast<unsigned>(game) + 11);
        Table t(game, 12.5f, 1.0f);
        t.state.DoubleUpEnabled = -1;
        const double startCredits = t.state.Credits;
        double payouts = 0.0;
        double bets = 0.0;
        t.view.doubleUpPlay = [&pick](GameState& s) {
            s.DoubleUpFactor = 1;
            for (int guess = static_cast<int>(pick() % 4); guess > 0 && s.DoubleUpFactor > 0;
                 --guess) {
                s.DoubleUpFactor = pick() % 2 ? static_cast<std::int16_t>(s.DoubleUpFactor * 2) : 0;
            }
        };
        t.view.chests = {3};
        for (int step = 0; step < 20000; ++step) {
            const float creditsBefore = t.state.Credits;
            const int phase = t.state.DrawPhase;
            switch (pick() % 9) {
            case 0:
            case 1:
                t.controller.drawDealClicked();
                if (phase == 0 && t.state.DrawPhase == 1) {
                    bets += t.state.BetAmount;
                }
                break;
            case 2:
                t.controller.standClicked();
                break;
            case 3:
            case 4:
                t.controller.cardClicked(static_cast<int>(pick() % 5));
                break;
            case 5:
                if (phase == 0)
                    t.buy(static_cast<int>(pick() % 8));
                break;
            case 6:
                if (phase == 0)
                    t.controller.betUpClicked();
                break;
            case 7:
                if (phase == 0)
                    t.controller.betDnClicked();
                break;
            default:
                break;
            }
            if (phase != 0 && t.state.DrawPhase == 0 && t.state.Credits > creditsBefore) {
                payouts += t.state.Credits - creditsBefore;
            }
            const double held = static_cast<double>(t.state.Credits) + t.state.GameWinnings;
            const double owed = startCredits + t.state.TotalPurchased + payouts - bets;
            ASSERT_NEAR(held, owed, 1e-6 * std::max(1.0, std::fabs(owed)))
                << shortName(game) << " step " << step;
            ASSERT_GE(t.state.BetAmount, t.state.PlayUnit);
            ASSERT_LE(t.state.BetAmount, 20 * t.state.PlayUnit);
        }
        const float net = t.state.GameWinnings - t.state.TotalPurchased + t.state.Credits;
        t.controller.unload();
        EXPECT_FLOAT_EQ(t.state.NetWinLoss, net);
    }
}

} // namespace
} // namespace marivale
