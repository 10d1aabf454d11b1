#pragma once

// Design measures of the bonus windows: places in twips (15 to the pixel at 96 dots per inch)
// and the sans-serif face of their texts.

// Qt
#include <QFont>
#include <QRect>

namespace marivale {

inline constexpr int kTwipsPerPixel = 15;

struct TwipRect {
    int left{0};
    int top{0};
    int width{0};
    int height{0};
};

constexpr QRect fromTwips(TwipRect rect) {
    return QRect(rect.left / kTwipsPerPixel, rect.top / kTwipsPerPixel, rect.width / kTwipsPerPixel,
                 rect.height / kTwipsPerPixel);
}

inline QFont designFont(qreal pointSize, bool bold) {
    QFont font(QStringLiteral("Sans Serif"));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    return font;
}

} // namespace marivale
