#include "program/program_windows.h"

// Qt
#include <QPointer>

// Marivale
#include "board/game_board.h"
#include "bonus/double_up_dialog.h"
#include "bonus/treasure_hunt_dialog.h"
#include "play/game_variant.h"
#include "shell/help_dialog.h"

namespace marivale {

BoardWindows programBoardWindows() {
    return BoardWindows{
        .doubleUp =
            [](QWidget& board, GameState& state, RandomSource& random, CardPictures& pictures) {
                DoubleUpDialog dialog(state, random, pictures, &board);
                dialog.exec();
            },
        // The Treasure Hunt window is built afresh for every bonus.
        .treasureHunt =
            [](QWidget& board, GameState& state, RandomSource& random) {
                TreasureHuntDialog dialog(random, &board);
                dialog.play(state);
            },
        .help =
            [](QWidget& board) {
                HelpDialog help(&board);
                help.exec();
            },
    };
}

MainMenuHooks programMenuHooks(GameState& state, RandomSource& random, SessionStats& stats) {
    MainMenuHooks hooks;
    hooks.openBoard = [&state, &random, &stats](GameId game, QWidget& menu) {
        QPointer<QDialog> board =
            new GameBoard(variantFor(game), state, random, programBoardWindows(), &menu, &stats);
        // Closing a board returns to the menu; it never ends the program, even with the menu
        // hidden.
        board->setAttribute(Qt::WA_QuitOnClose, false);
        board->exec();
        delete board.data();
    };
    return hooks;
}

} // namespace marivale
