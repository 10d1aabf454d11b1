#include "shell/quit_sequence.h"

// Standard library
#include <utility>

// Qt
#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace marivale {

namespace {

// How often, and how many times, to look whether a closed window's event loop has returned.
// A window without a loop of its own (a message shown without waiting) never lowers the count,
// so the sequence goes on after the last look.
constexpr int kWaitMs = 20;
constexpr int kMaxWaits = 25;

int runningLoops() {
    return QThread::currentThread()->loopLevel();
}

} // namespace

QuitSequence::QuitSequence(QWidget& mainWindow, std::function<void()> closeMain, QObject* parent)
    : QObject(parent), mainWindow_(mainWindow), closeMain_(std::move(closeMain)) {}

void QuitSequence::start() {
    if (started_) {
        return;
    }
    started_ = true;
    QTimer::singleShot(0, this, &QuitSequence::step);
}

// A modal window returns from its own event loop only after the handler that closed it has
// finished; the code that opened it then carries on (a board settles what Double Up won). The
// next window is closed only after that.
bool QuitSequence::stillUnwinding() {
    if (levelAtClose_ == 0 || runningLoops() < levelAtClose_ || waits_ >= kMaxWaits) {
        levelAtClose_ = 0;
        waits_ = 0;
        return false;
    }
    ++waits_;
    return true;
}

// Closes the window on top, or, with none left above it, the main window.
void QuitSequence::step() {
    if (finished_) {
        return;
    }
    if (stillUnwinding()) {
        QTimer::singleShot(kWaitMs, this, &QuitSequence::step);
        return;
    }
    QPointer<QWidget> top = QApplication::activeModalWidget();
    if (top != nullptr && top != &mainWindow_) {
        levelAtClose_ = runningLoops();
        top->close();
        // A window that refuses its close box is hidden, so that the close goes on.
        if (top != nullptr && top->isVisible()) {
            top->hide();
        }
        QTimer::singleShot(0, this, &QuitSequence::step);
        return;
    }
    finished_ = true;
    closeMain_();
}

} // namespace marivale
