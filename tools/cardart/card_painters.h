// The parts of the deck drawn by hand rather than laid out from pips.
#pragma once

// Qt
#include <QImage>
#include <QPainter>

// Marivale
#include "card_style.h"

namespace marivale::cardart {

// Jack (rank 10), Queen (11) or King (12): a framed two-headed portrait.
void paintCourt(QPainter& painter, Suit suit, int rank);

// The joker's face, corners included.
void paintJoker(QPainter& painter);

// The treasure mark of the bonus Threes: gold frame and two "BONUS" plaques.
void paintTreasureFrame(QPainter& painter);
void paintTreasurePlaques(QPainter& painter);

// The ribbon across the middle of a wild Two.
void paintWildBanner(QPainter& painter);

// The back of every card.
QImage drawCardBack();

} // namespace marivale::cardart
