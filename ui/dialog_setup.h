#pragma once

// The set-up shared by the fixed modal windows (Double Up, the Treasure Hunt, the help screen):
// name, caption, a title bar with only a close box, a fixed size, the design face and the
// window's own colours.

// Qt
#include <QColor>
#include <QSize>
#include <QString>

class QDialog;

namespace marivale {

struct ModalLook {
    QString name{};
    QString caption{};
    QSize size{};
    QColor ground{Qt::white};
    QColor text{Qt::black};
};

// Gives a modal window its fixed look; the colours reach its controls, not the windows it opens.
void setUpModalWindow(QDialog& dialog, const ModalLook& look);

} // namespace marivale
