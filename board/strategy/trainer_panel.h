#pragma once

// Trainer mode in the Strategy window: the switch, the session's tally of weaker holds and their
// cost, and the verdict on the last hold the player used.

// Qt
#include <QWidget>

// Marivale
#include "board/strategy/hold_table.h"
#include "engine/odds/hold_odds.h"
#include "play/strategy/trainer.h"

class QCheckBox;
class QLabel;

namespace marivale {

class TrainerPanel : public QWidget {
    Q_OBJECT
public:
    explicit TrainerPanel(QWidget* parent = nullptr);

    bool isOn() const;
    void clearVerdict();
    // The hold came before its odds: the verdict follows once they are worked out.
    void showChecking();
    // Judges the hold `played` (mask over board positions) of the dealt cards at a bet.
    void judge(const odds::HandOdds& odds, const HandCards& dealt, unsigned played, float bet);

private:
    void showTally();

    TrainerTally tally_{};
    QCheckBox* trainer_{nullptr};
    QLabel* verdict_{nullptr};
    QLabel* tallyLabel_{nullptr};
};

} // namespace marivale
