#include "record/run_figures.h"

// Standard library
#include <algorithm>
#include <map>

// Marivale
#include "record/record_rows.h"

namespace marivale {
namespace {

constexpr int kBlockHands = 100;

bool ended(const HandRecord& hand) {
    return hand.finished || hand.abandoned;
}

} // namespace

std::vector<TableFigures> runFigures(const SessionStats& stats) {
    std::vector<TableFigures> figures;
    for (const GameId game : kAllGames) {
        const Tally& tally = stats.game(game);
        if (tally.hands == 0) {
            continue;
        }
        TableFigures f{.game = game, .payTable = payTableText(game)};
        for (const HandRecord& hand : stats.history()) {
            if (hand.game == game && ended(hand)) {
                ++f.hands;
                f.bet += hand.bet;
                f.paid += hand.paid;
                if (hand.finished && hand.played) {
                    ++f.codes[hand.code];
                }
            }
        }
        for (const LineCost& line : runLineCosts(stats, game)) {
            f.judged += line.judged;
            f.mistakes += line.mistakes;
            f.cost += line.cost;
        }
        figures.push_back(f);
    }
    return figures;
}

std::vector<LineCost> runLineCosts(const SessionStats& stats, GameId game) {
    std::map<QString, LineCost> lines;
    for (const HandRecord& hand : stats.history()) {
        if (hand.game != game || !hand.judgement || !ended(hand)) {
            continue;
        }
        LineCost& line = lines[bestLineText(hand)];
        line.line = bestLineText(hand);
        ++line.judged;
        line.mistakes += hand.judgement->mistake ? 1 : 0;
        line.cost += hand.judgement->cost;
    }
    std::vector<LineCost> sorted;
    for (const auto& [name, line] : lines) {
        sorted.push_back(line);
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const LineCost& a, const LineCost& b) { return a.cost > b.cost; });
    return sorted;
}

std::vector<ProgressPoint> runProgress(const SessionStats& stats, GameId game) {
    std::vector<ProgressPoint> points;
    ProgressPoint point;
    int judged = 0;
    double cost = 0.0;
    for (const HandRecord& hand : stats.history()) {
        if (hand.game != game || !ended(hand)) {
            continue;
        }
        ++point.hands;
        point.net += double(hand.paid) - double(hand.bet);
        if (hand.judgement) {
            ++judged;
            cost += hand.judgement->cost;
        }
        if (point.hands % kBlockHands == 0) {
            point.costPer100 =
                judged > 0 ? std::optional<double>(cost * 100.0 / judged) : std::nullopt;
            points.push_back(point);
            judged = 0;
            cost = 0.0;
        }
    }
    if (point.hands % kBlockHands != 0) {
        point.costPer100 = judged > 0 ? std::optional<double>(cost * 100.0 / judged) : std::nullopt;
        points.push_back(point);
    }
    return points;
}

} // namespace marivale
