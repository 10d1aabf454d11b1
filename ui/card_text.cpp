#include "ui/card_text.h"

// Qt
#include <QStringList>

namespace marivale {
namespace {

constexpr QRgb kBlackInk = 0xff1a1a1a;
constexpr QRgb kRedInk = 0xffc8102e;
constexpr QRgb kJokerInk = 0xff6a1b9a;

} // namespace

QString cardFaceText(CardCode card) {
    return QString::fromStdString(cardText(card, CardForm::Face));
}

QColor cardInk(CardCode card) {
    if (card == kJoker) {
        return QColor::fromRgba(kJokerInk);
    }
    return QColor::fromRgba(isCard(card) && isRed(suitOf(card)) ? kRedInk : kBlackInk);
}

QString cardHtml(CardCode card) {
    return QStringLiteral("<span style=\"color:%1\">%2</span>")
        .arg(cardInk(card).name(), cardFaceText(card).toHtmlEscaped());
}

QString cardsHtml(std::span<const CardCode> cards, unsigned mask) {
    QStringList faces;
    for (std::size_t p = 0; p < cards.size(); ++p) {
        if ((mask >> p) & 1u) {
            faces << cardHtml(cards[p]);
        }
    }
    return faces.join(' ');
}

} // namespace marivale
