#include "engine/odds/deal_classes.h"

// Standard library
#include <algorithm>

namespace marivale::odds {
namespace {

constexpr int kSuits = 4;

// n! for the multiplicities of equal suit patterns (at most four equal).
constexpr std::array<int, kSuits + 1> kFactorial{1, 1, 2, 6, 24};

// A deal represents its class when its suits' rank patterns never increase from suit 0 to
// suit 3; the class then holds one deal per distinct arrangement of the four patterns.
int classWeight(const std::array<CardCode, kHandSize>& cards) {
    std::array<unsigned, kSuits> pattern{};
    for (const CardCode card : cards) {
        if (card < kSuits * kRanksPerSuit) {
            pattern[static_cast<std::size_t>(suitIndex(card))] |= 1u << rankIndex(card);
        }
    }
    for (int suit = 1; suit < kSuits; ++suit) {
        if (pattern[static_cast<std::size_t>(suit)] > pattern[static_cast<std::size_t>(suit - 1)]) {
            return 0;
        }
    }
    int arrangements = kFactorial[kSuits];
    int run = 1;
    for (int suit = 1; suit <= kSuits; ++suit) {
        if (suit < kSuits && pattern[static_cast<std::size_t>(suit)] ==
                                 pattern[static_cast<std::size_t>(suit - 1)]) {
            ++run;
            continue;
        }
        arrangements /= kFactorial[static_cast<std::size_t>(run)];
        run = 1;
    }
    return arrangements;
}

std::vector<DealClass> buildClasses(int deckSize) {
    std::vector<DealClass> classes;
    std::array<CardCode, kHandSize> cards{};
    for (cards[4] = 4; cards[4] < deckSize; ++cards[4]) {
        for (cards[3] = 3; cards[3] < cards[4]; ++cards[3]) {
            for (cards[2] = 2; cards[2] < cards[3]; ++cards[2]) {
                for (cards[1] = 1; cards[1] < cards[2]; ++cards[1]) {
                    for (cards[0] = 0; cards[0] < cards[1]; ++cards[0]) {
                        const int weight = classWeight(cards);
                        if (weight > 0) {
                            classes.push_back({cards, static_cast<std::uint8_t>(weight)});
                        }
                    }
                }
            }
        }
    }
    return classes;
}

} // namespace

const std::vector<DealClass>& dealClasses(int deckSize) {
    static const std::vector<DealClass> natural = buildClasses(52);
    if (deckSize == 52) {
        return natural;
    }
    static const std::vector<DealClass> withJoker = buildClasses(kMaxDeck);
    return withJoker;
}

} // namespace marivale::odds
