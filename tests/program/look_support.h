#pragma once

// What the look tests share: a board opened the way the main menu opens it, answering the modal
// windows it opens, and collecting the faults seen on the way.

// Standard library
#include <functional>

// Qt
#include <QRect>
#include <QStringList>
#include <QWidget>

// Marivale
#include "tests/support/board_fixture.h"

namespace marivale::testing {

// The stand-in for the main menu a board is opened from.
struct MenuStandIn {
    MenuStandIn();
    QWidget menu{};
};

// A visit to a board opened as the main menu opens it, with Double Up on.
struct Visit : MenuStandIn, BoardFixture {
    Visit(GameId g, float playUnit);
    // Deals the cards given as text ("2h 5h 9h Jh Kh").
    void deal(const char* cards);
    // A control's rectangle in the board's coordinates.
    QRect placeOf(const QString& name) const;
};

// Runs the action on the modal window of that name once it is up, from inside its event loop.
// A window that never comes is given up after a few seconds, closing whatever window waits.
void whenModal(const QString& name, std::function<void(QWidget&)> action);

// Collects every fault seen, each line naming where it was seen.
class Faults {
public:
    void add(const QString& where, const QStringList& found);
    void expect(const QString& where, bool ok, const QString& what);
    // Every text of the window whole, readable and in the design face; with MARIVALE_SHOTS set
    // to a directory, a picture of the window is saved there for a look.
    void whole(const QString& where, QWidget& window);
    // The count and every fault, one a line, for the test's failure message.
    QString report() const;
    bool empty() const { return lines_.isEmpty(); }

private:
    QStringList lines_{};
};

} // namespace marivale::testing
