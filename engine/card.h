#pragma once

// A card is a small whole number: suit index * 13 + rank index for 0..51, and 52 for the joker.
// Rank index 0 is the Ace, 1 the Two, ... 12 the King.

#include <cstdint>

namespace marivale {

using CardCode = int;

inline constexpr CardCode kJoker = 52;
inline constexpr int kRanksPerSuit = 13;

enum class Rank : std::uint8_t {
    Ace = 0,
    Two,
    Three,
    Four,
    Five,
    Six,
    Seven,
    Eight,
    Nine,
    Ten,
    Jack,
    Queen,
    King
};

constexpr int suitIndex(CardCode code) {
    return code / kRanksPerSuit;
}
constexpr int rankIndex(CardCode code) {
    return code % kRanksPerSuit;
}
constexpr Rank rankOf(CardCode code) {
    return static_cast<Rank>(rankIndex(code));
}
constexpr CardCode makeCard(Rank rank, int suit) {
    return suit * kRanksPerSuit + static_cast<int>(rank);
}

} // namespace marivale
