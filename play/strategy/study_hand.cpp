#include "play/strategy/study_hand.h"

// Standard library
#include <algorithm>
#include <cctype>
#include <optional>
#include <vector>

// Marivale
#include "engine/card_text.h"

namespace marivale {
namespace {

// The short form of a card as a player may write it: any case, "10" for the Ten, "joker".
std::optional<CardCode> readCard(std::string token) {
    std::transform(token.begin(), token.end(), token.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (token == "jk" || token == "joker") {
        return kJoker;
    }
    if (token.size() == 3 && token.starts_with("10")) {
        token = "t" + token.substr(2);
    }
    if (token.size() != 2) {
        return std::nullopt;
    }
    token[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(token[0])));
    return parseCard(token);
}

std::vector<std::string> tokens(std::string_view typed) {
    std::vector<std::string> found;
    std::string current;
    for (const char c : typed) {
        if (std::isspace(static_cast<unsigned char>(c)) != 0 || c == ',' || c == ';') {
            if (!current.empty()) {
                found.push_back(current);
                current.clear();
            }
        } else {
            current += c;
        }
    }
    if (!current.empty()) {
        found.push_back(current);
    }
    return found;
}

} // namespace

std::variant<HandCards, StudyError> readStudyHand(GameId game, std::string_view typed) {
    const std::vector<std::string> words = tokens(typed);
    const bool jokerInDeck = deckSize(game) > kJoker;
    std::vector<CardCode> cards;
    for (const std::string& word : words) {
        const std::optional<CardCode> card = readCard(word);
        if (!card) {
            return StudyError{.problem = StudyProblem::NotACard, .text = word};
        }
        if (*card == kJoker && !jokerInDeck) {
            return StudyError{.problem = StudyProblem::NoJoker, .card = kJoker};
        }
        if (std::find(cards.begin(), cards.end(), *card) != cards.end()) {
            return StudyError{.problem = StudyProblem::Twice, .card = *card};
        }
        cards.push_back(*card);
    }
    const int count = static_cast<int>(cards.size());
    if (count != kHandSize) {
        return StudyError{.problem =
                              count < kHandSize ? StudyProblem::TooFew : StudyProblem::TooMany,
                          .count = count};
    }
    HandCards hand{};
    std::copy(cards.begin(), cards.end(), hand.begin());
    return hand;
}

} // namespace marivale
