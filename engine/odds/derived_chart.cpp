#include "engine/odds/derived_chart.h"

// Marivale
#include "engine/odds/chart_deals.h"
#include "engine/odds/chart_derivation.h"
#include "engine/odds/deal_classes.h"
#include "engine/odds/strategy_chart.h"

namespace marivale::odds {

std::optional<int> DerivedChart::rowOf(std::span<const CardCode, kHandSize> deal) const {
    std::optional<int> first;
    for (unsigned held = 0; held < kHoldCount; ++held) {
        const auto found = rowOfKey_.find(chartLineOf(kind, game, deal, held).key());
        if (found != rowOfKey_.end() && (!first || found->second < *first)) {
            first = found->second;
        }
    }
    return first;
}

std::string DerivedChart::holdLineName(std::span<const CardCode, kHandSize> deal,
                                       unsigned held) const {
    return lineName(game, chartLineOf(kind, game, deal, held));
}

std::optional<DerivedChart> deriveStrategyChart(const DrawTables& tables, const PayScale& scale,
                                                ChartKind kind, std::stop_token stop) {
    const ChartDeals deals(tables, scale, kind, defaultThreadCount(), stop);
    if (deals.stopped()) {
        return std::nullopt;
    }
    const std::vector<int> lines = chartOfKind(deals, kSimpleChartLines, stop);
    if (stop.stop_requested()) {
        return std::nullopt;
    }
    const ChartFigures figures = evaluateChart(deals, lines);
    const std::vector<double> worths = lineWorths(deals, lines);
    const std::vector<DealClass>& classes = dealClasses(tables.deckSize());
    DerivedChart chart;
    chart.game = tables.game();
    chart.kind = kind;
    chart.bestReturn = deals.bestReturn();
    chart.expectedReturn = figures.expectedReturn;
    chart.cost = figures.cost;
    for (std::size_t at = 0; at < figures.uses.size(); ++at) {
        const LineUse& use = figures.uses[at];
        ChartRow row{.line = deals.lines()[use.line],
                     .name = lineName(chart.game, deals.lines()[use.line]),
                     .share = use.share,
                     .meanReturn = use.meanReturn,
                     .worth = worths[at] / deals.dealCount()};
        if (use.example >= 0) {
            row.example = classes[use.example].cards;
            row.exampleHold = use.exampleHold;
        }
        chart.rowOfKey_.try_emplace(row.line.key(), static_cast<int>(at));
        chart.rows.push_back(std::move(row));
    }
    return chart;
}

} // namespace marivale::odds
