#include "engine/random_source.h"

#include <chrono>

namespace marivale {

namespace {
// The top 53 bits as a fraction: always below 1.
double uniform(std::mt19937_64& engine) {
    return static_cast<double>(engine() >> 11) * 0x1.0p-53;
}
} // namespace

ClockRandomSource::ClockRandomSource() {
    reseedFromClock();
}

double ClockRandomSource::next() {
    return uniform(engine_);
}

// Nanosecond ticks, so two deals within one second still differ.
void ClockRandomSource::reseedFromClock() {
    const auto ticks = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    std::seed_seq seq{static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32)};
    engine_.seed(seq);
}

double SeededRandomSource::next() {
    return uniform(engine_);
}

} // namespace marivale
