#pragma once

// A value built once, on first use, by whichever caller asks first. A build asked to stop throws
// BuildStopped and leaves the value unbuilt for the next caller; callers waiting for another's
// build give up as soon as they are asked to stop.

// Standard library
#include <atomic>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <stop_token>

namespace marivale::odds {

// Thrown by a table build that was asked to stop.
struct BuildStopped : std::exception {
    const char* what() const noexcept override { return "odds table build stopped"; }
};

// Throws BuildStopped once `stop` is requested.
inline void throwIfStopped(const std::stop_token& stop) {
    if (stop.stop_requested()) {
        throw BuildStopped{};
    }
}

template <typename T> class StoppableOnce {
public:
    // The value, built by build(stop) (a std::unique_ptr<T>) unless it exists; nullptr when
    // stopped first.
    template <typename Build> const T* get(std::stop_token stop, Build&& build) {
        std::unique_lock lock(mutex_);
        while (!value_) {
            if (building_) {
                if (!changed_.wait(lock, stop, [this] { return !building_; })) {
                    return nullptr;
                }
                continue;
            }
            building_ = true;
            lock.unlock();
            std::unique_ptr<T> built;
            try {
                built = build(stop);
            } catch (const BuildStopped&) {
            } catch (...) {
                lock.lock();
                building_ = false;
                changed_.notify_all();
                throw;
            }
            lock.lock();
            building_ = false;
            if (built) {
                value_ = std::move(built);
                ready_.store(value_.get(), std::memory_order_release);
            }
            changed_.notify_all();
            if (!value_) {
                return nullptr;
            }
        }
        return value_.get();
    }

    // The value if it is built already, else nullptr. Never blocks.
    const T* ifBuilt() const { return ready_.load(std::memory_order_acquire); }

private:
    std::mutex mutex_{};
    std::condition_variable_any changed_{};
    bool building_{false};
    std::unique_ptr<T> value_{};
    std::atomic<const T*> ready_{nullptr};
};

} // namespace marivale::odds
