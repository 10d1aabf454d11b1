#pragma once

// TrTrip: the Treasure Hunt bonus of Treasure Trips. Settlement puts one bet in BonusAmount and
// calls play(); each chest the player picks multiplies BonusAmount by a factor of 3 to 30 (steps
// of 3) drawn afresh, and whatever BonusAmount holds when the window closes, by TClose or the
// close box, is the bonus. Escape closes it too, but only once a chest has been chosen: before
// that a stray key would pay one bet instead of at least three. The window touches no other
// part of the state.

// Standard library
#include <array>

// Qt
#include <QDialog>

// Marivale
#include "engine/random_source.h"
#include "engine/settlement.h"
#include "state/game_state.h"

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;

namespace marivale {

class TreasureHuntDialog : public QDialog, public TreasureHunt {
    Q_OBJECT
public:
    explicit TreasureHuntDialog(RandomSource& random, QWidget* parent = nullptr);

    // Opens the window on this state (TrPay empty, TClose hidden) without waiting for it.
    void load(GameState& state);

    // Opens the window on this state and returns when the player has closed it.
    void play(GameState& state) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildWindow();
    void chooseChest();

    RandomSource& random_;
    GameState* state_{nullptr};
    bool chosen_{false}; // a chest has been chosen since the window opened

    QLabel* title_{nullptr};
    QLabel* prompt_{nullptr};
    std::array<QPushButton*, 3> chests_{};
    QLineEdit* pay_{nullptr};
    QPushButton* close_{nullptr};
};

} // namespace marivale
