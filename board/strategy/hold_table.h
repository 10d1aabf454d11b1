#pragma once

// The 32 ways to hold the dealt hand, best first: one row per hold with the kept cards under
// the board position they come from, the return in bets and in dollars at the current bet.

// Standard library
#include <array>

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
    void showOdds(const HandCards& dealt, const odds::HandOdds& odds, float bet);

private:
    void setHeaderCards(const HandCards* dealt);
    void clearRows();
};

} // namespace marivale
