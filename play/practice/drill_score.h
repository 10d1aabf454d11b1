#pragma once

// A drill's score: the hands judged, how many were held as well as the best hold, what the
// others gave away in bets, and after every hand the cost per 100 hands so far.

// Standard library
#include <vector>

namespace marivale {

class DrillScore {
public:
    // Counts a judged hand: its cost in bets, 0 for a hold as good as the best.
    void add(double cost);
    void clear();

    int hands() const { return hands_; }
    int correct() const { return correct_; }
    // The share of hands held as well as the best, in percent; 0 before the first hand.
    double accuracy() const;
    // The bets given away per 100 hands; 0 before the first hand.
    double costPer100() const;
    // The cost per 100 hands after each hand, the first hand's first.
    const std::vector<double>& trend() const { return trend_; }

private:
    int hands_{0};
    int correct_{0};
    double cost_{0.0};
    std::vector<double> trend_{};
};

} // namespace marivale
