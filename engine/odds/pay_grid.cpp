#include "engine/odds/pay_grid.h"

// Standard library
#include <algorithm>
#include <cmath>
#include <numeric>

namespace marivale::odds {

Grid gridFor(std::span<const Payout> payouts) {
    Grid grid;
    for (int denominator = 1; denominator <= kFinestRuinGrid; ++denominator) {
        const bool fits = std::all_of(payouts.begin(), payouts.end(), [&](const Payout& p) {
            const double scaled = p.bets * denominator;
            return std::abs(scaled - std::round(scaled)) < kOnGrid;
        });
        if (fits || denominator == kFinestRuinGrid) {
            grid.perBet = denominator;
            grid.exact = fits;
            break;
        }
    }
    int common = grid.perBet;
    for (const Payout& payout : payouts) {
        const double scaled = payout.bets * grid.perBet;
        const int steps =
            static_cast<int>(grid.exact ? std::round(scaled) : std::floor(scaled + kOnGrid));
        grid.steps.push_back(steps);
        common = std::gcd(common, steps);
    }
    for (int& steps : grid.steps) {
        steps /= common;
    }
    grid.unit = static_cast<double>(common) / grid.perBet;
    grid.perBet /= common;
    return grid;
}

} // namespace marivale::odds
