#pragma once

// What a final hand is worth to the odds: its code, and on Treasure Trips whether it earns the
// Treasure Hunt. Counts of final hands are kept per outcome in fixed-width vectors.

// Standard library
#include <array>
#include <cstdint>

// Marivale
#include "engine/hand_codes.h"

namespace marivale::odds {

struct Outcome {
    std::uint8_t code{0};
    bool bonus{false};
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

// Outcome slots: one per hand code without the bonus (0..10), then the bonus outcomes in use.
inline constexpr int kCodeSlots = kHandCodes;
inline constexpr int kMaxOutcomes = 16;

using OutcomeCounts = std::array<std::int32_t, kMaxOutcomes>;
// What each outcome slot pays, in bets.
using OutcomeValues = std::array<double, kMaxOutcomes>;

} // namespace marivale::odds
