#include "play/play_controller.h"

// Standard library
#include <cmath>

// Marivale
#include "engine/dealing.h"
#include "engine/hand_names.h"
#include "engine/money_format.h"
#include "engine/pay_table.h"
#include "play/board_captions.h"

namespace marivale {

namespace {

// The cash-out minimum.
constexpr float kCashOutMinimum = 10.0f;

constexpr std::string_view kHoldText = "Hold";
constexpr std::string_view kNotEnoughCredits = "Not Enough Credits To Play";
constexpr std::string_view kCashOutRefused = "Credits Must Be > $10.00 to Cash Out";

} // namespace

float totalIfBoardClosed(const GameState& state) {
    float winnings = state.GameWinnings;
    if (state.Credits > 0.0f) {
        winnings = winnings + state.Credits;
    }
    return state.NetWinLoss + (winnings - state.TotalPurchased);
}

PlayController::PlayController(const GameVariant& variant, GameState& state, RandomSource& random,
                               BoardView& view)
    : variant_(variant), state_(state), random_(random), view_(view) {}

void PlayController::showMoney(Control control, float value, std::string_view pattern) {
    view_.setText(control, FormatMoney(value, pattern));
}

// The five cards on the board as codes.
HandCards PlayController::cards() const {
    return boardCards(state_);
}

void PlayController::ShowPayTable() {
    const PayTable& table = payTable(variant_.game);
    for (int row = 0; row < kPayRows; ++row) {
        view_.setPayText(row, FormatMoney(state_.*table[row].field, table[row].pattern));
    }
}

// Shows the visit's net and names it; an exact 0 counts as a loss.
void PlayController::showNet(std::string_view pattern) {
    const float net = state_.GameWinnings - state_.TotalPurchased;
    showMoney(Control::ProfLoss, net, pattern);
    view_.setText(Control::PLTitle, net > 0.0f ? "Net Winnings" : "Net Losses");
}

// Starts a visit: a positive net total becomes credits, the bet starts at one unit.
void PlayController::load() {
    setPhase(state_, Phase::BeforeDeal);
    for (int p = 0; p < kHandSize; ++p) {
        state_.Held[p] = kFalse;
    }
    state_.DoubleUpFactor = 0;
    if (state_.NetWinLoss > 0.0f) {
        state_.Credits = state_.NetWinLoss;
        state_.NetWinLoss = 0.0f;
    } else {
        state_.Credits = 0.0f;
    }
    showMoney(Control::Credit, state_.Credits, pattern::kCredit);
    state_.WinAmount = 0.0f;
    showMoney(Control::Win, state_.WinAmount, pattern::kWinLast);
    state_.LastWinAmount = 0.0f;
    showMoney(Control::Last, state_.LastWinAmount, pattern::kWinLast);
    state_.BetAmount = state_.PlayUnit;
    showMoney(Control::Bet, state_.BetAmount, pattern::kBet);
    state_.TotalPurchased = 0.0f;
    state_.GameWinnings = 0.0f;
    ComputePayouts(state_, variant_.game);
    ShowPayTable();
    showMoney(Control::TotPurchased, 0.0f, pattern::kStatistic);
    showMoney(Control::TotWinGame, 0.0f, pattern::kStatistic);
    showMoney(Control::ProfLoss, 0.0f, pattern::kStatistic);
    view_.bell(BellCommand::Open);
    view_.ShowCardBacks();
    observer_->visitStarted(variant_.game, state_.Credits);
}

// Ends a visit: remaining credits are cashed out and the visit's net joins the running total.
void PlayController::unload() {
    const float total = totalIfBoardClosed(state_);
    float cashed = 0.0f;
    if (state_.Credits > 0.0f) {
        cashed = state_.Credits;
        state_.GameWinnings = state_.GameWinnings + state_.Credits;
        state_.Credits = 0.0f;
    }
    state_.NetWinLoss = total;
    view_.bell(BellCommand::Close);
    observer_->visitEnded(cashed);
}

void PlayController::drawDealClicked() {
    switch (phaseOf(state_)) {
    case Phase::BeforeDeal:
        deal();
        break;
    case Phase::Dealt:
        draw();
        break;
    case Phase::DoubleUpChoice:
        takeScore();
        break;
    default:
        break;
    }
}

void PlayController::standClicked() {
    switch (phaseOf(state_)) {
    case Phase::BeforeDeal:
        cashOut();
        break;
    case Phase::Dealt:
        stand();
        break;
    case Phase::DoubleUpChoice:
        doubleUp();
        break;
    default:
        break;
    }
}

void PlayController::cardClicked(int position) {
    if (phaseOf(state_) != Phase::Dealt || position < 0 || position >= kHandSize) {
        return;
    }
    const Control mark = holdMark(position);
    if (view_.text(mark) == kHoldText) {
        view_.setText(mark, "");
        state_.Held[position] = kFalse;
    } else {
        view_.setText(mark, kHoldText);
        state_.Held[position] = kTrue;
    }
}

// Enters the phase and gives the play buttons its captions.
void PlayController::showPhase(Phase phase) {
    setPhase(state_, phase);
    const PhaseCaptions captions = phaseCaptions(phase);
    view_.setText(Control::DrawDeal, captions.drawDeal);
    view_.setText(Control::Stand, captions.stand);
}

void PlayController::setMoneyButtonsEnabled(bool enabled) {
    for (const Control control :
         {Control::Purchase, Control::BetUp, Control::BetDn, Control::Exit}) {
        view_.setEnabled(control, enabled);
    }
}

// Takes the bet and deals five fresh cards, or refuses when the credits don't cover the bet.
void PlayController::deal() {
    if (state_.Credits < state_.BetAmount) {
        view_.setText(Control::Output2, kNotEnoughCredits);
        view_.ShowCardBacks();
        return;
    }
    state_.Credits = state_.Credits - state_.BetAmount;
    showMoney(Control::Credit, state_.Credits, pattern::kCredit);
    state_.LastWinAmount = state_.WinAmount;
    showMoney(Control::Last, state_.LastWinAmount, pattern::kWinLast);
    state_.WinAmount = 0.0f;
    showMoney(Control::Win, state_.WinAmount, pattern::kWinLast);
    view_.setText(Control::Output2, "");
    setMoneyButtonsEnabled(false);
    DealCards(state_, variant_.game, random_);
    view_.ShowCards();
    showPhase(Phase::Dealt);
    view_.handDealt();
    observer_->dealt(cards(), state_.BetAmount, state_.Credits);
}

// Replaces the cards not held. The observer hears the holds before the view, so a judgement of
// the hold made on the view's side finds the hand already played.
void PlayController::draw() {
    HandHolds held{};
    for (int p = 0; p < kHandSize; ++p) {
        held[p] = isSet(state_.Held[p]);
    }
    if (holdCheck_ && !holdCheck_(holdMask(held))) {
        return;
    }
    observer_->held(held);
    view_.handPlayed(held);
    DealCards(state_, variant_.game, random_);
    view_.ShowCards();
    const HandCards finalCards = cards();
    analysis_ = AnalyzeHand(state_, variant_.game);
    state_.HandRank = analysis_.code;
    reportDrawn(finalCards);
    finishHand();
}

void PlayController::stand() {
    constexpr HandHolds standing{true, true, true, true, true};
    if (holdCheck_ && !holdCheck_(holdMask(standing))) {
        return;
    }
    observer_->held(standing);
    view_.handPlayed(standing);
    const HandCards finalCards = cards();
    analysis_ = AnalyzeHand(state_, variant_.game);
    state_.HandRank = analysis_.code;
    reportDrawn(finalCards);
    finishHand();
}

// Tells the observer the final cards (read before the analysis marks Hand position 0), their
// code and name.
void PlayController::reportDrawn(const HandCards& finalCards) {
    observer_->drawn(finalCards, state_.HandRank,
                     HandName(variant_.game, state_.HandRank, state_, analysis_.acePairMarked));
}

void PlayController::finishHand() {
    const bool bonusBlocks = facts(variant_.game).bonus != Bonus::None && isSet(state_.BonusDue);
    if (state_.HandRank != 0 && isSet(state_.DoubleUpEnabled) && !bonusBlocks) {
        enterDoubleUp();
        clearHolds();
        return;
    }
    if (state_.HandRank != 0) {
        AnnounceHand();
        settleAndShow();
    }
    endHand();
    clearHolds();
}

void PlayController::takeScore() {
    AnnounceHand();
    settleAndShow();
    endHand();
}

// Risks the win in the Double Up window; a factor above 0 pays that multiple of the win.
void PlayController::doubleUp() {
    view_.runDoubleUp();
    observer_->doubled(state_.DoubleUpFactor);
    view_.ShowCardBacks();
    if (state_.DoubleUpFactor > 0) {
        AnnounceHand();
        settleAndShow();
        state_.DoubleUpFactor = 0;
    }
    endHand();
}

// Names the paying hand and rings the bell once.
void PlayController::AnnounceHand() {
    if (state_.HandRank == 0) {
        return;
    }
    view_.bell(BellCommand::Play);
    view_.setText(Control::Output2,
                  HandName(variant_.game, state_.HandRank, state_, analysis_.acePairMarked));
    view_.bell(BellCommand::Prev);
}

void PlayController::settleAndShow() {
    const Settlement settlement = SettleHand(state_, variant_.game, view_.treasureHunt());
    if (!settlement.paid) {
        return;
    }
    if (settlement.bonusPlayed) {
        observer_->bonus(state_.BonusAmount);
        view_.ShowCardBacks();
    }
    showMoney(Control::Credit, state_.Credits, pattern::kCredit);
    showMoney(Control::Win, state_.WinAmount, settlement.winPattern);
}

void PlayController::clearHolds() {
    for (int p = 0; p < kHandSize; ++p) {
        view_.setText(holdMark(p), "");
    }
    for (int p = 0; p < kHandSize; ++p) {
        state_.Held[p] = kFalse;
    }
}

void PlayController::endHand() {
    showPhase(Phase::BeforeDeal);
    setMoneyButtonsEnabled(true);
    observer_->settled(state_.WinAmount, state_.Credits);
}

void PlayController::enterDoubleUp() {
    showPhase(Phase::DoubleUpChoice);
    observer_->doubleUpOffered();
}

void PlayController::purchaseClicked() {
    const int option = view_.selectedPurchase();
    if (phaseOf(state_) != Phase::BeforeDeal || option < 0 || option >= kPurchaseOptionCount) {
        return;
    }
    const float amount = kPurchaseOptions[option].amount;
    state_.Credits = state_.Credits + amount;
    showMoney(Control::Credit, state_.Credits, pattern::kCredit);
    state_.TotalPurchased = state_.TotalPurchased + amount;
    showMoney(Control::TotPurchased, state_.TotalPurchased, pattern::kStatistic);
    showNet(pattern::kStatistic);
    observer_->purchased(amount, state_.Credits);
}

void PlayController::betUpClicked() {
    const float highest = state_.PlayUnit * 20.0f;
    if (phaseOf(state_) != Phase::BeforeDeal || !(highest > state_.BetAmount)) {
        return;
    }
    state_.BetAmount = state_.BetAmount + state_.PlayUnit;
    showMoney(Control::Bet, state_.BetAmount, pattern::kBet);
    ComputePayouts(state_, variant_.game);
    ShowPayTable();
    view_.betChanged();
}

void PlayController::betDnClicked() {
    if (phaseOf(state_) != Phase::BeforeDeal || !(state_.BetAmount > state_.PlayUnit)) {
        return;
    }
    state_.BetAmount = state_.BetAmount - state_.PlayUnit;
    showMoney(Control::Bet, state_.BetAmount, pattern::kBet);
    ComputePayouts(state_, variant_.game);
    ShowPayTable();
    view_.betChanged();
}

// Moves the credits into the visit's winnings, from $10.00 up.
void PlayController::cashOut() {
    if (state_.Credits < kCashOutMinimum) {
        view_.setText(Control::Output2, kCashOutRefused);
        return;
    }
    const float amount = state_.Credits;
    state_.GameWinnings = state_.GameWinnings + state_.Credits;
    showMoney(Control::TotWinGame, state_.GameWinnings, pattern::kStatistic);
    state_.Credits = 0.0f;
    showMoney(Control::Credit, state_.Credits, pattern::kCredit);
    showNet(pattern::kStatisticPlain);
    observer_->cashedOut(amount);
}

} // namespace marivale
