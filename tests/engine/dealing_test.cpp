// Dealing: fresh deals, draws with holds, the used-card marks and the reseed on every call.

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <set>

// Marivale
#include "engine/dealing.h"
#include "tests/support/scripted_random_source.h"

namespace marivale {
namespace {

int markedCount(const GameState& state, int deck = 53) {
    return static_cast<int>(
        std::count(state.CardUsed.begin(), state.CardUsed.begin() + deck, kTrue));
}

std::set<int> handCodes(const GameState& state) {
    std::set<int> codes;
    for (int p = 0; p < kHandSize; ++p) {
        codes.insert(static_cast<int>(state.Hand[p]));
    }
    return codes;
}

void scriptCodes(ScriptedRandomSource& random, std::initializer_list<int> codes, int deck) {
    for (const int code : codes) {
        random.pushIndex(code, deck);
    }
}

TEST(DealCards, ScriptedFreshDealSkipsCardsAlreadyTaken) {
    GameState state;
    state.CardUsed.fill(kTrue); // left over from an earlier hand: the fresh deal clears them
    ScriptedRandomSource random;
    scriptCodes(random, {7, 7, 51, 0, 7, 12, 30}, 52);
    DealCards(state, GameId::JacksOrBetter, random);
    EXPECT_EQ(handCodes(state), (std::set<int>{7, 51, 0, 12, 30}));
    EXPECT_EQ(state.Hand[1], 51.0f);
    EXPECT_EQ(markedCount(state, 52), 5);
    EXPECT_EQ(random.remaining(), 0u);
}

// Each call reseeds first, the deal and the draw alike.
TEST(DealCards, HeldPositionConsumesADrawButLeavesTheCardInTheDeck) {
    GameState state;
    ScriptedRandomSource random;
    scriptCodes(random, {0, 1, 2, 3, 4}, 53);
    DealCards(state, GameId::JokerWild, random);
    state.DrawPhase = 1;
    state.Held[0] = kTrue;
    state.Held[3] = kTrue;
    // Position 0 consumes 40 without taking it; 2 is rejected as already dealt.
    scriptCodes(random, {40, 52, 2, 41, 42, 43}, 53);
    DealCards(state, GameId::JokerWild, random);
    EXPECT_EQ(state.Hand[0], 0.0f);
    EXPECT_EQ(state.Hand[1], 52.0f);
    EXPECT_EQ(state.Hand[2], 41.0f);
    EXPECT_EQ(state.Hand[3], 3.0f);
    EXPECT_EQ(state.Hand[4], 43.0f);
    EXPECT_EQ(state.CardUsed[40], kFalse);
    EXPECT_EQ(state.CardUsed[42], kFalse);
    EXPECT_EQ(markedCount(state), 8);
    for (int p = 0; p < 6; ++p) {
        EXPECT_EQ(state.Held[p], kFalse);
    }
    EXPECT_EQ(random.reseeds, 2);
}

// Many seeded hands on every deck: distinct cards from the right deck, draws never repeat one
// of the five dealt cards, and the joker comes only on the joker decks.
TEST(DealCards, PropertiesOverManyHands) {
    for (const GameId game : kAllGames) {
        SeededRandomSource random(static_cast<std::uint64_t>(game) + 1);
        GameState state;
        int jokers = 0;
        for (int hand = 0; hand < 20000; ++hand) {
            state.DrawPhase = 0;
            DealCards(state, game, random);
            const std::set<int> dealt = handCodes(state);
            ASSERT_EQ(dealt.size(), 5u);
            ASSERT_EQ(markedCount(state), 5);
            ASSERT_LT(*dealt.rbegin(), deckSize(game));
            jokers += dealt.count(kJoker) ? 1 : 0;

            state.DrawPhase = 1;
            for (int p = 0; p < kHandSize; ++p) {
                state.Held[p] = (hand >> p) & 1 ? kTrue : kFalse;
            }
            DealCards(state, game, random);
            const std::set<int> drawn = handCodes(state);
            ASSERT_EQ(drawn.size(), 5u);
            for (int p = 0; p < kHandSize; ++p) {
                const int code = static_cast<int>(state.Hand[p]);
                ASSERT_EQ(state.CardUsed[code], kTrue);
                const bool held = (hand >> p) & 1;
                ASSERT_EQ(dealt.count(code) == 1, held) << "position " << p;
            }
            ASSERT_EQ(markedCount(state), 5 + (5 - __builtin_popcount(hand & 31)));
        }
        if (hasJoker(game)) {
            EXPECT_GT(jokers, 0);
        } else {
            EXPECT_EQ(jokers, 0);
        }
    }
}

} // namespace
} // namespace marivale
