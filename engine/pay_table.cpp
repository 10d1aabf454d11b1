#include "engine/pay_table.h"

namespace marivale {

namespace {

const PayRow* rowFor(GameId game, std::uint8_t code) {
    if (code == 0) {
        return nullptr;
    }
    for (const PayRow& row : payTable(game)) {
        if (row.code == code || row.alsoCode == code) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

const PayTable& payTable(GameId game) {
    return facts(game).payRows;
}

void ComputePayouts(GameState& state, GameId game) {
    for (const PayRow& row : payTable(game)) {
        state.*row.field = state.BetAmount * static_cast<float>(row.multiplier);
    }
}

PayoutField payoutFieldFor(GameId game, std::uint8_t code) {
    const PayRow* row = rowFor(game, code);
    return row ? row->field : nullptr;
}

int multiplierFor(GameId game, std::uint8_t code) {
    const PayRow* row = rowFor(game, code);
    return row ? row->multiplier : 0;
}

} // namespace marivale
