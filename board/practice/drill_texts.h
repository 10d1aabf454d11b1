#pragma once

// What the Practice window writes: the answer to a hand, the score, the weak spots.

// Standard library
#include <vector>

// Qt
#include <QString>

// Marivale
#include "play/practice/practice_drill.h"

namespace marivale {

// Rich text: how to play the hand dealt, or once judged the best hold and the player's, each
// with its chart line and return, and the cost.
QString drillAnswerText(const PracticeDrill& drill);
// "Hands 12     Accuracy 83.3%     Cost per 100 hands 4.12 bets"
QString drillScoreText(const DrillScore& score);
// The weak spots dealt, most mistakes first, with their mistakes.
QString weakLinesText(const std::vector<WeakLine>& lines);

} // namespace marivale
