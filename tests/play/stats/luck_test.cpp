// Luck and skill over a session worked out by hand: the result, the best play's average, the
// mistakes' cost and the luck left, in bets and in standard deviations, for each visit and the
// run, while holds wait for their judgement and while a game's odds are unknown.

#include <gtest/gtest.h>

// Marivale
#include "play/stats/luck.h"

namespace marivale {
namespace {

constexpr GameId JB = GameId::JacksOrBetter;
constexpr GameId DW = GameId::DeucesWild;

HandRecord hand(int visit, GameId game, float bet, float paid, bool finished,
                std::optional<HoldJudgement> judgement) {
    HandRecord record;
    record.visit = visit;
    record.game = game;
    record.bet = bet;
    record.paid = paid;
    record.finished = finished;
    record.played = finished;
    record.dealt = {1, 17, 34, 49, 25};
    record.judgement = judgement;
    return record;
}

// Jacks or Better returns 95% with a variance of 12 bets squared, Deuces Wild 101% with 13.
OddsByGame figures(bool deucesKnown) {
    OddsByGame odds{};
    odds[gameIndex(JB)] = odds::GameOdds{.game = JB, .expectedReturn = 0.95, .variance = 12.0};
    if (deucesKnown) {
        odds[gameIndex(DW)] = odds::GameOdds{.game = DW, .expectedReturn = 1.01, .variance = 13.0};
    }
    return odds;
}

struct Expected {
    int visit, hands;
    double result, expected, cost;
    double luck;       // result - (expected - cost)
    double deviations; // luck / sqrt(hands' variance)
};

TEST(Luck, ASessionWorkedOutByHand) {
    const HoldJudgement best{0, 0.5, 0.5, 0.0f, false};
    std::vector<HandRecord> history{
        hand(1, JB, 1.25f, 0.0f, true, best),                                     // -1
        hand(1, JB, 1.25f, 5.0f, true, HoldJudgement{1, 0.60, 0.35, 0.3f, true}), // +3, 0.25 lost
        hand(1, JB, 0.25f, 0.25f, true, std::nullopt),                            // 0, judged below
        hand(2, DW, 0.50f, 0.0f, true, HoldJudgement{2, 1.2, 0.7, 0.25f, true}),  // -1, 0.5 lost
        hand(2, DW, 0.50f, 0.0f, false, std::nullopt), // abandoned: not counted
    };

    // A hold still to be judged holds back the mistakes' cost and the luck, not the result.
    const LuckSummary waiting = luckOf(history, 1, figures(true));
    EXPECT_EQ(waiting.pending, 1);
    EXPECT_DOUBLE_EQ(waiting.result, 2.0);
    EXPECT_EQ(waiting.skillCost(), std::nullopt);
    EXPECT_EQ(waiting.luck(), std::nullopt);

    history[2].judgement = best;
    const Expected cases[] = {
        {1, 3, 2.0, -0.15, 0.25, 2.40, 2.40 / 6.0},
        {2, 1, -1.0, 0.01, 0.50, -0.51, -0.51 / std::sqrt(13.0)},
        {0, 4, 1.0, -0.14, 0.75, 1.89, 1.89 / 7.0},
    };
    for (const Expected& c : cases) {
        SCOPED_TRACE(c.visit);
        const LuckSummary s = luckOf(history, c.visit, figures(true));
        EXPECT_EQ(s.hands, c.hands);
        EXPECT_EQ(s.pending, 0);
        EXPECT_NEAR(s.result, c.result, 1e-12);
        EXPECT_NEAR(s.expected.value(), c.expected, 1e-12);
        EXPECT_NEAR(s.skillCost().value(), c.cost, 1e-12);
        EXPECT_NEAR(s.luck().value(), c.luck, 1e-12);
        EXPECT_NEAR(s.luckDeviations().value(), c.deviations, 1e-12);
    }

    // The run waits for every game's odds; a visit only for its own.
    EXPECT_EQ(luckOf(history, 0, figures(false)).luck(), std::nullopt);
    EXPECT_NEAR(luckOf(history, 1, figures(false)).luck().value(), 2.40, 1e-12);
    EXPECT_EQ(luckOf({}, 0, figures(true)).luckDeviations(), std::nullopt);
}

} // namespace
} // namespace marivale
