#pragma once

// A card is a small whole number: suit index * 13 + rank index for 0..51, and 52 for the joker.
// Rank index 0 is the Ace, 1 the Two, ... 12 the King; suit index 0 is Clubs, then Diamonds,
// Hearts and Spades. A hand is five cards in board positions 0..4.

// Standard library
#include <array>
#include <cstdint>

namespace marivale {

using CardCode = int;

inline constexpr CardCode kJoker = 52;
inline constexpr int kRanksPerSuit = 13;
inline constexpr int kSuitCount = 4;
inline constexpr int kHandSize = 5;

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

enum class Suit : std::uint8_t { Clubs = 0, Diamonds, Hearts, Spades };

// The five cards of a hand and which of them are held, by board position.
using HandCards = std::array<CardCode, kHandSize>;
using HandHolds = std::array<bool, kHandSize>;

constexpr int rankIndex(Rank rank) {
    return static_cast<int>(rank);
}
constexpr int suitIndex(Suit suit) {
    return static_cast<int>(suit);
}
constexpr int suitIndex(CardCode code) {
    return code / kRanksPerSuit;
}
constexpr int rankIndex(CardCode code) {
    return code % kRanksPerSuit;
}
constexpr Rank rankOf(CardCode code) {
    return static_cast<Rank>(rankIndex(code));
}
constexpr Suit suitOf(CardCode code) {
    return static_cast<Suit>(suitIndex(code));
}
constexpr CardCode makeCard(Rank rank, Suit suit) {
    return suitIndex(suit) * kRanksPerSuit + rankIndex(rank);
}
constexpr bool isCard(CardCode code) {
    return code >= 0 && code <= kJoker;
}
constexpr bool isRed(Suit suit) {
    return suit == Suit::Diamonds || suit == Suit::Hearts;
}

// Holds as a mask over board positions, bit p for position p.
constexpr unsigned holdMask(const HandHolds& holds) {
    unsigned mask = 0;
    for (int p = 0; p < kHandSize; ++p) {
        mask |= holds[p] ? 1u << p : 0u;
    }
    return mask;
}

} // namespace marivale
