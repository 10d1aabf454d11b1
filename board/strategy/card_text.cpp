#include "board/strategy/card_text.h"

// Standard library
#include <array>

namespace marivale {
namespace {

// Rank index 0..12 as written on a card.
constexpr std::array<const char*, 13> kRankText{"A", "2", "3",  "4", "5", "6", "7",
                                                "8", "9", "10", "J", "Q", "K"};
// Suit index 0..3 as the card pictures show it: clubs, diamonds, hearts, spades.
constexpr std::array<char16_t, 4> kSuitSymbol{u'\u2663', u'\u2666', u'\u2665', u'\u2660'};
// The ink of each suit index, red for diamonds and hearts; the joker's is purple.
constexpr std::array<QRgb, 4> kSuitInk{0xff1a1a1a, 0xffc8102e, 0xffc8102e, 0xff1a1a1a};
constexpr QRgb kJokerInk = 0xff6a1b9a;

bool validCard(CardCode card) {
    return card >= 0 && card <= kJoker;
}

} // namespace

QString cardText(CardCode card) {
    if (!validCard(card)) {
        return QStringLiteral("?");
    }
    if (card == kJoker) {
        return QStringLiteral("Joker");
    }
    return QString::fromLatin1(kRankText[rankIndex(card)]) + QChar(kSuitSymbol[suitIndex(card)]);
}

QColor cardColour(CardCode card) {
    if (card == kJoker) {
        return QColor::fromRgba(kJokerInk);
    }
    return QColor::fromRgba(validCard(card) ? kSuitInk[suitIndex(card)] : kSuitInk[0]);
}

QString cardHtml(CardCode card) {
    return QStringLiteral("<span style=\"color:%1\">%2</span>")
        .arg(cardColour(card).name(), cardText(card).toHtmlEscaped());
}

} // namespace marivale
