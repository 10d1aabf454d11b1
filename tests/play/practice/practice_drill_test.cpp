// Standard library
#include <algorithm>
#include <array>
#include <numeric>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

// Marivale
#include "engine/odds/draw_tables.h"
#include "play/practice/practice_drill.h"
#include "tests/support/odds_test_support.h"
#include "tests/support/scripted_random_source.h"

namespace marivale {
namespace {

// Jacks or Better where its tables build quickly, else Treasure Trips.
const GameId kGame = testing::kOptimisedBuild ? GameId::JacksOrBetter : GameId::TreasureTrips;

// Scripts the source so that the drill's next random deal is exactly `cards`.
void scriptDeal(ScriptedRandomSource& random, const HandCards& cards) {
    std::array<CardCode, kJoker + 1> deck{};
    std::iota(deck.begin(), deck.end(), 0);
    const int size = deckSize(kGame);
    for (int i = 0; i < kHandSize; ++i) {
        const int at =
            static_cast<int>(std::find(deck.begin(), deck.end(), cards[i]) - deck.begin());
        random.pushIndex(at - i, size - i);
        std::swap(deck[i], deck[at]);
    }
}

constexpr CardCode card(Rank rank, Suit suit) {
    return makeCard(rank, suit);
}

// A♥ K♥ Q♥ J♥ 2♣: four to the royal flush beat the made nothing.
const HandCards kFourToRoyal{card(Rank::Ace, Suit::Hearts), card(Rank::King, Suit::Hearts),
                             card(Rank::Queen, Suit::Hearts), card(Rank::Jack, Suit::Hearts),
                             card(Rank::Two, Suit::Clubs)};

// The complete chart's names of lines of the game.
const bool kJacks = kGame == GameId::JacksOrBetter;
const std::string kRoyalDraw =
    kJacks ? "4 to a Royal Flush, 1 gap, 4 high cards" : "4 to a Royal Flush, 1 gap";
const std::string kCommon = kJacks ? "High Pair" : "Pair";
const std::string kFlushDraw = kJacks ? "4 to a Flush, 1 high card" : "4 to a Flush";
const std::string kOther = kJacks ? "Suited QJ" : "Two Pair";

TEST(DrillScoreTest, FiguresWorkedByHand) {
    DrillScore score;
    EXPECT_EQ(score.accuracy(), 0.0);
    EXPECT_EQ(score.costPer100(), 0.0);
    for (const double cost : {0.0, 0.5, 0.0, 0.25}) {
        score.add(cost);
    }
    EXPECT_EQ(score.hands(), 4);
    EXPECT_EQ(score.correct(), 2);
    EXPECT_DOUBLE_EQ(score.accuracy(), 50.0);
    // 0.75 bets over 4 hands.
    EXPECT_DOUBLE_EQ(score.costPer100(), 18.75);
    const std::vector<double> trend{0.0, 25.0, 50.0 / 3.0, 18.75};
    ASSERT_EQ(score.trend().size(), trend.size());
    for (std::size_t i = 0; i < trend.size(); ++i) {
        EXPECT_DOUBLE_EQ(score.trend()[i], trend[i]) << "after hand " << i + 1;
    }
}

TEST(PracticeDrillTest, JudgesTheHoldOnceAgainstTheBest) {
    ScriptedRandomSource random;
    scriptDeal(random, kFourToRoyal);
    PracticeDrill drill(kGame, random);
    EXPECT_EQ(drill.deal().cards, kFourToRoyal);
    drill.toggle(0); // holds the Ace alone
    const DrillVerdict verdict = drill.submit();
    EXPECT_EQ(verdict.best, 0b01111u);
    EXPECT_EQ(verdict.bestLine, kRoyalDraw);
    EXPECT_EQ(verdict.held, 0b00001u);
    EXPECT_TRUE(verdict.mistake);
    EXPECT_DOUBLE_EQ(verdict.cost, verdict.bestReturn - verdict.heldReturn);
    const odds::HandOdds& odds = drill.hand().odds;
    EXPECT_DOUBLE_EQ(verdict.bestReturn, odds.holds[0b01111].expectedReturn);
    EXPECT_DOUBLE_EQ(verdict.heldReturn, odds.holds[0b00001].expectedReturn);

    drill.toggle(1); // too late: the hand is judged
    drill.submit();
    EXPECT_EQ(drill.held(), 0b00001u);
    EXPECT_EQ(drill.score().hands(), 1);
    EXPECT_EQ(drill.score().correct(), 0);
    EXPECT_DOUBLE_EQ(drill.score().costPer100(), 100.0 * verdict.cost);

    // The drill's own mistake is now its weak spot.
    ASSERT_EQ(drill.weakLines().size(), 1u);
    EXPECT_EQ(drill.weakLines()[0].name, kRoyalDraw);
    EXPECT_EQ(drill.weakLines()[0].mistakes, 1);

    scriptDeal(random, kFourToRoyal);
    drill.deal();
    for (int p = 0; p < 4; ++p) {
        drill.toggle(p);
    }
    EXPECT_FALSE(drill.submit().mistake);
    EXPECT_EQ(drill.submit().cost, 0.0);
    EXPECT_EQ(drill.score().correct(), 1);
}

TEST(PracticeDrillTest, CloseCallsAreClose) {
    SeededRandomSource random(22);
    DrillDealer dealer(kGame, random);
    const odds::DrawTables& tables = odds::DrawTables::forGame(kGame);
    for (int i = 0; i < 40; ++i) {
        const DrillDeal deal = dealer.deal(DrillMode::CloseCalls);
        ASSERT_TRUE(deal.asked);
        const odds::HandOdds odds =
            odds::analyzeHolds(tables, deal.cards, odds::ownPayScale(kGame));
        const auto ranking = odds.ranking();
        const double best = odds.holds[ranking[0]].expectedReturn;
        const auto next = std::find_if(ranking.begin(), ranking.end(), [&](std::uint8_t mask) {
            return odds.holds[mask].expectedReturn < best - 1e-9;
        });
        ASSERT_NE(next, ranking.end());
        EXPECT_LT(best - odds.holds[*next].expectedReturn, kCloseCallGap);
    }
}

TEST(PracticeDrillTest, WeakSpotsFollowTheMistakes) {
    SeededRandomSource random(7);
    PracticeDrill drill(kGame, random);
    drill.setMode(DrillMode::WeakSpots);
    drill.setWeakLines({{kCommon, 3}, {kFlushDraw, 1}, {"Discard everything", 0}});
    int pairs = 0;
    for (int i = 0; i < 60; ++i) {
        const DrillDeal& deal = drill.deal();
        ASSERT_TRUE(deal.asked);
        EXPECT_TRUE(deal.bestLine == kCommon || deal.bestLine == kFlushDraw) << deal.bestLine;
        pairs += deal.bestLine == kCommon ? 1 : 0;
    }
    // Three mistakes to one: about 45 of the first line in 60 deals.
    EXPECT_GT(pairs, 35);
    EXPECT_LT(pairs, 58);

    // A line the record names, and the drill's own mistakes when the record is emptied.
    drill.setWeakLines({{kOther, 2}});
    EXPECT_EQ(drill.deal().bestLine, kOther);
    drill.setWeakLines({});
    EXPECT_TRUE(drill.weakLines().empty());
}

// Filed by line, a rare line is dealt at once, and the four royal flushes are the deals of
// theirs.
TEST(PracticeDrillTest, FiledDealsPlayTheirLine) {
    const auto filed = LineDeals::build(kGame);
    ASSERT_NE(filed, nullptr);
    if (kJacks) {
        EXPECT_EQ(filed->deals("Royal Flush"), 4);
    }
    EXPECT_EQ(filed->deals("no such line"), 0);
    SeededRandomSource random(5);
    PracticeDrill drill(kGame, random);
    drill.setLineDeals(filed);
    drill.setMode(DrillMode::WeakSpots);
    drill.setWeakLines({{kRoyalDraw, 1}, {"no such line", 5}});
    for (int i = 0; i < 20; ++i) {
        const DrillDeal& deal = drill.deal();
        EXPECT_EQ(deal.bestLine, kRoyalDraw);
        EXPECT_EQ(deal.tries, 1);
    }
}

} // namespace
} // namespace marivale
