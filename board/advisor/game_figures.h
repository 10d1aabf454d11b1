#pragma once

// The game's figures at its pay table under the best play: the return, and how often each
// paying hand (and on Treasure Trips the Treasure Hunt) comes up.

// Qt
#include <QWidget>

// Marivale
#include "engine/game.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/pay_scale.h"

class QLabel;
class QTableWidget;

namespace marivale {

class GameFigures : public QWidget {
    Q_OBJECT
public:
    static constexpr int kFrequencyColumn = 2;

    GameFigures(GameId game, QWidget* parent = nullptr);

    void showComputing();
    void showOdds(const odds::GameOdds& result, const odds::PayScale& scale);

private:
    GameId game_;
    QLabel* returnLabel_{nullptr};
    QTableWidget* hits_{nullptr};
};

} // namespace marivale
