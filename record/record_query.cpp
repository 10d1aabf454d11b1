#include "record/record_query.h"

// Qt
#include <QDateTime>
#include <QFile>
#include <QSqlQuery>
#include <QStringList>

// Marivale
#include "engine/card_text.h"
#include "engine/number_text.h"
#include "play/game_variant.h"
#include "play/stats/history_csv.h"

namespace marivale {
namespace {

constexpr int kExportPage = 5000;

const QString kHandColumns = QStringLiteral(
    "id, time, run, pay_table, best_line, visit, number, game, bet, dealt, holds, final, code,"
    " name, paid, double_up, double_factor, bonus, abandoned, trainer, best_holds, cost,"
    " mistake");

HandCards cardsOf(const QVariant& value) {
    return parseHand(value.toString().toStdString()).value_or(HandCards{});
}

RecordedHand handOf(const QSqlQuery& q) {
    RecordedHand row;
    row.id = q.value(0).toLongLong();
    row.time = q.value(1).toLongLong();
    row.run = q.value(2).toLongLong();
    row.payTable = q.value(3).toString();
    row.bestLine = q.value(4).toString();
    HandRecord& hand = row.hand;
    hand.visit = q.value(5).toInt();
    hand.number = q.value(6).toInt();
    hand.game = static_cast<GameId>(q.value(7).toInt());
    hand.bet = q.value(8).toFloat();
    hand.dealt = cardsOf(q.value(9));
    hand.played = !q.value(10).isNull();
    hand.holds = q.value(10).toUInt();
    hand.finalCards = cardsOf(q.value(11));
    hand.code = static_cast<std::uint8_t>(q.value(12).toInt());
    hand.name = q.value(13).toString().toStdString();
    hand.paid = q.value(14).toFloat();
    hand.doubleUp = static_cast<DoubleUpResult>(q.value(15).toInt());
    hand.doubleFactor = q.value(16).toInt();
    hand.bonus = q.value(17).toFloat();
    hand.abandoned = q.value(18).toBool();
    hand.finished = !hand.abandoned;
    hand.trainer = q.value(19).toBool();
    if (!q.value(21).isNull()) {
        hand.judgement = HoldJudgement{.best = q.value(20).toUInt(),
                                       .cost = q.value(21).toFloat(),
                                       .mistake = q.value(22).toBool()};
    }
    return row;
}

// The filter as a WHERE clause and its values, with room for one more condition.
QString whereOf(const HistoryFilter& filter, QVariantList& values) {
    QStringList conditions{QStringLiteral("drill = 0")};
    if (filter.game) {
        conditions << QStringLiteral("game = ?");
        values << static_cast<int>(*filter.game);
    }
    if (filter.from) {
        conditions << QStringLiteral("time >= ?");
        values << *filter.from;
    }
    if (filter.to) {
        conditions << QStringLiteral("time < ?");
        values << *filter.to;
    }
    if (filter.mistakesOnly) {
        conditions << QStringLiteral("mistake = 1");
    }
    return QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND "));
}

QSqlQuery run(const QSqlDatabase& db, const QString& sql, const QVariantList& values = {}) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(sql);
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    query.exec();
    return query;
}

// Quotes a field that holds a comma, a quote or a line break.
QString field(QString text) {
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
        !text.contains(QLatin1Char('\n'))) {
        return text;
    }
    return QLatin1Char('"') + text.replace(QLatin1String("\""), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QString csvRow(const RecordedHand& row) {
    const HandRecord& hand = row.hand;
    const auto text = [](const std::string& s) {
        return QString::fromStdString(s);
    };
    const std::string_view game = variantFor(hand.game).title;
    const QStringList fields{
        QDateTime::fromMSecsSinceEpoch(row.time).toString(Qt::ISODate),
        QString::number(row.run),
        QString::number(hand.visit),
        QString::number(hand.number),
        QString::fromUtf8(game.data(), static_cast<qsizetype>(game.size())),
        row.payTable,
        text(fixedText(hand.bet, 2)),
        text(cardsText(hand.dealt)),
        hand.played ? text(cardsText(hand.dealt, hand.holds)) : QString(),
        hand.finished ? text(cardsText(hand.finalCards)) : QString(),
        hand.finished ? text(hand.name) : text(unsettledText(hand)),
        text(fixedText(hand.paid, 2)),
        text(doubleUpText(hand)),
        text(fixedText(hand.bonus, 2)),
        hand.judgement ? text(cardsText(hand.dealt, hand.judgement->best)) : QString(),
        row.bestLine,
        hand.judgement ? text(fixedText(hand.judgement->cost, 4)) : QString(),
    };
    QStringList quoted;
    for (const QString& f : fields) {
        quoted << field(f);
    }
    return quoted.join(QLatin1Char(',')) + QLatin1Char('\n');
}

} // namespace

std::vector<TableFigures> lifetimeFigures(const QSqlDatabase& db) {
    std::vector<TableFigures> figures;
    QSqlQuery totals = run(db, QStringLiteral("SELECT game, pay_table, code, hands, bet, paid"
                                              " FROM totals ORDER BY game, pay_table"));
    while (totals.next()) {
        const auto game = static_cast<GameId>(totals.value(0).toInt());
        const QString table = totals.value(1).toString();
        if (figures.empty() || figures.back().game != game || figures.back().payTable != table) {
            figures.push_back({.game = game, .payTable = table});
        }
        TableFigures& f = figures.back();
        const int code = totals.value(2).toInt();
        f.hands += totals.value(3).toLongLong();
        f.bet += totals.value(4).toDouble();
        f.paid += totals.value(5).toDouble();
        if (code >= 0 && code < odds::kCodeSlots) {
            f.codes[static_cast<std::size_t>(code)] += totals.value(3).toLongLong();
        }
    }
    for (TableFigures& f : figures) {
        for (const LineCost& line : lineCosts(db, f.game, f.payTable)) {
            f.judged += line.judged;
            f.mistakes += line.mistakes;
            f.cost += line.cost;
        }
    }
    return figures;
}

std::vector<LineCost> lineCosts(const QSqlDatabase& db, GameId game, const QString& payTable) {
    std::vector<LineCost> lines;
    QSqlQuery query = run(db,
                          QStringLiteral("SELECT line, judged, mistakes, cost FROM line_costs"
                                         " WHERE game = ? AND pay_table = ? ORDER BY cost DESC"),
                          {static_cast<int>(game), payTable});
    while (query.next()) {
        lines.push_back({query.value(0).toString(), query.value(1).toLongLong(),
                         query.value(2).toLongLong(), query.value(3).toDouble()});
    }
    return lines;
}

std::vector<ProgressPoint> progressOf(const QSqlDatabase& db, GameId game,
                                      const QString& payTable) {
    std::vector<ProgressPoint> points;
    QSqlQuery query = run(db,
                          QStringLiteral("SELECT hands, net, judged, cost FROM progress"
                                         " WHERE game = ? AND pay_table = ? ORDER BY block"),
                          {static_cast<int>(game), payTable});
    ProgressPoint point;
    while (query.next()) {
        point.hands += query.value(0).toLongLong();
        point.net += query.value(1).toDouble();
        const long long judged = query.value(2).toLongLong();
        point.costPer100 = judged > 0 ? std::optional<double>(query.value(3).toDouble() * 100.0 /
                                                              static_cast<double>(judged))
                                      : std::nullopt;
        points.push_back(point);
    }
    return points;
}

std::vector<RecordedHand> historyPage(const QSqlDatabase& db, const HistoryFilter& filter,
                                      std::optional<qint64> before, int limit) {
    QVariantList values;
    QString sql = QStringLiteral("SELECT ") + kHandColumns + QStringLiteral(" FROM hands") +
                  whereOf(filter, values);
    if (before) {
        sql += QStringLiteral(" AND id < ?");
        values << *before;
    }
    sql += QStringLiteral(" ORDER BY id DESC LIMIT ?");
    values << limit;
    std::vector<RecordedHand> rows;
    QSqlQuery query = run(db, sql, values);
    while (query.next()) {
        rows.push_back(handOf(query));
    }
    return rows;
}

bool exportRecord(const QSqlDatabase& db, const HistoryFilter& filter, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    bool ok = file.write("Time,Run,Visit,Hand,Game,Pay Table,Bet,Dealt,Held,Final,Result,Paid,"
                         "Double Up,Bonus,Best Hold,Best Line,Cost\n") > 0;
    qint64 after = 0;
    for (bool more = true; ok && more;) {
        QVariantList values;
        const QString sql = QStringLiteral("SELECT ") + kHandColumns +
                            QStringLiteral(" FROM hands") + whereOf(filter, values) +
                            QStringLiteral(" AND id > ? ORDER BY id LIMIT ?");
        values << after << kExportPage;
        QSqlQuery query = run(db, sql, values);
        int count = 0;
        while (ok && query.next()) {
            const RecordedHand row = handOf(query);
            after = row.id;
            ++count;
            ok = file.write(csvRow(row).toUtf8()) >= 0;
        }
        more = count == kExportPage;
    }
    return ok && file.flush();
}

} // namespace marivale
