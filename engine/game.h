#pragma once

// The four games and what the engine needs to know of each: its deck and its wild cards.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace marivale {

enum class GameId : std::uint8_t { TreasureTrips, DeucesWild, JokerWild, JacksOrBetter };

// The four games in the order the tools list them.
inline constexpr std::array<GameId, 4> kAllGames{GameId::JacksOrBetter, GameId::DeucesWild,
                                                 GameId::JokerWild, GameId::TreasureTrips};

constexpr int deckSize(GameId game) {
    return (game == GameId::TreasureTrips || game == GameId::JokerWild) ? 53 : 52;
}
constexpr bool hasJoker(GameId game) {
    return deckSize(game) == 53;
}

// Picks the value that belongs to a game, for tables kept one per game.
template <typename T>
constexpr const T& byGame(GameId game, const T& treasureTrips, const T& deucesWild,
                          const T& jokerWild, const T& jacksOrBetter) {
    switch (game) {
    case GameId::TreasureTrips:
        return treasureTrips;
    case GameId::DeucesWild:
        return deucesWild;
    case GameId::JokerWild:
        return jokerWild;
    case GameId::JacksOrBetter:
        break;
    }
    return jacksOrBetter;
}

// The short name the command-line tools use: JB, DW, WJ, TT.
std::string_view shortName(GameId game);
std::optional<GameId> gameFromShortName(std::string_view name);

} // namespace marivale
