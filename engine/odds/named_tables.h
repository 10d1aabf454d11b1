#pragma once

// Well-known pay tables of the games, by name, for analysis only: the boards always pay their
// own tables.

// Standard library
#include <span>
#include <string_view>
#include <vector>

// Marivale
#include "engine/game.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds {

struct NamedTable {
    std::string_view name{};  // as the tools take it: "jacks-9-6"
    std::string_view title{}; // as a window lists it: "9/6 Jacks or Better"
    GameId game{GameId::JacksOrBetter};
    std::span<const double> payouts{}; // the multipliers from the game's highest code down
};

// Every well-known table, Jacks or Better first.
std::span<const NamedTable> namedTables();
// The well-known tables of one game, in the order of namedTables().
std::vector<NamedTable> namedTablesOf(GameId game);
// The table of a name; nothing for a name not known.
const NamedTable* findNamedTable(std::string_view name);

// The well-known table of the game with exactly these pays; nothing when none has them.
const NamedTable* findNamedTable(GameId game, const PayScale& scale);

// The pay scale of a well-known table.
PayScale payScaleOf(const NamedTable& table);

} // namespace marivale::odds
