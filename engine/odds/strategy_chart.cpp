#include "engine/odds/strategy_chart.h"

namespace marivale::odds {

std::vector<int> chartPlaces(const ChartDeals& deals, std::span<const int> chart) {
    std::vector<int> places(deals.lines().size(), kUnlisted);
    for (std::size_t at = 0; at < chart.size(); ++at) {
        places[chart[at]] = std::min(places[chart[at]], static_cast<int>(at));
    }
    return places;
}

unsigned chartHold(const ChartDeal& deal, std::span<const int> places) {
    unsigned chosen = 0;
    int first = kUnlisted;
    for (unsigned mask = 0; mask < kHoldCount; ++mask) {
        const int place = places[deal.lines[mask]];
        if (place < first ||
            (place == first && place != kUnlisted && deal.returns[mask] > deal.returns[chosen])) {
            first = place;
            chosen = mask;
        }
    }
    return first == kUnlisted ? 0u : chosen;
}

ChartFigures evaluateChart(const ChartDeals& deals, std::span<const int> chart) {
    const std::vector<int> places = chartPlaces(deals, chart);
    std::vector<double> weights(chart.size(), 0.0);
    std::vector<double> paid(chart.size(), 0.0);
    std::vector<LineUse> uses(chart.size());
    double total = 0.0;
    const auto all = deals.deals();
    for (std::size_t d = 0; d < all.size(); ++d) {
        const ChartDeal& deal = all[d];
        const unsigned hold = chartHold(deal, places);
        const double paidHere = deal.weight * deal.returns[hold];
        total += paidHere;
        const int place = places[deal.lines[hold]];
        if (place != kUnlisted) {
            weights[place] += deal.weight;
            paid[place] += paidHere;
            LineUse& use = uses[place];
            if (use.example < 0 || deal.weight > all[use.example].weight) {
                use.example = static_cast<int>(d);
                use.exampleHold = hold;
            }
        }
    }
    ChartFigures figures;
    figures.expectedReturn = total / deals.dealCount();
    figures.cost = deals.bestReturn() - figures.expectedReturn;
    for (std::size_t at = 0; at < chart.size(); ++at) {
        LineUse& use = uses[at];
        use.line = chart[at];
        use.share = weights[at] / deals.dealCount();
        use.meanReturn = weights[at] > 0.0 ? paid[at] / weights[at] : 0.0;
        figures.uses.push_back(use);
    }
    return figures;
}

std::vector<double> lineWorths(const ChartDeals& deals, std::span<const int> chart) {
    const std::vector<int> places = chartPlaces(deals, chart);
    std::vector<double> worth(chart.size(), 0.0);
    for (const ChartDeal& deal : deals.deals()) {
        const unsigned hold = chartHold(deal, places);
        const int place = places[deal.lines[hold]];
        if (place == kUnlisted) {
            continue;
        }
        // The hold played were the line left out.
        unsigned next = 0;
        int nextPlace = kUnlisted;
        for (unsigned mask = 0; mask < kHoldCount; ++mask) {
            const int at = places[deal.lines[mask]];
            if (at != place && (at < nextPlace || (at == nextPlace && at != kUnlisted &&
                                                   deal.returns[mask] > deal.returns[next]))) {
                nextPlace = at;
                next = mask;
            }
        }
        const unsigned instead = nextPlace == kUnlisted ? 0u : next;
        worth[place] += deal.weight * (deal.returns[hold] - deal.returns[instead]);
    }
    return worth;
}

} // namespace marivale::odds
