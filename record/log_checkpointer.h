#pragma once

// Copies the write-ahead log of the player's record back into the database file on a thread of
// its own, every so many hands, so that the window's thread never waits for it. The window's
// connection turns its own automatic checkpoints off.

// Standard library
#include <condition_variable>
#include <mutex>
#include <thread>

// Qt
#include <QString>

namespace marivale {

class LogCheckpointer {
public:
    explicit LogCheckpointer(const QString& path);
    ~LogCheckpointer();
    LogCheckpointer(const LogCheckpointer&) = delete;
    LogCheckpointer& operator=(const LogCheckpointer&) = delete;

    // One more write went into the log.
    void written();
    // Checkpoints done so far.
    int done() const;

private:
    void run(const QString& path, const std::stop_token& stop);

    mutable std::mutex mutex_{};
    std::condition_variable_any wake_{};
    int waiting_{0};
    int done_{0};
    // Last member: stopped and joined first.
    std::jthread thread_{};
};

} // namespace marivale
