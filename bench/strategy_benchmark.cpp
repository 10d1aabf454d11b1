// How long closing a board takes while its Strategy window is still working: each run is a
// fresh process (so the odds tables are not built yet) that opens a window, lets it work for a
// few milliseconds and then destroys it, timing the destruction.

// Standard library
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

// Google Benchmark
#include <benchmark/benchmark.h>

// Qt
#include <QApplication>

// POSIX
#include <unistd.h>

// Marivale
#include "board/strategy/strategy_window.h"
#include "state/game_state.h"

using namespace marivale;

namespace {

constexpr const char* kCloseOnce = "--close-once";
// How long the window works before the board closes.
constexpr auto kWorking = std::chrono::milliseconds(10);
// MARIVALE_WORKING_MS overrides it, e.g. to time a window that has finished its work.

// The child's part: prints the microseconds the window took to go.
int closeOnce(int argc, char** argv) {
    QApplication app(argc, argv);
    GameState state{};
    state.BetAmount = 1.0f;
    auto* window = new StrategyWindow(GameId::JacksOrBetter, state);
    window->show();
    const char* override = std::getenv("MARIVALE_WORKING_MS");
    const auto working =
        override != nullptr ? std::chrono::milliseconds(std::atoi(override)) : kWorking;
    const auto opened = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - opened < working) {
        QApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    const auto start = std::chrono::steady_clock::now();
    delete window;
    const auto end = std::chrono::steady_clock::now();
    std::printf("%lld\n",
                static_cast<long long>(
                    std::chrono::duration_cast<std::chrono::microseconds>(end - start).count()));
    return 0;
}

void closeWhileWorking(benchmark::State& bench) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // This very program, run again as the child.
    std::string self(4096, '\0');
    const ssize_t length = readlink("/proc/self/exe", self.data(), self.size() - 1);
    self.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    const std::string command = self + ' ' + kCloseOnce + " 2>/dev/null";
    for (auto _ : bench) {
        FILE* child = popen(command.c_str(), "r");
        long long micros = -1;
        if (child == nullptr || std::fscanf(child, "%lld", &micros) != 1) {
            micros = -1;
        }
        if (child != nullptr) {
            pclose(child);
        }
        if (micros < 0) {
            bench.SkipWithError("the window process did not report");
            return;
        }
        bench.SetIterationTime(static_cast<double>(micros) * 1e-6);
    }
}

BENCHMARK(closeWhileWorking)
    ->Name("CloseBoardWhileStrategyWorks/JB")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(11)
    ->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], kCloseOnce) == 0) {
        return closeOnce(argc, argv);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
