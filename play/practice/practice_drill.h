#pragma once

// A practice drill at one game's own pay table: it deals a hand of the mode asked for, takes the
// player's holds, and judges them once against the best hold by their exact returns, naming
// both holds' chart lines and the cost in bets. No money moves and no board is touched. The
// weak-spot mode reads the lines given from outside together with the drill's own mistakes.

// Standard library
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// Marivale
#include "play/practice/drill_dealer.h"
#include "play/practice/drill_score.h"

namespace marivale {

class SessionStats;

struct DrillVerdict {
    unsigned best{0}; // mask over positions
    std::string bestLine{};
    double bestReturn{0.0}; // in bets
    unsigned held{0};
    std::string heldLine{};
    double heldReturn{0.0};
    double cost{0.0}; // in bets; 0 for a hold as good as the best
    bool mistake{false};
};

class PracticeDrill {
public:
    PracticeDrill(GameId game, RandomSource& random);

    GameId game() const { return game_; }
    DrillMode mode() const { return mode_; }
    void setMode(DrillMode mode) { mode_ = mode; }

    // The lines the player gets wrong, from the player's record; the drill's own mistakes count
    // beside them.
    void setWeakLines(const std::vector<WeakLine>& lines);
    // The game's deals filed by line, once they are.
    void setLineDeals(std::shared_ptr<const LineDeals> filed) {
        dealer_.setLineDeals(std::move(filed));
    }
    // The lines the weak-spot mode deals now, most mistakes first.
    std::vector<WeakLine> weakLines() const;

    // Deals the next hand; its holds are all released.
    const DrillDeal& deal();
    bool dealt() const { return hand_.has_value(); }
    const DrillDeal& hand() const { return *hand_; }

    // Holds or releases a card of the hand; nothing once the hand is judged.
    void toggle(int position);
    unsigned held() const { return held_; }

    // Judges the holds and counts the hand (dealing one first if none is); a second call returns
    // the same verdict.
    const DrillVerdict& submit();
    const std::optional<DrillVerdict>& verdict() const { return verdict_; }

    const DrillScore& score() const { return score_; }

private:
    void feedWeakLines();

    GameId game_{GameId::JacksOrBetter};
    DrillMode mode_{DrillMode::Random};
    DrillDealer dealer_;
    std::optional<DrillDeal> hand_{};
    unsigned held_{0};
    std::optional<DrillVerdict> verdict_{};
    DrillScore score_{};
    std::vector<WeakLine> given_{};
    std::map<std::string, int> ownMistakes_{};
};

// The lines of the best holds the player missed in the run's judged hands of the game, most
// mistakes first.
std::vector<WeakLine> weakLinesOf(const SessionStats& stats, GameId game);

} // namespace marivale
