#pragma once

// Any hand studied in the Strategy window: five cards of the game's deck typed ("As Kd Tc 5h
// Jk") or picked from a grid, sent to the window to show its 32 holds, its best play and its
// chart line; input that is no such hand gets a message saying what is wrong.

// Qt
#include <QWidget>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/odds/hold_odds.h"

class QLabel;
class QLineEdit;

namespace marivale {

class StudyPanel : public QWidget {
    Q_OBJECT
public:
    StudyPanel(GameId game, QWidget* parent = nullptr);

    // Reads the cards typed and studies them, or says what is wrong.
    void study();
    // The best play of the hand studied, by its chart line.
    void showBestPlay(const HandCards& cards, const odds::HandOdds& odds);

signals:
    void studied(const HandCards& cards);

private:
    void pick();

    GameId game_;
    QLineEdit* cards_{nullptr};
    QLabel* note_{nullptr};
};

} // namespace marivale
