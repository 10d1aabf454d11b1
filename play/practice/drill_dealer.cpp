#include "play/practice/drill_dealer.h"

// Standard library
#include <algorithm>
#include <numeric>

// Marivale
#include "engine/odds/chart_line.h"
#include "engine/odds/draw_tables.h"

namespace marivale {
namespace {

// Returns closer than this are the same return computed two ways.
constexpr double kSameReturn = 1e-9;

// A whole number below count from one uniform value.
int indexBelow(RandomSource& random, int count) {
    return std::min(count - 1, static_cast<int>(random.next() * count));
}

} // namespace

double closeCallGap(const odds::HandOdds& odds) {
    const double best = odds.holds[odds.best].expectedReturn;
    double next = -1.0;
    for (const odds::HoldOdds& hold : odds.holds) {
        if (hold.expectedReturn < best - kSameReturn) {
            next = std::max(next, hold.expectedReturn);
        }
    }
    return next < 0.0 ? best : best - next;
}

std::string holdLineName(GameId game, const HandCards& cards, unsigned held) {
    return odds::lineName(game, odds::chartLineOf(odds::ChartKind::Complete, game, cards, held));
}

DrillDealer::DrillDealer(GameId game, RandomSource& random)
    : game_(game), random_(random), scale_(odds::ownPayScale(game)) {}

void DrillDealer::setWeakLines(const std::vector<WeakLine>& lines) {
    weak_.clear();
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(weak_),
                 [](const WeakLine& line) { return line.mistakes > 0; });
    weakTotal_ = std::accumulate(weak_.begin(), weak_.end(), 0,
                                 [](int sum, const WeakLine& line) { return sum + line.mistakes; });
}

// Five different cards of the deck, each deal as likely as any other.
HandCards DrillDealer::randomCards() {
    std::array<CardCode, kJoker + 1> deck{};
    std::iota(deck.begin(), deck.end(), 0);
    const int size = deckSize(game_);
    HandCards cards{};
    for (int i = 0; i < kHandSize; ++i) {
        std::swap(deck[i], deck[i + indexBelow(random_, size - i)]);
        cards[i] = deck[i];
    }
    return cards;
}

DrillDeal DrillDealer::analysed(const HandCards& cards, int tries) const {
    DrillDeal deal;
    deal.cards = cards;
    deal.odds = odds::analyzeHolds(odds::DrawTables::forGame(game_), cards, scale_);
    deal.bestLine = holdLineName(game_, cards, static_cast<unsigned>(deal.odds.best));
    deal.tries = tries;
    return deal;
}

DrillDeal DrillDealer::deal(DrillMode mode) {
    if (mode == DrillMode::WeakSpots && !weak_.empty()) {
        return dealWeakSpot();
    }
    if (mode != DrillMode::CloseCalls) {
        return analysed(randomCards(), 1);
    }
    const odds::DrawTables& tables = odds::DrawTables::forGame(game_);
    HandCards cards{};
    for (int tries = 1; tries <= kMaxDealTries; ++tries) {
        cards = randomCards();
        if (closeCallGap(odds::analyzeHolds(tables, cards, scale_)) < kCloseCallGap) {
            return analysed(cards, tries);
        }
    }
    DrillDeal fallback = analysed(cards, kMaxDealTries);
    fallback.asked = false;
    return fallback;
}

const std::string& DrillDealer::pickWeakLine() {
    int pick = indexBelow(random_, weakTotal_);
    for (const WeakLine& line : weak_) {
        if (pick < line.mistakes) {
            return line.name;
        }
        pick -= line.mistakes;
    }
    return weak_.back().name;
}

// A filed deal of a weak line the game has, picked by its mistakes.
DrillDeal DrillDealer::dealFiled() {
    int total = 0;
    for (const WeakLine& line : weak_) {
        total += filed_->deals(line.name) > 0 ? line.mistakes : 0;
    }
    if (total == 0) {
        DrillDeal fallback = analysed(randomCards(), 1);
        fallback.asked = false;
        return fallback;
    }
    int pick = indexBelow(random_, total);
    for (const WeakLine& line : weak_) {
        if (filed_->deals(line.name) == 0) {
            continue;
        }
        if (pick < line.mistakes) {
            return analysed(*filed_->deal(line.name, random_), 1);
        }
        pick -= line.mistakes;
    }
    return analysed(randomCards(), 1);
}

// Draws deals until the best hold plays the weak line picked, settling for any weak line once
// the picked one proves rare; deals from the filed deals once they are there.
DrillDeal DrillDealer::dealWeakSpot() {
    if (filed_ != nullptr) {
        return dealFiled();
    }
    const std::string& wanted = pickWeakLine();
    DrillDeal anyWeak;
    bool haveAnyWeak = false;
    for (int tries = 1; tries <= kMaxDealTries; ++tries) {
        DrillDeal deal = analysed(randomCards(), tries);
        if (deal.bestLine == wanted) {
            return deal;
        }
        if (!haveAnyWeak && std::any_of(weak_.begin(), weak_.end(), [&](const WeakLine& line) {
                return line.name == deal.bestLine;
            })) {
            anyWeak = std::move(deal);
            haveAnyWeak = true;
        }
        if (haveAnyWeak && tries >= kMaxDealTries / 4) {
            anyWeak.tries = tries;
            return anyWeak;
        }
    }
    DrillDeal fallback = analysed(randomCards(), kMaxDealTries);
    fallback.asked = false;
    return fallback;
}

} // namespace marivale
