#include "play/practice/drill_score.h"

namespace marivale {

void DrillScore::add(double cost) {
    ++hands_;
    if (cost <= 0.0) {
        ++correct_;
    } else {
        cost_ += cost;
    }
    trend_.push_back(costPer100());
}

void DrillScore::clear() {
    *this = DrillScore{};
}

double DrillScore::accuracy() const {
    return hands_ == 0 ? 0.0 : 100.0 * correct_ / hands_;
}

double DrillScore::costPer100() const {
    return hands_ == 0 ? 0.0 : 100.0 * cost_ / hands_;
}

} // namespace marivale
