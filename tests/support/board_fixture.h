#pragma once

// A real board window on its own state and a scripted random source, with helpers to click its
// controls by objectName and to answer the modal windows it opens.

// Standard library
#include <functional>
#include <memory>

// Qt
#include <QAbstractButton>
#include <QLineEdit>
#include <QString>

// Marivale
#include "board/game_board.h"
#include "program/program_windows.h"
#include "state/game_state.h"
#include "tests/support/scripted_random_source.h"

namespace marivale::testing {

struct BoardFixture {
    // The board is a top-level window, or a window of the given parent as the main menu opens it;
    // it records its hands in the given run's statistics, else in its own.
    explicit BoardFixture(GameId game, float netWinLoss = 0.0f, float playUnit = 0.25f,
                          bool doubleUp = false, QWidget* parent = nullptr,
                          SessionStats* stats = nullptr);
    ~BoardFixture();

    template <typename W = QWidget> W* find(const QString& name) const {
        return board->findChild<W*>(name);
    }
    QString text(const QString& name) const;
    // Clicks an enabled button by objectName.
    void click(const QString& name);
    // Queues the cards of the next deal or draw, one per position ("As Kd 3c 4h 5s").
    void script(const char* cards);
    void buy(int option);
    // The picture file shown on a card button.
    QString picture(int position) const;

    GameId game;
    GameState state{};
    ScriptedRandomSource random{};
    std::unique_ptr<GameBoard> board;
};

// Answers the next modal window with the given action, from inside its own event loop.
void answerModal(std::function<void(QWidget&)> action);
// Clicks a button of a modal window.
void clickIn(QWidget& window, const QString& name);

} // namespace marivale::testing
