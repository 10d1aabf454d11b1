#include "play/stats/history_csv.h"

// Standard library
#include <algorithm>
#include <array>
#include <string_view>

// Marivale
#include "engine/card_text.h"
#include "engine/number_text.h"
#include "play/game_variant.h"

namespace marivale {
namespace {

constexpr std::string_view kHeader =
    "Hand,Visit,Game,Bet,Dealt,Held,Final,Result,Paid,Double Up,Bonus,Best Hold,Cost\n";

// Quotes a field that holds a comma, a quote or a line break.
std::string field(std::string_view text) {
    if (text.find_first_of(",\"\n\r") == std::string_view::npos) {
        return std::string(text);
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c;
        if (c == '"') {
            quoted += '"';
        }
    }
    return quoted + '"';
}

} // namespace

std::string doubleUpText(const HandRecord& hand) {
    switch (hand.doubleUp) {
    case DoubleUpResult::NotOffered:
        break;
    case DoubleUpResult::TookScore:
        return "took score";
    case DoubleUpResult::NoGuess:
        return "no guess";
    case DoubleUpResult::Won:
        return "won x" + std::to_string(hand.doubleFactor);
    case DoubleUpResult::Lost:
        return "lost";
    }
    return {};
}

std::string unsettledText(const HandRecord& hand) {
    if (hand.finished) {
        return {};
    }
    return hand.abandoned ? "abandoned" : "in play";
}

std::string historyCsv(const std::vector<HandRecord>& history) {
    std::string csv(kHeader);
    for (const HandRecord& hand : history) {
        const std::string_view game = variantFor(hand.game).title;
        const std::array<std::string, 13> fields{
            std::to_string(hand.number),
            std::to_string(hand.visit),
            std::string(game),
            fixedText(hand.bet, 2),
            cardsText(hand.dealt),
            hand.played ? cardsText(hand.dealt, hand.holds) : std::string{},
            hand.played ? cardsText(hand.finalCards) : std::string{},
            hand.finished ? hand.name : unsettledText(hand),
            fixedText(hand.paid, 2),
            doubleUpText(hand),
            fixedText(hand.bonus, 2),
            hand.judgement ? cardsText(hand.dealt, hand.judgement->best) : std::string{},
            hand.judgement ? fixedText(hand.judgement->cost, 4) : std::string{},
        };
        for (std::size_t i = 0; i < fields.size(); ++i) {
            csv += (i == 0 ? "" : ",") + field(fields[i]);
        }
        csv += '\n';
    }
    return csv;
}

} // namespace marivale
