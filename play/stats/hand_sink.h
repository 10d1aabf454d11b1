#pragma once

// Where the run's statistics send what must outlive the run: each hand once it has ended, a
// hold judged after its hand ended, and each purchase and cash-out. The statistics call it in
// the order things happen; what it does with them (a database, nothing) is its own affair.

// Marivale
#include "play/stats/session_stats.h"

namespace marivale {

// A purchase or a cash-out of a visit.
struct MoneyRecord {
    int visit{0};
    GameId game{GameId::JacksOrBetter};
    CreditMarkKind kind{CreditMarkKind::Purchase};
    float amount{0.0f};
    float credits{0.0f}; // left on the board after it
};

class HandSink {
public:
    virtual ~HandSink() = default;

    // The hand was settled, or abandoned when the board closed on it.
    virtual void handEnded(const HandRecord& hand) = 0;
    // A hand that had already ended got its judgement.
    virtual void handJudged(const HandRecord& hand) = 0;
    virtual void moneyMoved(const MoneyRecord& money) = 0;
};

} // namespace marivale
