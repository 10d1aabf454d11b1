// The side games' rules: Double Up's guesses and limit, and the Treasure Hunt's chest factors.

#include <gtest/gtest.h>

// Standard library
#include <set>

// Marivale
#include "engine/bonus_games.h"
#include "tests/support/scripted_random_source.h"

namespace marivale {
namespace {

TEST(DoubleUp, EveryRankAgainstEachGuess) {
    // Ace, Two .. King by rank index: which guess wins.
    const char* winners = "HLLLLLL-HHHHH";
    for (int rank = 0; rank < kRanksPerSuit; ++rank) {
        if (static_cast<Rank>(rank) == Rank::Eight) {
            continue;
        }
        EXPECT_EQ(guessWins(DoubleUpGuess::Low, static_cast<Rank>(rank)), winners[rank] == 'L');
        EXPECT_EQ(guessWins(DoubleUpGuess::High, static_cast<Rank>(rank)), winners[rank] == 'H');
    }
}

TEST(DoubleUp, EightsAreDrawnAgain) {
    ScriptedRandomSource random;
    random.pushIndex(7, 52);
    random.pushIndex(46, 52);
    random.pushIndex(21, 52);
    EXPECT_EQ(drawDoubleUpCard(random), 21);
    EXPECT_EQ(random.remaining(), 0u);
}

TEST(DoubleUp, DoublesToTheLimitThenHoldsAndALossTakesAll) {
    GameState state;
    state.DoubleUpFactor = 1;
    ScriptedRandomSource random;
    for (int guess = 1; guess <= 16; ++guess) {
        random.pushIndex(4, 52); // a Five
        EXPECT_TRUE(playGuess(state, random, DoubleUpGuess::Low).won);
        EXPECT_EQ(state.DoubleUpFactor, guess <= 14 ? 1 << guess : kDoubleUpLimit);
    }
    random.pushIndex(4, 52);
    const GuessResult lost = playGuess(state, random, DoubleUpGuess::High);
    EXPECT_FALSE(lost.won);
    EXPECT_EQ(lost.card, 4);
    EXPECT_EQ(state.DoubleUpFactor, 0);
}

TEST(TreasureHunt, TenFactorsFromThreeToThirty) {
    std::set<int> seen;
    for (int tenth = 0; tenth < 10; ++tenth) {
        seen.insert(chestFactor((tenth + 0.5) / 10));
    }
    EXPECT_EQ(seen, (std::set<int>{3, 6, 9, 12, 15, 18, 21, 24, 27, 30}));
    EXPECT_EQ(chestFactor(0.0), 3);
    EXPECT_EQ(chestFactor(0.9999999), 30);
}

TEST(TreasureHunt, EachChestMultipliesWhatWasWon) {
    GameState state;
    state.BonusAmount = 200.0f;
    ScriptedRandomSource random({0.05, 0.95});
    EXPECT_EQ(openChest(state, random), 3);
    EXPECT_EQ(state.BonusAmount, 600.0f);
    EXPECT_EQ(openChest(state, random), 30);
    EXPECT_EQ(state.BonusAmount, 18000.0f);
}

} // namespace
} // namespace marivale
