#pragma once

// A card's face as the windows write it, "K♠" or "10♥", in its suit's ink.

// Standard library
#include <span>

// Qt
#include <QColor>
#include <QString>

// Marivale
#include "engine/card.h"
#include "engine/card_text.h"

namespace marivale {

QString cardFaceText(CardCode card);

// The ink of a card's face: red for diamonds and hearts, near-black for clubs and spades,
// purple for the joker.
QColor cardInk(CardCode card);

// The face as rich text in its ink, for labels.
QString cardHtml(CardCode card);

// The faces of the cards in the mask as rich text, one space apart; empty when there are none.
QString cardsHtml(std::span<const CardCode> cards, unsigned mask = ~0u);

} // namespace marivale
