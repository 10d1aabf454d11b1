#include "engine/odds/draw_tables.h"

// Standard library
#include <algorithm>
#include <atomic>
#include <bit>
#include <chrono>
#include <memory>
#include <mutex>
#include <span>
#include <stdexcept>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/odds/parallel.h"
#include "state/game_state.h"

namespace marivale::odds {
namespace {

constexpr std::uint8_t kBonusBit = 0x10;
constexpr int kRawValues = 32;

// Puts the sorted set with one more card into `out`, in ascending order; false when the card is
// already in the set. Returns the new size through `size`.
bool insertSorted(std::span<const CardCode> set, CardCode extra,
                  std::array<CardCode, kHandSize>& out, int& size) {
    size = 0;
    bool placed = false;
    for (const CardCode card : set) {
        if (card == extra) {
            return false;
        }
        if (!placed && extra < card) {
            out[static_cast<std::size_t>(size++)] = extra;
            placed = true;
        }
        out[static_cast<std::size_t>(size++)] = card;
    }
    if (!placed) {
        out[static_cast<std::size_t>(size++)] = extra;
    }
    return true;
}

struct LazyTables {
    std::once_flag once{};
    std::atomic<const DrawTables*> ready{nullptr};
    std::unique_ptr<DrawTables> tables{};
};

// One lazily built table set per game, indexed by GameId.
std::array<LazyTables, 4>& lazyTables() {
    static std::array<LazyTables, 4> all{};
    return all;
}

LazyTables& lazyFor(GameId game) {
    return lazyTables()[static_cast<std::size_t>(game)];
}

// Classifies five ascending cards with the game's own analysis: code, plus the bonus bit.
std::uint8_t classify(GameState& state, GameId game, const std::array<CardCode, kHandSize>& cards) {
    for (int i = 0; i < kHandSize; ++i) {
        state.Hand[static_cast<std::size_t>(i)] =
            static_cast<float>(cards[static_cast<std::size_t>(i)]);
    }
    state.BonusDue = kFalse;
    const HandAnalysis analysis = AnalyzeHand(state, game);
    const auto code = static_cast<std::uint8_t>(std::min<int>(analysis.code, kCodeSlots - 1));
    const bool bonus = game == GameId::TreasureTrips && isSet(state.BonusDue);
    return static_cast<std::uint8_t>(code | (bonus ? kBonusBit : 0));
}

} // namespace

const DrawTables& DrawTables::forGame(GameId game) {
    LazyTables& lazy = lazyFor(game);
    std::call_once(lazy.once, [&] {
        lazy.tables = std::make_unique<DrawTables>(game, defaultThreadCount());
        lazy.ready.store(lazy.tables.get(), std::memory_order_release);
    });
    return *lazy.tables;
}

const DrawTables* DrawTables::ifBuilt(GameId game) {
    return lazyFor(game).ready.load(std::memory_order_acquire);
}

DrawTables::DrawTables(GameId game, int threads)
    : game_(game), deckSize_(marivale::deckSize(game)) {
    const auto start = std::chrono::steady_clock::now();
    classifyHands(threads);
    countFours(threads);
    sumSmallerSets();
    buildSeconds_ = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Classifies every 5-card hand, then gives each outcome that occurs its slot.
void DrawTables::classifyHands(int threads) {
    hands_.assign(binomial(deckSize_, kHandSize), 0);
    std::vector<std::array<bool, kRawValues>> seen(static_cast<std::size_t>(threads));
    // One task per highest card: its hands fill one contiguous run of colex numbers.
    parallelFor(deckSize_ - (kHandSize - 1), threads, [&](int worker, int task) {
        const int c4 = deckSize_ - 1 - task;
        GameState state{};
        auto& mine = seen[static_cast<std::size_t>(worker)];
        for (int c3 = 3; c3 < c4; ++c3) {
            for (int c2 = 2; c2 < c3; ++c2) {
                for (int c1 = 1; c1 < c2; ++c1) {
                    for (int c0 = 0; c0 < c1; ++c0) {
                        const std::array<CardCode, kHandSize> cards{c0, c1, c2, c3, c4};
                        const std::uint8_t raw = classify(state, game_, cards);
                        hands_[subsetIndex(cards)] = raw;
                        mine[raw] = true;
                    }
                }
            }
        }
    });

    std::array<std::uint8_t, kRawValues> slotOfRaw{};
    for (int code = 0; code < kCodeSlots; ++code) {
        outcomes_[static_cast<std::size_t>(code)] = Outcome{static_cast<std::uint8_t>(code), false};
        slotOfRaw[static_cast<std::size_t>(code)] = static_cast<std::uint8_t>(code);
    }
    outcomeCount_ = kCodeSlots;
    for (int code = 0; code < kCodeSlots; ++code) {
        const int raw = code | kBonusBit;
        if (std::none_of(seen.begin(), seen.end(), [&](const auto& s) { return s[raw]; })) {
            continue;
        }
        if (outcomeCount_ == kMaxOutcomes) {
            throw std::logic_error("more bonus outcomes than the odds have slots for");
        }
        outcomes_[static_cast<std::size_t>(outcomeCount_)] =
            Outcome{static_cast<std::uint8_t>(code), true};
        slotOfRaw[static_cast<std::size_t>(raw)] = static_cast<std::uint8_t>(outcomeCount_++);
    }
    for (auto& value : hands_) {
        value = slotOfRaw[value];
    }
}

// For every 4-card set, counts the hands that complete it with each remaining card.
void DrawTables::countFours(int threads) {
    fours_.assign(binomial(deckSize_, 4), {});
    parallelFor(deckSize_ - 3, threads, [&](int, int task) {
        const int c3 = deckSize_ - 1 - task;
        for (int c2 = 2; c2 < c3; ++c2) {
            for (int c1 = 1; c1 < c2; ++c1) {
                for (int c0 = 0; c0 < c1; ++c0) {
                    const std::array<CardCode, 4> set{c0, c1, c2, c3};
                    auto& counts = fours_[subsetIndex(set)];
                    std::array<CardCode, kHandSize> hand{};
                    for (CardCode extra = 0; extra < deckSize_; ++extra) {
                        int size = 0;
                        if (!insertSorted(set, extra, hand, size)) {
                            continue;
                        }
                        ++counts[hands_[subsetIndex(hand)]];
                    }
                }
            }
        }
    });
}

namespace {

// Sums the counts of every (k+1)-set over the k-sets it contains; each hand is then counted
// (5 - k) times, once per card it adds to the k-set, so the sums are divided by that.
template <typename Larger>
void sumDown(int deck, int k, const std::vector<Larger>& larger, std::vector<OutcomeCounts>& out) {
    out.assign(binomial(deck, k), {});
    std::array<CardCode, kHandSize> set{};
    std::array<CardCode, kHandSize> bigger{};
    // Walk every k-set in colex order by its ascending cards.
    for (int i = 0; i < k; ++i) {
        set[static_cast<std::size_t>(i)] = i;
    }
    for (std::uint32_t index = 0; index < out.size(); ++index) {
        OutcomeCounts& counts = out[index];
        for (CardCode extra = 0; extra < deck; ++extra) {
            int used = 0;
            if (!insertSorted(std::span<const CardCode>(set.data(), static_cast<std::size_t>(k)),
                              extra, bigger, used)) {
                continue;
            }
            const auto& add = larger[subsetIndex(
                std::span<const CardCode>(bigger.data(), static_cast<std::size_t>(used)))];
            for (int slot = 0; slot < kMaxOutcomes; ++slot) {
                counts[static_cast<std::size_t>(slot)] += add[static_cast<std::size_t>(slot)];
            }
        }
        for (auto& count : counts) {
            count /= kHandSize - k;
        }
        // Next k-set in colex order: raise the lowest card that can rise, reset those below it.
        for (int i = 0; i < k; ++i) {
            const CardCode limit = i + 1 < k ? set[static_cast<std::size_t>(i + 1)] : deck;
            if (set[static_cast<std::size_t>(i)] + 1 < limit) {
                ++set[static_cast<std::size_t>(i)];
                for (int j = 0; j < i; ++j) {
                    set[static_cast<std::size_t>(j)] = j;
                }
                break;
            }
        }
    }
}

} // namespace

void DrawTables::sumSmallerSets() {
    sumDown(deckSize_, 3, fours_, threes_);
    sumDown(deckSize_, 2, threes_, twos_);
    sumDown(deckSize_, 1, twos_, ones_);
    std::vector<OutcomeCounts> none;
    sumDown(deckSize_, 0, ones_, none);
    all_ = none.front();
}

int DrawTables::handOutcome(std::span<const CardCode, kHandSize> ascending) const {
    return hands_[subsetIndex(ascending)];
}

void DrawTables::supersetCounts(std::span<const CardCode, kHandSize> ascending,
                                SubsetCounts& out) const {
    std::array<std::uint32_t, 32> index{};
    for (unsigned mask = 1; mask < 32; ++mask) {
        // The highest position holds the largest card, so it takes the last place of the set.
        const int top = std::bit_width(mask) - 1;
        const unsigned rest = mask & ~(1u << top);
        index[mask] = index[rest] +
                      kBinomial[ascending[static_cast<std::size_t>(top)]][std::popcount(rest) + 1];
    }
    for (unsigned mask = 0; mask < 32; ++mask) {
        OutcomeCounts& counts = out[mask];
        switch (std::popcount(mask)) {
        case 0:
            counts = all_;
            break;
        case 1:
            counts = ones_[index[mask]];
            break;
        case 2:
            counts = twos_[index[mask]];
            break;
        case 3:
            counts = threes_[index[mask]];
            break;
        case 4: {
            const auto& small = fours_[index[mask]];
            for (int slot = 0; slot < kMaxOutcomes; ++slot) {
                counts[static_cast<std::size_t>(slot)] = small[static_cast<std::size_t>(slot)];
            }
            break;
        }
        default:
            counts = {};
            counts[hands_[index[mask]]] = 1;
            break;
        }
    }
}

std::size_t DrawTables::memoryBytes() const {
    return hands_.size() * sizeof(hands_[0]) + fours_.size() * sizeof(fours_[0]) +
           (threes_.size() + twos_.size() + ones_.size() + 1) * sizeof(OutcomeCounts);
}

} // namespace marivale::odds
