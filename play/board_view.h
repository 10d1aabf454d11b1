#pragma once

// What the play controller asks of a board window. The controller never sees a widget: it sets
// texts and enabled states by control, and asks for the pictures, the bell and the modal windows.

#include <array>
#include <cstdint>
#include <string_view>

#include "engine/settlement.h"

namespace marivale {

enum class Control : std::uint8_t {
    DrawDeal,
    Stand,
    Purchase,
    BetUp,
    BetDn,
    Exit,
    Credit,
    Bet,
    Win,
    Last,
    TotPurchased,
    TotWinGame,
    ProfLoss,
    PLTitle,
    Output2,
    Card0Ind,
    Card1Ind,
    Card2Ind,
    Card3Ind,
    Card4Ind,
};

// The hold mark above a card position.
constexpr Control holdMark(int position) {
    return static_cast<Control>(static_cast<int>(Control::Card0Ind) + position);
}

// The commands of the bell player.
enum class BellCommand : std::uint8_t { Open, Play, Prev, Close };

class BoardView {
public:
    virtual ~BoardView() = default;

    virtual void setText(Control control, std::string_view text) = 0;
    virtual std::string_view text(Control control) const = 0;
    virtual void setEnabled(Control control, bool enabled) = 0;
    // Writes a pay-table amount box, rows counted from the top.
    virtual void setPayText(int row, std::string_view text) = 0;
    // The purchase option selected, an index into kPurchaseOptions.
    virtual int selectedPurchase() const = 0;

    virtual void ShowCards() = 0;
    virtual void ShowCardBacks() = 0;
    virtual void bell(BellCommand command) = 0;

    // Shows the Double Up window modally; it leaves its result in DoubleUpFactor.
    virtual void runDoubleUp() = 0;
    virtual TreasureHunt& treasureHunt() = 0;

    // Companion notifications: a hand was dealt, the player drew with these holds (all five on a
    // stand), the bet changed.
    virtual void handDealt() {}
    virtual void handPlayed(const HandHolds& /*held*/) {}
    virtual void betChanged() {}
};

} // namespace marivale
