#include "engine/pay_table.h"

namespace marivale {

namespace {

using S = GameState;

// Treasure Trips: caption, box, payout, multiplier, pattern, code.
constexpr PayTable kTreasureTrips{{
    {"Five of a Kind.", "FiveKind", &S::PayoutFiveKind, 250, "$##,##0.00", 9},
    {"Royal Flush....", "Royal", &S::PayoutRoyal, 100, "$##,##0.00", 8},
    {"Straight Flush.", "StraightF", &S::PayoutStraightF, 50, "$##,##0.00", 7},
    {"Four of a Kind", "FourKind", &S::PayoutFourKind, 15, "$#,##0.00", 6},
    {"Full House.....", "FullHouse", &S::PayoutFullHouse, 8, "$#,##0.00", 5},
    {"Flush.............", "Flush", &S::PayoutFlush, 5, "$#,##0.00", 4},
    {"Straight..........", "Straight", &S::PayoutStraight, 3, "$##0.00", 3},
    {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 1, "$##0.00", 2},
    {"Two Pair........", "TwoPair", &S::PayoutTwoPair, 1, "$##0.00", 1},
}};

// Joker Wild: Two Pair and a Pair of Aces share the bottom row.
constexpr PayTable kJokerWild{{
    {"Five of a Kind.", "FiveKind", &S::PayoutFiveKind, 200, "$##,##0.00", 9},
    {"Royal Flush....", "Royal", &S::PayoutRoyal, 100, "$##,##0.00", 8},
    {"Straight Flush.", "StraightF", &S::PayoutStraightF, 50, "$##,##0.00", 7},
    {"Four of a Kind", "FourKind", &S::PayoutFourKind, 15, "$#,##0.00", 6},
    {"Full House.....", "FullHouse", &S::PayoutFullHouse, 10, "$#,##0.00", 5},
    {"Flush.............", "Flush", &S::PayoutFlush, 5, "$#,##0.00", 4},
    {"Straight..........", "Straight", &S::PayoutStraight, 3, "$#,##0.00", 3},
    {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 1, "$##0.00", 2},
    {"Two Pair/Aces", "TwoPair", &S::PayoutTwoPair, 1, "$##0.00", 1},
}};

// Jacks or Better: the bottom row shows no dollar sign.
constexpr PayTable kJacks{{
    {"Royal Flush....", "Royal", &S::PayoutRoyal, 250, "$##,##0.00", 9},
    {"Straight Flush.", "StraightF", &S::PayoutStraightF, 100, "$##,##0.00", 8},
    {"Four of a Kind", "FourKind", &S::PayoutFourKind, 25, "$#,##0.00", 7},
    {"Full House.....", "FullHouse", &S::PayoutFullHouse, 8, "$#,##0.00", 6},
    {"Flush.............", "Flush", &S::PayoutFlush, 5, "$#,##0.00", 5},
    {"Straight..........", "Straight", &S::PayoutStraight, 4, "$##0.00", 4},
    {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 3, "$##0.00", 3},
    {"Two Pair........", "TwoPair", &S::PayoutTwoPair, 1, "$##0.00", 2},
    {"Jacks or Better", "Pair", &S::PayoutPair, 1, "##0.00", 1},
}};

// Deuces Wild: a Flush and a Straight share the "Flush/Straight" row.
constexpr PayTable kDeuces{{
    {"Natural Royal", "NRoyal", &S::PayoutRoyal, 250, "$##,##0.00", 10},
    {"Four Deuces...", "FourDeuces", &S::PayoutFourDeuces, 200, "$##,##0.00", 9},
    {"Royal W/Wilds", "WRoyal", &S::PayoutWRoyal, 25, "$#,##0.00", 8},
    {"Five of a Kind.", "FiveKind", &S::PayoutFiveKind, 16, "$##,##0.00", 7},
    {"Straight Flush.", "StraightF", &S::PayoutStraightF, 12, "$##,##0.00", 6},
    {"Four of a Kind", "FourKind", &S::PayoutFourKind, 4, "$#,##0.00", 5},
    {"Full House.....", "FullHouse", &S::PayoutFullHouse, 3, "$#,##0.00", 4},
    {"Flush/Straight", "Flush", &S::PayoutFlush, 1, "$#,##0.00", 3, 2},
    {"Three of a Kind", "ThreeKind", &S::PayoutThreeKind, 1, "$##0.00", 1},
}};

const PayRow* rowFor(GameId game, std::uint8_t code) {
    if (code == 0) {
        return nullptr;
    }
    for (const PayRow& row : payTable(game)) {
        if (row.code == code || row.alsoCode == code) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

const PayTable& payTable(GameId game) {
    return byGame(game, kTreasureTrips, kDeuces, kJokerWild, kJacks);
}

void ComputePayouts(GameState& state, GameId game) {
    for (const PayRow& row : payTable(game)) {
        state.*row.field = state.BetAmount * static_cast<float>(row.multiplier);
    }
}

PayoutField payoutFieldFor(GameId game, std::uint8_t code) {
    const PayRow* row = rowFor(game, code);
    return row ? row->field : nullptr;
}

int multiplierFor(GameId game, std::uint8_t code) {
    const PayRow* row = rowFor(game, code);
    return row ? row->multiplier : 0;
}

} // namespace marivale
