#pragma once

// frmDup: double or nothing on the win of a hand. The window shows a card face down; each guess
// draws a card that is never an Eight and doubles DoubleUpFactor or sets it to 0. It pays nothing
// itself: the board reads DoubleUpFactor when the window has closed, however it was closed.
// The factor stops at the table limit of 16384 (14 correct guesses), the largest doubling that
// fits its 16-bit field; the guess buttons are then disabled and the player can only take it.

// Standard library
#include <cstdint>

// Qt
#include <QDialog>

// Marivale
#include "engine/bonus_games.h"
#include "engine/random_source.h"
#include "state/game_state.h"

class QLabel;
class QPushButton;

namespace marivale {

class CardPictures;

class DoubleUpDialog : public QDialog {
    Q_OBJECT
public:
    static constexpr std::int16_t kTableLimit = kDoubleUpLimit;

    // Builds the window and opens the game: card back shown, DoubleUpFactor 1, RetBtn disabled.
    DoubleUpDialog(GameState& state, RandomSource& random, CardPictures& pictures,
                   QWidget* parent = nullptr);

    // -1 while the player may guess, 0 after a wrong guess.
    std::int16_t canGuess() const { return canGuess_; }

private:
    void buildWindow();
    void load();
    void guess(DoubleUpGuess choice);

    GameState& state_;
    RandomSource& random_;
    CardPictures& pictures_;
    std::int16_t canGuess_{kTrue};

    QLabel* title_{nullptr};
    QPushButton* card_{nullptr};
    QPushButton* low_{nullptr};
    QPushButton* high_{nullptr};
    QPushButton* return_{nullptr};
    QLabel* limitNote_{nullptr};
};

} // namespace marivale
