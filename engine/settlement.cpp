#include "engine/settlement.h"

// Standard library
#include <array>

// Marivale
#include "engine/pay_table.h"

namespace marivale {

namespace {

using WinPatterns = std::array<std::string_view, 11>;

// The Win box pattern by code 0..10, one column per game.
constexpr WinPatterns kTreasureTripsWin{"",           "$##0.00",     "$#,##0.00", "$#,##0.00",
                                        "$#,##0.00",  "$#,##0.00",   "$#,##0.00", "$##,##0.00",
                                        "$##,##0.00", "$###,##0.00", ""};
constexpr WinPatterns kJokerWildWin{"",           "$##0.00",    "$##0.00",   "$#,##0.00",
                                    "$#,##0.00",  "$#,##0.00",  "$#,##0.00", "$##,##0.00",
                                    "$##,##0.00", "$##,##0.00", ""};
constexpr WinPatterns kJacksWin{"",           "$##0.00",     "$##0.00",   "$#,##0.00",
                                "$#,##0.00",  "$#,##0.00",   "$#,##0.00", "$##,##0.00",
                                "$##,##0.00", "$###,##0.00", ""};
constexpr WinPatterns kDeucesWin{"",           "$##0.00",    "$##0.00",    "$##0.00",
                                 "$#,##0.00",  "$#,##0.00",  "$#,##0.00",  "$#,##0.00",
                                 "$##,##0.00", "$##,##0.00", "$###,##0.00"};

// Only these Treasure Trips codes can hold three or more Threes.
bool bonusCode(std::uint8_t code) {
    return code == 9 || code == 6 || code == 5 || code == 2;
}

} // namespace

std::string_view winPatternFor(GameId game, std::uint8_t code) {
    const WinPatterns& column =
        byGame(game, kTreasureTripsWin, kDeucesWin, kJokerWildWin, kJacksWin);
    return code < column.size() ? column[code] : std::string_view{};
}

Settlement SettleHand(GameState& state, GameId game, BonusGame& bonus) {
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
    if (game == GameId::TreasureTrips && bonusCode(state.HandRank) && isSet(state.BonusDue)) {
        state.BonusAmount = state.BetAmount;
        bonus.play(state);
        state.Credits = state.Credits + state.BonusAmount;
        state.WinAmount = credited + state.BonusAmount;
        result.bonusPlayed = true;
    }
    return result;
}

} // namespace marivale
