#pragma once

// The exact expected return of each of the 32 ways to hold a dealt hand, counted over every
// possible draw from the cards not dealt.

// Standard library
#include <array>
#include <cstdint>
#include <span>

// Marivale
#include "engine/card.h"
#include "engine/odds/combinatorics.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/outcome.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds {

inline constexpr int kHoldCount = 32;

struct HoldOdds {
    std::uint8_t held{0};       // bit i set: dealt position i is kept
    std::int64_t draws{0};      // how many different draws the hold allows
    OutcomeCounts counts{};     // final hands by outcome slot; they add up to draws
    double expectedReturn{0.0}; // in bets
    double variance{0.0};       // of the hold's pay in bets squared, the chest's spread included
};

struct HandOdds {
    std::array<HoldOdds, kHoldCount> holds{}; // indexed by the held mask
    int best{0};                              // the first hold, by mask, with the highest return
    // The masks from the highest return down; equal returns keep the order of their masks.
    std::array<std::uint8_t, kHoldCount> ranking() const;
};

// For every hold of an ascending deal (mask over the sorted positions) the final hands by
// outcome: the superset counts of the deal's subsets, turned into exact draws by inclusion and
// exclusion over the discarded cards.
void countHolds(const DrawTables& tables, std::span<const CardCode, kHandSize> ascending,
                SubsetCounts& out);

// How many draws a hold of `held` cards allows on a deck of the given size.
constexpr std::int64_t drawsFor(int deckSize, int held) {
    return binomial(deckSize - kHandSize, kHandSize - held);
}

// Five different cards of a deck of the given size: a deal analyzeHolds can take.
bool isValidDeal(int deckSize, std::span<const CardCode, kHandSize> dealt);

// The 32 holds of five dealt cards, given in the board's position order; the deal must be valid.
HandOdds analyzeHolds(const DrawTables& tables, std::span<const CardCode, kHandSize> dealt,
                      const PayScale& scale);

} // namespace marivale::odds
