// Cards as text: the short and face forms, and reading the short form back.

// Standard library
#include <set>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

// Marivale
#include "engine/card_text.h"

namespace marivale {
namespace {

struct CardCase {
    CardCode code;
    const char* shortText;
    const char* face;
};

const CardCase kCards[] = {
    {0, "Ac", "A\u2663"},   {13, "Ad", "A\u2666"}, {14, "2d", "2\u2666"},
    {35, "Th", "10\u2665"}, {50, "Qs", "Q\u2660"}, {51, "Ks", "K\u2660"},
    {52, "Jk", "Joker"},    {-1, "??", "?"},       {53, "??", "?"},
};

TEST(CardText, BothFormsOfACard) {
    for (const CardCase& c : kCards) {
        EXPECT_EQ(cardText(c.code), c.shortText) << c.code;
        EXPECT_EQ(cardText(c.code, CardForm::Face), c.face) << c.code;
    }
    EXPECT_EQ(makeCard(Rank::Ten, Suit::Hearts), 35);
    EXPECT_EQ(suitOf(51), Suit::Spades);
    EXPECT_EQ(rankOf(13), Rank::Ace);
}

TEST(CardText, EveryCardReadsBackFromItsShortForm) {
    std::set<std::string> seen;
    for (CardCode code = 0; code <= kJoker; ++code) {
        const std::string text = cardText(code);
        EXPECT_EQ(parseCard(text), code) << text;
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 53u);
    for (const char* bad : {"", "A", "1c", "Ax", "as", "Jkr", "10h"}) {
        EXPECT_EQ(parseCard(bad), std::nullopt) << bad;
    }
}

TEST(CardText, HandsAndTheirMasks) {
    const HandCards hand{0, 9, 12, 52, 51};
    EXPECT_EQ(parseHand(" Ac Tc\tKc Jk  Ks "), hand);
    EXPECT_EQ(cardsText(hand), "Ac Tc Kc Jk Ks");
    EXPECT_EQ(cardsText(hand, 0b10010), "Tc Ks");
    EXPECT_EQ(cardsText(hand, 0), "none");
    EXPECT_EQ(cardsText(hand, 0b00011, CardForm::Face), "A\u2663 10\u2663");
    for (const char* bad : {"Ac Tc Kc Jk", "Ac Tc Kc Jk Ks Qs", "Ac Tc Kc Jk Kx", ""}) {
        EXPECT_EQ(parseHand(bad), std::nullopt) << bad;
    }
}

} // namespace
} // namespace marivale
