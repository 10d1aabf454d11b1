#pragma once

// The 32 ways to hold the dealt hand, best first: one row per hold with the kept cards under
// the board position they come from, the return in bets and in dollars at the current bet.

// Standard library
#include <array>
#include <optional>

// Qt
#include <QTableWidget>

// Marivale
#include "engine/card.h"
#include "engine/odds/hold_odds.h"

namespace marivale {

class HoldTable : public QTableWidget {
    Q_OBJECT
public:
    static constexpr int kRankColumn = 0;
    static constexpr int kFirstCardColumn = 1;
    static constexpr int kBetsColumn = kFirstCardColumn + kHandSize;
    static constexpr int kDollarsColumn = kBetsColumn + 1;
    // Each row's held mask (bit p: board position p kept), on its rank item.
    static constexpr int kHeldRole = Qt::UserRole;

    explicit HoldTable(QWidget* parent = nullptr);

    // No hand yet: empty rows.
    void showNoDeal();
    // The dealt cards, while their odds are still being worked out.
    void showComputing(const HandCards& dealt);
    // The holds best first; the hold the player made, when given, is marked and selected.
    void showOdds(const HandCards& dealt, const odds::HandOdds& odds, float bet,
                  std::optional<unsigned> played = std::nullopt);

private:
    void setHeaderCards(const HandCards* dealt);
    void clearRows();
    void markPlayed(int row);
};

} // namespace marivale
