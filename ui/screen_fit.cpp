#include "ui/screen_fit.h"

// Standard library
#include <algorithm>

// Qt
#include <QScreen>
#include <QWidget>

namespace marivale {

void keepOnScreen(QWidget& window) {
    if (!window.isVisible() || window.screen() == nullptr) {
        return;
    }
    const QRect area = window.screen()->availableGeometry();
    const QRect outer = window.frameGeometry();
    const int x = std::max(area.left(), std::min(outer.left(), area.right() - outer.width()));
    const int y = std::max(area.top(), std::min(outer.top(), area.bottom() - outer.height()));
    if (x != outer.left() || y != outer.top()) {
        window.move(x, y);
    }
}

} // namespace marivale
