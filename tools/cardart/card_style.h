// Sizes, colours and suit order shared by every picture the card-art tool draws.
#pragma once

// Qt
#include <QColor>
#include <QRectF>

// Marivale
#include "engine/card.h"

namespace marivale::cardart {

// Every card picture is drawn at twice the size of the board's card button (77 x 103 px).
inline constexpr int kCardWidth = 154;
inline constexpr int kCardHeight = 206;
inline constexpr qreal kCornerRadius = 10.0;

// The deck's inks.
inline constexpr QRgb kInkRed = qRgb(204, 20, 38);
inline constexpr QRgb kInkBlack = qRgb(20, 20, 24);
inline constexpr QRgb kPaper = qRgb(255, 255, 255);
inline constexpr QRgb kCream = qRgb(255, 248, 222); // paper of the bonus cards
inline constexpr QRgb kEdge = qRgb(110, 110, 116);
inline constexpr QRgb kGold = qRgb(232, 180, 40);
inline constexpr QRgb kGoldDark = qRgb(160, 112, 10);
inline constexpr QRgb kSkin = qRgb(250, 218, 180);
inline constexpr QRgb kBlue = qRgb(30, 70, 170);
inline constexpr QRgb kOutline = qRgb(40, 30, 30);

inline QColor suitColor(Suit suit) {
    return QColor(isRed(suit) ? kInkRed : kInkBlack);
}

} // namespace marivale::cardart
