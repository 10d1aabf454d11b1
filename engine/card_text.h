#pragma once

// Cards as text, in two forms. The short form that files and tests write, "As Kd Tc 2h Jk": a
// rank letter (A 2-9 T J Q K) and a suit letter (c d h s), and "Jk" for the joker. The face that
// a player reads, "K♠", "10♥" or "Joker", in UTF-8.

// Standard library
#include <optional>
#include <span>
#include <string>
#include <string_view>

// Marivale
#include "engine/card.h"

namespace marivale {

enum class CardForm : std::uint8_t { Short, Face };

// One card; "??" (short) or "?" (face) for a code that is no card.
std::string cardText(CardCode card, CardForm form = CardForm::Short);

// The cards in the mask (bit p for position p), in order, one space apart; "none" when the mask
// holds none of them.
std::string cardsText(std::span<const CardCode> cards, unsigned mask = ~0u,
                      CardForm form = CardForm::Short);

// The card a short form names; nothing for any other text.
std::optional<CardCode> parseCard(std::string_view text);

// Five short forms separated by blanks; nothing unless there are exactly five cards.
std::optional<HandCards> parseHand(std::string_view text);

// A rank as a card's corner shows it: "A", "2" ... "10", "J", "Q", "K".
std::string_view rankFace(Rank rank);

// A suit's symbol: "♣", "♦", "♥", "♠".
std::string_view suitSymbol(Suit suit);

} // namespace marivale
