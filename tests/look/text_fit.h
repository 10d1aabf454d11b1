#pragma once

// Checks of a window as the player sees it: every text whole inside its control, and every text
// readable on what lies behind it. Each check walks the window's controls (not the windows opened
// from it) and returns one line per fault, empty when the window is right.

// Qt
#include <QColor>
#include <QPoint>
#include <QRect>
#include <QStringList>

class QWidget;

namespace marivale::testing {

// Texts of labels, buttons, options, fields, frame titles and status panels that do not fit the
// room their control gives them, or that a parent or a neighbour cuts off.
QStringList cutTexts(const QWidget& window);

// Texts whose colour is too close to the colour drawn behind them (contrast ratio under 3).
QStringList illegibleTexts(const QWidget& window);

// The contrast ratio of two colours, 1 (alike) to 21 (black on white).
double contrast(const QColor& a, const QColor& b);

// Whether some pixel of the area (in the widget's coordinates) is within `tolerance` of the colour
// in each channel; grabbed at the screen's scale.
bool showsColour(QWidget& widget, const QRect& area, const QColor& colour, int tolerance = 24);

// The colour grabbed at one point of a widget, in its coordinates.
QColor colourAt(QWidget& widget, const QPoint& point);

} // namespace marivale::testing
