#pragma once

// The trainer's warning before a costly hold: when the player draws or stands with a hold that
// returns less than the best by more than a threshold, the draw waits once for that hold, so the
// player sees the cost first. The same hold pressed again, or a best hold, plays at once.

// Standard library
#include <optional>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "play/strategy/hold_judgement.h"

namespace marivale {

// Why a draw waits: the hold pressed, the dealt cards and what the hold gives away.
struct MistakeWarning {
    HandCards dealt{};
    unsigned held{0}; // mask over board positions
    float bet{0.0f};
    HoldJudgement judgement{};
};

// The warning as the player sets it.
struct WarningOption {
    bool on{false};
    double threshold{0.0}; // the least loss in bets worth a warning; 0 warns of any loss
};

class MistakeGuard {
public:
    void setOption(const WarningOption& option);
    const WarningOption& option() const { return option_; }

    // A new deal: nothing has been warned of yet.
    void dealt() { warned_.reset(); }
    // A warning when the hold should wait, else nothing and the draw goes ahead.
    std::optional<MistakeWarning> check(GameId game, const HandCards& dealt, unsigned held,
                                        float bet);
    // Judges with the odds of the deal already worked out.
    std::optional<MistakeWarning> check(const odds::HandOdds& odds, const HandCards& dealt,
                                        unsigned held, float bet);

private:
    WarningOption option_{};
    std::optional<unsigned> warned_{}; // the hold warned of in this deal
};

} // namespace marivale
