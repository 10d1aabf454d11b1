#pragma once

// Trainer mode in the Strategy window: the switch, the verdict on the last hold the player used,
// and the visit's tally of weaker holds and their cost, which the statistics keep.

// Qt
#include <QWidget>

// Marivale
#include "engine/odds/hold_odds.h"
#include "play/stats/session_stats.h"
#include "play/strategy/hold_judgement.h"
#include "play/strategy/mistake_guard.h"

class QCheckBox;
class QDoubleSpinBox;
class QLabel;

namespace marivale {

// The warning before a costly hold as the player last set it; off until switched on.
WarningOption savedWarningOption();
void saveWarningOption(const WarningOption& option);

// What the trainer says when the draw waits: the cost, both holds by their chart lines, and
// how to go on.
QString warningText(GameId game, const MistakeWarning& warning);

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
    void setWarningOption(const WarningOption& option);
    // The draw waits: the warning with the cards of both holds.
    void showWarning(GameId game, const MistakeWarning& warning);

signals:
    void switched(bool on);
    // The player changed the warning before a costly hold; it is saved already.
    void warningChanged(const WarningOption& option);

private:
    void warningEdited();

    QCheckBox* trainer_{nullptr};
    QCheckBox* warn_{nullptr};
    QDoubleSpinBox* threshold_{nullptr};
    QLabel* verdict_{nullptr};
    QLabel* tallyLabel_{nullptr};
};

} // namespace marivale
