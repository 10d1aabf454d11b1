// Deals every 5-card hand of each game's deck through AnalyzeHand and counts the codes.
// Usage: marivale-census [GAME...] with GAME one of JB DW WJ TT (default: all four).

// Standard library
#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

// Marivale
#include "engine/hand_analysis.h"

using namespace marivale;

namespace {

struct Census {
    std::array<std::uint64_t, 11> codes{};
    std::uint64_t bonus{0};
    std::uint64_t total{0};
};

Census takeCensus(GameId game) {
    Census census;
    GameState state;
    const int n = deckSize(game);
    for (int a = 0; a < n; ++a) {
        for (int b = a + 1; b < n; ++b) {
            for (int c = b + 1; c < n; ++c) {
                for (int d = c + 1; d < n; ++d) {
                    for (int e = d + 1; e < n; ++e) {
                        state.Hand = {static_cast<float>(a), static_cast<float>(b),
                                      static_cast<float>(c), static_cast<float>(d),
                                      static_cast<float>(e), 0.0f};
                        const HandAnalysis result = AnalyzeHand(state, game);
                        ++census.codes[result.code];
                        census.bonus += isSet(state.BonusDue) ? 1 : 0;
                        ++census.total;
                    }
                }
            }
        }
    }
    return census;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<GameId> games;
    for (int i = 1; i < argc; ++i) {
        const auto game = gameFromShortName(argv[i]);
        if (!game) {
            std::fprintf(stderr, "usage: marivale-census [JB|DW|WJ|TT]...\n");
            return 2;
        }
        games.push_back(*game);
    }
    if (games.empty()) {
        games.assign(kAllGames.begin(), kAllGames.end());
    }
    for (const GameId game : games) {
        const Census census = takeCensus(game);
        std::printf("%.*s", static_cast<int>(shortName(game).size()), shortName(game).data());
        for (const std::uint64_t count : census.codes) {
            std::printf(" %llu", static_cast<unsigned long long>(count));
        }
        std::printf(" bonus %llu total %llu\n", static_cast<unsigned long long>(census.bonus),
                    static_cast<unsigned long long>(census.total));
    }
    return 0;
}
