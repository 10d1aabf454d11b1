#pragma once

// The hand codes each game writes into HandRank, by name; code 0 pays nothing on every game.

#include <cstdint>

namespace marivale {

using HandCode = std::uint8_t;

// Jacks or Better.
enum class JacksHand : HandCode {
    Nothing,
    JacksOrBetter, // a pair of Jacks, Queens, Kings or Aces
    TwoPair,
    ThreeKind,
    Straight,
    Flush,
    FullHouse,
    FourKind,
    StraightFlush,
    RoyalFlush,
};

// Joker Wild and Treasure Trips: one joker in a 53-card deck.
enum class JokerHand : HandCode {
    Nothing,
    TwoPair, // on Joker Wild also a pair of Aces
    ThreeKind,
    Straight,
    Flush,
    FullHouse,
    FourKind,
    StraightFlush,
    RoyalFlush,
    FiveKind,
};

// Deuces Wild.
enum class DeucesHand : HandCode {
    Nothing,
    ThreeKind,
    Straight,
    Flush,
    FullHouse,
    FourKind,
    StraightFlush,
    FiveKind,
    WildRoyal,
    FourDeuces,
    NaturalRoyal,
};

// The HandRank byte of a named hand.
template <typename Hand> constexpr HandCode handCode(Hand hand) {
    return static_cast<HandCode>(hand);
}

// One more than the highest code any game uses.
inline constexpr int kHandCodes = handCode(DeucesHand::NaturalRoyal) + 1;

} // namespace marivale
