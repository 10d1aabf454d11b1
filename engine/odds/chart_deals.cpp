#include "engine/odds/chart_deals.h"

// Standard library
#include <algorithm>

// Marivale
#include "engine/odds/deal_classes.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/stoppable_once.h"

namespace marivale::odds {
namespace {

constexpr int kChunk = 512;

std::unique_ptr<DealLines> buildLines(GameId game, ChartKind kind, int threads) {
    const std::vector<DealClass>& classes = dealClasses(deckSize(game));
    std::vector<std::array<std::uint64_t, kHoldCount>> keys(classes.size());
    const int chunks = static_cast<int>((classes.size() + kChunk - 1) / kChunk);
    parallelFor(chunks, threads, [&](int, int chunk) {
        const std::size_t first = static_cast<std::size_t>(chunk) * kChunk;
        const std::size_t last = std::min(classes.size(), first + kChunk);
        for (std::size_t i = first; i < last; ++i) {
            for (unsigned mask = 0; mask < kHoldCount; ++mask) {
                keys[i][mask] = chartLineOf(kind, game, classes[i].cards, mask).key();
            }
        }
    });
    // Lines are numbered in one pass so that the numbers never depend on the threads.
    auto built = std::make_unique<DealLines>();
    built->ofDeal.resize(classes.size());
    for (std::size_t i = 0; i < classes.size(); ++i) {
        for (unsigned mask = 0; mask < kHoldCount; ++mask) {
            const auto [at, added] =
                built->indexOfKey.try_emplace(keys[i][mask], static_cast<int>(built->lines.size()));
            if (added) {
                built->lines.push_back(chartLineOf(kind, game, classes[i].cards, mask));
            }
            built->ofDeal[i][mask] = static_cast<std::uint16_t>(at->second);
        }
    }
    return built;
}

} // namespace

const DealLines& dealLines(GameId game, ChartKind kind) {
    static std::array<std::array<StoppableOnce<DealLines>, 2>, kGameCount> byGame{};
    return *byGame[gameIndex(game)][static_cast<std::size_t>(kind)].get(
        {}, [game, kind](std::stop_token) { return buildLines(game, kind, defaultThreadCount()); });
}

ChartDeals::ChartDeals(const DrawTables& tables, const PayScale& scale, ChartKind kind, int threads,
                       std::stop_token stop)
    : game_(tables.game()), kind_(kind) {
    const std::vector<DealClass>& classes = dealClasses(tables.deckSize());
    const std::span<const std::uint8_t> dealSlots = tables.dealOutcomes();
    const ClassPays pays = classPaysFor(tables, scale);
    lines_ = &dealLines(game_, kind_);
    deals_.resize(classes.size());
    const int chunks = static_cast<int>((classes.size() + kChunk - 1) / kChunk);
    parallelFor(chunks, std::max(threads, 1), [&](int, int chunk) {
        if (stop.stop_requested()) {
            return;
        }
        const std::size_t first = static_cast<std::size_t>(chunk) * kChunk;
        const std::size_t last = std::min(classes.size(), first + kChunk);
        for (std::size_t i = first; i < last; ++i) {
            SubsetClasses ids; // filled by subsetClasses
            tables.subsetClasses(classes[i].cards, ids);
            ChartDeal& deal = deals_[i];
            deal.returns = holdReturns(pays, ids, dealSlots[i]);
            deal.lines = lines_->ofDeal[i];
            deal.weight = classes[i].weight;
            deal.best = static_cast<std::uint8_t>(
                std::max_element(deal.returns.begin(), deal.returns.end()) - deal.returns.begin());
        }
    });
    stopped_ = stop.stop_requested();
    for (const ChartDeal& deal : deals_) {
        dealCount_ += deal.weight;
        bestReturn_ += deal.weight * deal.returns[deal.best];
    }
    bestReturn_ /= dealCount_;
}

std::optional<int> ChartDeals::lineIndex(const ChartLine& line) const {
    const auto found = lines_->indexOfKey.find(line.key());
    if (found == lines_->indexOfKey.end()) {
        return std::nullopt;
    }
    return found->second;
}

} // namespace marivale::odds
