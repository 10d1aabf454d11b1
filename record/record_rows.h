#pragma once

// The rows of the player's record: a hand with the running totals it adds to, a judgement that
// came after its hand, a purchase or a cash-out. Each writes inside the caller's transaction.

// Qt
#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

// Marivale
#include "play/practice/practice_drill.h"
#include "play/stats/hand_sink.h"

namespace marivale {

// The pay table a hand was paid by: the multipliers from the highest hand down, "800 50 25 9 6
// 4 3 2 1".
QString payTableText(GameId game);

// The chart line of the best hold of a judged hand, as the chart names it.
QString bestLineText(const HandRecord& hand);

class RecordRows {
public:
    explicit RecordRows(QSqlDatabase& db) : db_(db) {}

    bool addHand(qint64 run, qint64 time, const HandRecord& hand);
    // Fills in the judgement of a hand already written; nothing when it is not there yet or is
    // judged already.
    bool judgeHand(qint64 run, const HandRecord& hand);
    bool addMoney(qint64 run, qint64 time, const MoneyRecord& money);
    // A practice hand, kept apart from play: no bet, no pay, its cost in bets, in no total.
    bool addDrillHand(qint64 run, qint64 time, int number, GameId game, const HandCards& dealt,
                      const DrillVerdict& verdict);

    const QSqlError& error() const { return error_; }

private:
    bool exec(const QString& sql, const QVariantList& values);
    bool addJudgement(qint64 run, int game, const QString& table, qint64 block,
                      const HandRecord& hand);

    QSqlDatabase& db_;
    QSqlError error_{};
};

} // namespace marivale
