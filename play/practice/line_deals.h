#pragma once

// Every deal of a game's deck filed by the complete chart line of its best hold, by deal class,
// so that a drill can deal a line however rarely it comes up, each of its deals as likely as any
// other. Filing a deck takes about half a second; it is done once, off the window's thread.

// Standard library
#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/random_source.h"

namespace marivale {

class LineDeals {
public:
    // Files every deal class of the game's deck; nothing once `stop` is requested.
    static std::shared_ptr<const LineDeals> build(GameId game, std::stop_token stop = {});

    // A deal whose best hold plays the line: a class picked by its number of deals, its suits
    // renamed and its cards shuffled at random; nothing when no deal plays the line.
    std::optional<HandCards> deal(const std::string& line, RandomSource& random) const;
    // How many deals of the deck play the line.
    std::int64_t deals(const std::string& line) const;

private:
    struct Filed {
        std::vector<int> classes{};          // into dealClasses(deck size)
        std::vector<std::int64_t> running{}; // deals in the classes up to and including each
    };

    GameId game_{GameId::JacksOrBetter};
    std::unordered_map<std::string, Filed> byLine_{};
};

} // namespace marivale
