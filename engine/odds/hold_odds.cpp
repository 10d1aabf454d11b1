#include "engine/odds/hold_odds.h"

// Standard library
#include <algorithm>
#include <bit>
#include <numeric>

namespace marivale::odds {

void countHolds(const DrawTables& tables, std::span<const CardCode, kHandSize> ascending,
                SubsetCounts& out) {
    tables.supersetCounts(ascending, out);
    // After the pass over card b, out[A] counts the hands that contain A and none of the
    // discarded cards among those passed: subtract the hands that also contain b.
    for (unsigned bit = 1; bit < kHoldCount; bit <<= 1) {
        for (unsigned mask = 0; mask < kHoldCount; ++mask) {
            if ((mask & bit) != 0) {
                continue;
            }
            OutcomeCounts& target = out[mask];
            const OutcomeCounts& with = out[mask | bit];
            for (int slot = 0; slot < kMaxOutcomes; ++slot) {
                target[slot] -= with[slot];
            }
        }
    }
}

std::array<std::uint8_t, kHoldCount> HandOdds::ranking() const {
    std::array<std::uint8_t, kHoldCount> order{};
    std::iota(order.begin(), order.end(), std::uint8_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::uint8_t a, std::uint8_t b) {
        return holds[a].expectedReturn > holds[b].expectedReturn;
    });
    return order;
}

bool isValidDeal(int deckSize, std::span<const CardCode, kHandSize> dealt) {
    for (std::size_t i = 0; i < dealt.size(); ++i) {
        if (dealt[i] < 0 || dealt[i] >= deckSize ||
            std::find(dealt.begin(), dealt.begin() + static_cast<long>(i), dealt[i]) !=
                dealt.begin() + static_cast<long>(i)) {
            return false;
        }
    }
    return true;
}

HandOdds analyzeHolds(const DrawTables& tables, std::span<const CardCode, kHandSize> dealt,
                      const PayScale& scale) {
    // Sort the cards, remembering which board position each sorted place came from.
    std::array<int, kHandSize> position{};
    std::iota(position.begin(), position.end(), 0);
    std::sort(position.begin(), position.end(), [&](int a, int b) { return dealt[a] < dealt[b]; });
    std::array<CardCode, kHandSize> ascending{};
    for (int i = 0; i < kHandSize; ++i) {
        ascending[i] = dealt[position[i]];
    }

    SubsetCounts counts{};
    countHolds(tables, ascending, counts);
    const OutcomeValues values = outcomeValues(tables, scale);
    const OutcomeValues squares = outcomeSquares(tables, scale);

    HandOdds odds;
    for (unsigned sortedMask = 0; sortedMask < kHoldCount; ++sortedMask) {
        unsigned held = 0;
        for (int i = 0; i < kHandSize; ++i) {
            if ((sortedMask >> i) & 1u) {
                held |= 1u << position[i];
            }
        }
        HoldOdds& hold = odds.holds[held];
        hold.held = static_cast<std::uint8_t>(held);
        hold.counts = counts[sortedMask];
        hold.draws = drawsFor(tables.deckSize(), std::popcount(sortedMask));
        double total = 0.0;
        double totalSquares = 0.0;
        for (int slot = 0; slot < kMaxOutcomes; ++slot) {
            total += hold.counts[slot] * values[slot];
            totalSquares += hold.counts[slot] * squares[slot];
        }
        hold.expectedReturn = total / static_cast<double>(hold.draws);
        hold.variance = std::max(0.0, totalSquares / static_cast<double>(hold.draws) -
                                          hold.expectedReturn * hold.expectedReturn);
    }
    for (int mask = 1; mask < kHoldCount; ++mask) {
        if (odds.holds[mask].expectedReturn > odds.holds[odds.best].expectedReturn) {
            odds.best = mask;
        }
    }
    return odds;
}

} // namespace marivale::odds
