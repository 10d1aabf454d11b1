#pragma once

// A dialog to pick five cards of a game's deck from a grid: one button per card, a suit to a
// row, and the joker where the deck has one.

// Standard library
#include <optional>
#include <vector>

// Qt
#include <QDialog>

// Marivale
#include "engine/card.h"
#include "engine/game.h"

class QDialogButtonBox;
class QToolButton;

namespace marivale {

class CardGrid : public QDialog {
    Q_OBJECT
public:
    CardGrid(GameId game, QWidget* parent = nullptr);

    // The five cards picked, in the grid's order; nothing until there are five.
    std::optional<HandCards> picked() const;
    // Picks or unpicks one card, as a click on its button does.
    void toggle(CardCode card);

private:
    void pickedChanged();

    std::vector<QToolButton*> buttons_{}; // by card code
    QDialogButtonBox* box_{nullptr};
};

} // namespace marivale
