#include "play/strategy/mistake_guard.h"

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/pay_scale.h"

namespace marivale {

void MistakeGuard::setOption(const WarningOption& option) {
    option_ = option;
    option_.threshold = option.threshold < 0.0 ? 0.0 : option.threshold;
}

// The draw tables take a fraction of a second to build, too long to hold up a key press: until
// the Strategy window has built them, holds play unwarned.
std::optional<MistakeWarning> MistakeGuard::check(GameId game, const HandCards& dealt,
                                                  unsigned held, float bet) {
    if (!option_.on || !odds::isValidDeal(deckSize(game), dealt)) {
        return std::nullopt;
    }
    const odds::DrawTables* tables = odds::DrawTables::ifBuilt(game);
    if (tables == nullptr) {
        return std::nullopt;
    }
    return check(odds::analyzeHolds(*tables, dealt, odds::ownPayScale(game)), dealt, held, bet);
}

std::optional<MistakeWarning>
MistakeGuard::check(const odds::HandOdds& odds, const HandCards& dealt, unsigned held, float bet) {
    if (!option_.on || warned_ == held) {
        return std::nullopt;
    }
    const HoldJudgement judgement = judgeHold(odds, held, bet);
    if (!judgement.mistake || judgement.bestReturn - judgement.playedReturn <= option_.threshold) {
        return std::nullopt;
    }
    warned_ = held;
    return MistakeWarning{dealt, held, bet, judgement};
}

} // namespace marivale
