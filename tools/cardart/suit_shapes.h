// The four suit symbols as filled outlines, so no font glyph is ever needed.
#pragma once

// Qt
#include <QPainterPath>
#include <QRectF>

// Marivale
#include "card_style.h"

namespace marivale::cardart {

// The symbol of a suit fitted into a box, pointing upright (a heart's tip at the bottom).
QPainterPath suitPath(Suit suit, const QRectF& box);

} // namespace marivale::cardart
