#include "engine/settlement.h"

// Standard library
#include <algorithm>

// Marivale
#include "engine/pay_table.h"

namespace marivale {

namespace {

// The bonus game runs for a hand with the bonus due whose code can hold the bonus hand.
bool bonusHand(const GameFacts& game, std::uint8_t code) {
    return game.bonus != Bonus::None &&
           std::ranges::find(game.bonusHands, code) != game.bonusHands.end();
}

} // namespace

std::string_view winPatternFor(GameId game, std::uint8_t code) {
    const CodeTexts& column = facts(game).winPatterns;
    return code < column.size() ? column[code] : std::string_view{};
}

Settlement SettleHand(GameState& state, GameId game, TreasureHunt& hunt) {
    const PayoutField field = payoutFieldFor(game, state.HandRank);
    if (field == nullptr) {
        return {};
    }
    const float payout = state.*field;
    float credited = payout;
    if (state.DoubleUpFactor > 0) {
        credited = static_cast<float>(state.DoubleUpFactor) * payout;
    }
    state.Credits = state.Credits + credited;
    state.WinAmount = credited;

    Settlement result{true, false, winPatternFor(game, state.HandRank)};
    if (bonusHand(facts(game), state.HandRank) && isSet(state.BonusDue)) {
        state.BonusAmount = state.BetAmount;
        hunt.play(state);
        state.Credits = state.Credits + state.BonusAmount;
        state.WinAmount = credited + state.BonusAmount;
        result.bonusPlayed = true;
    }
    return result;
}

} // namespace marivale
