// marivale-odds GAME [M... | --table NAME] [--bankroll B --hands N [--risk P]...
// [--goal G --stop-loss L]] [--chart [simple] | --chart-holds [simple]]: plays every deal of a game
// the best way and prints how often each final hand comes up, the return ("return: 99.5439%") and
// the variance of one hand's pay in bets squared ("variance: 19.5147"). GAME is JB, DW, WJ or TT;
// the optional multipliers run from the highest code down (ten on DW, nine elsewhere), or NAME
// names a well-known table; without them the game's own pay table is used. With a bankroll of B
// bets and a session of N hands it adds the risk of ruin, and the smallest bankroll for each target
// risk P in percent (1 and 5 unless given). With a win goal of G bets and a stop-loss of L bets it
// adds the chance of reaching each first, of neither in N hands, and the hands played on average.
// With
// --chart it prints instead a strategy chart derived for the table, one numbered line each with its
// share of deals and their return, then the chart's return and its cost; with --chart-holds every
// deal of the deck with the hold the chart plays on it.

// Standard library
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Marivale
#include "engine/game.h"
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/named_tables.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/risk_of_ruin.h"
#include "engine/odds/session_goal.h"
#include "tools/odds/chart_output.h"

namespace {

using namespace marivale;

int usage() {
    std::fputs("usage: marivale-odds GAME [M... | --table NAME] [--bankroll B --hands N [--risk "
               "P]...\n"
               "                                    [--goal G --stop-loss L]]\n"
               "                                    [--chart [simple] | --chart-holds [simple]]\n"
               "  GAME  JB, DW, WJ or TT\n"
               "  M...  the multipliers of the codes from the highest down (10 on DW, 9 "
               "elsewhere);\n"
               "        the game's own pay table when left out\n"
               "  NAME  a well-known table of the game:",
               stderr);
    for (const odds::NamedTable& table : odds::namedTables()) {
        std::fprintf(stderr, " %s", std::string(table.name).c_str());
    }
    std::fputs(
        "\n"
        "  B     the bankroll in bets; N the hands of the session (at most 20000)\n"
        "  P     a target risk of ruin in percent (1 and 5 unless given)\n"
        "  G, L  a win goal and a stop-loss in bets\n"
        "  --chart  a strategy chart for the table, its return and its cost; simple: at most 15 "
        "lines\n"
        "  --chart-holds  every deal's five card codes ascending, then 1 for each card the chart\n"
        "                 holds and 0 for each it discards\n",
        stderr);
    return 2;
}

std::optional<double> parseNumber(std::string_view text) {
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value) ||
        value < 0.0) {
        return std::nullopt;
    }
    return value;
}

std::string codeLabel(GameId game, int code) {
    if (code == 0) {
        return "nothing";
    }
    return std::string(RowName(game, static_cast<std::uint8_t>(code)));
}

struct Session {
    std::optional<double> bankroll{};
    std::optional<double> hands{};
    std::vector<double> risks{};
    std::optional<double> goal{};
    std::optional<double> stopLoss{};
};

// Prints the chances of the session's win goal first, its stop-loss or ruin first, and neither,
// and the hands it lasts on average.
int printGoals(std::span<const odds::Payout> payouts, const Session& session) {
    const auto odds = odds::sessionGoalOdds(payouts, *session.bankroll, *session.goal,
                                            *session.stopLoss, static_cast<int>(*session.hands));
    if (!odds) {
        std::fputs("marivale-odds: too much work for this goal and stop-loss over so many hands\n",
                   stderr);
        return 2;
    }
    std::printf("goal: %.4f%%\n", 100.0 * odds->goal);
    std::printf("stop-loss: %.4f%%\n", 100.0 * odds->stopLoss);
    std::printf("neither: %.4f%%\n", 100.0 * odds->neither);
    std::printf("expected hands: %.2f\n", odds->expectedHands);
    return 0;
}

// Prints the risk of ruin of the session and the bankrolls for the target risks.
int printRuin(const odds::GameOdds& result, const odds::PayScale& scale, const Session& session) {
    const int hands = static_cast<int>(*session.hands);
    const auto payouts = odds::payoutDistribution(result, scale);
    const auto curve = odds::ruinCurve(payouts, hands);
    if (!curve) {
        std::fprintf(stderr,
                     "marivale-odds: too many hands for these pays (at most %d, fewer when the "
                     "pays are not whole bets)\n",
                     odds::kMaxRuinHands);
        return 2;
    }
    if (curve->unit != 1.0 || !curve->exact) {
        std::printf("bankrolls in steps of %g bets%s\n", curve->unit,
                    curve->exact ? "" : " (pays rounded down to 1/64 bet)");
    }
    std::printf("risk of ruin: %.4f%%\n", 100.0 * curve->riskAt(*session.bankroll));
    const std::vector<double> targets =
        session.risks.empty() ? std::vector<double>{1.0, 5.0} : session.risks;
    for (const double target : targets) {
        std::printf("bankroll for %g%% risk: %g bets\n", target,
                    curve->bankrollFor(target / 100.0));
    }
    return session.goal ? printGoals(payouts, session) : 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return usage();
    }
    const std::optional<GameId> game = gameFromShortName(argv[1]);
    if (!game) {
        return usage();
    }
    odds::PayScale scale = odds::ownPayScale(*game);
    std::vector<double> multipliers;
    Session session;
    const odds::NamedTable* named = nullptr;
    bool chart = false;
    bool chartHolds = false;
    odds::ChartKind kind = odds::ChartKind::Complete;
    for (int i = 2; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--chart" || arg == "--chart-holds") {
            (arg == "--chart" ? chart : chartHolds) = true;
            if (i + 1 < argc && std::string_view(argv[i + 1]) == "simple") {
                kind = odds::ChartKind::Simple;
                ++i;
            }
            continue;
        }
        if (arg == "--table") {
            named = i + 1 < argc ? odds::findNamedTable(argv[++i]) : nullptr;
            if (named == nullptr || named->game != *game) {
                std::fprintf(stderr, "marivale-odds: no such table of %s\n", argv[1]);
                return usage();
            }
            scale = odds::payScaleOf(*named);
            continue;
        }
        if (arg == "--bankroll" || arg == "--hands" || arg == "--risk" || arg == "--goal" ||
            arg == "--stop-loss") {
            const std::optional<double> value =
                i + 1 < argc ? parseNumber(argv[++i]) : std::nullopt;
            if (!value) {
                return usage();
            }
            if (arg == "--bankroll") {
                session.bankroll = value;
            } else if (arg == "--hands") {
                session.hands = value;
            } else if (arg == "--goal") {
                session.goal = value;
            } else if (arg == "--stop-loss") {
                session.stopLoss = value;
            } else {
                session.risks.push_back(*value);
            }
            continue;
        }
        const std::optional<double> value = parseNumber(arg);
        if (!value) {
            return usage();
        }
        multipliers.push_back(*value);
    }
    const bool ruin = session.bankroll || session.hands || !session.risks.empty() || session.goal ||
                      session.stopLoss;
    if (ruin &&
        (!session.bankroll || !session.hands || *session.hands != std::floor(*session.hands) ||
         *session.hands > odds::kMaxRuinHands || !session.goal != !session.stopLoss)) {
        return usage();
    }
    if (named != nullptr && !multipliers.empty()) {
        return usage();
    }
    if (!multipliers.empty()) {
        const auto given = odds::payScaleFromMultipliers(*game, multipliers);
        if (!given) {
            std::fprintf(stderr, "marivale-odds: %s needs %d multipliers\n", argv[1],
                         topCode(*game));
            return 2;
        }
        scale = *given;
    }

    if (chart || chartHolds) {
        if (ruin || (chart && chartHolds)) {
            return usage();
        }
        return chart ? odds_tool::printChart(*game, scale, kind)
                     : odds_tool::printChartHolds(*game, scale, kind);
    }
    const odds::DrawTables& tables = odds::DrawTables::forGame(*game);
    const std::optional<odds::GameOdds> result = odds::analyzeGame(tables, scale);
    if (!result) {
        return 1;
    }
    std::printf("%s: %llu deals in %zu classes\n", std::string(shortName(*game)).c_str(),
                static_cast<unsigned long long>(result->deals), result->dealClasses);
    for (int code = topCode(*game); code >= 0; --code) {
        const double p = result->codeProbability[code];
        std::printf("%2d %-32s x%-7g %.9f  1 in %.1f\n", code, codeLabel(*game, code).c_str(),
                    scale.multiplier[code], p, p > 0.0 ? 1.0 / p : 0.0);
    }
    if (facts(*game).bonus == Bonus::TreasureHunt) {
        std::printf("   %-32s +%-7g %.9f  1 in %.1f  (adds %.4f%%: one chest choice)\n",
                    "Treasure Hunt", scale.bonus, result->bonusProbability,
                    result->bonusProbability > 0.0 ? 1.0 / result->bonusProbability : 0.0,
                    100.0 * result->bonusReturn);
    }
    std::printf("return: %.4f%%\n", 100.0 * result->expectedReturn);
    std::printf("variance: %.4f\n", result->variance);
    std::printf("standard deviation: %.4f\n", result->standardDeviation());
    return ruin ? printRuin(*result, scale, session) : 0;
}
