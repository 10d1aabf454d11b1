#include "engine/hand_names.h"

namespace marivale {

namespace {

// The pair named by the rank the analysis left in Hand position 0.
std::string_view jacksPairName(float marker) {
    if (marker == 0.0f)
        return "Pair of Aces";
    if (marker == 10.0f)
        return "Pair of Jacks";
    if (marker == 11.0f)
        return "Pair of Queens";
    return "Pair of Kings";
}

} // namespace

std::string_view CodeName(GameId game, std::uint8_t code) {
    const CodeTexts& names = facts(game).handNames;
    return code < names.size() ? names[code] : std::string_view{};
}

std::string_view RowName(GameId game, std::uint8_t code) {
    const GameFacts& rules = facts(game);
    if (rules.pairPays == PairPays::Nothing || code != 1) {
        return CodeName(game, code);
    }
    for (const PayRow& row : rules.payRows) {
        if (row.code == code || row.alsoCode == code) {
            std::string_view caption = row.caption;
            while (caption.ends_with('.')) {
                caption.remove_suffix(1);
            }
            return caption;
        }
    }
    return CodeName(game, code);
}

std::string_view HandName(GameId game, std::uint8_t code, const GameState& state,
                          bool acePairMarked) {
    const PairPays pair = facts(game).pairPays;
    if (code == handCode(JacksHand::JacksOrBetter) && pair == PairPays::JacksOrBetter) {
        return jacksPairName(state.Hand[0]);
    }
    if (code == handCode(JokerHand::TwoPair) && pair == PairPays::Aces && acePairMarked) {
        return "Pair of Aces";
    }
    return CodeName(game, code);
}

} // namespace marivale
