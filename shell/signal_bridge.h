#pragma once

// Turns the ways a desktop ends a program into one request to close: SIGTERM (logout,
// shutdown), SIGHUP (the terminal went away), SIGINT (Ctrl+C) and the session manager's request
// to commit its data before quitting. A signal handler may do almost nothing, so it only writes
// a byte into a pipe; the pipe wakes the event loop, which then asks, once, for the close. A
// second signal finds the request already made and changes nothing.

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

    // Also treats the session manager's request to commit data as a request to close.
    void watchSessionManager(QGuiApplication& application);

    // Whether a close has been asked for, so that a request made before anyone listened is kept.
    [[nodiscard]] bool requested() const { return requested_; }

signals:
    // Emitted once, for the first signal or session request.
    void closeRequested();

private:
    void readPipe();
    void request();

    QSocketNotifier* notifier_{nullptr};
    bool requested_{false};
};

} // namespace marivale
