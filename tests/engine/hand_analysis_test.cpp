// Classification of single hands on each game: codes, names, the bonus and the pair marks.

#include <gtest/gtest.h>

#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "tests/support/hand_text.h"

namespace marivale {
namespace {

using testing::putHand;

struct HandCase {
    GameId game;
    const char* cards;
    int code;
    const char* name;
};

void PrintTo(const HandCase& c, std::ostream* os) {
    *os << shortName(c.game) << " " << c.cards;
}

class Classification : public ::testing::TestWithParam<HandCase> {};

TEST_P(Classification, CodeAndName) {
    const HandCase& c = GetParam();
    GameState state;
    putHand(state, c.cards);
    const HandAnalysis result = AnalyzeHand(state, c.game);
    EXPECT_EQ(result.code, c.code);
    EXPECT_EQ(HandName(c.game, result.code, state, result.acePairMarked), c.name);
}

constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId DW = GameId::DeucesWild;
constexpr GameId WJ = GameId::JokerWild;
constexpr GameId TT = GameId::TreasureTrips;

INSTANTIATE_TEST_SUITE_P(JacksOrBetter, Classification,
                         ::testing::Values(HandCase{JB, "Jh Jc 4s 7d 9c", 1, "Pair of Jacks"},
                                           HandCase{JB, "4s Qd 7d Qc 9c", 1, "Pair of Queens"},
                                           HandCase{JB, "Kd 4s Kh 7d 9c", 1, "Pair of Kings"},
                                           HandCase{JB, "3c 4s 7d Ad As", 1, "Pair of Aces"},
                                           HandCase{JB, "Th Tc 4s 7d 9c", 0, ""},
                                           HandCase{JB, "2h 2c 4s 7d 9c", 0, ""},
                                           HandCase{JB, "Ts Js Qs Ks As", 9, "Royal Flush"},
                                           HandCase{JB, "Ts Jd Qs Ks As", 4, "Straight"},
                                           HandCase{JB, "Ah 2h 3h 4h 5h", 8, "Straight Flush"},
                                           HandCase{JB, "Ah 2c 3h 4d 5h", 4, "Straight"},
                                           HandCase{JB, "Jh Qc Kh Ad 2h", 0, ""},
                                           HandCase{JB, "As Ad Ks Kc 4h", 2, "Two Pair"},
                                           HandCase{JB, "5s 5d 9s 9c Kh", 2, "Two Pair"},
                                           HandCase{JB, "7s 7d 7h 7c Kh", 7, "Four of a Kind"},
                                           HandCase{JB, "7s 7d 7h Kc Kh", 6, "Full House"},
                                           HandCase{JB, "2s 7s 9s Js Ks", 5, "Flush"},
                                           HandCase{JB, "3s 3d 3h 9c Kh", 3, "Three of a Kind"},
                                           HandCase{JB, "9s Td Jh Qc Kh", 4, "Straight"}));

INSTANTIATE_TEST_SUITE_P(JokerGames, Classification,
                         ::testing::Values(HandCase{WJ, "7s 7d Jk 7h 7c", 9, "Five of a Kind"},
                                           HandCase{TT, "Jk Ah Jh Qh Kh", 8, "Royal Flush"},
                                           HandCase{WJ, "Th Jh Qh Kh Jk", 8, "Royal Flush"},
                                           HandCase{TT, "Ah Th Qh Kh Jk", 8, "Royal Flush"},
                                           HandCase{WJ, "5s 6d 8h 9c Jk", 3, "Straight"},
                                           HandCase{WJ, "5s 6s 8s 9s Jk", 7, "Straight Flush"},
                                           HandCase{TT, "5s 6d 8h Tc Jk", 0, ""},
                                           HandCase{WJ, "As 2d 3h 5c Jk", 3, "Straight"},
                                           HandCase{WJ, "Js Qd Kh Ac Jk", 3, "Straight"},
                                           HandCase{TT, "9s 9d 4h Kc Jk", 2, "Three of a Kind"},
                                           HandCase{TT, "9s 9d 4h 4c Jk", 5, "Full House"},
                                           HandCase{WJ, "9s 9d 9h 4c Jk", 6, "Four of a Kind"},
                                           HandCase{TT, "2s 5d 9h Kc Jk", 0, ""},
                                           HandCase{TT, "9s 9d 4h 4c 6c", 1, "Two Pair"},
                                           HandCase{TT, "9s 9d 4h 5c 6c", 0, ""},
                                           HandCase{TT, "2h 5h 9h Kh Jk", 4, "Flush"},
                                           HandCase{WJ, "As 5d 9h Kc Jk", 1, "Pair of Aces"},
                                           HandCase{WJ, "As Ad 4h 9c Kh", 1, "Pair of Aces"},
                                           HandCase{WJ, "As Ad Kh Kc 4h", 1, "Pair of Aces"},
                                           HandCase{WJ, "Ad 5s 8h Tc Qh", 0, ""},
                                           HandCase{WJ, "Ad Ks Kh Qc Qh", 1, "Two Pair"},
                                           HandCase{WJ, "Ks Kd 4h 9c 2h", 0, ""},
                                           HandCase{WJ, "As Ad Ah 9c 2h", 2, "Three of a Kind"}));

INSTANTIATE_TEST_SUITE_P(
    DeucesWild, Classification,
    ::testing::Values(HandCase{DW, "2s 2d 2h 2c 9h", 9, "Four Deuces"},
                      HandCase{DW, "Ts Js Qs Ks As", 10, "Natural Royal Flush"},
                      HandCase{DW, "Ts Js 2h Ks As", 8, "Royal Flush W/Wilds"},
                      HandCase{DW, "2s 2d 2h 5c 5h", 7, "Five of a Kind"},
                      HandCase{DW, "2s 2d 2h 5c 9c", 6, "Straight Flush"},
                      HandCase{DW, "2s 2d 2h 5c 9h", 5, "Four of a Kind"},
                      HandCase{DW, "2s 2d 2h Ac 5h", 5, "Four of a Kind"},
                      HandCase{DW, "2s 2d 2h Ac 5c", 6, "Straight Flush"},
                      HandCase{DW, "2s 5d 5h 9c 9h", 4, "Full House"},
                      HandCase{DW, "2s 5d 5h 9c Kh", 1, "Three of a Kind"},
                      HandCase{DW, "2s Ad 3h 4c 5h", 2, "Straight"},
                      HandCase{DW, "2s 2d 5h 9c Kd", 1, "Three of a Kind"},
                      HandCase{DW, "5s 5d 9h 9c Kh", 0, ""},
                      HandCase{DW, "5s 5d 5h 9c Kh", 1, "Three of a Kind"},
                      HandCase{DW, "2s 2d 5h 5c Kd", 5, "Four of a Kind"},
                      HandCase{DW, "2s 2d 5h 5c 5d", 7, "Five of a Kind"},
                      HandCase{DW, "2s 3d 4h 5c 6d", 2, "Straight"},
                      HandCase{DW, "2s 3d 3h 3c 3s", 7, "Five of a Kind"},
                      HandCase{DW, "2h 4h 7h 9h Kh", 3, "Flush"},
                      HandCase{DW, "2s 2d Ah Kc Qd", 2, "Straight"},
                      HandCase{DW, "Ah Kh Qh Jh 2h", 8, "Royal Flush W/Wilds"}));

// The Joker Wild mark counts only when this hand's analysis wrote it: a card of code 13 (the Ace
// of suit 1) in position 0 is not a mark.
TEST(AcePairMark, OnlyAMarkWrittenByThisAnalysisCounts) {
    GameState state;
    putHand(state, "Ad 5s 8h Tc Qh");
    ASSERT_EQ(state.Hand[0], kAcePairMark);
    const HandAnalysis lone = AnalyzeHand(state, GameId::JokerWild);
    EXPECT_EQ(lone.code, 0);
    EXPECT_FALSE(lone.acePairMarked);

    putHand(state, "Ad Ks Kh Qc Qh");
    const HandAnalysis twoPair = AnalyzeHand(state, GameId::JokerWild);
    EXPECT_EQ(twoPair.code, 1);
    EXPECT_EQ(HandName(GameId::JokerWild, twoPair.code, state, twoPair.acePairMarked), "Two Pair");
}

TEST(PairMarker, JacksWritesThePairRankIntoPositionZero) {
    GameState state;
    putHand(state, "3c Jh 7d Jc 9c");
    EXPECT_EQ(AnalyzeHand(state, GameId::JacksOrBetter).code, 1);
    EXPECT_EQ(state.Hand[0], 10.0f);
    putHand(state, "Ac 3h 7d 9c Ah");
    EXPECT_EQ(AnalyzeHand(state, GameId::JacksOrBetter).code, 1);
    EXPECT_EQ(state.Hand[0], 0.0f);
    // A hand that pays nothing leaves its cards alone.
    putHand(state, "Tc 3h 7d 9c Th");
    EXPECT_EQ(AnalyzeHand(state, GameId::JacksOrBetter).code, 0);
    EXPECT_EQ(state.Hand[0], 9.0f);
}

struct BonusCase {
    const char* cards;
    int code;
    bool bonus;
};

TEST(TreasureTripsBonus, ThreeOrMoreThreesWithTheJokerCounting) {
    const BonusCase cases[] = {
        {"3s 3d 3h 9c Kh", 2, true},  {"3s 3d 9c Kh Jk", 2, true}, {"3s 3d 9c Kh 5h", 0, false},
        {"3s 3d 3h 3c Kh", 6, true},  {"3s 3d 3h Jk Kh", 6, true}, {"3s 3d 3h Kc Kh", 5, true},
        {"3s 3d 3h 3c Jk", 9, true},  {"3s 3d Kh Kc Jk", 5, true}, {"As 2d 3h 4c 5h", 3, false},
        {"3h 5h 9h Kh Jk", 4, false},
    };
    for (const BonusCase& c : cases) {
        GameState state;
        state.BonusDue = c.bonus ? kFalse : kTrue; // whatever it was before
        putHand(state, c.cards);
        EXPECT_EQ(AnalyzeHand(state, GameId::TreasureTrips).code, c.code) << c.cards;
        EXPECT_EQ(state.BonusDue, c.bonus ? kTrue : kFalse) << c.cards;
    }
}

TEST(TreasureTripsBonus, OtherGamesNeverTouchIt) {
    for (const GameId game : {GameId::JacksOrBetter, GameId::DeucesWild, GameId::JokerWild}) {
        GameState state;
        state.BonusDue = kTrue;
        putHand(state, "3s 3d 3h 9c Kh");
        AnalyzeHand(state, game);
        EXPECT_EQ(state.BonusDue, kTrue);
    }
}

TEST(Classification, PositionOrderDoesNotMatter) {
    const char* orders[] = {"Jk 5s 6s 8s 9s", "9s 8s Jk 6s 5s", "6s Jk 9s 5s 8s"};
    for (const char* order : orders) {
        GameState state;
        putHand(state, order);
        EXPECT_EQ(AnalyzeHand(state, GameId::JokerWild).code, 7) << order;
    }
}

} // namespace
} // namespace marivale
