#include "engine/odds/named_tables.h"

// Standard library
#include <algorithm>
#include <array>

namespace marivale::odds {
namespace {

constexpr std::array<double, 9> kJacksNineSix{800, 50, 25, 9, 6, 4, 3, 2, 1};
constexpr std::array<double, 9> kJacksEightFive{800, 50, 25, 8, 5, 4, 3, 2, 1};
constexpr std::array<double, 10> kDeucesFullPay{800, 200, 25, 15, 9, 5, 3, 2, 2, 1};
constexpr std::array<double, 10> kDeucesSixteenTen{800, 200, 25, 16, 10, 4, 4, 3, 2, 1};

constexpr std::array<NamedTable, 4> kNamedTables{{
    {.name = "jacks-9-6",
     .title = "9/6 Jacks or Better",
     .game = GameId::JacksOrBetter,
     .payouts = kJacksNineSix},
    {.name = "jacks-8-5",
     .title = "8/5 Jacks or Better",
     .game = GameId::JacksOrBetter,
     .payouts = kJacksEightFive},
    {.name = "deuces-full-pay",
     .title = "Full-pay Deuces Wild",
     .game = GameId::DeucesWild,
     .payouts = kDeucesFullPay},
    {.name = "deuces-16-10",
     .title = "16/10 Deuces Wild",
     .game = GameId::DeucesWild,
     .payouts = kDeucesSixteenTen},
}};

} // namespace

std::span<const NamedTable> namedTables() {
    return kNamedTables;
}

std::vector<NamedTable> namedTablesOf(GameId game) {
    std::vector<NamedTable> tables;
    std::copy_if(kNamedTables.begin(), kNamedTables.end(), std::back_inserter(tables),
                 [game](const NamedTable& table) { return table.game == game; });
    return tables;
}

const NamedTable* findNamedTable(std::string_view name) {
    const auto found = std::find_if(kNamedTables.begin(), kNamedTables.end(),
                                    [name](const NamedTable& table) { return table.name == name; });
    return found == kNamedTables.end() ? nullptr : &*found;
}

PayScale payScaleOf(const NamedTable& table) {
    // Every table above has one multiplier per code of its game.
    return *payScaleFromMultipliers(table.game, table.payouts);
}

const NamedTable* findNamedTable(GameId game, const PayScale& scale) {
    for (const NamedTable& table : namedTables()) {
        if (table.game == game && payScaleOf(table) == scale) {
            return &table;
        }
    }
    return nullptr;
}

} // namespace marivale::odds
