#pragma once

// Tells the presses of a held key from new ones. A held key repeats as a release and a press
// with the same time stamp; the toolkit marks most such presses as repeats, but can miss one when
// the two arrive apart (on a busy machine), so the pair is matched here as well. Events made by a
// program without a time stamp are taken as they are marked.

// Qt
#include <QKeyEvent>

namespace marivale {

class KeyRepeatGuard {
public:
    void released(const QKeyEvent& key) { released_ = {key.key(), key.timestamp()}; }

    bool isRepeat(const QKeyEvent& press) const {
        return press.isAutoRepeat() || (press.timestamp() != 0 && press.key() == released_.key &&
                                        press.timestamp() == released_.timestamp);
    }

private:
    struct Release {
        int key{0};
        quint64 timestamp{0};
    };
    Release released_{};
};

} // namespace marivale
