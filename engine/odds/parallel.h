#pragma once

// Runs a loop body over 0..count-1 on a few threads that take the next index as they finish.

// Standard library
#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace marivale::odds {

// The number of worker threads the odds use: every core, at least one, at most eight.
inline int defaultThreadCount() {
    const unsigned cores = std::thread::hardware_concurrency();
    return std::clamp(static_cast<int>(cores), 1, 8);
}

// Calls body(worker, index) for every index; worker numbers the calling thread 0..threads-1.
template <typename Body> void parallelFor(int count, int threads, Body&& body) {
    threads = std::clamp(threads, 1, std::max(count, 1));
    std::atomic<int> next{0};
    auto work = [&](int worker) {
        for (int index = next.fetch_add(1); index < count; index = next.fetch_add(1)) {
            body(worker, index);
        }
    };
    std::vector<std::thread> pool;
    pool.reserve(threads - 1);
    for (int worker = 1; worker < threads; ++worker) {
        pool.emplace_back(work, worker);
    }
    work(0);
    for (auto& thread : pool) {
        thread.join();
    }
}

} // namespace marivale::odds
