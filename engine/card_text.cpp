#include "engine/card_text.h"

// Standard library
#include <algorithm>
#include <array>

namespace marivale {
namespace {

constexpr std::string_view kRankLetters = "A23456789TJQK";
constexpr std::string_view kSuitLetters = "cdhs";
constexpr std::string_view kJokerShort = "Jk";
constexpr std::string_view kJokerFace = "Joker";

constexpr std::array<std::string_view, kRanksPerSuit> kRankFaces{"A", "2", "3",  "4", "5", "6", "7",
                                                                 "8", "9", "10", "J", "Q", "K"};
constexpr std::array<std::string_view, kSuitCount> kSuitSymbols{"\u2663", "\u2666", "\u2665",
                                                                "\u2660"};

} // namespace

std::string cardText(CardCode card, CardForm form) {
    const bool face = form == CardForm::Face;
    if (card == kJoker) {
        return std::string(face ? kJokerFace : kJokerShort);
    }
    if (!isCard(card)) {
        return face ? "?" : "??";
    }
    if (face) {
        std::string text(rankFace(rankOf(card)));
        text += suitSymbol(suitOf(card));
        return text;
    }
    return {kRankLetters[rankIndex(card)], kSuitLetters[suitIndex(card)]};
}

std::string cardsText(std::span<const CardCode> cards, unsigned mask, CardForm form) {
    std::string text;
    for (std::size_t p = 0; p < cards.size(); ++p) {
        if ((mask >> p) & 1u) {
            if (!text.empty()) {
                text += ' ';
            }
            text += cardText(cards[p], form);
        }
    }
    return text.empty() ? "none" : text;
}

std::optional<CardCode> parseCard(std::string_view text) {
    if (text == kJokerShort) {
        return kJoker;
    }
    if (text.size() != 2) {
        return std::nullopt;
    }
    const auto rank = kRankLetters.find(text[0]);
    const auto suit = kSuitLetters.find(text[1]);
    if (rank == std::string_view::npos || suit == std::string_view::npos) {
        return std::nullopt;
    }
    return makeCard(static_cast<Rank>(rank), static_cast<Suit>(suit));
}

// Splits at blanks and reads each word as a card.
std::optional<HandCards> parseHand(std::string_view text) {
    HandCards cards{};
    std::size_t count = 0;
    std::size_t at = text.find_first_not_of(" \t");
    while (at != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(" \t", at), text.size());
        const auto card = parseCard(text.substr(at, end - at));
        if (!card || count == cards.size()) {
            return std::nullopt;
        }
        cards[count++] = *card;
        at = text.find_first_not_of(" \t", end);
    }
    if (count != cards.size()) {
        return std::nullopt;
    }
    return cards;
}

std::string_view rankFace(Rank rank) {
    return kRankFaces[rankIndex(rank)];
}

std::string_view suitSymbol(Suit suit) {
    return kSuitSymbols[suitIndex(suit)];
}

} // namespace marivale
