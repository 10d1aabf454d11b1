#include "play/stats/hold_judge.h"

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/pay_scale.h"

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

std::optional<HoldJudgement> judgeHold(const HoldQuestion& question) {
    if (!odds::isValidDeal(deckSize(question.game), question.dealt)) {
        return std::nullopt;
    }
    const odds::DrawTables& tables = odds::DrawTables::forGame(question.game);
    const odds::HandOdds found =
        odds::analyzeHolds(tables, question.dealt, odds::ownPayScale(question.game));
    return judgeHold(found, question.holds, question.bet);
}

void judgeAll(SessionStats& stats) {
    for (const HoldQuestion& question : stats.unjudged()) {
        if (const auto judgement = judgeHold(question)) {
            stats.setJudgement(question.index, *judgement);
        }
    }
}

} // namespace marivale
