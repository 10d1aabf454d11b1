#pragma once

// One piece of background work at a time: starting another stops and waits for the one before,
// and going away stops and waits for the one running. The work is told to stop through its
// std::stop_token and is expected to give up quickly.

// Standard library
#include <stop_token>
#include <thread>
#include <utility>

namespace marivale {

class BackgroundJob {
public:
    BackgroundJob() = default;
    BackgroundJob(const BackgroundJob&) = delete;
    BackgroundJob& operator=(const BackgroundJob&) = delete;
    ~BackgroundJob() { stop(); }

    // Runs work(stop_token) on a thread of its own once the previous work has stopped.
    template <typename Work> void start(Work&& work) {
        stop();
        thread_ = std::jthread(std::forward<Work>(work));
    }
    // Asks the work to stop without waiting for it.
    void requestStop() { thread_.request_stop(); }
    // Asks the work to stop and waits for it.
    void stop() {
        thread_.request_stop();
        if (thread_.joinable()) {
            thread_.join();
        }
    }

private:
    std::jthread thread_{};
};

} // namespace marivale
