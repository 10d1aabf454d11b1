#pragma once

// Every deal of a game up to a renaming of the suits, with the exact return of each of its 32
// holds under one pay scale and the chart line each hold is: all a chart needs to be played
// over the whole deck.

// Standard library
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <unordered_map>
#include <vector>

// Marivale
#include "engine/odds/chart_line.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/parallel.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds {

struct ChartDeal {
    std::array<double, kHoldCount> returns{};      // by mask over the sorted cards, in bets
    std::array<std::uint16_t, kHoldCount> lines{}; // each hold's line, an index into lines()
    std::uint8_t weight{0};                        // how many deals the class holds
    std::uint8_t best{0};                          // the lowest mask with the highest return
};

// The line of every hold of every deal class of a game; they never depend on the pay table.
struct DealLines {
    std::vector<ChartLine> lines{}; // every line, in the order first met
    std::unordered_map<std::uint64_t, int> indexOfKey{};
    std::vector<std::array<std::uint16_t, kHoldCount>> ofDeal{}; // by class, then hold mask
};

// The game's lines as a chart of the kind reads them, built once on first use.
const DealLines& dealLines(GameId game, ChartKind kind);

class ChartDeals {
public:
    // Gives up early, leaving stopped() true, once `stop` is requested.
    ChartDeals(const DrawTables& tables, const PayScale& scale,
               ChartKind kind = ChartKind::Complete, int threads = defaultThreadCount(),
               std::stop_token stop = {});

    GameId game() const { return game_; }
    ChartKind kind() const { return kind_; }
    bool stopped() const { return stopped_; }
    // Every line some hold of some deal is, in the order first met.
    const std::vector<ChartLine>& lines() const { return lines_->lines; }
    std::span<const ChartDeal> deals() const { return deals_; }
    // How many deals the deck has: the classes' weights together.
    double dealCount() const { return dealCount_; }
    // The return of the best play of every deal, in bets per bet.
    double bestReturn() const { return bestReturn_; }
    // The index of a line in lines(); nothing when no hold is that line.
    std::optional<int> lineIndex(const ChartLine& line) const;

private:
    GameId game_;
    ChartKind kind_{ChartKind::Complete};
    const DealLines* lines_{nullptr};
    std::vector<ChartDeal> deals_{};
    double dealCount_{0.0};
    double bestReturn_{0.0};
    bool stopped_{false};
};

} // namespace marivale::odds
