#pragma once

// What the look tests share: a board opened the way the main menu opens it, answering the modal
// windows it opens, and collecting the faults seen on the way.

// Standard library
#include <functional>

// Qt
#include <QAbstractButton>
#include <QRect>
#include <QStringList>
#include <QWidget>

// Marivale
#include "board/game_board.h"
#include "engine/random_source.h"
#include "program/program_windows.h"
#include "state/game_state.h"

namespace marivale::testing {

// A visit to a board opened as the main menu opens it: a window of the menu's, on the one state.
struct Visit {
    Visit(GameId g, float playUnit);

    template <typename W = QWidget> W* find(const QString& name) const {
        return board->findChild<W*>(name);
    }
    // Clicks an enabled button of the board by objectName.
    void click(const QString& name) const;
    // Deals the cards given as text ("2h 5h 9h Jh Kh").
    void deal(const char* cards);
    // A control's rectangle in the board's coordinates.
    QRect placeOf(const QString& name) const;

    GameId game;
    GameState state{};
    ScriptedRandomSource random{};
    QWidget menu{};
    GameBoard* board{nullptr};
};

// Runs the action on the modal window of that name once it is up, from inside its event loop.
// A window that never comes is given up after a few seconds, closing whatever window waits.
void whenModal(const QString& name, std::function<void(QWidget&)> action);

// Clicks a button of a window by objectName.
void clickIn(QWidget& window, const QString& name);

// With MARIVALE_SHOTS set to a directory, saves a picture of the window there for a look.
void saveShot(QWidget& window, const QString& name);

// Collects every fault seen, each line naming where it was seen.
class Faults {
public:
    void add(const QString& where, const QStringList& found);
    void expect(const QString& where, bool ok, const QString& what);
    // Every text of the window whole, readable and in the design face.
    void whole(const QString& where, QWidget& window);
    // The count and every fault, one a line, for the test's failure message.
    QString report() const;
    bool empty() const { return lines_.isEmpty(); }

private:
    QStringList lines_{};
};

} // namespace marivale::testing
