#pragma once

// Access keys that click at once, as the mouse does, instead of after the short pressed-down
// animation a button shows by default, so that keys typed quickly act in the order typed
// (Alt+P then Enter buys before it deals).

// Qt
#include <QEvent>
#include <QObject>
#include <QPushButton>
#include <QShortcutEvent>
#include <QWidget>

namespace marivale {

class ImmediateAccessKeys final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Shortcut) {
            auto* button = qobject_cast<QPushButton*>(watched);
            if (button != nullptr && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
                button->click();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

// Lets the access key of every push button now inside the window click at once.
inline void clickAccessKeysAtOnce(QWidget& window) {
    auto* filter = new ImmediateAccessKeys(&window);
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        button->installEventFilter(filter);
    }
}

} // namespace marivale
