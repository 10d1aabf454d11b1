#include "engine/odds/game_odds.h"

// Standard library
#include <algorithm>
#include <bit>
#include <vector>

// Marivale
#include "engine/odds/deal_classes.h"
#include "engine/odds/hold_odds.h"

namespace marivale::odds {
namespace {

constexpr int kChunk = 512;
constexpr int kHeldCounts = kHandSize + 1;

// One worker's sums, kept apart by hold size so that each is divided once by its draw count.
struct alignas(64) Totals {
    std::array<long double, kHeldCounts> paid{}; // deal weight x pay of every final hand
    std::array<std::array<std::uint64_t, kMaxOutcomes>, kHeldCounts> hands{};
};

void playClass(const DrawTables& tables, const OutcomeValues& values,
               const std::array<double, kHeldCounts>& draws, const DealClass& deal,
               SubsetCounts& counts, Totals& totals) {
    countHolds(tables, deal.cards, counts);
    std::array<double, kHoldCount> paid{};
    for (int mask = 0; mask < kHoldCount; ++mask) {
        const OutcomeCounts& hold = counts[static_cast<std::size_t>(mask)];
        double sum = 0.0;
        for (int slot = 0; slot < kMaxOutcomes; ++slot) {
            sum += hold[static_cast<std::size_t>(slot)] * values[static_cast<std::size_t>(slot)];
        }
        paid[static_cast<std::size_t>(mask)] = sum;
    }
    int best = 0;
    double bestReturn = paid[0] / draws[0];
    for (int mask = 1; mask < kHoldCount; ++mask) {
        const double expected =
            paid[static_cast<std::size_t>(mask)] /
            draws[static_cast<std::size_t>(std::popcount(static_cast<unsigned>(mask)))];
        if (expected > bestReturn) {
            bestReturn = expected;
            best = mask;
        }
    }
    const auto held = static_cast<std::size_t>(std::popcount(static_cast<unsigned>(best)));
    totals.paid[held] +=
        static_cast<long double>(deal.weight) * paid[static_cast<std::size_t>(best)];
    const OutcomeCounts& chosen = counts[static_cast<std::size_t>(best)];
    for (int slot = 0; slot < kMaxOutcomes; ++slot) {
        totals.hands[held][static_cast<std::size_t>(slot)] +=
            static_cast<std::uint64_t>(deal.weight) *
            static_cast<std::uint64_t>(chosen[static_cast<std::size_t>(slot)]);
    }
}

} // namespace

std::optional<GameOdds> analyzeGame(const DrawTables& tables, const PayScale& scale, int threads,
                                    std::stop_token stop) {
    const std::vector<DealClass>& classes = dealClasses(tables.deckSize());
    const OutcomeValues values = outcomeValues(tables, scale);
    std::array<double, kHeldCounts> draws{};
    for (int held = 0; held < kHeldCounts; ++held) {
        draws[static_cast<std::size_t>(held)] =
            static_cast<double>(drawsFor(tables.deckSize(), held));
    }

    threads = std::max(threads, 1);
    std::vector<Totals> totals(static_cast<std::size_t>(threads));
    const int chunks = static_cast<int>((classes.size() + kChunk - 1) / kChunk);
    parallelFor(chunks, threads, [&](int worker, int chunk) {
        if (stop.stop_requested()) {
            return;
        }
        SubsetCounts counts{};
        const std::size_t first = static_cast<std::size_t>(chunk) * kChunk;
        const std::size_t last = std::min(classes.size(), first + kChunk);
        for (std::size_t i = first; i < last; ++i) {
            playClass(tables, values, draws, classes[i], counts,
                      totals[static_cast<std::size_t>(worker)]);
        }
    });
    if (stop.stop_requested()) {
        return std::nullopt;
    }

    GameOdds odds;
    odds.game = tables.game();
    odds.deals = binomial(tables.deckSize(), kHandSize);
    odds.dealClasses = classes.size();
    const auto deals = static_cast<long double>(odds.deals);
    long double expected = 0.0L;
    std::array<long double, kMaxOutcomes> probability{};
    for (int held = 0; held < kHeldCounts; ++held) {
        long double paid = 0.0L;
        std::array<std::uint64_t, kMaxOutcomes> hands{};
        for (const Totals& part : totals) {
            paid += part.paid[static_cast<std::size_t>(held)];
            for (int slot = 0; slot < kMaxOutcomes; ++slot) {
                hands[static_cast<std::size_t>(slot)] +=
                    part.hands[static_cast<std::size_t>(held)][static_cast<std::size_t>(slot)];
            }
        }
        const long double perDeal = deals * draws[static_cast<std::size_t>(held)];
        expected += paid / perDeal;
        for (int slot = 0; slot < kMaxOutcomes; ++slot) {
            probability[static_cast<std::size_t>(slot)] +=
                static_cast<long double>(hands[static_cast<std::size_t>(slot)]) / perDeal;
        }
    }
    odds.expectedReturn = static_cast<double>(expected);
    for (int slot = 0; slot < tables.outcomeCount(); ++slot) {
        const Outcome outcome = tables.outcome(slot);
        const auto p = static_cast<double>(probability[static_cast<std::size_t>(slot)]);
        odds.codeProbability[outcome.code] += p;
        if (outcome.bonus) {
            odds.bonusProbability += p;
            odds.bonusReturn += p * scale.bonus;
        }
    }
    return odds;
}

} // namespace marivale::odds
