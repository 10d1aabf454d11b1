#include "engine/odds/suit_classes.h"

// Standard library
#include <algorithm>
#include <bit>
#include <memory>
#include <stdexcept>

// Marivale
#include "engine/odds/stoppable_once.h"

namespace marivale::odds {
namespace {

constexpr unsigned kAllRanks = (1u << kRanksPerSuit) - 1;

// n! for the multiplicities of equal suit patterns (at most four equal).
constexpr std::array<int, kSuitCount + 1> kFactorial{1, 1, 2, 6, 24};

using Patterns = std::array<unsigned, kSuitCount>;

// The rank patterns of each size, for the enumeration below.
const std::array<std::vector<unsigned>, kHandSize + 1>& patternsBySize() {
    static const auto all = [] {
        std::array<std::vector<unsigned>, kHandSize + 1> bySize{};
        for (unsigned mask = 0; mask <= kAllRanks; ++mask) {
            const int count = std::popcount(mask);
            if (count <= kHandSize) {
                bySize[count].push_back(mask);
            }
        }
        return bySize;
    }();
    return all;
}

// Calls visit(patterns) for every non-increasing choice of the suits from `suit` on whose rank
// patterns hold `cards` cards between them, each pattern at most `bound`.
template <typename Visit>
void forEachPatternSet(Patterns& patterns, int suit, unsigned bound, int cards, Visit& visit) {
    const auto& bySize = patternsBySize();
    const int fewest = suit == kSuitCount - 1 ? cards : 0;
    for (int count = fewest; count <= cards; ++count) {
        for (const unsigned mask : bySize[count]) {
            if (mask > bound) {
                break; // the patterns of a size ascend
            }
            patterns[suit] = mask;
            if (suit == kSuitCount - 1) {
                visit(patterns);
            } else {
                forEachPatternSet(patterns, suit + 1, mask, cards - count, visit);
            }
        }
    }
}

// The ascending cards of the patterns, one suit after the other, then the joker.
int cardsOf(const Patterns& patterns, bool joker, std::array<CardCode, kHandSize>& cards) {
    int size = 0;
    for (int suit = 0; suit < kSuitCount; ++suit) {
        for (unsigned rest = patterns[suit]; rest != 0; rest &= rest - 1) {
            cards[size++] = suit * kRanksPerSuit + std::countr_zero(rest);
        }
    }
    if (joker) {
        cards[size++] = kJoker;
    }
    return size;
}

// How many different sets a renaming of the suits makes of the patterns.
int arrangements(const Patterns& patterns) {
    int count = kFactorial[kSuitCount];
    int run = 1;
    for (int suit = 1; suit <= kSuitCount; ++suit) {
        if (suit < kSuitCount && patterns[suit] == patterns[suit - 1]) {
            ++run;
            continue;
        }
        count /= kFactorial[run];
        run = 1;
    }
    return count;
}

Patterns patternsOf(std::span<const CardCode> cards) {
    Patterns patterns{};
    for (const CardCode card : cards) {
        if (card != kJoker) {
            patterns[suitIndex(card)] |= 1u << rankIndex(card);
        }
    }
    return patterns;
}

constexpr std::size_t kStopCheck = 4096;

std::unique_ptr<SubsetClassTables> buildTables(int deckSize, std::stop_token stop) {
    auto tables = std::make_unique<SubsetClassTables>();
    for (int size = 0; size < kHandSize; ++size) {
        auto& classes = tables->classes[size];
        classes = buildSuitClasses(deckSize, size, stop);
        if (classes.size() > 0xffff) {
            throw std::logic_error("too many suit classes for 16-bit numbers");
        }
        auto& classOf = tables->classOfSet[size];
        classOf.assign(binomial(deckSize, size), 0);
        // Every renaming of the suits of a representative lands in its class.
        for (std::size_t id = 0; id < classes.size(); ++id) {
            if (id % kStopCheck == 0) {
                throwIfStopped(stop);
            }
            const SuitClass& rep = classes[id];
            Patterns renamed = patternsOf(rep.set());
            const bool joker = rep.size > 0 && rep.cards[rep.size - 1u] == kJoker;
            // Each distinct arrangement of the patterns once.
            std::sort(renamed.begin(), renamed.end());
            do {
                std::array<CardCode, kHandSize> cards{};
                const int count = cardsOf(renamed, joker, cards);
                classOf[subsetIndex(
                    std::span<const CardCode>(cards.data(), static_cast<std::size_t>(count)))] =
                    static_cast<std::uint16_t>(id);
            } while (std::next_permutation(renamed.begin(), renamed.end()));
        }
    }
    return tables;
}

} // namespace

std::vector<SuitClass> buildSuitClasses(int deckSize, int size, std::stop_token stop) {
    std::vector<SuitClass> classes;
    for (int joker = 0; joker <= (deckSize > kJoker ? 1 : 0); ++joker) {
        const int natural = size - joker;
        if (natural < 0) {
            continue;
        }
        auto visit = [&](const Patterns& patterns) {
            if (classes.size() % kStopCheck == 0) {
                throwIfStopped(stop);
            }
            SuitClass rep;
            rep.size = static_cast<std::uint8_t>(cardsOf(patterns, joker != 0, rep.cards));
            rep.weight = static_cast<std::uint8_t>(arrangements(patterns));
            classes.push_back(rep);
        };
        Patterns patterns{};
        forEachPatternSet(patterns, 0, kAllRanks, natural, visit);
    }
    return classes;
}

std::size_t SubsetClassTables::memoryBytes() const {
    std::size_t bytes = 0;
    for (int size = 0; size < kHandSize; ++size) {
        bytes += classes[size].size() * sizeof(SuitClass) +
                 classOfSet[size].size() * sizeof(std::uint16_t);
    }
    return bytes;
}

const SubsetClassTables& subsetClassTables(int deckSize) {
    return *subsetClassTablesUnlessStopped(deckSize, {});
}

const SubsetClassTables* subsetClassTablesUnlessStopped(int deckSize, std::stop_token stop) {
    static std::array<StoppableOnce<SubsetClassTables>, 2> byDeck{};
    return byDeck[deckSize == 52 ? 0 : 1].get(
        stop, [deckSize](std::stop_token building) { return buildTables(deckSize, building); });
}

} // namespace marivale::odds
