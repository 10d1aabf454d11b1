// Every 5-card hand of every deck: the count of each code and of the hands owed a bonus.

#include <gtest/gtest.h>

// Standard library
#include <array>
#include <cstdint>

// Marivale
#include "engine/card.h"
#include "engine/hand_analysis.h"

namespace marivale {
namespace {

using Counts = std::array<std::uint64_t, 11>;

template <typename Visit> void forEveryHand(int deck, Visit&& visit) {
    HandCards h{};
    for (h[0] = 0; h[0] < deck; ++h[0])
        for (h[1] = h[0] + 1; h[1] < deck; ++h[1])
            for (h[2] = h[1] + 1; h[2] < deck; ++h[2])
                for (h[3] = h[2] + 1; h[3] < deck; ++h[3])
                    for (h[4] = h[3] + 1; h[4] < deck; ++h[4])
                        visit(h);
}

void put(GameState& state, const HandCards& cards) {
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
        forEveryHand(deckSize(row.game), [&](const HandCards& cards) {
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

} // namespace
} // namespace marivale
