#pragma once

// The board's companion windows, Strategy (F2), the statistics (F3) and Practice (F4): each is
// built the first time it is asked for and stands beside the board; the first two follow the
// board's hands.

// Standard library
#include <array>
#include <functional>

// Marivale
#include "engine/game.h"
#include "play/strategy/mistake_guard.h"
#include "state/game_state.h"

class QWidget;

namespace marivale {

class SessionStats;
struct HandRecord;
class PracticeWindow;
class StatsWindow;
class StrategyWindow;

// Which side of the board a companion window would rather stand.
enum class Side { Left, Right };

// Puts a companion window on its preferred side of the board when there is room, else on the
// other, always whole on the board's screen.
void placeBeside(QWidget& companion, const QWidget& board, Side preferred);

class BoardCompanions {
public:
    BoardCompanions(QWidget& board, GameId game, GameState& state, SessionStats& stats);
    BoardCompanions(const BoardCompanions&) = delete;
    BoardCompanions& operator=(const BoardCompanions&) = delete;

    // F2: opens the Strategy window beside the board, or hides it.
    void toggleStrategy();
    // F3: opens the statistics beside the board, or hides them.
    void toggleStatistics();
    // F4: opens the Practice window beside the board, or hides it.
    void togglePractice();

    // Shows a hand of the history in the Strategy window of its game, opened if need be.
    void replay(const HandRecord& hand);

    // Shows why the draw waits in the Strategy window, opened beside the board if need be.
    void warn(const MistakeWarning& warning);
    // Hears the Strategy window's changes to the warning before a costly hold.
    void setWarningListener(std::function<void(const WarningOption&)> listener) {
        warningListener_ = std::move(listener);
    }

    void handDealt();
    void handPlayed(const HandHolds& held);
    void betChanged();

    // Closes both before the board unloads; the statistics go first, as they draw the model
    // the unload reports to.
    void closeAll();

private:
    void makeStrategy();

    QWidget& board_;
    GameId game_{GameId::JacksOrBetter};
    GameState& state_;
    SessionStats& stats_;
    StrategyWindow* strategy_{nullptr};
    StatsWindow* statsWindow_{nullptr};
    PracticeWindow* practice_{nullptr};
    // Strategy windows for hands of the history of other games, which no hand in play reaches.
    std::array<StrategyWindow*, kGameCount> replays_{};
    GameState replayState_{};
    std::function<void(const WarningOption&)> warningListener_{};
};

} // namespace marivale
