#include "engine/odds/deal_classes.h"

// Marivale
#include "engine/odds/stoppable_once.h"
#include "engine/odds/suit_classes.h"

namespace marivale::odds {
namespace {

std::unique_ptr<std::vector<DealClass>> buildClasses(int deckSize, std::stop_token stop) {
    auto classes = std::make_unique<std::vector<DealClass>>();
    for (const SuitClass& rep : buildSuitClasses(deckSize, kHandSize, stop)) {
        classes->push_back({rep.cards, rep.weight});
    }
    return classes;
}

} // namespace

const std::vector<DealClass>& dealClasses(int deckSize) {
    return *dealClassesUnlessStopped(deckSize, {});
}

const std::vector<DealClass>* dealClassesUnlessStopped(int deckSize, std::stop_token stop) {
    static std::array<StoppableOnce<std::vector<DealClass>>, 2> byDeck{};
    return byDeck[deckSize == 52 ? 0 : 1].get(
        stop, [deckSize](std::stop_token building) { return buildClasses(deckSize, building); });
}

} // namespace marivale::odds
