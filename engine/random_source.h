#pragma once

// The one source of uniform values in [0, 1) that dealing, Double Up and the chests draw from.
// The game reseeds it from the clock where the rules say so; tests script it.

#include <cstdint>
#include <random>
#include <vector>

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

// A repeatable source for tests and tools: a fixed seed, and reseeding does nothing.
class SeededRandomSource final : public RandomSource {
public:
    explicit SeededRandomSource(std::uint64_t seed) : engine_(seed) {}
    double next() override;
    void reseedFromClock() override {}

private:
    std::mt19937_64 engine_;
};

// Plays back the given values in order, then falls back to a seeded generator.
class ScriptedRandomSource final : public RandomSource {
public:
    ScriptedRandomSource() = default;
    explicit ScriptedRandomSource(std::vector<double> values) : values_(std::move(values)) {}

    double next() override;
    void reseedFromClock() override {}

    void push(double value) { values_.push_back(value); }
    // Queues the value that makes int(value * count) come out as index.
    void pushIndex(int index, int count) { push((index + 0.5) / count); }
    std::size_t remaining() const { return values_.size() - position_; }

private:
    std::vector<double> values_{};
    std::size_t position_{0};
    SeededRandomSource fallback_{20261123};
};

} // namespace marivale
