#pragma once

// Design places of the windows, in twips (15 to the pixel at 96 dots per inch).

// Qt
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

} // namespace marivale
