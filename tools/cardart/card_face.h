// Drawing of the card faces: the blank card, the corner indices, the pips and the Ace.
#pragma once

// Qt
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>

// Marivale
#include "card_style.h"

namespace marivale::cardart {

// The extra marks some games put on a card.
enum class Mark { None, Treasure, Wild };

// A transparent canvas of the card size with an antialiasing painter ready to use.
QImage newCardCanvas();
void prepare(QPainter& painter);

// The rounded card with its edge line, filled with `paper`.
void paintBlankCard(QPainter& painter, QRgb paper);

// Rank text and small suit at top left and, turned half a turn, at bottom right.
void paintIndices(QPainter& painter, const QString& rank, Suit suit);

// The pips of a Two to Ten laid out between the rows `top` and `bottom` (pip centres).
void paintPips(QPainter& painter, Suit suit, int count, qreal top, qreal bottom);

// The finished picture of card `code` (0..52) with an optional game mark.
QImage drawCard(int code, Mark mark);

// `text` as an outline whose capital height fills `box`, centred across it and squeezed
// sideways when too wide; `condensed` picks the narrow face.
QPainterPath textInBox(const QString& text, const QRectF& box, bool condensed = false);

// The text of a rank index in the corners: "A", "2".."10", "J", "Q", "K".
QString rankLabel(int rank);

} // namespace marivale::cardart
