#pragma once

// The captions the board's controls carry, written once for the board's design and its play:
// the two play buttons in each phase, and the purchase options with the dollars each one buys.

// Standard library
#include <array>
#include <string_view>

// Marivale
#include "state/game_state.h"

namespace marivale {

struct PhaseCaptions {
    std::string_view drawDeal{}; // DrawDeal
    std::string_view stand{};    // Stand
};

// The play buttons' captions in a phase; the board opens before the deal.
constexpr PhaseCaptions phaseCaptions(Phase phase) {
    switch (phase) {
    case Phase::Dealt:
        return {"D&raw", "&Stand"};
    case Phase::DoubleUpChoice:
        return {"&Take Score", "&Double      Up"};
    case Phase::BeforeDeal:
        break;
    }
    return {"&Deal", "&Cash Out"};
}

struct PurchaseOption {
    float amount{0.0f};
    std::string_view caption{};
};

// POption0..POption7, in two columns of four.
inline constexpr std::array<PurchaseOption, 8> kPurchaseOptions{{
    {1000.0f, "$1,000.00"},
    {500.0f, "$500.00"},
    {100.0f, "$100.00"},
    {50.0f, "$50.00"},
    {20.0f, "$20.00"},
    {10.0f, "$10.00"},
    {5.0f, "$5.00"},
    {1.0f, "$1.00"},
}};
inline constexpr int kPurchaseOptionCount = static_cast<int>(kPurchaseOptions.size());

// The option chosen when the board opens: $20.00.
inline constexpr int kFirstPurchaseOption = 4;

} // namespace marivale
