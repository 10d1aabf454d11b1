#include "board/game_variant.h"

// Standard library
#include <array>

// Marivale
#include "engine/card.h"

namespace marivale {

namespace {

// The four boards, in GameId order: identity, look and the menu's caption rule.
constexpr std::array<GameVariant, 4> kVariants{{
    {GameId::TreasureTrips,
     "TTBoard",
     "Treasure Trips",
     "Treasure Trips",
     "Label10",
     "Win Bonus for 3 or More 3's",
     "TTBtn",
     "&Treasure Trips",
     {0, 0, 128},
     {0, 255, 255},
     "Stat"},
    {GameId::DeucesWild,
     "DWBoard",
     "Deuces Wild",
     "Deuces Wild",
     "",
     "",
     "DWBtn",
     "&Deuces Wild",
     {0, 128, 0},
     {0, 255, 0},
     "Stat"},
    {GameId::JokerWild,
     "WJBoard",
     "Wild Joker",
     "Joker Wild",
     "Label31",
     "Deck Includes 1 Joker",
     "WJBtn",
     "&Joker Wild",
     {128, 0, 0},
     {192, 0, 0},
     "Stats"},
    {GameId::JacksOrBetter,
     "JBBoard",
     "Jacks or Better",
     "Jacks or Better",
     "Label10",
     "Pays For Pair Jacks or More",
     "JBBtn",
     "Jac&ks or Better",
     {0, 128, 128},
     {0, 192, 192},
     "Stats"},
}};

} // namespace

const GameVariant& variantFor(GameId game) {
    return kVariants.at(static_cast<std::size_t>(game));
}

std::string pictureFileName(GameId game, int code) {
    std::string name = std::to_string(code);
    if (game == GameId::TreasureTrips && rankOf(code) == Rank::Three && code != kJoker) {
        return name + "T.gif";
    }
    if (game == GameId::DeucesWild && rankOf(code) == Rank::Two) {
        return name + "W.gif";
    }
    return name + ".gif";
}

} // namespace marivale
