// Small drawing helpers used all over the deck.
#pragma once

// Standard library
#include <initializer_list>

// Qt
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

// Marivale
#include "card_style.h"

namespace marivale::cardart {

// Fills `path` with `fill` and draws its outline in the deck's outline ink.
void fillOutlined(QPainter& painter, const QPainterPath& path, QRgb fill, qreal width = 1.2);

// A closed polygon through `points`.
QPainterPath polygonPath(std::initializer_list<QPointF> points);

// Turns the painter half a turn about the card's centre, for the upside-down half of a card.
void turnHalf(QPainter& painter);

} // namespace marivale::cardart
