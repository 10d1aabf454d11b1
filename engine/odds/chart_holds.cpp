#include "engine/odds/chart_holds.h"

// Standard library
#include <algorithm>
#include <string>
#include <vector>

// Marivale
#include "engine/odds/combinatorics.h"
#include "engine/odds/deal_classes.h"
#include "engine/odds/strategy_chart.h"

namespace marivale::odds {
namespace {

constexpr std::size_t kBlock = 1 << 16;

// Renames the suits of a deal so that their rank patterns never increase from suit 0 to suit 3,
// as a deal class's cards are, and gives each card's new code.
HandCards canonicalCodes(const HandCards& deal) {
    std::array<unsigned, kSuitCount> pattern{};
    for (const CardCode card : deal) {
        if (card != kJoker) {
            pattern[suitIndex(card)] |= 1u << rankIndex(card);
        }
    }
    std::array<int, kSuitCount> bySize{0, 1, 2, 3};
    std::stable_sort(bySize.begin(), bySize.end(),
                     [&](int a, int b) { return pattern[a] > pattern[b]; });
    std::array<int, kSuitCount> renamed{};
    for (int to = 0; to < kSuitCount; ++to) {
        renamed[bySize[to]] = to;
    }
    HandCards codes{};
    for (int p = 0; p < kHandSize; ++p) {
        codes[p] = deal[p] == kJoker
                       ? kJoker
                       : renamed[suitIndex(deal[p])] * kRanksPerSuit + rankIndex(deal[p]);
    }
    return codes;
}

void appendCode(std::string& text, CardCode code) {
    if (code >= 10) {
        text += static_cast<char>('0' + code / 10);
    }
    text += static_cast<char>('0' + code % 10);
}

} // namespace

void writeChartHolds(const ChartDeals& deals, std::span<const int> chart,
                     const std::function<void(std::string_view)>& out) {
    const int deckSize = marivale::deckSize(deals.game());
    const std::vector<DealClass>& classes = dealClasses(deckSize);
    const std::vector<int> places = chartPlaces(deals, chart);
    // Each class by the colex number of its cards, with the hold the chart plays on it.
    std::vector<int> classOf(binomial(deckSize, kHandSize), -1);
    std::vector<std::uint8_t> holdOf(classes.size(), 0);
    for (std::size_t c = 0; c < classes.size(); ++c) {
        classOf[subsetIndex(classes[c].cards)] = static_cast<int>(c);
        holdOf[c] = static_cast<std::uint8_t>(chartHold(deals.deals()[c], places));
    }
    std::string text;
    text.reserve(kBlock + 64);
    HandCards deal{};
    for (deal[0] = 0; deal[0] < deckSize; ++deal[0]) {
        for (deal[1] = deal[0] + 1; deal[1] < deckSize; ++deal[1]) {
            for (deal[2] = deal[1] + 1; deal[2] < deckSize; ++deal[2]) {
                for (deal[3] = deal[2] + 1; deal[3] < deckSize; ++deal[3]) {
                    for (deal[4] = deal[3] + 1; deal[4] < deckSize; ++deal[4]) {
                        const HandCards codes = canonicalCodes(deal);
                        HandCards sorted = codes;
                        std::sort(sorted.begin(), sorted.end());
                        const int c = classOf[subsetIndex(sorted)];
                        const unsigned hold = holdOf[c];
                        for (const CardCode card : deal) {
                            appendCode(text, card);
                            text += ' ';
                        }
                        for (int p = 0; p < kHandSize; ++p) {
                            const auto at =
                                std::find(sorted.begin(), sorted.end(), codes[p]) - sorted.begin();
                            text += ((hold >> at) & 1u) != 0 ? '1' : '0';
                            text += p + 1 < kHandSize ? ' ' : '\n';
                        }
                        if (text.size() >= kBlock) {
                            out(text);
                            text.clear();
                        }
                    }
                }
            }
        }
    }
    out(text);
}

} // namespace marivale::odds
