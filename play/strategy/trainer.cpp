#include "play/strategy/trainer.h"

// Standard library
#include <cmath>

namespace marivale {
namespace {

// Returns closer than this are the same return computed two ways.
constexpr double kSameReturn = 1e-9;

} // namespace

TrainerVerdict TrainerTally::judge(const odds::HandOdds& odds, unsigned played, float bet) {
    TrainerVerdict verdict;
    verdict.played = played % odds::kHoldCount;
    verdict.best = static_cast<unsigned>(odds.best);
    verdict.playedReturn = odds.holds[verdict.played].expectedReturn;
    verdict.bestReturn = odds.holds[verdict.best].expectedReturn;
    verdict.mistake = verdict.bestReturn - verdict.playedReturn > kSameReturn;
    if (verdict.mistake) {
        verdict.cost = static_cast<float>(verdict.bestReturn - verdict.playedReturn) * bet;
        ++mistakes_;
        cost_ += verdict.cost;
    }
    return verdict;
}

} // namespace marivale
