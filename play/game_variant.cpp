#include "play/game_variant.h"

// Standard library
#include <array>

// Marivale
#include "engine/card.h"

namespace marivale {

namespace {

// The four boards, in GameId order: identity, look and the menu's caption rule.
constexpr std::array<GameVariant, kGameCount> kVariants{{
    {
        .game = GameId::TreasureTrips,
        .boardName = "TTBoard",
        .windowCaption = "Treasure Trips",
        .title = "Treasure Trips",
        .noteName = "Label10",
        .noteText = "Win Bonus for 3 or More 3's",
        .menuButton = "TTBtn",
        .menuCaption = "&Treasure Trips",
        .boardColour = {0, 0, 128},
        .displayColour = {0, 255, 255},
        .statCaptionAtZero = "Stat",
    },
    {
        .game = GameId::DeucesWild,
        .boardName = "DWBoard",
        .windowCaption = "Deuces Wild",
        .title = "Deuces Wild",
        .noteName = "",
        .noteText = "",
        .menuButton = "DWBtn",
        .menuCaption = "&Deuces Wild",
        .boardColour = {0, 128, 0},
        .displayColour = {0, 255, 0},
        .statCaptionAtZero = "Stat",
    },
    {
        .game = GameId::JokerWild,
        .boardName = "WJBoard",
        .windowCaption = "Wild Joker",
        .title = "Joker Wild",
        .noteName = "Label31",
        .noteText = "Deck Includes 1 Joker",
        .menuButton = "WJBtn",
        .menuCaption = "&Joker Wild",
        .boardColour = {128, 0, 0},
        .displayColour = {192, 0, 0},
        .statCaptionAtZero = "Stats",
    },
    {
        .game = GameId::JacksOrBetter,
        .boardName = "JBBoard",
        .windowCaption = "Jacks or Better",
        .title = "Jacks or Better",
        .noteName = "Label10",
        .noteText = "Pays For Pair Jacks or More",
        .menuButton = "JBBtn",
        .menuCaption = "Jac&ks or Better",
        .boardColour = {0, 128, 128},
        .displayColour = {0, 192, 192},
        .statCaptionAtZero = "Stats",
    },
}};

static_assert(
    [] {
        for (std::size_t i = 0; i < kVariants.size(); ++i) {
            if (kVariants[i].game != static_cast<GameId>(i)) {
                return false;
            }
        }
        return true;
    }(),
    "every board sits at its GameId");

} // namespace

const GameVariant& variantFor(GameId game) {
    return kVariants.at(gameIndex(game));
}

std::string pictureFileName(GameId game, int code) {
    std::string name = std::to_string(code);
    const PictureSuffix suffix = facts(game).pictureSuffix;
    if (suffix.letter != '\0' && code != kJoker && rankOf(code) == suffix.rank) {
        name += suffix.letter;
    }
    return name + ".gif";
}

} // namespace marivale
