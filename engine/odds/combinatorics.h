#pragma once

// Counting helpers for card subsets: binomial coefficients and the combinatorial number system
// that numbers every k-card subset of a deck in colexicographic order (0 .. C(n, k) - 1).

// Standard library
#include <array>
#include <cstdint>
#include <span>

// Marivale
#include "engine/card.h"

namespace marivale::odds {

inline constexpr int kMaxDeck = 53;

namespace detail {
constexpr std::array<std::array<std::uint32_t, kHandSize + 2>, kMaxDeck + 1> makeBinomials() {
    std::array<std::array<std::uint32_t, kHandSize + 2>, kMaxDeck + 1> table{};
    for (int n = 0; n <= kMaxDeck; ++n) {
        table[n][0] = 1;
        for (int k = 1; k <= kHandSize + 1; ++k) {
            table[n][k] = n == 0 ? 0 : table[n - 1][k - 1] + table[n - 1][k];
        }
    }
    return table;
}
} // namespace detail

// C(n, k) for n = 0..53 and k = 0..6.
inline constexpr auto kBinomial = detail::makeBinomials();

constexpr std::uint32_t binomial(int n, int k) {
    return kBinomial[n][k];
}

// The colex number of a strictly ascending set of cards: sum of C(card_j, j + 1).
constexpr std::uint32_t subsetIndex(std::span<const CardCode> ascending) {
    std::uint32_t index = 0;
    for (std::size_t j = 0; j < ascending.size(); ++j) {
        index += kBinomial[ascending[j]][j + 1];
    }
    return index;
}

static_assert(binomial(52, 5) == 2'598'960);
static_assert(binomial(53, 5) == 2'869'685);
static_assert(binomial(53, 4) == 292'825);

} // namespace marivale::odds
