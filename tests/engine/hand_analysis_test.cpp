// Classification on each game: every hand of every deck counted by code and by the bonus, the
// name of each code, the pair marks and the names they give, and the Treasure Trips bonus.

#include <gtest/gtest.h>

// Standard library
#include <array>
#include <cstdint>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "tests/support/hand_text.h"

namespace marivale {
namespace {

using testing::putHand;

constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId DW = GameId::DeucesWild;
constexpr GameId WJ = GameId::JokerWild;
constexpr GameId TT = GameId::TreasureTrips;

using Counts = std::array<std::uint64_t, 11>;

struct CensusRow {
    GameId game;
    Counts counts;
    std::uint64_t bonus;
};

// The counts of each code 0..10 over every hand of the game's deck.
constexpr std::array<CensusRow, kGameCount> kCensus{{
    {JB, {2062860, 337920, 123552, 54912, 10200, 5108, 3744, 624, 36, 4, 0}, 0},
    {DW, {2119728, 355080, 62232, 14472, 12672, 31552, 2068, 624, 480, 48, 4}, 0},
    {WJ, {2432724, 261456, 137280, 20532, 7804, 6552, 3120, 180, 24, 13, 0}, 0},
    {TT, {2570628, 123552, 137280, 20532, 7804, 6552, 3120, 180, 24, 13, 0}, 11521},
}};

// Each set of five cards once, its cards in ascending code order (by suit, then rank).
TEST(Census, EveryHandOfEveryGame) {
    for (const CensusRow& row : kCensus) {
        const int deck = deckSize(row.game);
        Counts counts{};
        std::uint64_t bonus = 0;
        GameState state;
        HandCards h{};
        for (h[0] = 0; h[0] < deck; ++h[0])
            for (h[1] = h[0] + 1; h[1] < deck; ++h[1])
                for (h[2] = h[1] + 1; h[2] < deck; ++h[2])
                    for (h[3] = h[2] + 1; h[3] < deck; ++h[3])
                        for (h[4] = h[3] + 1; h[4] < deck; ++h[4]) {
                            putHand(state, h);
                            ++counts[AnalyzeHand(state, row.game).code];
                            bonus += isSet(state.BonusDue) ? 1 : 0;
                        }
        EXPECT_EQ(counts, row.counts) << shortName(row.game);
        EXPECT_EQ(bonus, row.bonus) << shortName(row.game);
    }
}

TEST(Classification, PositionOrderDoesNotMatter) {
    for (const char* order : {"Jk 5s 6s 8s 9s", "9s 8s Jk 6s 5s", "6s Jk 9s 5s 8s"}) {
        GameState state;
        putHand(state, order);
        EXPECT_EQ(AnalyzeHand(state, GameId::JokerWild).code, 7) << order;
    }
}

struct NameRow {
    std::uint8_t code;
    const char* tt;
    const char* wj;
    const char* jb;
    const char* dw;
};

// The name of each code, as the statistics and the Strategy window list them.
TEST(CodeName, ByCodeAndGame) {
    const NameRow rows[] = {
        {10, "", "", "", "Natural Royal Flush"},
        {9, "Five of a Kind", "Five of a Kind", "Royal Flush", "Four Deuces"},
        {8, "Royal Flush", "Royal Flush", "Straight Flush", "Royal Flush W/Wilds"},
        {7, "Straight Flush", "Straight Flush", "Four of a Kind", "Five of a Kind"},
        {6, "Four of a Kind", "Four of a Kind", "Full House", "Straight Flush"},
        {5, "Full House", "Full House", "Flush", "Four of a Kind"},
        {4, "Flush", "Flush", "Straight", "Full House"},
        {3, "Straight", "Straight", "Three of a Kind", "Flush"},
        {2, "Three of a Kind", "Three of a Kind", "Two Pair", "Straight"},
        {1, "Two Pair", "Two Pair", "Pair of Jacks/Queens/Kings/Aces", "Three of a Kind"},
        {0, "", "", "", ""},
    };
    for (const NameRow& row : rows) {
        EXPECT_EQ(CodeName(TT, row.code), row.tt) << int(row.code);
        EXPECT_EQ(CodeName(WJ, row.code), row.wj) << int(row.code);
        EXPECT_EQ(CodeName(JB, row.code), row.jb) << int(row.code);
        EXPECT_EQ(CodeName(DW, row.code), row.dw) << int(row.code);
    }
}

// A table of codes names the pair's shared row as the board does; every other code by its name.
TEST(RowName, NamesThePairRowAsTheBoard) {
    EXPECT_EQ(RowName(WJ, 1), "Two Pair/Aces");
    EXPECT_EQ(RowName(JB, 1), "Jacks or Better");
    EXPECT_EQ(RowName(TT, 1), "Two Pair");
    EXPECT_EQ(RowName(DW, 3), "Flush");
    EXPECT_EQ(RowName(WJ, 2), "Three of a Kind");
}

struct HandCase {
    GameId game;
    const char* cards;
    int code;
    const char* name;
    float position0; // Hand position 0 after the analysis
};

// Jacks or Better writes the pair's rank into Hand position 0 and names the pair from it; Joker
// Wild names a pair of Aces, natural, with the joker or as the better of two pairs, from a mark
// only this hand's analysis wrote (a card of code 13, the Ace of suit 1, in position 0 is none).
// The other games' pays name their code.
TEST(PairMarks, TheAnnouncedNames) {
    const HandCase cases[] = {
        {JB, "3c Jh 7d Jc 9c", 1, "Pair of Jacks", 10},
        {JB, "4s Qd 7d Qc 9c", 1, "Pair of Queens", 11},
        {JB, "Kd 4s Kh 7d 9c", 1, "Pair of Kings", 12},
        {JB, "Ac 3h 7d 9c Ah", 1, "Pair of Aces", 0},
        {JB, "Tc 3h 7d 9c Th", 0, "", 9},
        {JB, "As Ad Ks Kc 4h", 2, "Two Pair", 39},
        {TT, "9s 9d 4h 4c 6c", 1, "Two Pair", 47},
        {DW, "2s 5d 5h 9c Kh", 1, "Three of a Kind", 40},
        {WJ, "As 5d 9h Kc Jk", 1, "Pair of Aces", 13},
        {WJ, "As Ad 4h 9c Kh", 1, "Pair of Aces", 13},
        {WJ, "As Ad Kh Kc 4h", 1, "Pair of Aces", 13},
        {WJ, "Ad 5s 8h Tc Qh", 0, "", 13},
        {WJ, "Ad Ks Kh Qc Qh", 1, "Two Pair", 13},
        {WJ, "Ks Kd 4h 9c 2h", 0, "", 51},
        {WJ, "As Ad Ah 9c 2h", 2, "Three of a Kind", 13},
    };
    for (const HandCase& c : cases) {
        SCOPED_TRACE(c.cards);
        GameState state;
        putHand(state, c.cards);
        const HandAnalysis result = AnalyzeHand(state, c.game);
        EXPECT_EQ(result.code, c.code);
        EXPECT_EQ(HandName(c.game, result.code, state, result.acePairMarked), c.name);
        EXPECT_EQ(state.Hand[0], c.position0);
    }
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

} // namespace
} // namespace marivale
