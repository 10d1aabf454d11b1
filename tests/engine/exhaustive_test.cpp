// Every 5-card hand of every deck: the count of each code, and for the joker games a check
// against an independent evaluator that tries every card in place of the joker.

#include <gtest/gtest.h>

// Standard library
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

// Marivale
#include "engine/card.h"
#include "engine/hand_analysis.h"

namespace marivale {
namespace {

using Counts = std::array<std::uint64_t, 11>;

template <typename Visit> void forEveryHand(int deck, Visit&& visit) {
    std::array<int, 5> h{};
    for (h[0] = 0; h[0] < deck; ++h[0])
        for (h[1] = h[0] + 1; h[1] < deck; ++h[1])
            for (h[2] = h[1] + 1; h[2] < deck; ++h[2])
                for (h[3] = h[2] + 1; h[3] < deck; ++h[3])
                    for (h[4] = h[3] + 1; h[4] < deck; ++h[4])
                        visit(h);
}

void put(GameState& state, const std::array<int, 5>& cards) {
    for (int p = 0; p < 5; ++p) {
        state.Hand[p] = static_cast<float>(cards[p]);
    }
}

struct CensusRow {
    GameId game;
    Counts counts;
    std::uint64_t bonus;
};

// The counts of each code 0..10 over every hand of the game's deck.
constexpr std::array<CensusRow, kGameCount> kCensus{{
    {GameId::JacksOrBetter, {2062860, 337920, 123552, 54912, 10200, 5108, 3744, 624, 36, 4, 0}, 0},
    {GameId::DeucesWild, {2119728, 355080, 62232, 14472, 12672, 31552, 2068, 624, 480, 48, 4}, 0},
    {GameId::JokerWild, {2432724, 261456, 137280, 20532, 7804, 6552, 3120, 180, 24, 13, 0}, 0},
    {GameId::TreasureTrips,
     {2570628, 123552, 137280, 20532, 7804, 6552, 3120, 180, 24, 13, 0},
     11521},
}};

TEST(Census, EveryHandOfEveryGame) {
    for (const CensusRow& row : kCensus) {
        Counts counts{};
        std::uint64_t bonus = 0;
        GameState state;
        forEveryHand(deckSize(row.game), [&](const std::array<int, 5>& cards) {
            put(state, cards);
            ++counts[AnalyzeHand(state, row.game).code];
            bonus += isSet(state.BonusDue) ? 1 : 0;
        });
        EXPECT_EQ(counts, row.counts) << shortName(row.game);
        EXPECT_EQ(bonus, row.bonus) << shortName(row.game);
        for (int code = 1; code <= topCode(row.game); ++code) {
            EXPECT_GT(counts[code], 0u) << shortName(row.game) << " code " << code;
        }
    }
}

// An evaluator written from rank counts, for five natural cards (a card may repeat when it
// stands for the joker). Returns the joker games' code; aceIsPaid makes a pair of Aces pay 1.
int naturalJokerCode(const std::array<int, 5>& cards, bool aceIsPaid) {
    std::array<int, 13> perRank{};
    bool flush = true;
    for (const int card : cards) {
        ++perRank[rankIndex(card)];
        flush = flush && suitIndex(card) == suitIndex(cards[0]);
    }
    std::array<int, 13> sorted = perRank;
    std::sort(sorted.rbegin(), sorted.rend());
    int low = 13;
    int high = -1;
    for (int r = 0; r < 13; ++r) {
        if (perRank[r] > 0) {
            low = std::min(low, r);
            high = std::max(high, r);
        }
    }
    const bool distinct = sorted[0] == 1;
    const bool aceHigh =
        distinct && perRank[0] && perRank[9] && perRank[10] && perRank[11] && perRank[12];
    const bool straight = distinct && (high - low == 4 || aceHigh);
    if (sorted[0] == 5)
        return 9;
    if (flush && aceHigh)
        return 8;
    if (flush && straight)
        return 7;
    if (sorted[0] == 4)
        return 6;
    if (sorted[0] == 3 && sorted[1] == 2)
        return 5;
    if (flush)
        return 4;
    if (straight)
        return 3;
    if (sorted[0] == 3)
        return 2;
    if (sorted[0] == 2 && sorted[1] == 2)
        return 1;
    if (aceIsPaid && perRank[0] == 2)
        return 1;
    return 0;
}

int bestJokerCode(std::array<int, 5> cards, bool aceIsPaid) {
    auto joker = std::find(cards.begin(), cards.end(), kJoker);
    if (joker == cards.end()) {
        return naturalJokerCode(cards, aceIsPaid);
    }
    int best = 0;
    for (int stand = 0; stand < 52; ++stand) {
        *joker = stand;
        best = std::max(best, naturalJokerCode(cards, aceIsPaid));
    }
    return best;
}

TEST(JokerGames, TheJokerAlwaysMakesTheBestHand) {
    // Joker Wild also pays a pair of Aces; Treasure Trips does not.
    for (const auto& [game, aceIsPaid] :
         {std::pair{GameId::JokerWild, true}, std::pair{GameId::TreasureTrips, false}}) {
        GameState state;
        int mismatches = 0;
        forEveryHand(53, [&](const std::array<int, 5>& cards) {
            put(state, cards);
            const int code = AnalyzeHand(state, game).code;
            const int expected = bestJokerCode(cards, aceIsPaid);
            if (code != expected && ++mismatches <= 5) {
                ADD_FAILURE() << shortName(game) << " " << cards[0] << " " << cards[1] << " "
                              << cards[2] << " " << cards[3] << " " << cards[4] << ": " << code
                              << " vs " << expected;
            }
        });
        EXPECT_EQ(mismatches, 0) << shortName(game);
    }
}

} // namespace
} // namespace marivale
