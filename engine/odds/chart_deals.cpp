#include "engine/odds/chart_deals.h"

// Standard library
#include <algorithm>

// Marivale
#include "engine/odds/deal_classes.h"
#include "engine/odds/game_odds.h"

namespace marivale::odds {
namespace {

constexpr int kChunk = 512;

} // namespace

ChartDeals::ChartDeals(const DrawTables& tables, const PayScale& scale, int threads)
    : game_(tables.game()) {
    const std::vector<DealClass>& classes = dealClasses(tables.deckSize());
    const std::span<const std::uint8_t> dealSlots = tables.dealOutcomes();
    const ClassPays pays = classPaysFor(tables, scale);
    deals_.resize(classes.size());
    std::vector<std::array<std::uint64_t, kHoldCount>> keys(classes.size());
    const int chunks = static_cast<int>((classes.size() + kChunk - 1) / kChunk);
    parallelFor(chunks, std::max(threads, 1), [&](int, int chunk) {
        const std::size_t first = static_cast<std::size_t>(chunk) * kChunk;
        const std::size_t last = std::min(classes.size(), first + kChunk);
        for (std::size_t i = first; i < last; ++i) {
            SubsetClasses ids; // filled by subsetClasses
            tables.subsetClasses(classes[i].cards, ids);
            ChartDeal& deal = deals_[i];
            deal.returns = holdReturns(pays, ids, dealSlots[i]);
            deal.weight = classes[i].weight;
            deal.best = static_cast<std::uint8_t>(
                std::max_element(deal.returns.begin(), deal.returns.end()) - deal.returns.begin());
            for (unsigned mask = 0; mask < kHoldCount; ++mask) {
                keys[i][mask] = chartLineOf(game_, classes[i].cards, mask).key();
            }
        }
    });
    // Lines are numbered in one pass so that the numbers never depend on the threads.
    for (std::size_t i = 0; i < classes.size(); ++i) {
        ChartDeal& deal = deals_[i];
        for (unsigned mask = 0; mask < kHoldCount; ++mask) {
            const auto [at, added] =
                indexOfKey_.try_emplace(keys[i][mask], static_cast<int>(lines_.size()));
            if (added) {
                lines_.push_back(chartLineOf(game_, classes[i].cards, mask));
            }
            deal.lines[mask] = static_cast<std::uint16_t>(at->second);
        }
        dealCount_ += deal.weight;
        bestReturn_ += deal.weight * deal.returns[deal.best];
    }
    bestReturn_ /= dealCount_;
}

std::optional<int> ChartDeals::lineIndex(const ChartLine& line) const {
    const auto found = indexOfKey_.find(line.key());
    if (found == indexOfKey_.end()) {
        return std::nullopt;
    }
    return found->second;
}

} // namespace marivale::odds
