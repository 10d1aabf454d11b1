#pragma once

// The Strategy window: a companion to a board that lists the 32 ways to hold the dealt hand by
// their exact return, the game's return under the best play, and in trainer mode tells the
// player after a draw what a weaker hold cost. It only reads the shared state; closing it
// changes nothing on the board. Its odds tables and whole-game figures are worked out on a
// background thread so the board never waits for them.

// Standard library
#include <array>
#include <optional>
#include <thread>

// Qt
#include <QWidget>

// Marivale
#include "board/advisor/hold_table.h"
#include "board/advisor/trainer.h"
#include "engine/game.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/hold_odds.h"
#include "engine/odds/pay_scale.h"
#include "state/game_state.h"

class QCheckBox;
class QLabel;

namespace marivale {

class GameFigures;

class StrategyWindow : public QWidget {
    Q_OBJECT
public:
    StrategyWindow(GameId game, const GameState& state, QWidget* parent = nullptr);
    ~StrategyWindow() override;

    // After each deal: Hand[0..4] hold the dealt cards, BetAmount the bet.
    void handDealt();
    // At the draw (before the cards are replaced) or a stand: the holds the player used.
    void handPlayed(std::array<bool, 5> held);
    // The pay table changed with the bet.
    void betChanged();

    // True once the whole-game figures are on show.
    bool gameFiguresReady() const { return gameOddsShown_; }
    // The odds of the hand on show, once worked out.
    const std::optional<odds::HandOdds>& handOdds() const { return handOdds_; }

private:
    void startBackgroundWork();
    void tablesReady();
    void gameOddsReady(const odds::GameOdds& result);
    void analyseDeal();
    void judge(unsigned played);
    void showTally();
    void showDealtLabel();

    GameId game_;
    const GameState& state_;
    odds::PayScale scale_{};
    std::optional<DealtCards> dealt_{};
    std::optional<odds::HandOdds> handOdds_{};
    std::optional<unsigned> pendingPlay_{}; // a play made before the tables were ready
    TrainerTally tally_{};
    bool gameOddsShown_{false};

    QLabel* dealtLabel_{nullptr};
    HoldTable* holds_{nullptr};
    QCheckBox* trainer_{nullptr};
    QLabel* verdict_{nullptr};
    QLabel* tallyLabel_{nullptr};
    GameFigures* figures_{nullptr};

    // Last member: stopped and joined first when the window goes.
    std::jthread worker_{};
};

} // namespace marivale
