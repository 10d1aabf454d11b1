#include "play/stats/luck.h"

// Standard library
#include <cmath>

namespace marivale {

std::optional<double> LuckSummary::skillCost() const {
    if (pending > 0) {
        return std::nullopt;
    }
    return mistakeCost;
}

std::optional<double> LuckSummary::luck() const {
    if (!expected || pending > 0) {
        return std::nullopt;
    }
    return result - (*expected - mistakeCost);
}

std::optional<double> LuckSummary::luckDeviations() const {
    const auto left = luck();
    if (!left || !(variance > 0.0)) {
        return std::nullopt;
    }
    return *left / std::sqrt(variance);
}

LuckSummary luckOf(const std::vector<HandRecord>& history, int visit, const OddsByGame& odds) {
    LuckSummary summary;
    double expected = 0.0;
    bool oddsKnown = true;
    for (const HandRecord& hand : history) {
        if (!hand.finished || !(hand.bet > 0.0f) || (visit != 0 && hand.visit != visit)) {
            continue;
        }
        ++summary.hands;
        summary.result += (static_cast<double>(hand.paid) - hand.bet) / hand.bet;
        if (const auto& game = odds[gameIndex(hand.game)]) {
            expected += game->expectedReturn - 1.0;
            summary.variance += game->variance;
        } else {
            oddsKnown = false;
        }
        if (hand.judgement) {
            summary.mistakeCost += hand.judgement->mistake
                                       ? hand.judgement->bestReturn - hand.judgement->playedReturn
                                       : 0.0;
        } else if (judgeable(hand)) {
            ++summary.pending;
        }
    }
    if (oddsKnown) {
        summary.expected = expected;
    }
    return summary;
}

} // namespace marivale
