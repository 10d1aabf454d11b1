#include "play/practice/line_deals.h"

// Standard library
#include <algorithm>
#include <numeric>

// Marivale
#include "engine/odds/deal_classes.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/pay_scale.h"
#include "play/practice/drill_dealer.h"

namespace marivale {
namespace {

// A whole number below count from one uniform value.
std::int64_t indexBelow(RandomSource& random, std::int64_t count) {
    return std::min(count - 1,
                    static_cast<std::int64_t>(random.next() * static_cast<double>(count)));
}

} // namespace

std::shared_ptr<const LineDeals> LineDeals::build(GameId game, std::stop_token stop) {
    const odds::DrawTables* tables = odds::DrawTables::forGameUnlessStopped(game, stop);
    const auto* classes = odds::dealClassesUnlessStopped(deckSize(game), stop);
    if (tables == nullptr || classes == nullptr) {
        return nullptr;
    }
    auto filed = std::make_shared<LineDeals>();
    filed->game_ = game;
    const odds::PayScale scale = odds::ownPayScale(game);
    for (std::size_t i = 0; i < classes->size(); ++i) {
        if (i % 4096 == 0 && stop.stop_requested()) {
            return nullptr;
        }
        const odds::DealClass& dealClass = (*classes)[i];
        const HandCards cards = dealClass.cards;
        const int best = odds::analyzeHolds(*tables, cards, scale).best;
        Filed& line = filed->byLine_[holdLineName(game, cards, static_cast<unsigned>(best))];
        line.classes.push_back(static_cast<int>(i));
        line.running.push_back((line.running.empty() ? 0 : line.running.back()) + dealClass.weight);
    }
    return filed;
}

std::int64_t LineDeals::deals(const std::string& line) const {
    const auto found = byLine_.find(line);
    return found == byLine_.end() ? 0 : found->second.running.back();
}

std::optional<HandCards> LineDeals::deal(const std::string& line, RandomSource& random) const {
    const auto found = byLine_.find(line);
    if (found == byLine_.end()) {
        return std::nullopt;
    }
    const Filed& filed = found->second;
    const std::int64_t pick = indexBelow(random, filed.running.back());
    const auto at = std::upper_bound(filed.running.begin(), filed.running.end(), pick);
    const auto& dealClass =
        odds::dealClasses(deckSize(game_))[filed.classes[at - filed.running.begin()]];
    std::array<int, kSuitCount> suits{};
    std::iota(suits.begin(), suits.end(), 0);
    for (int i = kSuitCount - 1; i > 0; --i) {
        std::swap(suits[i], suits[indexBelow(random, i + 1)]);
    }
    HandCards cards{};
    for (int p = 0; p < kHandSize; ++p) {
        const CardCode card = dealClass.cards[p];
        cards[p] = card == kJoker ? card : suits[suitIndex(card)] * kRanksPerSuit + rankIndex(card);
    }
    for (int p = kHandSize - 1; p > 0; --p) {
        std::swap(cards[p], cards[indexBelow(random, p + 1)]);
    }
    return cards;
}

} // namespace marivale
