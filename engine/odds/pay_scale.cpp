#include "engine/odds/pay_scale.h"

// Marivale
#include "engine/hand_analysis.h"
#include "engine/pay_table.h"

namespace marivale::odds {

namespace {
// The mean value a bet adds through the game's bonus, per bet.
double bonusMean(GameId game) {
    return facts(game).bonus == Bonus::TreasureHunt ? kChestFactorMean : 0.0;
}
} // namespace

PayScale ownPayScale(GameId game) {
    PayScale scale;
    for (int code = 1; code <= topCode(game); ++code) {
        scale.multiplier[code] = multiplierFor(game, static_cast<std::uint8_t>(code));
    }
    scale.bonus = bonusMean(game);
    return scale;
}

std::optional<PayScale> payScaleFromMultipliers(GameId game, std::span<const double> highestFirst) {
    const int top = topCode(game);
    if (static_cast<int>(highestFirst.size()) != top) {
        return std::nullopt;
    }
    PayScale scale;
    for (int code = top; code >= 1; --code) {
        scale.multiplier[code] = highestFirst[top - code];
    }
    scale.bonus = bonusMean(game);
    return scale;
}

OutcomeValues outcomeValues(const DrawTables& tables, const PayScale& scale) {
    OutcomeValues values{};
    for (int slot = 0; slot < tables.outcomeCount(); ++slot) {
        const Outcome outcome = tables.outcome(slot);
        values[slot] = scale.multiplier[outcome.code] + (outcome.bonus ? scale.bonus : 0.0);
    }
    return values;
}

std::array<double, kChestFactors.size()> chestValues(const PayScale& scale) {
    std::array<double, kChestFactors.size()> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = static_cast<double>(kChestFactors[i]) * scale.bonus / kChestFactorMean;
    }
    return values;
}

double bonusVariance(const PayScale& scale) {
    double squares = 0.0;
    for (const double value : chestValues(scale)) {
        squares += (value - scale.bonus) * (value - scale.bonus);
    }
    return squares / static_cast<double>(kChestFactors.size());
}

OutcomeValues outcomeSquares(const DrawTables& tables, const PayScale& scale) {
    const OutcomeValues values = outcomeValues(tables, scale);
    const double spread = bonusVariance(scale);
    OutcomeValues squares{};
    for (int slot = 0; slot < tables.outcomeCount(); ++slot) {
        const std::size_t at = slot;
        squares[at] = values[at] * values[at] + (tables.outcome(slot).bonus ? spread : 0.0);
    }
    return squares;
}

} // namespace marivale::odds
