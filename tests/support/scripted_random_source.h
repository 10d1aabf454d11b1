#pragma once

// A random source whose values a test writes in advance.

// Standard library
#include <cstddef>
#include <utility>
#include <vector>

// Marivale
#include "engine/random_source.h"

namespace marivale {

// Plays back the given values in order, then falls back to a seeded generator; counts the
// reseeds asked for.
class ScriptedRandomSource final : public RandomSource {
public:
    ScriptedRandomSource() = default;
    explicit ScriptedRandomSource(std::vector<double> values) : values_(std::move(values)) {}

    double next() override {
        if (position_ < values_.size()) {
            return values_[position_++];
        }
        return fallback_.next();
    }
    void reseedFromClock() override { ++reseeds; }

    void push(double value) { values_.push_back(value); }
    // Queues the value that makes int(value * count) come out as index.
    void pushIndex(int index, int count) { push((index + 0.5) / count); }
    std::size_t remaining() const { return values_.size() - position_; }

    int reseeds{0};

private:
    std::vector<double> values_{};
    std::size_t position_{0};
    SeededRandomSource fallback_{20261123};
};

} // namespace marivale
