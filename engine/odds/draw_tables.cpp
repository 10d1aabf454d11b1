#include "engine/odds/draw_tables.h"

// Standard library
#include <algorithm>
#include <bit>
#include <future>
#include <memory>
#include <stdexcept>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/odds/deal_classes.h"
#include "engine/odds/parallel.h"
#include "engine/odds/suit_classes.h"
#include "state/game_state.h"

namespace marivale::odds {
namespace {

constexpr std::uint8_t kBonusBit = 0x10;
constexpr int kRawValues = 32;
constexpr std::size_t kClassifyChunk = 2048;

// How many cards each of the 32 masks keeps.
constexpr std::array<std::uint8_t, 32> kMaskSize = [] {
    std::array<std::uint8_t, 32> sizes{};
    for (unsigned mask = 0; mask < 32; ++mask) {
        sizes[mask] = static_cast<std::uint8_t>(std::popcount(mask));
    }
    return sizes;
}();

// One lazily built table set per game, indexed by GameId.
StoppableOnce<DrawTables>& lazyFor(GameId game) {
    static std::array<StoppableOnce<DrawTables>, kGameCount> all{};
    return all[gameIndex(game)];
}

// Classifies five ascending cards with the game's own analysis: code, plus the bonus bit.
std::uint8_t classify(GameState& state, GameId game, std::span<const CardCode, kHandSize> cards) {
    for (int i = 0; i < kHandSize; ++i) {
        state.Hand[i] = static_cast<float>(cards[i]);
    }
    state.BonusDue = kFalse;
    const HandAnalysis analysis = AnalyzeHand(state, game);
    const auto code = static_cast<std::uint8_t>(std::min<int>(analysis.code, kCodeSlots - 1));
    // The analysis sets BonusDue only on a game with a bonus.
    const bool bonus = isSet(state.BonusDue);
    return static_cast<std::uint8_t>(code | (bonus ? kBonusBit : 0));
}

// For each mask: its highest position, and the mask without it.
struct MaskSplit {
    std::uint8_t top{0};
    std::uint8_t rest{0};
};
constexpr std::array<MaskSplit, 32> kMaskSplit = [] {
    std::array<MaskSplit, 32> splits{};
    for (unsigned mask = 1; mask < 32; ++mask) {
        const int top = std::bit_width(mask) - 1;
        splits[mask] = {static_cast<std::uint8_t>(top),
                        static_cast<std::uint8_t>(mask & ~(1u << top))};
    }
    return splits;
}();

// The colex number of every subset of the ascending deal, by mask over its positions.
std::array<std::uint32_t, 32> subsetNumbers(std::span<const CardCode, kHandSize> ascending) {
    std::array<std::uint32_t, 32> number{};
    for (unsigned mask = 1; mask < 32; ++mask) {
        // The highest position holds the largest card, so it takes the last place of the set.
        const MaskSplit split = kMaskSplit[mask];
        number[mask] =
            number[split.rest] + kBinomial[ascending[split.top]][kMaskSize[split.rest] + 1u];
    }
    return number;
}

// The colex number of the ascending set without its card at `omitted`.
std::uint32_t numberWithout(std::span<const CardCode> set, std::size_t omitted) {
    std::uint32_t number = 0;
    int place = 0;
    for (std::size_t i = 0; i < set.size(); ++i) {
        if (i != omitted) {
            number += kBinomial[set[i]][++place];
        }
    }
    return number;
}

using Sums = std::vector<std::array<std::uint64_t, kMaxOutcomes>>;

// Each set of `size` cards lies in (5 - size) sets of one card more for every hand containing
// it; summing over a class's members counts each member `weight` times. Exact division or the
// outcomes depend on the suits.
template <typename Counts>
void divideSums(const Sums& sums, const std::vector<SuitClass>& classes, int size,
                std::vector<Counts>& out) {
    out.assign(classes.size(), {});
    for (std::size_t id = 0; id < classes.size(); ++id) {
        const std::uint64_t divisor = static_cast<std::uint64_t>(classes[id].weight) *
                                      static_cast<unsigned>(kHandSize - size);
        for (int slot = 0; slot < kMaxOutcomes; ++slot) {
            const std::uint64_t sum = sums[id][slot];
            if (sum % divisor != 0) {
                throw std::logic_error("hand outcomes depend on which suit is which");
            }
            out[id][slot] = static_cast<typename Counts::value_type>(sum / divisor);
        }
    }
}

// The counts of the sets of `size` cards from those of `size + 1` cards.
template <typename Larger, typename Smaller>
void sumDown(const SubsetClassTables& sets, int size, const std::vector<Larger>& larger,
             std::vector<Smaller>& out) {
    const auto& bigger = sets.classes[size + 1];
    const auto& classOf = sets.classOfSet[size];
    Sums sums(sets.classes[size].size());
    for (std::size_t id = 0; id < bigger.size(); ++id) {
        const SuitClass& rep = bigger[id];
        for (std::size_t omitted = 0; omitted < rep.size; ++omitted) {
            auto& sum = sums[classOf[numberWithout(rep.set(), omitted)]];
            for (int slot = 0; slot < kMaxOutcomes; ++slot) {
                sum[slot] += static_cast<std::uint64_t>(rep.weight) *
                             static_cast<std::uint64_t>(larger[id][slot]);
            }
        }
    }
    divideSums(sums, sets.classes[size], size, out);
}

} // namespace

const DrawTables& DrawTables::forGame(GameId game) {
    return *forGameUnlessStopped(game, {});
}

const DrawTables* DrawTables::forGameUnlessStopped(GameId game, std::stop_token stop) {
    return lazyFor(game).get(stop, [game](std::stop_token building) {
        return std::make_unique<DrawTables>(game, defaultThreadCount(), building);
    });
}

const DrawTables* DrawTables::ifBuilt(GameId game) {
    return lazyFor(game).ifBuilt();
}

DrawTables::DrawTables(GameId game, int threads, std::stop_token stop)
    : game_(game), deckSize_(marivale::deckSize(game)) {
    // The classes of the smaller sets depend on the deck alone: found while the deals are
    // classified.
    auto smaller = std::async(std::launch::async, [this, &stop] {
        return subsetClassTablesUnlessStopped(deckSize_, stop);
    });
    classifyDeals(threads, stop);
    classes_ = smaller.get();
    if (classes_ == nullptr) {
        throw BuildStopped{};
    }
    throwIfStopped(stop);
    countFours();
    throwIfStopped(stop);
    sumSmallerSets();
}

// Classifies one deal of every suit class, then gives each outcome that occurs its slot.
void DrawTables::classifyDeals(int threads, std::stop_token stop) {
    const std::vector<DealClass>* all = dealClassesUnlessStopped(deckSize_, stop);
    if (all == nullptr) {
        throw BuildStopped{};
    }
    const std::vector<DealClass>& deals = *all;
    dealOutcomes_.assign(deals.size(), 0);
    std::vector<std::array<bool, kRawValues>> seen(std::max(threads, 1));
    const int chunks = static_cast<int>((deals.size() + kClassifyChunk - 1) / kClassifyChunk);
    parallelFor(chunks, threads, [&](int worker, int chunk) {
        if (stop.stop_requested()) {
            return;
        }
        GameState state{};
        auto& mine = seen[worker];
        const std::size_t first = static_cast<std::size_t>(chunk) * kClassifyChunk;
        const std::size_t last = std::min(deals.size(), first + kClassifyChunk);
        for (std::size_t i = first; i < last; ++i) {
            const std::uint8_t raw = classify(state, game_, deals[i].cards);
            dealOutcomes_[i] = raw;
            mine[raw] = true;
        }
    });

    for (int code = 0; code < kCodeSlots; ++code) {
        outcomes_[code] = Outcome{static_cast<std::uint8_t>(code), false};
        slotOfRaw_[code] = static_cast<std::uint8_t>(code);
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
        outcomes_[outcomeCount_] = Outcome{static_cast<std::uint8_t>(code), true};
        slotOfRaw_[raw] = static_cast<std::uint8_t>(outcomeCount_++);
    }
    for (auto& value : dealOutcomes_) {
        value = slotOfRaw_[value];
    }
}

// Every hand of a deal class holds its four-card subsets: summed over the classes, each class of
// four-card sets collects the hands that contain its members.
void DrawTables::countFours() {
    const std::vector<DealClass>& deals = dealClasses(deckSize_);
    const auto& classOf = classes_->classOfSet[4];
    Sums sums(classes_->classes[4].size());
    for (std::size_t i = 0; i < deals.size(); ++i) {
        const std::span<const CardCode> cards(deals[i].cards);
        for (std::size_t omitted = 0; omitted < cards.size(); ++omitted) {
            sums[classOf[numberWithout(cards, omitted)]][dealOutcomes_[i]] += deals[i].weight;
        }
    }
    divideSums(sums, classes_->classes[4], 4, fours_);
}

void DrawTables::sumSmallerSets() {
    sumDown(*classes_, 3, fours_, threes_);
    sumDown(*classes_, 2, threes_, twos_);
    sumDown(*classes_, 1, twos_, ones_);
    std::vector<OutcomeCounts> none;
    sumDown(*classes_, 0, ones_, none);
    all_ = none.front();
}

int DrawTables::handOutcome(std::span<const CardCode, kHandSize> ascending) const {
    GameState state{};
    return slotOfRaw_[classify(state, game_, ascending)];
}

void DrawTables::subsetClasses(std::span<const CardCode, kHandSize> ascending,
                               SubsetClasses& out) const {
    const auto number = subsetNumbers(ascending);
    out[0] = 0;
    out[31] = 0;
    for (unsigned mask = 1; mask < 31; ++mask) {
        out[mask] = classes_->classOfSet[kMaskSize[mask]][number[mask]];
    }
}

int DrawTables::classCount(int size) const {
    return static_cast<int>(classes_->classes[size].size());
}

void DrawTables::addClassCounts(int size, int id, int sign, OutcomeCounts& into) const {
    const auto add = [&](const auto& counts) {
        for (int slot = 0; slot < kMaxOutcomes; ++slot) {
            into[slot] += sign * static_cast<std::int32_t>(counts[slot]);
        }
    };
    const std::size_t at = id;
    switch (size) {
    case 0:
        add(all_);
        break;
    case 1:
        add(ones_[at]);
        break;
    case 2:
        add(twos_[at]);
        break;
    case 3:
        add(threes_[at]);
        break;
    default:
        add(fours_[at]);
        break;
    }
}

void DrawTables::supersetCounts(std::span<const CardCode, kHandSize> ascending,
                                SubsetCounts& out) const {
    SubsetClasses ids{};
    subsetClasses(ascending, ids);
    for (unsigned mask = 0; mask < 31; ++mask) {
        out[mask] = {};
        addClassCounts(kMaskSize[mask], ids[mask], 1, out[mask]);
    }
    out[31] = {};
    out[31][handOutcome(ascending)] = 1;
}

std::size_t DrawTables::memoryBytes() const {
    return classes_->memoryBytes() + dealOutcomes_.size() * sizeof(dealOutcomes_[0]) +
           fours_.size() * sizeof(fours_[0]) + threes_.size() * sizeof(threes_[0]) +
           twos_.size() * sizeof(twos_[0]) + (ones_.size() + 1) * sizeof(OutcomeCounts);
}

} // namespace marivale::odds
