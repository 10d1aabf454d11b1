// How fast a strategy chart is derived for a pay table, the game's tables built beforehand: a
// complete and a simple chart with their figures, the chart's order and its exact return apart,
// and every deal's hold written out.

// Standard library
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Google Benchmark
#include <benchmark/benchmark.h>

// Marivale
#include "engine/odds/chart_deals.h"
#include "engine/odds/chart_derivation.h"
#include "engine/odds/chart_holds.h"
#include "engine/odds/derived_chart.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/named_tables.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/strategy_chart.h"

using namespace marivale;

namespace {

struct Table {
    std::string name;
    GameId game;
    odds::PayScale scale;
};

std::vector<Table> tables() {
    std::vector<Table> all;
    for (const GameId game : kAllGames) {
        all.push_back({"own/" + std::string(shortName(game)), game, odds::ownPayScale(game)});
    }
    for (const char* name : {"jacks-9-6", "deuces-full-pay"}) {
        const odds::NamedTable& table = *odds::findNamedTable(name);
        all.push_back({name, table.game, odds::payScaleOf(table)});
    }
    return all;
}

// A chart of the kind with its exact figures, from the game's tables on.
void wholeChart(benchmark::State& bench, const Table& table, odds::ChartKind kind) {
    const odds::DrawTables& draws = odds::DrawTables::forGame(table.game);
    std::optional<odds::DerivedChart> chart;
    for (auto _ : bench) {
        chart = odds::deriveStrategyChart(draws, table.scale, kind);
        benchmark::DoNotOptimize(chart->expectedReturn);
    }
    bench.counters["lines"] = static_cast<double>(chart->rows.size());
    bench.counters["cost%"] = 100.0 * chart->cost;
}

// Every deal's hold under the chart, as the odds tool writes it, the chart derived beforehand.
void chartHolds(benchmark::State& bench, const Table& table) {
    const odds::ChartDeals deals(odds::DrawTables::forGame(table.game), table.scale);
    const std::vector<int> chart = odds::deriveChart(deals);
    std::size_t bytes = 0;
    for (auto _ : bench) {
        bytes = 0;
        odds::writeChartHolds(deals, chart, [&](std::string_view text) { bytes += text.size(); });
        benchmark::DoNotOptimize(bytes);
    }
    bench.counters["MB"] = static_cast<double>(bytes) / 1e6;
}

// Only the order of the lines, the deals' holds and lines built beforehand.
void derivation(benchmark::State& bench, const Table& table) {
    const odds::ChartDeals deals(odds::DrawTables::forGame(table.game), table.scale);
    for (auto _ : bench) {
        const std::vector<int> chart = odds::deriveChart(deals);
        benchmark::DoNotOptimize(chart.data());
    }
}

// One exact evaluation of a derived chart.
void evaluation(benchmark::State& bench, const Table& table) {
    const odds::ChartDeals deals(odds::DrawTables::forGame(table.game), table.scale);
    const std::vector<int> chart = odds::deriveChart(deals);
    for (auto _ : bench) {
        const odds::ChartFigures figures = odds::evaluateChart(deals, chart);
        benchmark::DoNotOptimize(figures.expectedReturn);
    }
}

} // namespace

int main(int argc, char** argv) {
    for (const Table& table : tables()) {
        benchmark::RegisterBenchmark(("Chart/" + table.name).c_str(), wholeChart, table,
                                     odds::ChartKind::Complete)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
        benchmark::RegisterBenchmark(("SimpleChart/" + table.name).c_str(), wholeChart, table,
                                     odds::ChartKind::Simple)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
        benchmark::RegisterBenchmark(("ChartOrder/" + table.name).c_str(), derivation, table)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
        benchmark::RegisterBenchmark(("ChartHolds/" + table.name).c_str(), chartHolds, table)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1);
        benchmark::RegisterBenchmark(("ChartReturn/" + table.name).c_str(), evaluation, table)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
