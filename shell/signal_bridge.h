#pragma once

// Turns the ways a desktop ends a program into one request to close: SIGTERM (logout,
// shutdown), SIGHUP (the terminal went away), SIGINT (Ctrl+C) and the end of the session, which
// the session manager sends as a request to quit. A signal handler may do almost nothing, so it
// only writes a byte into a pipe; the pipe wakes the event loop, which then asks, once, for the
// close. A second signal finds the request already made and changes nothing.
//
// The session manager's request to commit data is no reason to close: it comes at a checkpoint
// and at a logout that may still be cancelled, so it only asks for the total to be kept.

// Qt
#include <QObject>

class QGuiApplication;
class QSocketNotifier;

namespace marivale {

class SignalBridge : public QObject {
    Q_OBJECT
public:
    // Installs the handlers; only one bridge may exist at a time.
    explicit SignalBridge(QObject* parent = nullptr);
    // Restores the default handlers, or ignores the signals once a close has been asked for.
    ~SignalBridge() override;

    SignalBridge(const SignalBridge&) = delete;
    SignalBridge& operator=(const SignalBridge&) = delete;

    // Also turns the session manager's request to commit data into checkpointRequested, and a
    // request to quit that comes before allowQuit() into a request to close. Its request to save
    // the session's state is left unanswered: the total is all there is to keep, and the
    // commit keeps it.
    void watchSessionManager(QGuiApplication& application);

    // What a request to commit data does: a checkpoint, unless the close is already under way.
    void commitData();

    // The program has closed itself: from now on a request to quit ends it.
    void allowQuit() { quitAllowed_ = true; }

    // Whether a close has been asked for, so that a request made before anyone listened is kept.
    [[nodiscard]] bool requested() const { return requested_; }

signals:
    // Emitted once, for the first signal or the session's end.
    void closeRequested();
    // The total should be kept now, and play go on.
    void checkpointRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readPipe();
    void request();

    QSocketNotifier* notifier_{nullptr};
    bool requested_{false};
    bool quitAllowed_{false};
};

} // namespace marivale
