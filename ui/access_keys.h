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

namespace marivale {

class ImmediateAccessKeys final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        // A held key repeats as a release and a press with the same time stamp. The toolkit
        // marks most such presses as repeats, but can miss one when the two arrive apart, so
        // the pair is matched here as well.
        if (event->type() == QEvent::KeyRelease) {
            const auto* key = static_cast<QKeyEvent*>(event);
            released_ = {key->key(), key->timestamp()};
            return false;
        }
        // Every key press is first offered to the focus widget as an override; it tells whether
        // the shortcut that may follow comes from a held key.
        if (event->type() == QEvent::ShortcutOverride) {
            const auto* key = static_cast<QKeyEvent*>(event);
            repeating_ = key->isAutoRepeat() ||
                         (key->key() == released_.key && key->timestamp() == released_.timestamp);
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
    struct Release {
        int key{0};
        quint64 timestamp{0};
    };
    Release released_{};
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
