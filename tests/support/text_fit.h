#pragma once

// Checks that a window shows every text whole. The check walks the window's controls (not the
// windows opened from it) and returns one line per fault, empty when the window is right.

// Qt
#include <QList>
#include <QStringList>

class QWidget;

namespace marivale::testing {

// Texts of labels, buttons, options, fields and frame titles that do not fit the room their
// control gives them, or that a parent or a neighbour cuts off.
QStringList cutTexts(const QWidget& window);

// The window's own controls that are shown, leaving out those of windows opened from it.
QList<QWidget*> shownControls(const QWidget& window);

} // namespace marivale::testing
