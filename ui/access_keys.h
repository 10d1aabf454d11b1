#pragma once

// Access keys that click at once, as the mouse does, instead of after the short pressed-down
// animation a button shows by default, so that keys typed quickly act in the order typed
// (Alt+P then Enter buys before it deals). A key held down clicks once: its repeats never reach
// a button, not even one of the window that comes up when the first press closed another (a
// held Alt+X leaves a board, never the menu behind it too).

// Qt
#include <QEvent>
#include <QKeyEvent>
#include <QObject>
#include <QPushButton>
#include <QShortcutEvent>
#include <QWidget>

// Marivale
#include "ui/key_repeat_guard.h"

namespace marivale {

class ImmediateAccessKeys final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyRelease) {
            keys_.released(*static_cast<QKeyEvent*>(event));
            return false;
        }
        // Every key press is first offered to the focus widget as an override; it tells whether
        // the shortcut that may follow comes from a held key.
        if (event->type() == QEvent::ShortcutOverride) {
            repeating_ = keys_.isRepeat(*static_cast<QKeyEvent*>(event));
            return false;
        }
        if (event->type() == QEvent::Shortcut) {
            auto* button = qobject_cast<QPushButton*>(watched);
            if (button != nullptr && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
                if (!repeating_) {
                    button->click();
                }
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    KeyRepeatGuard keys_{};
    bool repeating_{false};
};

// Lets the access key of every push button now inside the window click at once, and once.
inline void clickAccessKeysAtOnce(QWidget& window) {
    auto* filter = new ImmediateAccessKeys(&window);
    window.installEventFilter(filter);
    for (QWidget* control : window.findChildren<QWidget*>()) {
        control->installEventFilter(filter);
    }
}

} // namespace marivale
