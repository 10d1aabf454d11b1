#include "engine/game.h"

namespace marivale {

namespace {

using S = GameState;
using Jacks = JacksHand;
using Joker = JokerHand;
using Deuces = DeucesHand;

// Treasure Trips and Joker Wild name their codes alike.
constexpr CodeTexts kJokerHandNames{"",
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

// Only these Treasure Trips codes can hold three or more Threes.
constexpr std::array<HandCode, 4> kTreasureHuntHands{
    handCode(Joker::FiveKind), handCode(Joker::FourKind), handCode(Joker::FullHouse),
    handCode(Joker::ThreeKind)};

// The four games, in GameId order.
constexpr std::array<GameFacts, kGameCount> kFacts{{
    {
        .game = GameId::TreasureTrips,
        .name = "Treasure Trips",
        .shortName = "TT",
        .deckSize = 53,
        .wild = WildCard::Joker,
        .pairPays = PairPays::Nothing,
        .topCode = handCode(Joker::FiveKind),
        .handNames = kJokerHandNames,
        .payRows = {{
            {"Five of a Kind.", "FiveKind", &S::PayoutFiveKind, 250, "$##,##0.00",
             handCode(Joker::FiveKind)},
            {"Royal Flush....", "Royal", &S::PayoutRoyal, 100, "$##,##0.00",
             handCode(Joker::RoyalFlush)},
            {"Straight Flush.", "StraightF", &S::PayoutStraightF, 50, "$##,##0.00",
             handCode(Joker::StraightFlush)},
            {"Four of a Kind", "FourKind", &S::PayoutFourKind, 15, "$#,##0.00",
             handCode(Joker::FourKind)},
            {"Full House.....", "FullHouse", &S::PayoutFullHouse, 8, "$#,##0.00",
             handCode(Joker::FullHouse)},
            {"Flush.............", "Flush", &S::PayoutFlush, 5, "$#,##0.00",
             handCode(Joker::Flush)},
            {"Straight..........", "Straight", &S::PayoutStraight, 3, "$##0.00",
             handCode(Joker::Straight)},
            {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 1, "$##0.00",
             handCode(Joker::ThreeKind)},
            {"Two Pair........", "TwoPair", &S::PayoutTwoPair, 1, "$##0.00",
             handCode(Joker::TwoPair)},
        }},
        .winPatterns = {"", "$##0.00", "$#,##0.00", "$#,##0.00", "$#,##0.00", "$#,##0.00",
                        "$#,##0.00", "$##,##0.00", "$##,##0.00", "$###,##0.00", ""},
        .bonus = Bonus::TreasureHunt,
        .bonusHands = kTreasureHuntHands,
        .pictureSuffix = {.rank = Rank::Three, .letter = 'T'},
    },
    {
        .game = GameId::DeucesWild,
        .name = "Deuces Wild",
        .shortName = "DW",
        .deckSize = 52,
        .wild = WildCard::Deuces,
        .pairPays = PairPays::Nothing,
        .topCode = handCode(Deuces::NaturalRoyal),
        .handNames = {"", "Three of a Kind", "Straight", "Flush", "Full House", "Four of a Kind",
                      "Straight Flush", "Five of a Kind", "Royal Flush W/Wilds", "Four Deuces",
                      "Natural Royal Flush"},
        // A Flush and a Straight share the "Flush/Straight" row.
        .payRows = {{
            {"Natural Royal", "NRoyal", &S::PayoutRoyal, 250, "$##,##0.00",
             handCode(Deuces::NaturalRoyal)},
            {"Four Deuces...", "FourDeuces", &S::PayoutFourDeuces, 200, "$##,##0.00",
             handCode(Deuces::FourDeuces)},
            {"Royal W/Wilds", "WRoyal", &S::PayoutWRoyal, 25, "$#,##0.00",
             handCode(Deuces::WildRoyal)},
            {"Five of a Kind.", "FiveKind", &S::PayoutFiveKind, 16, "$##,##0.00",
             handCode(Deuces::FiveKind)},
            {"Straight Flush.", "StraightF", &S::PayoutStraightF, 12, "$##,##0.00",
             handCode(Deuces::StraightFlush)},
            {"Four of a Kind", "FourKind", &S::PayoutFourKind, 4, "$#,##0.00",
             handCode(Deuces::FourKind)},
            {"Full House.....", "FullHouse", &S::PayoutFullHouse, 3, "$#,##0.00",
             handCode(Deuces::FullHouse)},
            {"Flush/Straight", "Flush", &S::PayoutFlush, 1, "$#,##0.00", handCode(Deuces::Flush),
             handCode(Deuces::Straight)},
            {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 1, "$##0.00",
             handCode(Deuces::ThreeKind)},
        }},
        .winPatterns = {"", "$##0.00", "$##0.00", "$##0.00", "$#,##0.00", "$#,##0.00", "$#,##0.00",
                        "$#,##0.00", "$##,##0.00", "$##,##0.00", "$###,##0.00"},
        .bonus = Bonus::None,
        .bonusHands = {},
        .pictureSuffix = {.rank = Rank::Two, .letter = 'W'},
    },
    {
        .game = GameId::JokerWild,
        .name = "Joker Wild",
        .shortName = "WJ",
        .deckSize = 53,
        .wild = WildCard::Joker,
        .pairPays = PairPays::Aces,
        .topCode = handCode(Joker::FiveKind),
        .handNames = kJokerHandNames,
        // Two Pair and a Pair of Aces share the bottom row.
        .payRows = {{
            {"Five of a Kind.", "FiveKind", &S::PayoutFiveKind, 200, "$##,##0.00",
             handCode(Joker::FiveKind)},
            {"Royal Flush....", "Royal", &S::PayoutRoyal, 100, "$##,##0.00",
             handCode(Joker::RoyalFlush)},
            {"Straight Flush.", "StraightF", &S::PayoutStraightF, 50, "$##,##0.00",
             handCode(Joker::StraightFlush)},
            {"Four of a Kind", "FourKind", &S::PayoutFourKind, 15, "$#,##0.00",
             handCode(Joker::FourKind)},
            {"Full House.....", "FullHouse", &S::PayoutFullHouse, 10, "$#,##0.00",
             handCode(Joker::FullHouse)},
            {"Flush.............", "Flush", &S::PayoutFlush, 5, "$#,##0.00",
             handCode(Joker::Flush)},
            {"Straight..........", "Straight", &S::PayoutStraight, 3, "$#,##0.00",
             handCode(Joker::Straight)},
            {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 1, "$##0.00",
             handCode(Joker::ThreeKind)},
            {"Two Pair/Aces", "TwoPair", &S::PayoutTwoPair, 1, "$##0.00", handCode(Joker::TwoPair)},
        }},
        .winPatterns = {"", "$##0.00", "$##0.00", "$#,##0.00", "$#,##0.00", "$#,##0.00",
                        "$#,##0.00", "$##,##0.00", "$##,##0.00", "$##,##0.00", ""},
        .bonus = Bonus::None,
        .bonusHands = {},
        .pictureSuffix = {},
    },
    {
        .game = GameId::JacksOrBetter,
        .name = "Jacks or Better",
        .shortName = "JB",
        .deckSize = 52,
        .wild = WildCard::None,
        .pairPays = PairPays::JacksOrBetter,
        .topCode = handCode(Jacks::RoyalFlush),
        .handNames = {"", "Pair of Jacks/Queens/Kings/Aces", "Two Pair", "Three of a Kind",
                      "Straight", "Flush", "Full House", "Four of a Kind", "Straight Flush",
                      "Royal Flush", ""},
        // The bottom row shows no dollar sign.
        .payRows = {{
            {"Royal Flush....", "Royal", &S::PayoutRoyal, 250, "$##,##0.00",
             handCode(Jacks::RoyalFlush)},
            {"Straight Flush.", "StraightF", &S::PayoutStraightF, 100, "$##,##0.00",
             handCode(Jacks::StraightFlush)},
            {"Four of a Kind", "FourKind", &S::PayoutFourKind, 25, "$#,##0.00",
             handCode(Jacks::FourKind)},
            {"Full House.....", "FullHouse", &S::PayoutFullHouse, 8, "$#,##0.00",
             handCode(Jacks::FullHouse)},
            {"Flush.............", "Flush", &S::PayoutFlush, 5, "$#,##0.00",
             handCode(Jacks::Flush)},
            {"Straight..........", "Straight", &S::PayoutStraight, 4, "$##0.00",
             handCode(Jacks::Straight)},
            {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 3, "$##0.00",
             handCode(Jacks::ThreeKind)},
            {"Two Pair........", "TwoPair", &S::PayoutTwoPair, 1, "$##0.00",
             handCode(Jacks::TwoPair)},
            {"Jacks or Better", "Pair", &S::PayoutPair, 1, "##0.00",
             handCode(Jacks::JacksOrBetter)},
        }},
        .winPatterns = {"", "$##0.00", "$##0.00", "$#,##0.00", "$#,##0.00", "$#,##0.00",
                        "$#,##0.00", "$##,##0.00", "$##,##0.00", "$###,##0.00", ""},
        .bonus = Bonus::None,
        .bonusHands = {},
        .pictureSuffix = {},
    },
}};

static_assert(
    [] {
        for (std::size_t i = 0; i < kFacts.size(); ++i) {
            if (kFacts[i].game != static_cast<GameId>(i)) {
                return false;
            }
        }
        return true;
    }(),
    "every game's facts sit at its GameId");

} // namespace

const GameFacts& facts(GameId game) {
    return kFacts.at(gameIndex(game));
}

std::string_view shortName(GameId game) {
    return facts(game).shortName;
}

std::optional<GameId> gameFromShortName(std::string_view name) {
    for (std::size_t i = 0; i < kFacts.size(); ++i) {
        if (kFacts[i].shortName == name) {
            return static_cast<GameId>(i);
        }
    }
    return std::nullopt;
}

} // namespace marivale
