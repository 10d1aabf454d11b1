#pragma once

// The keyboard of a board: 1 to 5 (top row or keypad) hold as a click on Card0..Card4 does,
// Enter, Return and the keypad's Enter act as a click on DrawDeal. Enter belongs to the board,
// never to whichever button has the focus.

// Marivale
#include "board/board_design.h"

class QKeyEvent;
class QWidget;

namespace marivale {

class KeyRepeatGuard;

// Makes no board button a default one, so Enter reaches the board, lets every access key click
// at once, and names the keys in the tooltips of the cards and DrawDeal.
void prepareBoardKeys(QWidget& board, const BoardWidgets& widgets);

// Plays a key as the click it stands for; true when the key is one of the board's. A disabled
// or hidden control stays deaf, and a key held down plays only once, however busy the machine.
bool playBoardKey(const BoardWidgets& widgets, const QKeyEvent& event, const KeyRepeatGuard& keys);

} // namespace marivale
