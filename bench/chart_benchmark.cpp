// How fast a strategy chart is derived for a pay table, the game's tables built beforehand: the
// deals' holds and lines, the chart's order, a simple chart, and the exact return, each apart and
// all together.

// Standard library
#include <string>
#include <vector>

// Google Benchmark
#include <benchmark/benchmark.h>

// Marivale
#include "engine/odds/chart_deals.h"
#include "engine/odds/chart_derivation.h"
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

// The deals' holds and lines, the derivation and the chart's return, from the tables on.
void wholeChart(benchmark::State& bench, const Table& table) {
    const odds::DrawTables& draws = odds::DrawTables::forGame(table.game);
    odds::ChartFigures figures;
    std::size_t lines = 0;
    for (auto _ : bench) {
        const odds::ChartDeals deals(draws, table.scale);
        const std::vector<int> chart = odds::deriveChart(deals);
        figures = odds::evaluateChart(deals, chart);
        lines = chart.size();
        benchmark::DoNotOptimize(figures.expectedReturn);
    }
    bench.counters["lines"] = static_cast<double>(lines);
    bench.counters["cost%"] = 100.0 * figures.cost;
}

// A simple chart of 15 lines from the complete one, the deals' holds and lines built beforehand.
void simpleChart(benchmark::State& bench, const Table& table) {
    const odds::ChartDeals deals(odds::DrawTables::forGame(table.game), table.scale);
    odds::ChartFigures figures;
    for (auto _ : bench) {
        const std::vector<int> chart = odds::simplifyChart(deals, odds::deriveChart(deals), 15);
        figures = odds::evaluateChart(deals, chart);
        benchmark::DoNotOptimize(figures.expectedReturn);
    }
    bench.counters["cost%"] = 100.0 * figures.cost;
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
        benchmark::RegisterBenchmark(("Chart/" + table.name).c_str(), wholeChart, table)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
        benchmark::RegisterBenchmark(("ChartOrder/" + table.name).c_str(), derivation, table)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
        benchmark::RegisterBenchmark(("SimpleChart/" + table.name).c_str(), simpleChart, table)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
        benchmark::RegisterBenchmark(("ChartReturn/" + table.name).c_str(), evaluation, table)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
