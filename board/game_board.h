#pragma once

// The game board window shared by the four games, parameterised by a GameVariant.

#include <memory>

#include <QDialog>

#include "board/board_windows.h"
#include "engine/random_source.h"
#include "play/game_variant.h"
#include "state/game_state.h"

namespace marivale {

class SessionStats;

class GameBoard : public QDialog {
    Q_OBJECT
public:
    // Builds the board and runs its load: the visit's money, the pay table, the bell, the backs.
    // The visit's hands are recorded in the run's statistics when given, else in the board's own.
    GameBoard(const GameVariant& variant, GameState& state, RandomSource& random,
              BoardWindows windows, QWidget* parent = nullptr, SessionStats* stats = nullptr);
    ~GameBoard() override;

    // Closing the board in any way unloads it: remaining credits are cashed out and the visit's
    // net joins NetWinLoss.
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace marivale
