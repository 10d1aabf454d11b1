#include "play/strategy/hold_judgement.h"

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/pay_scale.h"
#include "play/stats/session_stats.h"

namespace marivale {
namespace {

// Returns closer than this are the same return computed two ways.
constexpr double kSameReturn = 1e-9;

} // namespace

HoldJudgement judgeHold(const odds::HandOdds& odds, unsigned holds, float bet) {
    HoldJudgement judgement;
    const unsigned played = holds % odds::kHoldCount;
    judgement.best = static_cast<unsigned>(odds.best);
    judgement.bestReturn = odds.holds[judgement.best].expectedReturn;
    judgement.playedReturn = odds.holds[played].expectedReturn;
    judgement.mistake = judgement.bestReturn - judgement.playedReturn > kSameReturn;
    if (judgement.mistake) {
        judgement.cost = static_cast<float>(judgement.bestReturn - judgement.playedReturn) * bet;
    }
    return judgement;
}

std::optional<HoldJudgement> judgeHold(GameId game, const HandCards& dealt, unsigned holds,
                                       float bet) {
    if (!odds::isValidDeal(deckSize(game), dealt)) {
        return std::nullopt;
    }
    const odds::DrawTables& tables = odds::DrawTables::forGame(game);
    return judgeHold(odds::analyzeHolds(tables, dealt, odds::ownPayScale(game)), holds, bet);
}

void judgeAll(SessionStats& stats) {
    for (const HoldQuestion& question : stats.unjudged()) {
        if (const auto judgement =
                judgeHold(question.game, question.dealt, question.holds, question.bet)) {
            stats.setJudgement(question.index, *judgement);
        }
    }
}

} // namespace marivale
