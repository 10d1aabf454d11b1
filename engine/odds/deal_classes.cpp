#include "engine/odds/deal_classes.h"

// Marivale
#include "engine/odds/suit_classes.h"

namespace marivale::odds {
namespace {

std::vector<DealClass> buildClasses(int deckSize) {
    std::vector<DealClass> classes;
    for (const SuitClass& rep : buildSuitClasses(deckSize, kHandSize)) {
        classes.push_back({rep.cards, rep.weight});
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
