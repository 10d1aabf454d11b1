#include "engine/odds/session_goal.h"

// Standard library
#include <algorithm>
#include <cmath>
#include <vector>

// Marivale
#include "engine/odds/pay_grid.h"

namespace marivale::odds {
namespace {

// The stop request is looked at after this many hands.
constexpr int kStopCheck = 32;

bool isAmount(double bets) {
    return std::isfinite(bets) && bets >= 0.0;
}

} // namespace

// Carries the chance of each net result (in grid steps) forward hand by hand: whatever lands on
// the goal or the stop-loss leaves the session there, and the chance still playing before each
// hand adds up to the expected hands. Net results the session cannot reach in N hands are left
// out, so a goal or a stop-loss beyond reach costs nothing.
std::optional<SessionGoalOdds> sessionGoalOdds(std::span<const Payout> payouts, double bankroll,
                                               double goal, double stopLoss, int hands,
                                               std::stop_token stop) {
    double total = 0.0;
    for (const Payout& payout : payouts) {
        total += payout.probability;
    }
    if (hands < 0 || hands > kMaxRuinHands || !(total > 0.0) || !isAmount(bankroll) ||
        !isAmount(goal) || !isAmount(stopLoss) ||
        std::any_of(payouts.begin(), payouts.end(),
                    [](const Payout& p) { return !isAmount(p.bets) || !(p.probability >= 0.0); })) {
        return std::nullopt;
    }
    const Grid grid = gridFor(payouts);
    SessionGoalOdds odds;
    odds.unit = grid.unit;
    odds.exact = grid.exact;
    const int bet = grid.perBet;
    const int rise = std::max(*std::max_element(grid.steps.begin(), grid.steps.end()) - bet, 0);
    // The farthest the net result can go in N hands, up and down, in grid steps.
    const double up = static_cast<double>(hands) * rise;
    const double down = static_cast<double>(hands) * bet;
    const double goalSteps = std::min(std::ceil(goal / grid.unit - kOnGrid), up + 1);
    const double bankrollSteps = std::min(std::floor(bankroll / grid.unit + kOnGrid), down + bet);
    // The highest net result that stops the session at a loss.
    const double lowest = std::max(-std::ceil(std::min(stopLoss / grid.unit, down + 1) - kOnGrid),
                                   bet - bankrollSteps - 1);
    if (goalSteps <= 0) {
        odds.goal = 1.0;
        return odds;
    }
    if (lowest >= 0) {
        odds.stopLoss = 1.0;
        return odds;
    }
    // Live net results, lowest + 1 .. goalSteps - 1, sit at [bet, bet + width) with room below
    // and above for a hand that leaves the session.
    const auto width = static_cast<std::size_t>(goalSteps - lowest - 1);
    if (static_cast<double>(width + static_cast<std::size_t>(bet + rise)) * hands *
            static_cast<double>(grid.steps.size()) >
        kMostRuinWork) {
        return std::nullopt;
    }
    const auto below = static_cast<std::size_t>(bet);
    const std::size_t above = below + width;
    std::vector<double> current(above + static_cast<std::size_t>(rise), 0.0);
    std::vector<double> next(current.size(), 0.0);
    const auto start = static_cast<std::size_t>(bet - lowest - 1);
    current[start] = 1.0;
    std::size_t first = start; // every chance lies in [first, last]
    std::size_t last = start;
    for (int hand = 0; hand < hands; ++hand) {
        if (hand % kStopCheck == kStopCheck - 1 && stop.stop_requested()) {
            return std::nullopt;
        }
        double playing = 0.0;
        for (std::size_t s = first; s <= last; ++s) {
            playing += current[s];
        }
        odds.expectedHands += playing;
        std::fill(next.begin() + static_cast<long>(first - below),
                  next.begin() + static_cast<long>(last) + rise + 1, 0.0);
        const std::size_t count = last - first + 1;
        for (std::size_t i = 0; i < grid.steps.size(); ++i) {
            const double p = payouts[i].probability / total;
            const double* from = current.data() + first;
            double* to = next.data() + (first + static_cast<std::size_t>(grid.steps[i])) - below;
            for (std::size_t k = 0; k < count; ++k) {
                to[k] += p * from[k];
            }
        }
        first = std::max(below, first - below);
        last = std::min(above - 1, last + static_cast<std::size_t>(rise));
        for (std::size_t s = 0; s < below; ++s) {
            odds.stopLoss += next[s];
            next[s] = 0.0;
        }
        for (std::size_t s = above; s < next.size(); ++s) {
            odds.goal += next[s];
            next[s] = 0.0;
        }
        std::swap(current, next);
    }
    for (std::size_t s = first; s <= last; ++s) {
        odds.neither += current[s];
    }
    return odds;
}

} // namespace marivale::odds
