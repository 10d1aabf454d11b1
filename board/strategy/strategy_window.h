#pragma once

// The Strategy window: a companion to a board that lists the 32 ways to hold the dealt hand by
// their exact return, the game's return, variance and hit frequencies under the best play, the
// risk of ruin of a session, the strategy chart of the table, and in trainer mode tells the player
// after a draw what a weaker hold cost. The player may try another pay table here: the window then
// shows every figure under that table, marked as not the board's, while the board and the trainer
// keep the board's own table. It only reads the shared state; closing it changes nothing on the
// board. Its odds tables, whole-game figures and risk curve are worked out on background threads
// that stop as soon as the window goes, so the board never waits for them.

// Standard library
#include <array>
#include <optional>

// Qt
#include <QWidget>

// Marivale
#include "board/strategy/hold_table.h"
#include "engine/game.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/pay_scale.h"
#include "engine/odds/risk_of_ruin.h"
#include "play/background_job.h"
#include "play/stats/session_stats.h"
#include "play/strategy/hold_judgement.h"
#include "play/strategy/mistake_guard.h"
#include "state/game_state.h"

class QKeyEvent;
class QResizeEvent;
class QLabel;

namespace marivale {

class ChartPage;
class GameFigures;
class SessionPage;
class StudyPanel;
class TrainerPanel;

class StrategyWindow : public QWidget {
    Q_OBJECT
public:
    StrategyWindow(GameId game, const GameState& state, QWidget* parent = nullptr);
    ~StrategyWindow() override;

    // After each deal: Hand[0..4] hold the dealt cards, BetAmount the bet.
    void handDealt();
    // At the draw (before the cards are replaced) or a stand: the holds the player used.
    void handPlayed(HandHolds held);
    // Shows a hand of the history again, at its bet and under the board's table, with the hold
    // the player made marked; the trainer does not judge it again.
    void replayHand(int number, const HandCards& dealt, float bet, unsigned held);
    // Shows a hand the player set up to study, at the board's bet; the trainer does not judge it.
    void studyHand(const HandCards& cards);
    // The board's bet changed; a hand on show keeps the bet it was dealt at.
    void betChanged();
    // The trainer's tally of the visit, as the statistics count it.
    void showTrainerTally(const TrainerSummary& summary);

    // Shows every figure under another multiplier for a code (what the pay spin boxes do).
    void setMultiplier(int code, double multiplier);
    // Back to the board's own pay table.
    void useBoardTable();
    // Shows every figure under another whole table.
    void useTable(const odds::PayScale& scale);
    bool payTableEdited() const { return edited_; }
    const odds::PayScale& payScale() const { return scale_; }

    // True once the whole-game figures of the table on show are on show.
    bool gameFiguresReady() const { return gameOddsShown_; }
    // The odds of the hand on show under the table on show, once worked out.
    const std::optional<odds::HandOdds>& handOdds() const { return handOdds_; }
    // True once the risk of ruin of the table on show is on show.
    bool riskReady() const;
    // The strategy chart of the table on show.
    ChartPage& chartPage() const { return *chart_; }

    // Trainer mode as the run left it.
    void setTrainerMode(bool on);
    // The board's draw waits for this warning of a costly hold.
    void showWarning(const MistakeWarning& warning);

signals:
    // Trainer mode was switched on or off.
    void trainerSwitched(bool on);
    // Trainer mode judged the hold of the hand dealt last, by the board's own pay table.
    void holdJudged(const HoldJudgement& judgement);
    // The warning before a costly hold was switched or given another threshold.
    void warningChanged(const WarningOption& option);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildLayout();
    void startGameWork();
    void tablesReady();
    void gameOddsReady(const odds::GameOdds& result, int generation);
    void payScaleChanged();
    void analyseDeal();
    void judge(unsigned played);
    void showDealtLabel();
    void showOtherHand(const HandCards& dealt, float bet, std::optional<unsigned> replayed,
                       bool studied);

    GameId game_;
    const GameState& state_;
    const odds::PayScale boardScale_;
    odds::PayScale scale_{};
    bool edited_{false};
    int generation_{0}; // counts the tables shown, so late results of an older one are dropped
    std::optional<odds::GameOdds> gameOdds_{};
    std::optional<HandCards> dealt_{};
    float dealtBet_{0.0f};               // the bet of the hand on show
    std::optional<unsigned> replayed_{}; // the hold of a hand of the history on show
    int replayNumber_{0};
    bool studied_{false}; // the hand on show is one the player set up
    std::optional<odds::HandOdds> handOdds_{};
    std::optional<odds::HandOdds> boardHandOdds_{}; // what the trainer judges by
    std::optional<unsigned> pendingPlay_{};         // a play made before the tables were ready
    bool gameOddsShown_{false};

    StudyPanel* study_{nullptr};
    QLabel* dealtLabel_{nullptr};
    HoldTable* holds_{nullptr};
    TrainerPanel* trainer_{nullptr};
    GameFigures* figures_{nullptr};
    SessionPage* session_{nullptr};
    ChartPage* chart_{nullptr};

    // Last member: stopped and joined first when the window goes.
    BackgroundJob gameWork_{};
};

} // namespace marivale
