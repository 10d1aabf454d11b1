#include "play/stats/session_stats.h"

// Standard library
#include <algorithm>

// Marivale
#include "engine/odds/hold_odds.h"
#include "play/stats/hand_sink.h"

namespace marivale {

bool judgeable(const HandRecord& hand) {
    return hand.played && odds::isValidDeal(deckSize(hand.game), hand.dealt);
}

std::optional<double> Tally::actualReturn() const {
    if (!(bet > 0.0f)) {
        return std::nullopt;
    }
    return static_cast<double>(paid) / static_cast<double>(bet);
}

std::optional<double> Tally::averageBonusFactor() const {
    if (bonuses == 0) {
        return std::nullopt;
    }
    return bonusFactors / bonuses;
}

void Tally::add(const Tally& other) {
    hands += other.hands;
    drawn += other.drawn;
    bet += other.bet;
    paid += other.paid;
    purchased += other.purchased;
    cashedOut += other.cashedOut;
    for (std::size_t code = 0; code < codes.size(); ++code) {
        codes[code] += other.codes[code];
    }
    doubleUp.offered += other.doubleUp.offered;
    doubleUp.played += other.doubleUp.played;
    doubleUp.won += other.doubleUp.won;
    doubleUp.highestFactor = std::max(doubleUp.highestFactor, other.doubleUp.highestFactor);
    bonuses += other.bonuses;
    bonusFactors += other.bonusFactors;
}

std::optional<double>
expectedReturn(const std::array<Tally, kGameCount>& tallies,
               const std::array<std::optional<double>, kGameCount>& gameReturns) {
    double weighted = 0.0;
    double bets = 0.0;
    for (std::size_t g = 0; g < tallies.size(); ++g) {
        if (!(tallies[g].bet > 0.0f)) {
            continue;
        }
        if (!gameReturns[g]) {
            return std::nullopt;
        }
        weighted += *gameReturns[g] * tallies[g].bet;
        bets += tallies[g].bet;
    }
    if (!(bets > 0.0)) {
        return std::nullopt;
    }
    return weighted / bets;
}

void SessionStats::changed() const {
    if (listener_) {
        listener_();
    }
}

HandRecord* SessionStats::openHand() {
    return handOpen_ && !history_.empty() ? &history_.back() : nullptr;
}

Tally SessionStats::run() const {
    Tally total;
    for (const Tally& game : run_) {
        total.add(game);
    }
    return total;
}

// A new visit starts its own tally and chart; the run's tallies and history carry on.
void SessionStats::visitStarted(GameId game, float /*credits*/) {
    ++visits_;
    visitGame_ = game;
    visit_ = Tally{};
    results_.clear();
    marks_.clear();
    handOpen_ = false;
    changed();
}

void SessionStats::dealt(const HandCards& cards, float bet, float /*credits*/) {
    HandRecord hand;
    hand.number = static_cast<int>(history_.size()) + 1;
    hand.visit = visits_;
    hand.game = visitGame_;
    hand.bet = bet;
    hand.dealt = cards;
    history_.push_back(hand);
    handOpen_ = true;
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        ++tally->hands;
        tally->bet += bet;
    }
    changed();
}

void SessionStats::held(const HandHolds& holds) {
    if (HandRecord* hand = openHand()) {
        hand->holds = holdMask(holds);
        hand->played = true;
        hand->trainer = trainerMode_;
    }
}

void SessionStats::drawn(const HandCards& cards, std::uint8_t code, std::string_view name) {
    HandRecord* hand = openHand();
    if (hand == nullptr) {
        return;
    }
    hand->finalCards = cards;
    hand->code = code;
    hand->name = std::string(name);
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        ++tally->drawn;
        if (code < tally->codes.size()) {
            ++tally->codes[code];
        }
    }
    changed();
}

void SessionStats::doubleUpOffered() {
    if (HandRecord* hand = openHand()) {
        hand->doubleUp = DoubleUpResult::TookScore;
        ++visit_.doubleUp.offered;
        ++run_[gameIndex(visitGame_)].doubleUp.offered;
    }
}

void SessionStats::doubled(int factor) {
    HandRecord* hand = openHand();
    if (hand == nullptr) {
        return;
    }
    hand->doubleFactor = factor;
    hand->doubleUp = factor > 1    ? DoubleUpResult::Won
                     : factor == 1 ? DoubleUpResult::NoGuess
                                   : DoubleUpResult::Lost;
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        ++tally->doubleUp.played;
        tally->doubleUp.won += factor > 1 ? 1 : 0;
        tally->doubleUp.highestFactor = std::max(tally->doubleUp.highestFactor, factor);
    }
}

void SessionStats::bonus(float amount) {
    HandRecord* hand = openHand();
    if (hand == nullptr) {
        return;
    }
    hand->bonus = amount;
    const double factor = hand->bet > 0.0f ? static_cast<double>(amount) / hand->bet : 0.0;
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        ++tally->bonuses;
        tally->bonusFactors += factor;
    }
}

void SessionStats::settled(float paid, float /*credits*/) {
    HandRecord* hand = openHand();
    if (hand == nullptr) {
        return;
    }
    hand->paid = paid;
    hand->finished = true;
    handOpen_ = false;
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        tally->paid += paid;
    }
    const double before = results_.empty() ? 0.0 : results_.back();
    const double won = hand->bet > 0.0f ? (static_cast<double>(paid) - hand->bet) / hand->bet : 0.0;
    results_.push_back(before + won);
    if (sink_ != nullptr) {
        sink_->handEnded(*hand);
    }
    changed();
}

void SessionStats::moneyMoved(CreditMarkKind kind, float amount, float credits) {
    if (sink_ != nullptr) {
        sink_->moneyMoved({visits_, visitGame_, kind, amount, credits});
    }
}

void SessionStats::purchased(float amount, float credits) {
    marks_.push_back(
        {CreditMarkKind::Purchase, static_cast<int>(results_.size()), amount, credits});
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        tally->purchased += amount;
    }
    moneyMoved(CreditMarkKind::Purchase, amount, credits);
    changed();
}

void SessionStats::cashedOut(float amount) {
    marks_.push_back({CreditMarkKind::CashOut, static_cast<int>(results_.size()), amount, 0.0f});
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        tally->cashedOut += amount;
    }
    moneyMoved(CreditMarkKind::CashOut, amount, 0.0f);
    changed();
}

// Closing the board abandons a hand in play: its bet stays counted, it paid nothing.
void SessionStats::visitEnded(float cashedOut) {
    if (HandRecord* hand = openHand()) {
        hand->abandoned = true;
        if (sink_ != nullptr) {
            sink_->handEnded(*hand);
        }
    }
    handOpen_ = false;
    for (Tally* tally : {&visit_, &run_[gameIndex(visitGame_)]}) {
        tally->cashedOut += cashedOut;
    }
    if (cashedOut > 0.0f) {
        moneyMoved(CreditMarkKind::CashOut, cashedOut, 0.0f);
    }
    changed();
}

std::vector<HoldQuestion> SessionStats::unjudged() const {
    std::vector<HoldQuestion> questions;
    for (std::size_t i = 0; i < history_.size(); ++i) {
        const HandRecord& hand = history_[i];
        if (!hand.judgement && judgeable(hand)) {
            questions.push_back({i, hand.game, hand.dealt, hand.holds, hand.bet});
        }
    }
    return questions;
}

void SessionStats::setJudgement(std::size_t index, const HoldJudgement& judgement) {
    if (index >= history_.size()) {
        return;
    }
    HandRecord& hand = history_[index];
    const bool fresh = !hand.judgement;
    hand.judgement = judgement;
    if (fresh && sink_ != nullptr && (hand.finished || hand.abandoned)) {
        sink_->handJudged(hand);
    }
    changed();
}

void SessionStats::setLatestJudgement(const HoldJudgement& judgement) {
    if (!history_.empty()) {
        setJudgement(history_.size() - 1, judgement);
    }
}

TrainerSummary SessionStats::trainer(bool visitOnly) const {
    TrainerSummary summary;
    for (const HandRecord& hand : history_) {
        if (!hand.trainer || !judgeable(hand) || (visitOnly && hand.visit != visits_)) {
            continue;
        }
        if (!hand.judgement) {
            ++summary.pending;
            continue;
        }
        ++summary.judged;
        if (hand.judgement->mistake) {
            ++summary.mistakes;
            summary.cost += hand.judgement->cost;
        }
    }
    return summary;
}

void SessionStats::markHinted() {
    if (HandRecord* hand = openHand(); hand != nullptr && !hand->hinted) {
        hand->hinted = true;
        changed();
    }
}

void SessionStats::markWarned() {
    if (HandRecord* hand = openHand()) {
        hand->warned = true;
    }
}

int SessionStats::hinted(bool visitOnly) const {
    int count = 0;
    for (const HandRecord& hand : history_) {
        count += hand.hinted && (!visitOnly || hand.visit == visits_) ? 1 : 0;
    }
    return count;
}

} // namespace marivale
