// A typed hand to study: five cards read in any case and with any separator, and each kind of
// bad input named with what was wrong.

#include <gtest/gtest.h>

// Standard library
#include <variant>

// Marivale
#include "play/strategy/study_hand.h"
#include "tests/support/hand_text.h"

namespace marivale {
namespace {

struct Typed {
    GameId game;
    const char* typed;
    const char* cards; // the hand read, or nothing when refused
    StudyProblem problem;
    const char* text;
    int count;
    CardCode card;
};

TEST(StudyHand, TypedHandsReadOrRefusedWithTheReason) {
    constexpr GameId JB = GameId::JacksOrBetter;
    constexpr GameId WJ = GameId::JokerWild;
    const CardCode aceOfSpades = makeCard(Rank::Ace, Suit::Spades);
    const std::vector<Typed> cases{
        {WJ, "As Kd Tc 5h Jk", "As Kd Tc 5h Jk", {}, "", 0, 0},
        {WJ, " as, KD;10c 5H   joker ", "As Kd Tc 5h Jk", {}, "", 0, 0},
        {JB, "As Kd Tc 5h Jk", nullptr, StudyProblem::NoJoker, "", 0, kJoker},
        {JB, "As Kd Tc 5h", nullptr, StudyProblem::TooFew, "", 4, 0},
        {JB, "", nullptr, StudyProblem::TooFew, "", 0, 0},
        {JB, "As Kd Tc 5h 6h 7h", nullptr, StudyProblem::TooMany, "", 6, 0},
        {JB, "As Kd as 5h 6h", nullptr, StudyProblem::Twice, "", 0, aceOfSpades},
        {JB, "As Kd 1c 5h 6h", nullptr, StudyProblem::NotACard, "1c", 0, 0},
        {JB, "As Kd Tx 5h 6h", nullptr, StudyProblem::NotACard, "Tx", 0, 0},
    };
    for (const Typed& c : cases) {
        SCOPED_TRACE(c.typed);
        const auto read = readStudyHand(c.game, c.typed);
        if (c.cards != nullptr) {
            ASSERT_TRUE(std::holds_alternative<HandCards>(read));
            EXPECT_EQ(std::get<HandCards>(read), testing::cardsFromText(c.cards));
            continue;
        }
        ASSERT_TRUE(std::holds_alternative<StudyError>(read));
        const StudyError& error = std::get<StudyError>(read);
        EXPECT_EQ(error.problem, c.problem);
        EXPECT_EQ(error.text, c.text);
        EXPECT_EQ(error.count, c.count);
        EXPECT_EQ(error.card, c.card);
    }
}

} // namespace
} // namespace marivale
