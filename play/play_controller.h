#pragma once

// The play of a hand and the money of a visit, for any of the four boards: the phases and their
// captions, the credit check, holds, draw and stand, Take Score and Double Up, purchases, the
// bet, cash-out, and the board's load and unload. What happens is also told to an optional
// observer.

// Standard library
#include <functional>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/random_source.h"
#include "play/board_view.h"
#include "play/game_variant.h"
#include "play/hand_observer.h"
#include "state/game_state.h"

namespace marivale {

// The running total that closing the open board now would leave: the credits cashed out and
// the visit's winnings less its purchases joined to NetWinLoss, as the board's unload does.
float totalIfBoardClosed(const GameState& state);

class PlayController {
public:
    PlayController(const GameVariant& variant, GameState& state, RandomSource& random,
                   BoardView& view);
    PlayController(const PlayController&) = delete;
    PlayController& operator=(const PlayController&) = delete;

    void load();
    void unload();

    void drawDealClicked();
    void standClicked();
    void cardClicked(int position);
    void purchaseClicked();
    void betUpClicked();
    void betDnClicked();

    const GameVariant& variant() const { return variant_; }
    // The one observer of the visit's events; nullptr tells nobody.
    void setObserver(HandObserver* observer) { observer_ = observer ? observer : &nobody_; }
    // Asked before a draw or a stand with the holds (a mask, all five on a stand); false leaves
    // the hand waiting as it was, for the player to press again.
    using HoldCheck = std::function<bool(unsigned holds)>;
    void setHoldCheck(HoldCheck check) { holdCheck_ = std::move(check); }

private:
    void deal();
    void draw();
    void stand();
    void takeScore();
    void doubleUp();
    void cashOut();
    // After a draw or a stand: offer Double Up, or pay the hand and end it.
    void finishHand();
    void AnnounceHand();
    // Settles the hand through SettleHand and shows the credits and the win it leaves.
    void settleAndShow();
    void clearHolds();
    void endHand();
    void enterDoubleUp();
    void showPhase(Phase phase);
    void setMoneyButtonsEnabled(bool enabled);
    void showMoney(Control control, float value, std::string_view pattern);
    void ShowPayTable();
    void showNet(std::string_view pattern);
    HandCards cards() const;
    void reportDrawn(const HandCards& finalCards);

    const GameVariant& variant_;
    GameState& state_;
    RandomSource& random_;
    BoardView& view_;
    HandAnalysis analysis_{};
    HandObserver nobody_{};
    HandObserver* observer_{&nobody_};
    HoldCheck holdCheck_{};
};

} // namespace marivale
