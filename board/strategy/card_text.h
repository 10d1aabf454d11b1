#pragma once

// A card written small as text, "K♠" or "10♥", in its suit's colour, for the strategy window.

// Qt
#include <QColor>
#include <QString>

// Marivale
#include "engine/card.h"

namespace marivale {

QString cardText(CardCode card);
QColor cardColour(CardCode card);
// The card as rich text in its colour, for labels.
QString cardHtml(CardCode card);

} // namespace marivale
