// AnalyzeHand throughput per game, over every 5-card hand of the game's deck.

// Standard library
#include <vector>

// Google Benchmark
#include <benchmark/benchmark.h>

// Marivale
#include "engine/hand_analysis.h"

using namespace marivale;

namespace {

std::vector<std::array<float, 5>> everyHand(int deck) {
    std::vector<std::array<float, 5>> hands;
    for (int a = 0; a < deck; ++a)
        for (int b = a + 1; b < deck; ++b)
            for (int c = b + 1; c < deck; ++c)
                for (int d = c + 1; d < deck; ++d)
                    for (int e = d + 1; e < deck; ++e)
                        hands.push_back({float(a), float(b), float(c), float(d), float(e)});
    return hands;
}

void analyzeEveryHand(benchmark::State& bench, GameId game) {
    const auto hands = everyHand(deckSize(game));
    GameState state;
    for (auto _ : bench) {
        unsigned sum = 0;
        for (const auto& hand : hands) {
            std::copy(hand.begin(), hand.end(), state.Hand.begin());
            sum += AnalyzeHand(state, game).code;
        }
        benchmark::DoNotOptimize(sum);
    }
    bench.SetItemsProcessed(static_cast<std::int64_t>(bench.iterations() * hands.size()));
    bench.SetLabel("hands/s = items_per_second");
}

} // namespace

BENCHMARK_CAPTURE(analyzeEveryHand, JB, GameId::JacksOrBetter)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(analyzeEveryHand, DW, GameId::DeucesWild)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(analyzeEveryHand, WJ, GameId::JokerWild)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(analyzeEveryHand, TT, GameId::TreasureTrips)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
