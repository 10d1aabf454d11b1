#include "board/practice/drill_texts.h"

// Qt
#include <QObject>
#include <QStringList>

// Marivale
#include "ui/card_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

QString holdText(const HandCards& cards, unsigned held, const std::string& line, double bets) {
    const QString kept = held == 0 ? QObject::tr("nothing") : cardsHtml(cards, held);
    return QObject::tr("%1 &mdash; %2 (%3 bets)")
        .arg(kept, QString::fromStdString(line).toHtmlEscaped(), decimalText(bets, 4));
}

} // namespace

QString drillAnswerText(const PracticeDrill& drill) {
    const DrillDeal& hand = drill.hand();
    const auto& verdict = drill.verdict();
    if (!verdict) {
        QString text =
            QObject::tr("Hold the cards to keep (click or 1&ndash;5), then Submit (Enter).");
        if (!hand.asked) {
            text += QObject::tr("<br>No deal of that kind came up in %1 tries: this one is any "
                                "deal.")
                        .arg(hand.tries);
        }
        return text;
    }
    const QString best =
        holdText(hand.cards, verdict->best, verdict->bestLine, verdict->bestReturn);
    const QString yours =
        holdText(hand.cards, verdict->held, verdict->heldLine, verdict->heldReturn);
    const QString outcome =
        verdict->mistake ? QObject::tr("<b>Cost: %1 bets</b>").arg(decimalText(verdict->cost, 4))
                         : QObject::tr("<b>Right: as good as the best hold</b>");
    return QObject::tr("Best hold: %1<br>Your hold: %2<br>%3<br>Enter deals the next hand.")
        .arg(best, yours, outcome);
}

QString drillScoreText(const DrillScore& score) {
    return QObject::tr("Hands %1     Accuracy %2%     Cost per 100 hands %3 bets")
        .arg(score.hands())
        .arg(decimalText(score.accuracy(), 1), decimalText(score.costPer100(), 2));
}

QString weakLinesText(const std::vector<WeakLine>& lines) {
    if (lines.empty()) {
        return QObject::tr("No mistakes yet: the deals are random until one.");
    }
    QStringList named;
    for (const WeakLine& line : lines) {
        named << QObject::tr("%1 (%2)").arg(QString::fromStdString(line.name)).arg(line.mistakes);
    }
    return QObject::tr("Weak spots: %1").arg(named.join(QStringLiteral(", ")));
}

} // namespace marivale
