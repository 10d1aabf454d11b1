#include "play/strategy/game_odds_cache.h"

// Standard library
#include <array>
#include <mutex>

namespace marivale {
namespace {

struct Cache {
    std::mutex mutex{};
    std::array<std::optional<odds::GameOdds>, kGameCount> byGame{};
};

Cache& cache() {
    static Cache instance;
    return instance;
}

} // namespace

std::optional<odds::GameOdds> cachedGameOdds(GameId game) {
    Cache& all = cache();
    const std::lock_guard lock(all.mutex);
    return all.byGame[gameIndex(game)];
}

void storeGameOdds(const odds::GameOdds& result) {
    Cache& all = cache();
    const std::lock_guard lock(all.mutex);
    all.byGame[gameIndex(result.game)] = result;
}

} // namespace marivale
