#include "shell/signal_bridge.h"

// Standard library
#include <array>
#include <cerrno>
#include <csignal>

// POSIX
#include <fcntl.h>
#include <unistd.h>

// Qt
#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

namespace marivale {

namespace {

constexpr std::array<int, 3> kSignals{SIGTERM, SIGHUP, SIGINT};

// The pipe's two ends; the handler may touch nothing but these.
volatile std::sig_atomic_t gWriteEnd = -1;
int gReadEnd = -1;

extern "C" void onSignal(int number) {
    const int savedErrno = errno;
    const auto byte = static_cast<char>(number);
    // A full pipe already holds a request; losing this byte loses nothing.
    [[maybe_unused]] const ssize_t ignored = ::write(gWriteEnd, &byte, 1);
    errno = savedErrno;
}

void setHandler(int number, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    ::sigaction(number, &action, nullptr);
}

} // namespace

SignalBridge::SignalBridge(QObject* parent) : QObject(parent) {
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // the default handlers stay: better than a signal nobody reads
    }
    gReadEnd = ends[0];
    gWriteEnd = ends[1];
    notifier_ = new QSocketNotifier(gReadEnd, QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &SignalBridge::readPipe);
    for (const int number : kSignals) {
        setHandler(number, onSignal);
    }
}

SignalBridge::~SignalBridge() {
    if (notifier_ == nullptr) {
        return;
    }
    // Once the program is closing, a late signal must not kill it on its way out.
    for (const int number : kSignals) {
        setHandler(number, requested_ ? SIG_IGN : SIG_DFL);
    }
    ::close(gWriteEnd);
    ::close(gReadEnd);
    gWriteEnd = -1;
    gReadEnd = -1;
}

void SignalBridge::watchSessionManager(QGuiApplication& application) {
#ifndef QT_NO_SESSIONMANAGER
    // Nothing may wait for the player here: the checkpoint asks no questions.
    connect(&application, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { commitData(); });
#endif
    application.installEventFilter(this);
}

void SignalBridge::commitData() {
    if (!requested_) {
        emit checkpointRequested();
    }
}

// The session's end reaches the program as a request to quit, which would close the windows in
// no particular order; until the program has closed itself it closes them as a signal does.
bool SignalBridge::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Quit && watched == QCoreApplication::instance() && !quitAllowed_) {
        request();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

// Empties the pipe, then asks for the close unless it was asked for already.
void SignalBridge::readPipe() {
    std::array<char, 64> bytes{};
    bool any = false;
    for (;;) {
        const ssize_t got = ::read(gReadEnd, bytes.data(), bytes.size());
        if (got > 0) {
            any = true;
            continue;
        }
        if (got < 0 && errno == EINTR) {
            continue;
        }
        break;
    }
    if (any) {
        request();
    }
}

void SignalBridge::request() {
    if (requested_) {
        return;
    }
    requested_ = true;
    emit closeRequested();
}

} // namespace marivale
