#pragma once

// The statistics of a run, recorded from the play controller's events: a tally of the current
// visit and of every game over the whole run, the visit's result after each hand, and the
// history of every hand. It only listens; nothing here changes the board, and what must outlast
// the run is handed to its sink (the player's record). The cost of each hold is filled in
// later, from the exact odds, by whoever can spare the time.

// Standard library
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Marivale
#include "engine/odds/outcome.h"
#include "play/hand_observer.h"
#include "play/strategy/hold_judgement.h"

namespace marivale {

// How the Double Up choice of a paying hand ended.
enum class DoubleUpResult : std::uint8_t { NotOffered, TookScore, NoGuess, Won, Lost };

struct HandRecord {
    int number{0}; // 1 for the run's first hand
    int visit{0};  // 1 for the run's first visit
    GameId game{GameId::JacksOrBetter};
    float bet{0.0f};
    HandCards dealt{};
    unsigned holds{0};  // mask over board positions
    bool played{false}; // the player drew or stood; false when the board closed first
    HandCards finalCards{};
    std::uint8_t code{0};
    std::string name{}; // empty when nothing paid
    float paid{0.0f};   // everything the hand paid, Double Up and bonus included
    DoubleUpResult doubleUp{DoubleUpResult::NotOffered};
    int doubleFactor{0};
    float bonus{0.0f};
    bool finished{false};
    bool abandoned{false}; // the board closed before the hand was settled
    bool trainer{false};   // trainer mode was on when the player drew
    bool hinted{false};    // the player asked for the best hold before playing
    bool warned{false};    // the draw waited once for a warning of a costly hold
    std::optional<HoldJudgement> judgement{};
};

struct DoubleUpRecord {
    int offered{0};
    int played{0};
    int won{0};
    int highestFactor{0};
};

struct Tally {
    int hands{0}; // deals: each took a bet
    int drawn{0}; // hands that reached their final cards
    float bet{0.0f};
    float paid{0.0f};
    float purchased{0.0f};
    float cashedOut{0.0f};
    std::array<int, odds::kCodeSlots> codes{}; // final hands by code
    DoubleUpRecord doubleUp{};
    int bonuses{0};
    double bonusFactors{0.0}; // the Treasure Hunt factors added up

    // Paid per dollar bet; nothing before the first bet.
    std::optional<double> actualReturn() const;
    std::optional<double> averageBonusFactor() const;
    void add(const Tally& other);
};

struct TrainerSummary {
    int judged{0};   // hands played in trainer mode whose cost is known
    int pending{0};  // hands played in trainer mode still to be judged
    int mistakes{0}; // holds worse than the best
    float cost{0.0f};
};

enum class CreditMarkKind : std::uint8_t { Purchase, CashOut };

// A purchase or a cash-out: after so many settled hands of the visit, the credits it left.
struct CreditMark {
    CreditMarkKind kind{CreditMarkKind::Purchase};
    int afterHands{0};
    float amount{0.0f};
    float credits{0.0f};
};

// A hand whose hold is still to be judged, with all that the judging needs.
struct HoldQuestion {
    std::size_t index{0}; // into history()
    GameId game{GameId::JacksOrBetter};
    HandCards dealt{};
    unsigned holds{0};
    float bet{0.0f};
};

class HandSink;

class SessionStats final : public HandObserver {
public:
    void visitStarted(GameId game, float credits) override;
    void dealt(const HandCards& cards, float bet, float credits) override;
    void held(const HandHolds& holds) override;
    void drawn(const HandCards& cards, std::uint8_t code, std::string_view name) override;
    void doubleUpOffered() override;
    void doubled(int factor) override;
    void bonus(float amount) override;
    void settled(float paid, float credits) override;
    void purchased(float amount, float credits) override;
    void cashedOut(float amount) override;
    void visitEnded(float cashedOut) override;

    // Trainer mode of the Strategy window, for the whole run; each hand records it when the
    // player draws.
    void setTrainerMode(bool on) { trainerMode_ = on; }
    bool trainerMode() const { return trainerMode_; }
    // Where each ended hand, late judgement and move of money is also sent; nullptr sends
    // nothing.
    void setSink(HandSink* sink) { sink_ = sink; }
    HandSink* sink() const { return sink_; }
    // Called after every event and judgement, for a window that shows the model.
    void setListener(std::function<void()> listener) { listener_ = std::move(listener); }

    int visits() const { return visits_; }
    GameId visitGame() const { return visitGame_; }
    const Tally& visit() const { return visit_; }
    const Tally& game(GameId game) const { return run_[gameIndex(game)]; }
    const std::array<Tally, kGameCount>& games() const { return run_; }
    Tally run() const;

    // The visit's result in bets after each of its settled hands (what each paid less its bet,
    // over its bet, added up), and its purchases and cash-outs.
    const std::vector<double>& visitResults() const { return results_; }
    const std::vector<CreditMark>& visitMarks() const { return marks_; }

    // Every hand of the run, oldest first.
    const std::vector<HandRecord>& history() const { return history_; }
    std::vector<HoldQuestion> unjudged() const;
    void setJudgement(std::size_t index, const HoldJudgement& judgement);
    // The Strategy window's judgement of the hold of the hand dealt last.
    void setLatestJudgement(const HoldJudgement& judgement);
    // The mistakes of trainer mode, in the visit or over the run.
    TrainerSummary trainer(bool visitOnly) const;
    // The hand in play was shown its best hold, or warned of a costly one.
    void markHinted();
    void markWarned();
    // Hands shown their best hold, in the visit or over the run.
    int hinted(bool visitOnly) const;

private:
    HandRecord* openHand();
    void changed() const;
    void moneyMoved(CreditMarkKind kind, float amount, float credits);

    int visits_{0};
    GameId visitGame_{GameId::JacksOrBetter};
    Tally visit_{};
    std::array<Tally, kGameCount> run_{};
    std::vector<double> results_{};
    std::vector<CreditMark> marks_{};
    std::vector<HandRecord> history_{};
    bool handOpen_{false};
    bool trainerMode_{false};
    std::function<void()> listener_{};
    HandSink* sink_{nullptr};
};

// A hand the odds can judge: the player chose a hold on five good cards.
bool judgeable(const HandRecord& hand);

// The return the player could expect over a set of games, each weighted by what was bet on it;
// nothing before a bet or while a game with bets has no known return.
std::optional<double>
expectedReturn(const std::array<Tally, kGameCount>& tallies,
               const std::array<std::optional<double>, kGameCount>& gameReturns);

} // namespace marivale
