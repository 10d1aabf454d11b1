// How fast the odds are: a game's tables from scratch, the 32 holds of one dealt hand once the
// tables exist, a whole game under the best strategy (tables built beforehand), a session's risk
// of ruin and its goal odds, and the marivale-odds tool as a fresh process from start to its last
// line.

// Standard library
#include <array>
#include <string>
#include <vector>

// Google Benchmark
#include <benchmark/benchmark.h>

// Marivale
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/parallel.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/risk_of_ruin.h"
#include "engine/odds/session_goal.h"
#include "engine/random_source.h"
#include "process_timing.h"

using namespace marivale;

namespace {

// A repeatable set of deals for the hold benchmark.
std::vector<HandCards> someDeals(GameId game, int count) {
    SeededRandomSource random(7);
    std::vector<HandCards> deals;
    while (static_cast<int>(deals.size()) < count) {
        HandCards deal{};
        for (std::size_t i = 0; i < deal.size(); ++i) {
            bool fresh = false;
            while (!fresh) {
                deal[i] = static_cast<CardCode>(random.next() * deckSize(game));
                fresh = std::find(deal.begin(), deal.begin() + static_cast<long>(i), deal[i]) ==
                        deal.begin() + static_cast<long>(i);
            }
        }
        deals.push_back(deal);
    }
    return deals;
}

void buildTables(benchmark::State& bench, GameId game) {
    std::size_t bytes = 0;
    for (auto _ : bench) {
        const odds::DrawTables tables(game, odds::defaultThreadCount());
        bytes = tables.memoryBytes();
        benchmark::DoNotOptimize(bytes);
    }
    bench.counters["MiB"] = static_cast<double>(bytes) / (1024.0 * 1024.0);
}

void oneHand(benchmark::State& bench, GameId game) {
    const odds::DrawTables& tables = odds::DrawTables::forGame(game);
    const odds::PayScale scale = odds::ownPayScale(game);
    const auto deals = someDeals(game, 1000);
    std::size_t next = 0;
    for (auto _ : bench) {
        const odds::HandOdds result = odds::analyzeHolds(tables, deals[next], scale);
        benchmark::DoNotOptimize(result.best);
        next = (next + 1) % deals.size();
    }
}

void wholeGame(benchmark::State& bench, GameId game) {
    const odds::DrawTables& tables = odds::DrawTables::forGame(game);
    const odds::PayScale scale = odds::ownPayScale(game);
    double expected = 0.0;
    for (auto _ : bench) {
        expected = odds::analyzeGame(tables, scale)->expectedReturn;
        benchmark::DoNotOptimize(expected);
    }
    bench.counters["return%"] = 100.0 * expected;
}

// The risk of ruin of a 9/6 Jacks or Better session at one bankroll, from the game's pays.
void riskOfRuin(benchmark::State& bench, double bankroll, int hands) {
    const std::array<double, 9> nineSix{800, 50, 25, 9, 6, 4, 3, 2, 1};
    const auto scale = *odds::payScaleFromMultipliers(GameId::JacksOrBetter, nineSix);
    const auto game = odds::analyzeGame(odds::DrawTables::forGame(GameId::JacksOrBetter), scale);
    const auto payouts = odds::payoutDistribution(*game, scale);
    double risk = 0.0;
    for (auto _ : bench) {
        risk = odds::ruinCurve(payouts, hands)->riskAt(bankroll);
        benchmark::DoNotOptimize(risk);
    }
    bench.counters["risk%"] = 100.0 * risk;
}

// The goal odds of a session on the board's own Jacks or Better table, as the Strategy window
// works them out: 160 bets, a goal of 100 bets and a stop-loss of 160.
void sessionGoal(benchmark::State& bench, int hands) {
    const auto scale = odds::ownPayScale(GameId::JacksOrBetter);
    const auto game = odds::analyzeGame(odds::DrawTables::forGame(GameId::JacksOrBetter), scale);
    const auto payouts = odds::payoutDistribution(*game, scale);
    odds::SessionGoalOdds found;
    for (auto _ : bench) {
        found = *odds::sessionGoalOdds(payouts, 160.0, 100.0, 160.0, hands);
        benchmark::DoNotOptimize(found.goal);
    }
    bench.counters["goal%"] = 100.0 * found.goal;
    bench.counters["hands"] = found.expectedHands;
}

// The tool as the player runs it: a new process that builds the tables and plays the game.
void toolProcess(benchmark::State& bench, std::vector<std::string> args) {
    for (auto _ : bench) {
        const double seconds = bench::timeProcess(MARIVALE_ODDS_TOOL, args);
        if (seconds < 0.0) {
            bench.SkipWithError("marivale-odds did not run");
            return;
        }
        bench.SetIterationTime(seconds);
    }
}

void registerAll() {
    benchmark::RegisterBenchmark("RiskOfRuin/JB96/bankroll:10000/hands:1600", riskOfRuin, 10000.0,
                                 1600)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("RiskOfRuin/JB96/bankroll:160/hands:1600", riskOfRuin, 160.0, 1600)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("RiskOfRuin/JB96/bankroll:1000/hands:10000", riskOfRuin, 1000.0,
                                 10000)
        ->Unit(benchmark::kMillisecond);
    for (const int hands : {1600, 10000}) {
        benchmark::RegisterBenchmark(
            ("SessionGoal/JB/bankroll:160/goal:100/stop-loss:160/hands:" + std::to_string(hands))
                .c_str(),
            sessionGoal, hands)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("Tool/JB", toolProcess, std::vector<std::string>{"JB"})
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(15)
        ->ReportAggregatesOnly(true);
    for (const GameId game : kAllGames) {
        const std::string name(shortName(game));
        benchmark::RegisterBenchmark(("BuildTables/" + name).c_str(), buildTables, game)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(2);
        benchmark::RegisterBenchmark(("HandHolds/" + name).c_str(), oneHand, game)
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("WholeGame/" + name).c_str(), wholeGame, game)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(2);
    }
}

} // namespace

int main(int argc, char** argv) {
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
