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
constexpr unsigned kAllHeld = kHoldCount - 1;
// Returns this close to the best are compared again through their exact counts.
constexpr double kNearTie = 1e-9;

constexpr std::array<std::uint8_t, kHoldCount> kMaskSize = [] {
    std::array<std::uint8_t, kHoldCount> sizes{};
    for (unsigned mask = 0; mask < kHoldCount; ++mask) {
        sizes[mask] = static_cast<std::uint8_t>(std::popcount(mask));
    }
    return sizes;
}();

// One worker's final hands, kept apart by hold size so that each is divided once by its draws.
struct alignas(64) Totals {
    std::array<std::array<std::uint64_t, kMaxOutcomes>, kHeldCounts> hands{};
};

// Takes from every set without the card at Bit the same set with it, over all 32 sets.
template <unsigned Bit> void subtractWith(std::array<double, kHoldCount>& sets) {
    for (unsigned base = 0; base < kHoldCount; base += 2 * Bit) {
        for (unsigned low = 0; low < Bit; ++low) {
            sets[base + low] -= sets[base + low + Bit];
        }
    }
}

// The final hands of one hold by inclusion and exclusion over the discarded cards.
void holdCounts(const DrawTables& tables, const SubsetClasses& ids, int dealSlot, unsigned held,
                OutcomeCounts& out) {
    out = {};
    const unsigned discarded = kAllHeld & ~held;
    for (unsigned extra = discarded;; extra = (extra - 1) & discarded) {
        const unsigned set = held | extra;
        const int sign = (kMaskSize[extra] & 1u) != 0 ? -1 : 1;
        if (set == kAllHeld) {
            out[dealSlot] += sign;
        } else {
            tables.addClassCounts(kMaskSize[set], ids[set], sign, out);
        }
        if (extra == 0) {
            break;
        }
    }
}

// A hold's return as the one-hand analysis works it out, so that ties fall the same way.
double exactReturn(const OutcomeCounts& counts, const ClassPays& pays, unsigned held) {
    double paid = 0.0;
    for (int slot = 0; slot < kMaxOutcomes; ++slot) {
        paid += counts[slot] * pays.values[slot];
    }
    return paid / pays.draws[kMaskSize[held]];
}

// Plays one deal class the best way: every hold's pay from the class sums by inclusion and
// exclusion, then the final hands of the best hold.
void playClass(const DrawTables& tables, const ClassPays& pays, const DealClass& deal, int dealSlot,
               Totals& totals) {
    SubsetClasses ids; // filled by subsetClasses
    tables.subsetClasses(deal.cards, ids);
    const std::array<double, kHoldCount> expected = holdReturns(pays, ids, dealSlot);
    // A first pick by the returns to within rounding; near ties are settled below.
    unsigned best = 0;
    double most = expected[0];
    for (unsigned mask = 1; mask < kHoldCount; ++mask) {
        if (expected[mask] > most) {
            most = expected[mask];
            best = mask;
        }
    }
    OutcomeCounts counts; // filled by holdCounts
    const double near = most - kNearTie * std::max(1.0, std::abs(most));
    if (std::count_if(expected.begin(), expected.end(), [&](double e) { return e >= near; }) > 1) {
        // Holds this close may be equal: settle them on exact counts, the lowest mask first.
        double bestReturn = 0.0;
        bool first = true;
        for (unsigned mask = 0; mask < kHoldCount; ++mask) {
            if (expected[mask] < near) {
                continue;
            }
            OutcomeCounts candidate{};
            holdCounts(tables, ids, dealSlot, mask, candidate);
            const double value = exactReturn(candidate, pays, mask);
            if (first || value > bestReturn) {
                first = false;
                bestReturn = value;
                best = mask;
                counts = candidate;
            }
        }
    } else {
        holdCounts(tables, ids, dealSlot, best, counts);
    }
    auto& hands = totals.hands[kMaskSize[best]];
    for (int slot = 0; slot < kMaxOutcomes; ++slot) {
        hands[slot] +=
            static_cast<std::uint64_t>(deal.weight) * static_cast<std::uint64_t>(counts[slot]);
    }
}

} // namespace

ClassPays classPaysFor(const DrawTables& tables, const PayScale& scale) {
    ClassPays pays;
    pays.values = outcomeValues(tables, scale);
    for (int size = 0; size < kHandSize; ++size) {
        auto& ofClass = pays.ofClass[size];
        ofClass.resize(tables.classCount(size));
        for (std::size_t id = 0; id < ofClass.size(); ++id) {
            OutcomeCounts counts{};
            tables.addClassCounts(size, static_cast<int>(id), 1, counts);
            double sum = 0.0;
            for (int slot = 0; slot < kMaxOutcomes; ++slot) {
                sum += counts[slot] * pays.values[slot];
            }
            ofClass[id] = sum;
        }
    }
    for (int held = 0; held < kHeldCounts; ++held) {
        pays.draws[held] = static_cast<double>(drawsFor(tables.deckSize(), held));
        pays.perDraw[held] = 1.0 / pays.draws[held];
    }
    return pays;
}

std::array<double, kHoldCount> holdReturns(const ClassPays& pays, const SubsetClasses& ids,
                                           int dealSlot) {
    std::array<double, kHoldCount> paid; // every entry set below
    for (unsigned mask = 0; mask < kAllHeld; ++mask) {
        paid[mask] = pays.ofClass[kMaskSize[mask]][ids[mask]];
    }
    paid[kAllHeld] = pays.values[dealSlot];
    // After the pass over card b, paid[A] covers the hands that contain A and none of the
    // discarded cards among those passed.
    subtractWith<1>(paid);
    subtractWith<2>(paid);
    subtractWith<4>(paid);
    subtractWith<8>(paid);
    subtractWith<16>(paid);
    for (unsigned mask = 0; mask < kHoldCount; ++mask) {
        paid[mask] *= pays.perDraw[kMaskSize[mask]];
    }
    return paid;
}

std::optional<GameOdds> analyzeGame(const DrawTables& tables, const PayScale& scale, int threads,
                                    std::stop_token stop) {
    const std::vector<DealClass>& classes = dealClasses(tables.deckSize());
    const std::span<const std::uint8_t> dealSlots = tables.dealOutcomes();
    const ClassPays pays = classPaysFor(tables, scale);

    threads = std::max(threads, 1);
    std::vector<Totals> totals(threads);
    const int chunks = static_cast<int>((classes.size() + kChunk - 1) / kChunk);
    parallelFor(chunks, threads, [&](int worker, int chunk) {
        if (stop.stop_requested()) {
            return;
        }
        const std::size_t first = static_cast<std::size_t>(chunk) * kChunk;
        const std::size_t last = std::min(classes.size(), first + kChunk);
        for (std::size_t i = first; i < last; ++i) {
            playClass(tables, pays, classes[i], dealSlots[i], totals[worker]);
        }
    });
    if (stop.stop_requested()) {
        return std::nullopt;
    }

    GameOdds odds;
    odds.game = tables.game();
    odds.deals = binomial(tables.deckSize(), kHandSize);
    odds.dealClasses = classes.size();
    odds.outcomeCount = tables.outcomeCount();
    const OutcomeValues squares = outcomeSquares(tables, scale);
    const auto deals = static_cast<long double>(odds.deals);
    std::array<long double, kMaxOutcomes> probability{};
    for (int held = 0; held < kHeldCounts; ++held) {
        const long double perDeal = deals * pays.draws[held];
        for (int slot = 0; slot < kMaxOutcomes; ++slot) {
            std::uint64_t hands = 0;
            for (const Totals& part : totals) {
                hands += part.hands[held][slot];
            }
            probability[slot] += static_cast<long double>(hands) / perDeal;
        }
    }
    long double expected = 0.0L;
    long double expectedSquare = 0.0L;
    for (int slot = 0; slot < tables.outcomeCount(); ++slot) {
        const std::size_t at = slot;
        const Outcome outcome = tables.outcome(slot);
        const auto p = static_cast<double>(probability[at]);
        expected += probability[at] * pays.values[at];
        expectedSquare += probability[at] * squares[at];
        odds.outcomes[at] = outcome;
        odds.outcomeProbability[at] = p;
        odds.codeProbability[outcome.code] += p;
        if (outcome.bonus) {
            odds.bonusProbability += p;
            odds.bonusReturn += p * scale.bonus;
        }
    }
    odds.expectedReturn = static_cast<double>(expected);
    odds.variance = static_cast<double>(expectedSquare - expected * expected);
    return odds;
}

} // namespace marivale::odds
