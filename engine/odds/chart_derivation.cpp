#include "engine/odds/chart_derivation.h"

// Standard library
#include <algorithm>
#include <numeric>
#include <span>

// Marivale
#include "engine/odds/strategy_chart.h"

namespace marivale::odds {
namespace {

// Gains smaller than this (in bets over all deals) are rounding, not a better chart.
constexpr double kLeastGain = 1e-9;

struct Present {
    int line{0};       // a candidate's number
    double value{0.0}; // the best return of the deal's holds that are the line
};

// The candidate lines a deal has, each with its best return.
int presentLines(const ChartDeal& deal, const std::vector<int>& candidateOf,
                 std::array<Present, kHoldCount>& out) {
    int count = 0;
    for (unsigned mask = 0; mask < kHoldCount; ++mask) {
        const int line = candidateOf[deal.lines[mask]];
        if (line < 0) {
            continue;
        }
        auto* const end = out.begin() + count;
        auto* found =
            std::find_if(out.begin(), end, [&](const Present& p) { return p.line == line; });
        if (found == end) {
            out[count++] = {line, deal.returns[mask]};
        } else {
            found->value = std::max(found->value, deal.returns[mask]);
        }
    }
    return count;
}

class Derivation {
public:
    // The lines of `chart` in its order, or with no chart every line that is some deal's best
    // hold, in the order of the deals' pairwise preference.
    Derivation(const ChartDeals& deals, std::span<const int> chart) : deals_(deals) {
        candidateOf_.assign(deals.lines().size(), -1);
        for (const int line : chart) {
            addCandidate(line);
        }
        if (chart.empty()) {
            for (const ChartDeal& deal : deals.deals()) {
                addCandidate(deal.lines[deal.best]);
            }
            addCandidate(*deals.lineIndex(ChartLine{}));
        }
        const int count = static_cast<int>(candidates_.size());
        containing_.resize(count);
        std::vector<double> preference(chart.empty() ? static_cast<std::size_t>(count) * count : 0,
                                       0.0);
        std::array<Present, kHoldCount> present{};
        const auto all = deals.deals();
        for (std::size_t d = 0; d < all.size(); ++d) {
            const int n = presentLines(all[d], candidateOf_, present);
            for (int a = 0; a < n; ++a) {
                containing_[present[a].line].push_back(static_cast<int>(d));
                for (int b = 0; b < n && !preference.empty(); ++b) {
                    preference[present[a].line * count + present[b].line] +=
                        all[d].weight * (present[a].value - present[b].value);
                }
            }
        }
        order_.resize(count);
        std::iota(order_.begin(), order_.end(), 0);
        if (!preference.empty()) {
            // Lines that beat the most, by how much, come first.
            std::vector<double> score(count, 0.0);
            for (int a = 0; a < count; ++a) {
                score[a] = std::accumulate(preference.begin() + a * count,
                                           preference.begin() + (a + 1) * count, 0.0);
            }
            std::stable_sort(order_.begin(), order_.end(),
                             [&](int a, int b) { return score[a] > score[b]; });
        }
        place_.resize(count);
        renumber();
    }

    // Moves each line in turn to its best place; false when no line moved.
    bool improve() {
        bool moved = false;
        for (int line = 0; line < static_cast<int>(candidates_.size()); ++line) {
            moved = moveToBestPlace(line) || moved;
        }
        return moved;
    }

    std::vector<int> chart() const {
        std::vector<int> lines;
        for (const int line : order_) {
            lines.push_back(candidates_[line]);
        }
        return lines;
    }

private:
    void addCandidate(int line) {
        if (candidateOf_[line] < 0) {
            candidateOf_[line] = static_cast<int>(candidates_.size());
            candidates_.push_back(line);
        }
    }

    void renumber() {
        for (std::size_t at = 0; at < order_.size(); ++at) {
            place_[order_[at]] = static_cast<int>(at);
        }
    }

    // For every place the line could take among the others, what the deals that have it gain.
    bool moveToBestPlace(int line) {
        const int others = static_cast<int>(order_.size()) - 1;
        std::vector<double> gainUpTo(others + 2, 0.0);
        const auto all = deals_.deals();
        for (const int d : containing_[line]) {
            const ChartDeal& deal = all[d];
            double own = 0.0;
            double otherReturn = deal.returns[0];
            int otherPlace = kUnlisted;
            for (unsigned mask = 0; mask < kHoldCount; ++mask) {
                const int candidate = candidateOf_[deal.lines[mask]];
                const double value = deal.returns[mask];
                if (candidate == line) {
                    own = std::max(own, value);
                } else if (candidate >= 0 &&
                           (place_[candidate] < otherPlace ||
                            (place_[candidate] == otherPlace && value > otherReturn))) {
                    otherPlace = place_[candidate];
                    otherReturn = value;
                }
            }
            // Among the others the deal's first line stands at `first`; the line is played when
            // put at any place up to there.
            const int first =
                otherPlace == kUnlisted ? others : otherPlace - (otherPlace > place_[line] ? 1 : 0);
            gainUpTo[first] += deal.weight * (own - otherReturn);
        }
        // gainAt(k) = the gains of every deal whose first other line is at k or below.
        int best = place_[line];
        double bestGain = 0.0;
        double current = 0.0;
        double running = 0.0;
        std::vector<double> gainAt(others + 1, 0.0);
        for (int k = others; k >= 0; --k) {
            running += gainUpTo[k];
            gainAt[k] = running;
        }
        current = gainAt[place_[line]];
        bestGain = current;
        for (int k = 0; k <= others; ++k) {
            if (gainAt[k] > bestGain + kLeastGain) {
                bestGain = gainAt[k];
                best = k;
            }
        }
        if (best == place_[line]) {
            return false;
        }
        order_.erase(order_.begin() + place_[line]);
        order_.insert(order_.begin() + best, line);
        renumber();
        return true;
    }

    const ChartDeals& deals_;
    std::vector<int> candidateOf_{}; // by line of the deals: its candidate number, or -1
    std::vector<int> candidates_{};  // by candidate number: the line of the deals
    std::vector<std::vector<int>> containing_{}; // by candidate: the deals that have it
    std::vector<int> order_{};                   // candidates from the top of the chart down
    std::vector<int> place_{};                   // by candidate: its place in order_
};

// Orders the lines of `chart` (every best hold's line when empty) until no move gains, and
// leaves out the lines no deal plays.
std::vector<int> orderLines(const ChartDeals& deals, std::span<const int> chart, int maxPasses,
                            std::stop_token stop) {
    Derivation derivation(deals, chart);
    for (int pass = 0; pass < maxPasses && !stop.stop_requested() && derivation.improve(); ++pass) {
    }
    std::vector<int> ordered = derivation.chart();
    // A line no deal plays changes nothing where it stands.
    const ChartFigures figures = evaluateChart(deals, ordered);
    std::vector<int> used;
    for (const LineUse& use : figures.uses) {
        if (use.share > 0.0) {
            used.push_back(use.line);
        }
    }
    return used;
}

} // namespace

std::vector<int> deriveChart(const ChartDeals& deals, int maxPasses, std::stop_token stop) {
    return orderLines(deals, {}, maxPasses, stop);
}

std::vector<int> simplifyChart(const ChartDeals& deals, std::span<const int> chart, int maxLines,
                               int maxPasses, std::stop_token stop) {
    std::vector<int> kept(chart.begin(), chart.end());
    const int discard = *deals.lineIndex(ChartLine{});
    while (static_cast<int>(kept.size()) > std::max(maxLines, 1) && !stop.stop_requested()) {
        const std::vector<double> worth = lineWorths(deals, kept);
        std::size_t least = kept.size();
        for (std::size_t at = 0; at < kept.size(); ++at) {
            if (kept[at] != discard && (least == kept.size() || worth[at] < worth[least])) {
                least = at;
            }
        }
        if (least == kept.size()) {
            break;
        }
        kept.erase(kept.begin() + static_cast<long>(least));
    }
    return orderLines(deals, kept, maxPasses, stop);
}

std::vector<int> chartOfKind(const ChartDeals& deals, int simpleLines, std::stop_token stop) {
    const std::vector<int> complete = deriveChart(deals, kChartPasses, stop);
    return deals.kind() == ChartKind::Simple
               ? simplifyChart(deals, complete, simpleLines, kChartPasses, stop)
               : complete;
}

} // namespace marivale::odds
