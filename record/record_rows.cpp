#include "record/record_rows.h"

// Qt
#include <QSqlQuery>
#include <QStringList>

// Marivale
#include "engine/card_text.h"
#include "engine/odds/chart_line.h"
#include "engine/odds/pay_scale.h"

namespace marivale {
namespace {

constexpr qint64 kBlockHands = 100;

QString cardsField(const HandCards& cards) {
    return QString::fromStdString(cardsText(cards));
}

} // namespace

QString payTableText(GameId game) {
    const odds::PayScale scale = odds::ownPayScale(game);
    QStringList multipliers;
    for (int code = facts(game).topCode; code >= 1; --code) {
        multipliers << QString::number(scale.multiplier[static_cast<std::size_t>(code)]);
    }
    return multipliers.join(QLatin1Char(' '));
}

QString bestLineText(const HandRecord& hand) {
    if (!hand.judgement) {
        return {};
    }
    const odds::ChartLine line =
        odds::chartLineOf(odds::ChartKind::Complete, hand.game, hand.dealt, hand.judgement->best);
    return QString::fromStdString(odds::lineName(hand.game, line));
}

bool RecordRows::exec(const QString& sql, const QVariantList& values) {
    QSqlQuery query(db_);
    if (!query.prepare(sql)) {
        error_ = query.lastError();
        return false;
    }
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        error_ = query.lastError();
        return false;
    }
    return true;
}

// The hand's row, then its share of the running totals of its game and table; drill hands stay
// out of the totals.
bool RecordRows::addHand(qint64 run, qint64 time, const HandRecord& hand) {
    const int game = static_cast<int>(hand.game);
    const QString table = payTableText(hand.game);
    qint64 block = 0;
    {
        QSqlQuery query(db_);
        query.prepare(QStringLiteral(
            "SELECT COALESCE(SUM(hands), 0) FROM totals WHERE game = ? AND pay_table = ?"));
        query.addBindValue(game);
        query.addBindValue(table);
        if (!query.exec() || !query.next()) {
            error_ = query.lastError();
            return false;
        }
        block = query.value(0).toLongLong() / kBlockHands;
    }
    const QVariant none;
    const bool drawn = hand.played && !hand.abandoned;
    const double factor = hand.bet > 0.0f ? double(hand.bonus) / double(hand.bet) : 0.0;
    if (!exec(QStringLiteral(
                  "INSERT INTO hands(run, visit, number, time, game, pay_table, bet, dealt, holds,"
                  " final, code, name, paid, double_up, double_factor, bonus, bonus_factor,"
                  " abandoned, trainer, hint_used, warning_used, block)"
                  " VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
              {run,
               hand.visit,
               hand.number,
               time,
               game,
               table,
               double(hand.bet),
               cardsField(hand.dealt),
               hand.played ? QVariant(hand.holds) : none,
               drawn ? QVariant(cardsField(hand.finalCards)) : none,
               drawn ? QVariant(int(hand.code)) : none,
               drawn ? QVariant(QString::fromStdString(hand.name)) : none,
               double(hand.paid),
               int(hand.doubleUp),
               hand.doubleFactor,
               double(hand.bonus),
               factor,
               hand.abandoned ? 1 : 0,
               hand.trainer ? 1 : 0,
               hand.hinted ? 1 : 0,
               hand.warned ? 1 : 0,
               block})) {
        return false;
    }
    const double net = double(hand.paid) - double(hand.bet);
    return exec(QStringLiteral("INSERT INTO totals VALUES(?,?,?,1,?,?) ON CONFLICT DO UPDATE"
                               " SET hands = hands + 1, bet = bet + excluded.bet,"
                               " paid = paid + excluded.paid"),
                {game, table, drawn ? int(hand.code) : -1, double(hand.bet), double(hand.paid)}) &&
           exec(QStringLiteral("INSERT INTO progress VALUES(?,?,?,1,?,0,0) ON CONFLICT DO"
                               " UPDATE SET hands = hands + 1, net = net + excluded.net"),
                {game, table, block, net}) &&
           addJudgement(run, game, table, block, hand);
}

bool RecordRows::addJudgement(qint64 run, int game, const QString& table, qint64 block,
                              const HandRecord& hand) {
    if (!hand.judgement) {
        return true;
    }
    const HoldJudgement& judged = *hand.judgement;
    const QString line = bestLineText(hand);
    const int mistake = judged.mistake ? 1 : 0;
    const double cost = judged.cost;
    return exec(QStringLiteral("UPDATE hands SET best_holds = ?, best_line = ?, cost = ?,"
                               " mistake = ? WHERE run = ? AND number = ? AND cost IS NULL"),
                {judged.best, line, cost, mistake, run, hand.number}) &&
           exec(QStringLiteral("INSERT INTO line_costs VALUES(?,?,?,1,?,?) ON CONFLICT DO UPDATE"
                               " SET judged = judged + 1, mistakes = mistakes + excluded.mistakes,"
                               " cost = cost + excluded.cost"),
                {game, table, line, mistake, cost}) &&
           exec(QStringLiteral("UPDATE progress SET judged = judged + 1, cost = cost + ?"
                               " WHERE game = ? AND pay_table = ? AND block = ?"),
                {cost, game, table, block});
}

bool RecordRows::judgeHand(qint64 run, const HandRecord& hand) {
    QSqlQuery query(db_);
    query.prepare(QStringLiteral(
        "SELECT game, pay_table, block FROM hands WHERE run = ? AND number = ? AND cost IS NULL"));
    query.addBindValue(run);
    query.addBindValue(hand.number);
    if (!query.exec()) {
        error_ = query.lastError();
        return false;
    }
    if (!query.next()) {
        return true;
    }
    return addJudgement(run, query.value(0).toInt(), query.value(1).toString(),
                        query.value(2).toLongLong(), hand);
}

bool RecordRows::addMoney(qint64 run, qint64 time, const MoneyRecord& money) {
    return exec(QStringLiteral("INSERT INTO money(run, visit, time, game, kind, amount,"
                               " credits) VALUES(?,?,?,?,?,?,?)"),
                {run, money.visit, time, static_cast<int>(money.game), static_cast<int>(money.kind),
                 double(money.amount), double(money.credits)});
}

bool RecordRows::addDrillHand(qint64 run, qint64 time, int number, GameId game,
                              const HandCards& dealt, const DrillVerdict& verdict) {
    return exec(QStringLiteral("INSERT INTO hands(run, visit, number, time, game, pay_table, bet,"
                               " dealt, holds, paid, double_up, double_factor, bonus, bonus_factor,"
                               " abandoned, trainer, best_holds, best_line, cost, mistake, drill)"
                               " VALUES(?,0,?,?,?,?,0,?,?,0,0,0,0,0,0,1,?,?,?,?,1)"),
                {run, number, time, static_cast<int>(game), payTableText(game), cardsField(dealt),
                 verdict.held, verdict.best, QString::fromStdString(verdict.bestLine), verdict.cost,
                 verdict.mistake ? 1 : 0});
}

} // namespace marivale
