#pragma once

// The four games and every fact the engine knows of each, in one table indexed by GameId.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "engine/card.h"
#include "engine/hand_codes.h"
#include "engine/pay_row.h"

namespace marivale {

enum class GameId : std::uint8_t { TreasureTrips, DeucesWild, JokerWild, JacksOrBetter, Count };

// The row of a table indexed by game; every per-game table has kGameCount rows.
constexpr std::size_t gameIndex(GameId game) {
    return static_cast<std::size_t>(game);
}
inline constexpr std::size_t kGameCount = gameIndex(GameId::Count);

// The four games in the order the tools list them.
inline constexpr std::array<GameId, kGameCount> kAllGames{GameId::JacksOrBetter, GameId::DeucesWild,
                                                          GameId::JokerWild, GameId::TreasureTrips};

enum class WildCard : std::uint8_t { None, Joker, Deuces };

// What a single pair can pay: nothing, a pair of Jacks or better, or (marked) a pair of Aces.
enum class PairPays : std::uint8_t { Nothing, JacksOrBetter, Aces };

enum class Bonus : std::uint8_t { None, TreasureHunt };

// The letter added to the picture file name of every card of one rank ("41T.gif").
struct PictureSuffix {
    Rank rank{Rank::Ace};
    char letter{'\0'}; // '\0': no card gets a suffix
};

// Texts by hand code 0..10.
using CodeTexts = std::array<std::string_view, kHandCodes>;

struct GameFacts {
    GameId game{GameId::JacksOrBetter}; // the row's own index, checked when compiled
    std::string_view name{};            // "Jacks or Better"
    std::string_view shortName{};       // the tools' name: JB, DW, WJ, TT
    int deckSize{52};                   // 53 with the joker
    WildCard wild{WildCard::None};
    PairPays pairPays{PairPays::Nothing};
    HandCode topCode{0};     // the highest hand code
    CodeTexts handNames{};   // the announced name by code; code 1's pair names are resolved apart
    PayTable payRows{};      // from the top of the board's table down
    CodeTexts winPatterns{}; // the Win box pattern by code
    Bonus bonus{Bonus::None};
    std::span<const HandCode> bonusHands{}; // the codes that can hold the bonus hand
    PictureSuffix pictureSuffix{};
};

// Everything the engine knows of one game.
const GameFacts& facts(GameId game);

inline int deckSize(GameId game) {
    return facts(game).deckSize;
}
inline bool hasJoker(GameId game) {
    return facts(game).wild == WildCard::Joker;
}

// The short name the command-line tools use: JB, DW, WJ, TT.
std::string_view shortName(GameId game);
std::optional<GameId> gameFromShortName(std::string_view name);

} // namespace marivale
