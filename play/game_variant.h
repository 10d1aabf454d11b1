#pragma once

// How the four boards look and present themselves, as data: one descriptor per game.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/game.h"

namespace marivale {

struct Rgb {
    std::uint8_t red{0};
    std::uint8_t green{0};
    std::uint8_t blue{0};
};

struct GameVariant {
    GameId game{GameId::JacksOrBetter};
    std::string_view boardName{};     // the window's objectName: TTBoard, DWBoard, WJBoard, JBBoard
    std::string_view windowCaption{}; // "Wild Joker" on Joker Wild
    std::string_view title{};         // Label1
    std::string_view noteName{};      // objectName of the note label, empty when there is none
    std::string_view noteText{};
    std::string_view menuButton{};  // objectName of the main-menu button
    std::string_view menuCaption{}; // its caption, with the access key
    Rgb boardColour{};
    Rgb displayColour{};
    std::string_view statCaptionAtZero{}; // main-menu StatFrame caption after a visit ending at 0
};

const GameVariant& variantFor(GameId game);

// The file name of a card's picture on this board: the code, the game's picture suffix on the
// cards that carry it ("41T.gif" for a Three on Treasure Trips), and ".gif".
std::string pictureFileName(GameId game, int code);

inline constexpr std::string_view kCardBackFile = "bb.gif";

} // namespace marivale
