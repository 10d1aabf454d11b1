#pragma once

// The game's figures at a pay table under the best play: the return, the variance and standard
// deviation of a hand's pay, and how often each paying hand (and on Treasure Trips the Treasure
// Hunt) comes up. Each paying hand's multiplier is a spin box the player may change; a changed
// table is marked as not the board's, with a button that asks for the board's table back.

// Standard library
#include <vector>

// Qt
#include <QWidget>

// Marivale
#include "engine/game.h"
#include "engine/odds/game_odds.h"
#include "engine/odds/named_tables.h"
#include "engine/odds/pay_scale.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

namespace marivale {

class NumberBox;

class GameFigures : public QWidget {
    Q_OBJECT
public:
    static constexpr int kPaysColumn = 1;
    static constexpr int kFrequencyColumn = 2;
    // The largest multiplier a spin box takes.
    static constexpr double kMostPay = 100'000.0;

    GameFigures(GameId game, QWidget* parent = nullptr);

    // The multipliers on show, without telling anyone, and whether they are not the board's.
    void showScale(const odds::PayScale& scale, bool edited);
    void showComputing();
    void showOdds(const odds::GameOdds& result, const odds::PayScale& scale, bool edited);

signals:
    // The player changed the multiplier of a code.
    void multiplierEdited(int code, double multiplier);
    // The player asked for the board's own table back.
    void boardTableAsked();
    // The player chose a well-known table.
    void tableChosen(const odds::PayScale& scale);

private:
    void buildTableChoice(QVBoxLayout& layout);
    const odds::NamedTable* namedTableOf(const odds::PayScale& scale) const;
    void showTableChoice(const odds::NamedTable* named, bool edited);

    GameId game_;
    std::vector<odds::NamedTable> named_{}; // the game's well-known tables
    QComboBox* tableChoice_{nullptr};       // only for a game with well-known tables
    QLabel* tableNote_{nullptr};
    QPushButton* boardTable_{nullptr};
    QLabel* returnLabel_{nullptr};
    QLabel* varianceLabel_{nullptr};
    QTableWidget* hits_{nullptr};
    QLabel* inputNote_{nullptr};     // a multiplier the player typed and the table refused
    std::vector<NumberBox*> pays_{}; // by row, the highest code first
};

} // namespace marivale
