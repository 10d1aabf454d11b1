#pragma once

// The one record of game state that every window shares. Field names, types and widths are
// fixed: flags are 16-bit with -1 for true, money is single-precision dollars.

#include <array>
#include <cstdint>

namespace marivale {

inline constexpr std::int16_t kTrue = -1;
inline constexpr std::int16_t kFalse = 0;

struct GameState {
    std::array<std::int16_t, 6> Held{};      // hold flag per position 0..4; slot 5 unused
    std::array<float, 6> Hand{};             // card code per position 0..4; slot 5 unused
    std::array<std::int16_t, 54> CardUsed{}; // -1 when the code was dealt this hand

    // Dollar payout of each kind of paying hand at the current bet.
    float PayoutFiveKind{};
    float PayoutRoyal{};
    float PayoutStraightF{};
    float PayoutWRoyal{};
    float PayoutFourDeuces{};
    float PayoutFourKind{};
    float PayoutFullHouse{};
    float PayoutFlush{};
    float PayoutStraight{};
    float PayoutThreeKind{};
    float PayoutTwoPair{};
    float PayoutPair{};

    float Credits{};
    float BetAmount{};
    float WinAmount{};
    float LastWinAmount{};
    float TotalPurchased{};
    float GameWinnings{};
    float NetWinLoss{};
    std::uint8_t DrawPhase{};       // a Phase
    std::int16_t DoubleUpEnabled{}; // flag
    std::int16_t DoubleUpFactor{};  // 0, or 1, 2, 4 ... while doubling
    std::int16_t BonusDue{};        // flag: the Treasure Trips hand earns the Treasure Hunt
    float BonusAmount{};
    float PlayUnit{};
    std::uint8_t HandRank{};
};

// The phases of a hand as DrawPhase holds them.
enum class Phase : std::uint8_t {
    BeforeDeal = 0,     // no hand in play: Deal and Cash Out
    Dealt = 1,          // five cards dealt: holds, Draw and Stand
    DoubleUpChoice = 2, // a paying hand waits: Take Score or Double Up
};

constexpr Phase phaseOf(const GameState& state) {
    return static_cast<Phase>(state.DrawPhase);
}
constexpr void setPhase(GameState& state, Phase phase) {
    state.DrawPhase = static_cast<std::uint8_t>(phase);
}

// Readers treat any nonzero 16-bit flag as true.
constexpr bool isSet(std::int16_t flag) {
    return flag != 0;
}

// The values start-up gives the state before the main menu opens.
void applyStartupDefaults(GameState& state);

} // namespace marivale
