#include "engine/hand_names.h"

// Standard library
#include <array>

namespace marivale {

namespace {

using NameColumn = std::array<std::string_view, 11>;

// Each game's hand name by code 0..10; code 1's pair names are resolved separately.
// Treasure Trips and Joker Wild name their codes alike.
constexpr NameColumn kJokerGames{"",
                                 "Two Pair",
                                 "Three of a Kind",
                                 "Straight",
                                 "Flush",
                                 "Full House",
                                 "Four of a Kind",
                                 "Straight Flush",
                                 "Royal Flush",
                                 "Five of a Kind",
                                 ""};
constexpr NameColumn kJacks{"",
                            "Pair of Jacks/Queens/Kings/Aces",
                            "Two Pair",
                            "Three of a Kind",
                            "Straight",
                            "Flush",
                            "Full House",
                            "Four of a Kind",
                            "Straight Flush",
                            "Royal Flush",
                            ""};
constexpr NameColumn kDeuces{"",
                             "Three of a Kind",
                             "Straight",
                             "Flush",
                             "Full House",
                             "Four of a Kind",
                             "Straight Flush",
                             "Five of a Kind",
                             "Royal Flush W/Wilds",
                             "Four Deuces",
                             "Natural Royal Flush"};

const NameColumn& column(GameId game) {
    return byGame(game, kJokerGames, kDeuces, kJokerGames, kJacks);
}

// The pair named by the rank the analysis left in Hand position 0.
std::string_view jacksPairName(float marker) {
    if (marker == 0.0f)
        return "Pair of Aces";
    if (marker == 10.0f)
        return "Pair of Jacks";
    if (marker == 11.0f)
        return "Pair of Queens";
    return "Pair of Kings";
}

} // namespace

std::string_view CodeName(GameId game, std::uint8_t code) {
    const NameColumn& names = column(game);
    return code < names.size() ? names[code] : std::string_view{};
}

std::string_view HandName(GameId game, std::uint8_t code, const GameState& state,
                          bool acePairMarked) {
    if (code == 1 && game == GameId::JacksOrBetter) {
        return jacksPairName(state.Hand[0]);
    }
    if (code == 1 && game == GameId::JokerWild && acePairMarked) {
        return "Pair of Aces";
    }
    return CodeName(game, code);
}

} // namespace marivale
