#include "ui/dialog_setup.h"

// Qt
#include <QDialog>

// Marivale
#include "ui/design_look.h"

namespace marivale {

void setUpModalWindow(QDialog& dialog, const ModalLook& look) {
    dialog.setObjectName(look.name);
    dialog.setWindowTitle(look.caption);
    dialog.setModal(true);
    dialog.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                          Qt::MSWindowsFixedSizeDialogHint);
    dialog.setFixedSize(look.size);
    dialog.setFont(designFont(8.25, true));
    dialog.setPalette(designPalette(look.ground, look.text));
    dialog.setAutoFillBackground(true);
}

} // namespace marivale
