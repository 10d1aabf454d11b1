#include "play/menu_controller.h"

// Standard library
#include <string>

// Marivale
#include "engine/money_format.h"
#include "play/game_variant.h"

namespace marivale {

namespace {

constexpr std::string_view kCaptionAfterClear = "Stats";

} // namespace

MenuController::MenuController(GameState& state, MenuView& view, TotalStore& store)
    : state_(state), view_(view), store_(store) {}

// Double Up starts off; the total is the kept one, or 0 when it cannot be read, and a total
// that cannot be kept is told once.
void MenuController::load() {
    state_.DoubleUpEnabled = kFalse;
    showDoubleUpStatus();
    const TotalStore::Loaded loaded = store_.load();
    state_.NetWinLoss = loaded.total;
    showTotal("");
    if (!loaded.warning.empty()) {
        view_.warn(loaded.warning);
    }
}

bool MenuController::close() {
    if (closing_) {
        return false;
    }
    closing_ = true;
    const std::string problem = store_.save(state_.NetWinLoss);
    if (!problem.empty()) {
        view_.warn(problem);
    }
    view_.closeOtherWindows();
    return true;
}

// Once the close has kept the total there is nothing left to keep.
std::string MenuController::checkpoint() {
    if (closing_) {
        return {};
    }
    return store_.saveCheckpoint(visiting_ ? totalIfBoardClosed(state_) : state_.NetWinLoss);
}

// Any other index leaves the bet unit as it was.
void MenuController::playSettingClicked(int index) {
    for (const PlayOption& option : kPlayOptions) {
        if (option.index == index) {
            state_.PlayUnit = option.unit;
        }
    }
}

void MenuController::statusBarClicked() {
    state_.DoubleUpEnabled = isSet(state_.DoubleUpEnabled) ? kFalse : kTrue;
    showDoubleUpStatus();
}

// The total starts again from 0; it is kept when the menu closes.
void MenuController::clearClicked() {
    state_.NetWinLoss = 0.0f;
    showTotal(kCaptionAfterClear);
}

void MenuController::helpClicked() {
    view_.showHelp();
}

// The menu hides while the board is up and shows the visit's total once it has closed; a
// program that is closing meanwhile does not show the menu again.
void MenuController::gameClicked(GameId game) {
    view_.hideMenu();
    visiting_ = true;
    view_.openBoard(game);
    visiting_ = false;
    showTotal(variantFor(game).statCaptionAtZero);
    if (!unattended_) {
        view_.showMenu();
    }
}

// Both displays of the total; captionAtZero is the path's caption for a total of exactly 0.
void MenuController::showTotal(std::string_view captionAtZero) {
    const float total = state_.NetWinLoss;
    view_.setText(MenuText::WinLoss, FormatMoney(total, pattern::kTotal));
    if (total > 0.0f) {
        view_.setText(MenuText::StatFrame, "Winnings");
    } else if (total < 0.0f) {
        view_.setText(MenuText::StatFrame, "Losses");
    } else {
        view_.setText(MenuText::StatFrame, captionAtZero);
    }
}

void MenuController::showDoubleUpStatus() {
    view_.setText(MenuText::DoubleUpStatus,
                  isSet(state_.DoubleUpEnabled) ? kDoubleUpOn : kDoubleUpOff);
}

} // namespace marivale
