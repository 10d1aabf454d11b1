#include "engine/game.h"

namespace marivale {

namespace {
// The tools' short name of each game, in GameId order.
constexpr std::array<std::string_view, 4> kShortNames{"TT", "DW", "WJ", "JB"};
} // namespace

std::string_view shortName(GameId game) {
    return kShortNames.at(static_cast<std::size_t>(game));
}

std::optional<GameId> gameFromShortName(std::string_view name) {
    for (std::size_t i = 0; i < kShortNames.size(); ++i) {
        if (kShortNames[i] == name) {
            return static_cast<GameId>(i);
        }
    }
    return std::nullopt;
}

} // namespace marivale
