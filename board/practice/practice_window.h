#pragma once

// The Practice window, a companion to a board: drills of the board's game at its own pay table.
// It deals a hand of the mode chosen, the player holds (a click on a card or 1 to 5) and submits
// (Enter or Submit), and it shows at once the best hold, its chart line, the player's hold, its
// line and the cost in bets, with the drill's score and its trend. Enter deals the next hand.
// Nothing here touches the board or its money. With MARIVALE_TIMING_LOG naming a file, it writes
// there how long each Enter took from the key to the painted answer.

// Standard library
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

// Qt
#include <QFile>
#include <QWidget>

// Marivale
#include "engine/random_source.h"
#include "play/background_job.h"
#include "play/practice/practice_drill.h"
#include "ui/card_pictures.h"
#include "ui/key_repeat_guard.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace marivale {

class DrillChart;

class PracticeWindow : public QWidget {
    Q_OBJECT
public:
    // Deals from a source of its own, never the board's, so the board's deals stay as they were.
    PracticeWindow(GameId game, QWidget* parent = nullptr,
                   std::unique_ptr<RandomSource> random = std::make_unique<ClockRandomSource>());
    ~PracticeWindow() override;

    // The chart lines the player gets wrong most, with their mistakes, from the player's record;
    // the drill's own mistakes count beside them.
    void setWeakLines(const std::vector<WeakLine>& lines);
    const PracticeDrill& drill() const { return drill_; }
    // True until the game's odds are ready to deal.
    bool working() const { return working_; }

signals:
    // The weak-spot mode was chosen: whoever keeps the player's record may answer with
    // setWeakLines().
    void weakLinesWanted();
    // A drill hand was judged: whoever keeps the player's record may keep it apart from play.
    void drillJudged(GameId game, const HandCards& dealt, const DrillVerdict& verdict);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool handleKey(const QKeyEvent& event);
    void modeChosen(int index);
    void toggle(int position);
    void enter();
    void submit();
    void dealNext();
    void showHand();
    void showVerdict();
    void showScore();
    void showWeakLines();
    void oddsReady();
    void answerPainted();

    std::unique_ptr<RandomSource> random_;
    PracticeDrill drill_;
    CardPictures pictures_{};
    bool working_{true};
    bool picturesReady_{false};
    KeyRepeatGuard keys_{};

    QComboBox* mode_{nullptr};
    std::array<QPushButton*, kHandSize> cards_{};
    std::array<QLabel*, kHandSize> marks_{};
    QLabel* verdict_{nullptr};
    QLabel* weak_{nullptr};
    QLabel* score_{nullptr};
    QPushButton* submit_{nullptr};
    QPushButton* next_{nullptr};
    DrillChart* chart_{nullptr};

    QFile timingLog_{};
    std::optional<std::chrono::steady_clock::time_point> keyAt_{};

    // Last member: stopped and joined first when the window goes.
    BackgroundJob work_{};
};

} // namespace marivale
