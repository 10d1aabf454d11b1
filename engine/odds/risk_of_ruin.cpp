#include "engine/odds/risk_of_ruin.h"

// Standard library
#include <algorithm>
#include <cmath>
#include <map>

// Marivale
#include "engine/odds/pay_grid.h"

namespace marivale::odds {
namespace {

// The stop request is looked at after this many hands of the recursion.
constexpr int kStopCheck = 32;

} // namespace

std::vector<Payout> payoutDistribution(const GameOdds& odds, const PayScale& scale) {
    std::map<double, double> byPay;
    const auto chest = chestValues(scale);
    for (int slot = 0; slot < odds.outcomeCount; ++slot) {
        const Outcome outcome = odds.outcomes[slot];
        const double p = odds.outcomeProbability[slot];
        const double row = scale.multiplier[outcome.code];
        if (!outcome.bonus) {
            byPay[row] += p;
            continue;
        }
        for (const double value : chest) {
            byPay[row + value] += p / static_cast<double>(chest.size());
        }
    }
    std::vector<Payout> payouts;
    for (const auto& [bets, probability] : byPay) {
        if (probability > 0.0) {
            payouts.push_back({bets, probability});
        }
    }
    return payouts;
}

double payoutVariance(std::span<const Payout> payouts) {
    double mean = 0.0;
    double square = 0.0;
    for (const Payout& payout : payouts) {
        mean += payout.probability * payout.bets;
        square += payout.probability * payout.bets * payout.bets;
    }
    return square - mean * mean;
}

double RuinCurve::riskAt(double bankrollBets) const {
    if (!(bankrollBets >= 0.0)) {
        return 1.0;
    }
    const double units = std::floor(bankrollBets / unit + kOnGrid);
    return units < static_cast<double>(risk.size()) ? risk[static_cast<std::size_t>(units)] : 0.0;
}

double RuinCurve::bankrollFor(double target) const {
    // The risk never grows with the bankroll.
    const auto first =
        std::find_if(risk.begin(), risk.end(), [&](double r) { return r <= target; });
    return static_cast<double>(first - risk.begin()) * unit;
}

// R_r(b), the risk with r hands to play and b units, is 1 below one bet, 0 from r bets up (even
// losing every hand leaves the last bet covered), and otherwise the mean of R_{r-1} over the
// pays of the next hand. The curve is R_hands.
std::optional<RuinCurve> ruinCurve(std::span<const Payout> payouts, int hands,
                                   std::stop_token stop) {
    double total = 0.0;
    for (const Payout& payout : payouts) {
        total += payout.probability;
    }
    if (hands < 0 || hands > kMaxRuinHands || !(total > 0.0) ||
        std::any_of(payouts.begin(), payouts.end(),
                    [](const Payout& p) { return !(p.bets >= 0.0) || !(p.probability >= 0.0); })) {
        return std::nullopt;
    }
    const Grid grid = gridFor(payouts);
    const int bet = grid.perBet;
    const int top = *std::max_element(grid.steps.begin(), grid.steps.end());
    const auto states = static_cast<std::size_t>(hands) * static_cast<std::size_t>(bet);
    if (static_cast<double>(states) * hands * static_cast<double>(grid.steps.size()) / 2 >
        kMostRuinWork) {
        return std::nullopt;
    }
    // Room above the last state so that every pay lands inside the array (on a zero).
    std::vector<double> previous(states + static_cast<std::size_t>(top) + 1, 0.0);
    std::vector<double> current(previous.size(), 0.0);
    for (int left = 1; left <= hands; ++left) {
        if (left % kStopCheck == 0 && stop.stop_requested()) {
            return std::nullopt;
        }
        const std::size_t safe = static_cast<std::size_t>(left) * static_cast<std::size_t>(bet);
        std::fill(current.begin(), current.begin() + bet, 1.0);
        std::fill(current.begin() + bet, current.begin() + static_cast<long>(safe), 0.0);
        for (std::size_t i = 0; i < grid.steps.size(); ++i) {
            const double p = payouts[i].probability / total;
            const double* from = previous.data() + grid.steps[i] - bet;
            for (std::size_t b = static_cast<std::size_t>(bet); b < safe; ++b) {
                current[b] += p * from[b];
            }
        }
        std::swap(previous, current);
    }
    RuinCurve curve;
    curve.hands = hands;
    curve.unit = grid.unit;
    curve.exact = grid.exact;
    const std::size_t used = hands == 0 ? 0 : states;
    curve.risk.assign(previous.begin(), previous.begin() + static_cast<long>(used));
    return curve;
}

} // namespace marivale::odds
