// Thousands of random clicks on every board: the money always balances.

#include <gtest/gtest.h>

// Standard library
#include <cmath>
#include <random>

// Marivale
#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

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
