// marivale-odds GAME [M...]: plays every deal of a game the best way and prints how often each
// final hand comes up and, on its last line, the return ("return: 99.5439%").
// GAME is JB, DW, WJ or TT; the optional multipliers run from the highest code down (ten on
// DW, nine elsewhere); without them the game's own pay table is used.

// Standard library
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Marivale
#include "engine/game.h"
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/pay_scale.h"

namespace {

using namespace marivale;

int usage() {
    std::fputs("usage: marivale-odds GAME [M...]\n"
               "  GAME  JB, DW, WJ or TT\n"
               "  M...  the multipliers of the codes from the highest down (10 on DW, 9 "
               "elsewhere);\n"
               "        the game's own pay table when left out\n",
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
    if (game == GameId::JokerWild && code == 1) {
        return "Two Pair or Pair of Aces";
    }
    return std::string(CodeName(game, static_cast<std::uint8_t>(code)));
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
    if (argc > 2) {
        std::vector<double> multipliers;
        for (int i = 2; i < argc; ++i) {
            const std::optional<double> value = parseNumber(argv[i]);
            if (!value) {
                return usage();
            }
            multipliers.push_back(*value);
        }
        const auto given = odds::payScaleFromMultipliers(*game, multipliers);
        if (!given) {
            std::fprintf(stderr, "marivale-odds: %s needs %d multipliers\n", argv[1],
                         topCode(*game));
            return 2;
        }
        scale = *given;
    }

    const odds::DrawTables& tables = odds::DrawTables::forGame(*game);
    const std::optional<odds::GameOdds> result = odds::analyzeGame(tables, scale);
    if (!result) {
        return 1;
    }
    std::printf("%s: %llu deals in %zu classes\n", std::string(shortName(*game)).c_str(),
                static_cast<unsigned long long>(result->deals), result->dealClasses);
    for (int code = topCode(*game); code >= 0; --code) {
        const double p = result->codeProbability[static_cast<std::size_t>(code)];
        std::printf("%2d %-32s x%-7g %.9f  1 in %.1f\n", code, codeLabel(*game, code).c_str(),
                    scale.multiplier[static_cast<std::size_t>(code)], p, p > 0.0 ? 1.0 / p : 0.0);
    }
    if (*game == GameId::TreasureTrips) {
        std::printf("   %-32s +%-7g %.9f  1 in %.1f  (adds %.4f%%: one chest choice)\n",
                    "Treasure Hunt", scale.bonus, result->bonusProbability,
                    result->bonusProbability > 0.0 ? 1.0 / result->bonusProbability : 0.0,
                    100.0 * result->bonusReturn);
    }
    std::printf("return: %.4f%%\n", 100.0 * result->expectedReturn);
    return 0;
}
