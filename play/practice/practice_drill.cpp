#include "play/practice/practice_drill.h"

// Standard library
#include <algorithm>

// Marivale
#include "play/stats/session_stats.h"

namespace marivale {
namespace {

// Returns closer than this are the same return computed two ways.
constexpr double kSameReturn = 1e-9;

std::vector<WeakLine> sortedLines(const std::map<std::string, int>& counts) {
    std::vector<WeakLine> lines;
    for (const auto& [name, mistakes] : counts) {
        lines.push_back(WeakLine{name, mistakes});
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const WeakLine& a, const WeakLine& b) { return a.mistakes > b.mistakes; });
    return lines;
}

} // namespace

PracticeDrill::PracticeDrill(GameId game, RandomSource& random)
    : game_(game), dealer_(game, random) {}

void PracticeDrill::setWeakLines(const std::vector<WeakLine>& lines) {
    given_ = lines;
    feedWeakLines();
}

// The lines given and the drill's own mistakes, counted together.
void PracticeDrill::feedWeakLines() {
    std::map<std::string, int> counts = ownMistakes_;
    for (const WeakLine& line : given_) {
        counts[line.name] += line.mistakes;
    }
    dealer_.setWeakLines(sortedLines(counts));
}

std::vector<WeakLine> PracticeDrill::weakLines() const {
    std::vector<WeakLine> lines = dealer_.weakLines();
    std::stable_sort(lines.begin(), lines.end(),
                     [](const WeakLine& a, const WeakLine& b) { return a.mistakes > b.mistakes; });
    return lines;
}

const DrillDeal& PracticeDrill::deal() {
    hand_ = dealer_.deal(mode_);
    held_ = 0;
    verdict_.reset();
    return *hand_;
}

void PracticeDrill::toggle(int position) {
    if (hand_ && !verdict_ && position >= 0 && position < kHandSize) {
        held_ ^= 1u << position;
    }
}

const DrillVerdict& PracticeDrill::submit() {
    if (!hand_) {
        deal();
    }
    if (verdict_) {
        return *verdict_;
    }
    DrillVerdict verdict;
    verdict.best = static_cast<unsigned>(hand_->odds.best);
    verdict.bestLine = hand_->bestLine;
    verdict.bestReturn = hand_->odds.holds[verdict.best].expectedReturn;
    verdict.held = held_;
    verdict.heldLine = holdLineName(game_, hand_->cards, held_);
    verdict.heldReturn = hand_->odds.holds[held_].expectedReturn;
    verdict.mistake = verdict.bestReturn - verdict.heldReturn > kSameReturn;
    verdict.cost = verdict.mistake ? verdict.bestReturn - verdict.heldReturn : 0.0;
    score_.add(verdict.cost);
    if (verdict.mistake) {
        ++ownMistakes_[verdict.bestLine];
        feedWeakLines();
    }
    verdict_ = verdict;
    return *verdict_;
}

std::vector<WeakLine> weakLinesOf(const SessionStats& stats, GameId game) {
    std::map<std::string, int> counts;
    for (const HandRecord& hand : stats.history()) {
        if (hand.game == game && hand.judgement && hand.judgement->mistake) {
            ++counts[holdLineName(game, hand.dealt, hand.judgement->best)];
        }
    }
    return sortedLines(counts);
}

} // namespace marivale
