#pragma once

// The face and colours every window is drawn in, pinned so that a window looks the same on every
// desktop whatever its default font, font size or colour theme.

// Qt
#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QStyle>

namespace marivale {

// The one sans-serif face of the windows' texts; the install step brings it.
inline constexpr const char* kDesignFamily = "Liberation Sans";

// The design face at a size given in points at 96 dots per inch. The size is held in pixels, so
// the texts keep their proportions to the window's fixed design under any font settings; Qt's
// scale factor enlarges both alike.
inline QFont designFont(qreal points, bool bold = false, bool italic = false) {
    QFont font(QString::fromLatin1(kDesignFamily));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qRound(points * 96.0 / 72.0));
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

// The style's own light palette with the window's background and text colours; set once on a
// window, it reaches every control inside it but no window opened from it.
inline QPalette designPalette(const QColor& background, const QColor& text) {
    QPalette palette = QApplication::style()->standardPalette();
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

} // namespace marivale
