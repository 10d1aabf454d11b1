#pragma once

// The one source of uniform values in [0, 1) that dealing, Double Up and the chests draw from.
// The game reseeds it from the clock where the rules say so; tests script it.

#include <cstdint>
#include <random>

namespace marivale {

class RandomSource {
public:
    virtual ~RandomSource() = default;
    // A uniform value in [0, 1).
    virtual double next() = 0;
    virtual void reseedFromClock() = 0;
};

// The game's source: a Mersenne Twister reseeded from the high-resolution clock.
class ClockRandomSource final : public RandomSource {
public:
    ClockRandomSource();
    double next() override;
    void reseedFromClock() override;

private:
    std::mt19937_64 engine_{};
};

// A repeatable source for tools, benchmarks and tests: a fixed seed, and reseeding does nothing.
class SeededRandomSource final : public RandomSource {
public:
    explicit SeededRandomSource(std::uint64_t seed) : engine_(seed) {}
    double next() override;
    void reseedFromClock() override {}

private:
    std::mt19937_64 engine_;
};

} // namespace marivale
