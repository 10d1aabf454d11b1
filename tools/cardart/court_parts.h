// The pieces every court figure shares: frame, robe, staff, hand and face.
#pragma once

// Qt
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

// Marivale
#include "card_style.h"

namespace marivale::cardart {

// The portrait frame, inside the two corner indices; the figure's half ends at the middle line.
inline constexpr QRectF kFrame{34.0, 12.0, 86.0, 182.0};
inline constexpr qreal kMiddle = kCardHeight / 2.0;
inline constexpr qreal kFaceX = 77.0;

// The robe over both shoulders, cut at the middle of the card.
QPainterPath shoulders();

// The robe in the suit colour, woven with small gold diamonds.
void paintRobe(QPainter& painter, Suit suit);

// A white panel down the chest from `top`, carrying the suit, edged in gold.
void paintTabard(QPainter& painter, Suit suit, qreal top);

// A staff from the hand at `x` up to `top`: gold with a dark edge.
void paintStaff(QPainter& painter, qreal x, qreal top);

// A gold cuff and the hand gripping the staff at `x`.
void paintHand(QPainter& painter, qreal x);

// Neck and face, with lashes for the Queen.
void paintFace(QPainter& painter, bool lashes);

} // namespace marivale::cardart
