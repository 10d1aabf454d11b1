#pragma once

// The lines of a strategy chart: what a hold keeps, described by the held cards alone (what they
// make or draw to, gaps, high cards, suits alike, wild cards), never by the discards, so that a
// player can match a deal against a line at a glance.

// Standard library
#include <cstdint>
#include <span>
#include <string>

// Marivale
#include "engine/card.h"
#include "engine/game.h"

namespace marivale::odds {

// How finely a chart tells holds apart: every detail a complete chart needs, or the few a short
// chart reads by.
enum class ChartKind : std::uint8_t { Complete, Simple };

enum class LineKind : std::uint8_t {
    Discard, // nothing held
    Cards,   // cards that make and draw to nothing in particular
    Pair,    // a pair, with any other cards held as kickers
    TwoPair,
    ThreeKind,
    FullHouse,
    FourKind,
    FiveKind,
    Straight, // 3 or 4 to a straight, or a made one when all five are held
    Flush,
    StraightFlush,
    RoyalFlush,
};

// A count a line does not care about.
inline constexpr std::uint8_t kAnyCount = 0xFF;

struct ChartLine {
    LineKind kind{LineKind::Discard};
    std::uint8_t held{0};   // cards held, wild ones included
    std::uint8_t wild{0};   // wild cards held
    std::uint8_t high{0};   // natural high cards held (the ranks a pair pays on)
    std::uint8_t gaps{0};   // straights the draw misses against the best of its size
    bool suited{false};     // two or more natural cards held, all of one suit
    bool highPair{false};   // the pair is of a rank that pays
    std::uint8_t threes{0}; // natural Threes held where three of them earn the Treasure Hunt
    std::uint16_t ranks{0}; // a few high cards held: their rank indices, one bit each

    friend bool operator==(const ChartLine&, const ChartLine&) = default;

    // A number that tells every line apart, for maps.
    std::uint64_t key() const;
};

// The line of the cards `held` (bit p for position p) of a deal of the game.
ChartLine chartLineOf(GameId game, std::span<const CardCode, kHandSize> deal, unsigned held);

// The line of the cards `held` as a chart of the kind reads it.
ChartLine chartLineOf(ChartKind kind, GameId game, std::span<const CardCode, kHandSize> deal,
                      unsigned held);

// How a chart names the line: "4 to a Royal Flush", "High Pair", "Suited QJ".
std::string lineName(GameId game, const ChartLine& line);

} // namespace marivale::odds
