// How fast a practice drill deals each kind of hand, the game's tables and its deals filed by
// line built beforehand, and how many deals a close call draws on average ("tries").

// Standard library
#include <string>

// Google Benchmark
#include <benchmark/benchmark.h>

// Marivale
#include "engine/odds/draw_tables.h"
#include "play/practice/drill_dealer.h"
#include "play/practice/line_deals.h"

using namespace marivale;

namespace {

void dealDrills(benchmark::State& state, GameId game, DrillMode mode) {
    odds::DrawTables::forGame(game);
    SeededRandomSource random(22);
    DrillDealer dealer(game, random);
    if (mode == DrillMode::WeakSpots) {
        // The rarest line a player is likely to drill, and a common one.
        const HandCards draw{makeCard(Rank::Ace, Suit::Hearts), makeCard(Rank::King, Suit::Hearts),
                             makeCard(Rank::Queen, Suit::Hearts),
                             makeCard(Rank::Jack, Suit::Hearts), makeCard(Rank::Two, Suit::Clubs)};
        dealer.setWeakLines({{holdLineName(game, draw, 0b01111), 1}, {"Two Pair", 1}});
        dealer.setLineDeals(LineDeals::build(game));
    }
    double tries = 0.0;
    for (auto _ : state) {
        const DrillDeal deal = dealer.deal(mode);
        tries += deal.tries;
        benchmark::DoNotOptimize(deal);
    }
    state.counters["tries"] = benchmark::Counter(tries, benchmark::Counter::kAvgIterations);
}

void fileDeals(benchmark::State& state, GameId game) {
    odds::DrawTables::forGame(game);
    for (auto _ : state) {
        benchmark::DoNotOptimize(LineDeals::build(game));
    }
}

} // namespace

int main(int argc, char** argv) {
    for (const GameId game : kAllGames) {
        const std::string name(shortName(game));
        benchmark::RegisterBenchmark(("random/" + name).c_str(), dealDrills, game,
                                     DrillMode::Random);
        benchmark::RegisterBenchmark(("close/" + name).c_str(), dealDrills, game,
                                     DrillMode::CloseCalls);
        benchmark::RegisterBenchmark(("weak/" + name).c_str(), dealDrills, game,
                                     DrillMode::WeakSpots);
        benchmark::RegisterBenchmark(("file/" + name).c_str(), fileDeals, game)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
