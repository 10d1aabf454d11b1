#include "tools/odds/chart_output.h"

// Standard library
#include <cstdio>
#include <optional>

// Marivale
#include "engine/odds/chart_deals.h"
#include "engine/odds/chart_derivation.h"
#include "engine/odds/chart_holds.h"
#include "engine/odds/derived_chart.h"
#include "engine/odds/draw_tables.h"

namespace marivale::odds_tool {

int printChart(GameId game, const odds::PayScale& scale, odds::ChartKind kind) {
    const std::optional<odds::DerivedChart> chart =
        odds::deriveStrategyChart(odds::DrawTables::forGame(game), scale, kind);
    int number = 0;
    for (const odds::ChartRow& row : chart->rows) {
        std::printf("%3d %-56s %8.4f%% %9.4f\n", ++number, row.name.c_str(), 100.0 * row.share,
                    row.meanReturn);
    }
    std::printf("chart return: %.4f%%\n", 100.0 * chart->expectedReturn);
    std::printf("cost: %.4f%%\n", 100.0 * chart->cost);
    return 0;
}

int printChartHolds(GameId game, const odds::PayScale& scale, odds::ChartKind kind) {
    const odds::ChartDeals deals(odds::DrawTables::forGame(game), scale, kind);
    const std::vector<int> chart = odds::chartOfKind(deals, odds::kSimpleChartLines);
    bool written = true;
    odds::writeChartHolds(deals, chart, [&](std::string_view text) {
        written = written && std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    });
    if (!written || std::fflush(stdout) != 0) {
        std::perror("marivale-odds");
        return 1;
    }
    return 0;
}

} // namespace marivale::odds_tool
