#include "board/board_keys.h"

// Qt
#include <QKeyEvent>
#include <QPushButton>

// Marivale
#include "ui/access_keys.h"
#include "ui/key_repeat_guard.h"

namespace marivale {

void prepareBoardKeys(QWidget& board, const BoardWidgets& widgets) {
    for (QPushButton* button : board.findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
    clickAccessKeysAtOnce(board);
    for (int p = 0; p < kHandSize; ++p) {
        widgets.cards[p]->setToolTip(
            QStringLiteral("Click or press %1 to hold or release this card").arg(p + 1));
    }
    widgets.drawDeal->setToolTip(
        QStringLiteral("Click or press Enter to deal, draw or take the score"));
}

bool playBoardKey(const BoardWidgets& widgets, const QKeyEvent& event, const KeyRepeatGuard& keys) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    QPushButton* target = nullptr;
    if (event.key() >= Qt::Key_1 && event.key() <= Qt::Key_5) {
        target = widgets.cards[event.key() - Qt::Key_1];
    } else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        target = widgets.drawDeal;
    } else {
        return false;
    }
    if (!keys.isRepeat(event) && target->isEnabled() && target->isVisible()) {
        target->click();
    }
    return true;
}

} // namespace marivale
