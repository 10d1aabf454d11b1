#pragma once

// The hands a practice drill deals: any deal of the game's deck, a close call (the two best
// returns of its holds within a twentieth of a bet), or a deal whose best hold plays one of the
// chart lines the player gets wrong, picked in proportion to the mistakes made on it.

// Standard library
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/pay_scale.h"
#include "engine/random_source.h"
#include "play/practice/line_deals.h"

namespace marivale {

enum class DrillMode : std::uint8_t { Random, CloseCalls, WeakSpots };

// Two best holds closer than this, in bets, make a close call.
inline constexpr double kCloseCallGap = 0.05;
// The most deals drawn in search of the one a mode asks for.
inline constexpr int kMaxDealTries = 4000;

// A chart line, by the name a chart gives it, and how often the player got it wrong.
struct WeakLine {
    std::string name{};
    int mistakes{0};
};

struct DrillDeal {
    HandCards cards{};
    odds::HandOdds odds{};
    std::string bestLine{}; // the complete chart's line of the best hold
    int tries{0};           // deals drawn to find this one
    bool asked{true};       // false when no deal the mode asks for was found in time
};

// The gap between the best hold's return and the next lower one, in bets; holds that return the
// same as the best are the same choice.
double closeCallGap(const odds::HandOdds& odds);

// The complete chart's name for the cards `held` of a deal.
std::string holdLineName(GameId game, const HandCards& cards, unsigned held);

class DrillDealer {
public:
    DrillDealer(GameId game, RandomSource& random);

    // The lines the weak-spot mode deals, weighted by their mistakes; lines without one are
    // left out.
    void setWeakLines(const std::vector<WeakLine>& lines);
    const std::vector<WeakLine>& weakLines() const { return weak_; }
    // The game's deals filed by line: weak spots are then dealt from them instead of searched
    // for.
    void setLineDeals(std::shared_ptr<const LineDeals> filed) { filed_ = std::move(filed); }

    // A hand for the mode; builds the game's draw tables on first use. Weak spots with no weak
    // line deal as random deals do.
    DrillDeal deal(DrillMode mode);

private:
    HandCards randomCards();
    DrillDeal analysed(const HandCards& cards, int tries) const;
    DrillDeal dealWeakSpot();
    const std::string& pickWeakLine();
    DrillDeal dealFiled();

    GameId game_{GameId::JacksOrBetter};
    RandomSource& random_;
    odds::PayScale scale_{};
    std::vector<WeakLine> weak_{};
    int weakTotal_{0};
    std::shared_ptr<const LineDeals> filed_{};
};

} // namespace marivale
