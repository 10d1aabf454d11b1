#pragma once

// Checks of a window's colours as grabbed: every text readable on what lies behind it, and the
// colours shown at given places.

// Qt
#include <QColor>
#include <QPoint>
#include <QRect>
#include <QStringList>

class QWidget;

namespace marivale::testing {

// Texts whose colour is too close to the colour drawn behind them (contrast ratio under 3).
QStringList illegibleTexts(const QWidget& window);

// Whether some pixel of the area (in the widget's coordinates) is within `tolerance` of the colour
// in each channel; grabbed at the screen's scale.
bool showsColour(QWidget& widget, const QRect& area, const QColor& colour, int tolerance = 24);

// The colour grabbed at one point of a widget, in its coordinates.
QColor colourAt(QWidget& widget, const QPoint& point);

} // namespace marivale::testing
