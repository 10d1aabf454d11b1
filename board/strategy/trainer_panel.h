#pragma once

// Trainer mode in the Strategy window: the switch, the verdict on the last hold the player used,
// and the visit's tally of weaker holds and their cost, which the statistics keep.

// Qt
#include <QWidget>

// Marivale
#include "engine/odds/hold_odds.h"
#include "play/stats/session_stats.h"
#include "play/strategy/hold_judgement.h"

class QCheckBox;
class QLabel;

namespace marivale {

class TrainerPanel : public QWidget {
    Q_OBJECT
public:
    explicit TrainerPanel(QWidget* parent = nullptr);

    bool isOn() const;
    void setOn(bool on);
    void clearVerdict();
    // The hold came before its odds: the verdict follows once they are worked out.
    void showChecking();
    // Judges the hold `played` (mask over board positions) of the dealt cards at a bet and
    // shows the verdict with the chart lines of both holds, naming the board's table when the
    // list shows an edited one.
    HoldJudgement judge(GameId game, const odds::HandOdds& odds, const HandCards& dealt,
                        unsigned played, float bet, bool listEdited);
    void showTally(const TrainerSummary& summary);

signals:
    void switched(bool on);

private:
    QCheckBox* trainer_{nullptr};
    QLabel* verdict_{nullptr};
    QLabel* tallyLabel_{nullptr};
};

} // namespace marivale
