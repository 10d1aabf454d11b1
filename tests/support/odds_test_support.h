#pragma once

// Shared by the odds tests: small pay distributions, repeatable deals, and a brute-force count of a
// hold that plays every possible draw through the game's own AnalyzeHand, the way the board would.

// Standard library
#include <algorithm>
#include <array>
#include <cstdint>
#include <ostream>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/hand_analysis.h"
#include "engine/odds/outcome.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/risk_of_ruin.h"
#include "engine/random_source.h"
#include "state/game_state.h"

namespace marivale {

// Names a game in test output ("JB") instead of its byte.
inline void PrintTo(GameId game, std::ostream* out) {
    *out << shortName(game);
}

} // namespace marivale

namespace marivale::testing {

#ifdef MARIVALE_ODDS_OPTIMISED
inline constexpr bool kOptimisedBuild = true;
#else
inline constexpr bool kOptimisedBuild = false;
#endif

// Small pay distributions worked by hand: nothing or two bets, evenly; nothing, one or three
// bets; nothing or two and a half bets.
inline const std::vector<odds::Payout> kCoin{{0.0, 0.5}, {2.0, 0.5}};
inline const std::vector<odds::Payout> kThreeWay{{0.0, 0.5}, {1.0, 0.25}, {3.0, 0.25}};
inline const std::vector<odds::Payout> kHalves{{0.0, 0.5}, {2.5, 0.5}};

// Building a game's tables classifies every hand of its deck, which takes tens of seconds in a
// sanitizer build: there the table tests run on Treasure Trips alone (joker deck and bonus).
inline bool tablesAffordable(GameId game) {
    return kOptimisedBuild || facts(game).bonus != Bonus::None;
}

// Final hands by code, and by code among the hands that earn the Treasure Hunt.
struct CodeCounts {
    std::array<std::int64_t, odds::kCodeSlots> all{};
    std::array<std::int64_t, odds::kCodeSlots> bonus{};
    std::int64_t draws{0};
    friend bool operator==(const CodeCounts&, const CodeCounts&) = default;
};

inline std::vector<HandCards> randomDeals(GameId game, int count, std::uint64_t seed) {
    SeededRandomSource random(seed);
    std::vector<HandCards> deals;
    while (static_cast<int>(deals.size()) < count) {
        HandCards deal{};
        for (std::size_t i = 0; i < deal.size(); ++i) {
            do {
                deal[i] = static_cast<CardCode>(random.next() * deckSize(game));
            } while (std::find(deal.begin(), deal.begin() + static_cast<long>(i), deal[i]) !=
                     deal.begin() + static_cast<long>(i));
        }
        deals.push_back(deal);
    }
    return deals;
}

// Keeps the held positions, fills the others with every possible draw in turn and classifies
// each final hand with AnalyzeHand.
inline CodeCounts bruteForceHold(GameId game, const HandCards& deal, unsigned held) {
    std::vector<CardCode> stock;
    for (CardCode card = 0; card < deckSize(game); ++card) {
        if (std::find(deal.begin(), deal.end(), card) == deal.end()) {
            stock.push_back(card);
        }
    }
    std::vector<int> open;
    for (int p = 0; p < 5; ++p) {
        if (((held >> p) & 1u) == 0) {
            open.push_back(p);
        }
    }
    const int k = static_cast<int>(open.size());
    const int n = static_cast<int>(stock.size());
    std::vector<int> pick(static_cast<std::size_t>(k));
    for (int i = 0; i < k; ++i) {
        pick[i] = i;
    }
    CodeCounts counts;
    GameState state{};
    while (true) {
        for (int p = 0; p < 5; ++p) {
            state.Hand[p] = static_cast<float>(deal[p]);
        }
        for (int i = 0; i < k; ++i) {
            state.Hand[open[i]] = static_cast<float>(stock[pick[i]]);
        }
        const std::uint8_t code = AnalyzeHand(state, game).code;
        ++counts.all[code];
        if (facts(game).bonus != Bonus::None && isSet(state.BonusDue)) {
            ++counts.bonus[code];
        }
        ++counts.draws;
        // Next draw: lexicographic successor of the picked stock places.
        int i = k - 1;
        while (i >= 0 && pick[i] == n - k + i) {
            --i;
        }
        if (i < 0) {
            break;
        }
        ++pick[i];
        for (int j = i + 1; j < k; ++j) {
            pick[j] = pick[j - 1] + 1;
        }
    }
    return counts;
}

// The mean and variance of a hold's pay in bets, from its final hands by code: a hand with the
// bonus adds one chest, each chest factor equally likely.
struct PayStats {
    double mean{0.0};
    double variance{0.0};
};

inline PayStats payStats(const CodeCounts& counts, const odds::PayScale& scale) {
    double chestMean = 0.0;
    double chestSquare = 0.0;
    for (const int factor : kChestFactors) {
        chestMean += factor / static_cast<double>(kChestFactors.size());
        chestSquare += factor * factor / static_cast<double>(kChestFactors.size());
    }
    double sum = 0.0;
    double squares = 0.0;
    for (std::size_t code = 0; code < counts.all.size(); ++code) {
        const double pay = scale.multiplier[code];
        const auto plain = static_cast<double>(counts.all[code] - counts.bonus[code]);
        const auto bonus = static_cast<double>(counts.bonus[code]);
        sum += plain * pay + bonus * (pay + chestMean);
        squares += plain * pay * pay + bonus * (pay * pay + 2.0 * pay * chestMean + chestSquare);
    }
    const auto draws = static_cast<double>(counts.draws);
    const double mean = sum / draws;
    return {mean, squares / draws - mean * mean};
}

} // namespace marivale::testing
