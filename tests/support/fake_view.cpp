#include "tests/support/fake_view.h"

// Standard library
#include <cstdlib>

// Marivale
#include "engine/dealing.h"
#include "play/board_captions.h"
#include "tests/support/hand_text.h"

namespace marivale::testing {

void FakeView::setText(Control control, std::string_view text) {
    texts_[control] = std::string(text);
}

std::string_view FakeView::text(Control control) const {
    const auto found = texts_.find(control);
    return found == texts_.end() ? std::string_view{} : std::string_view{found->second};
}

bool FakeView::enabled(Control control) const {
    const auto found = enabled_.find(control);
    return found == enabled_.end() || found->second;
}

void FakeView::ShowCardBacks() {
    faceUp = false;
    ++backsShown;
}

void FakeView::runDoubleUp() {
    ++doubleUps;
    doubleUpPlay(*state_);
}

void FakeView::play(GameState& state) {
    ++bonusGames;
    for (const int factor : chests) {
        state.BonusAmount = static_cast<float>(factor) * state.BonusAmount;
    }
}

Table::Table(GameId game, float netWinLoss, float playUnit, HandObserver* observer)
    : controller(variantFor(game), state, random, view) {
    view.bind(state);
    state.PlayUnit = playUnit;
    state.NetWinLoss = netWinLoss;
    view.setText(Control::PLTitle, "Net Winnings");
    // The captions the board's design opens with.
    view.setText(Control::DrawDeal, phaseCaptions(Phase::BeforeDeal).drawDeal);
    view.setText(Control::Stand, phaseCaptions(Phase::BeforeDeal).stand);
    controller.setObserver(observer);
    if (std::getenv("MARIVALE_WARNING_OFF") != nullptr) {
        useWarning(WarningOption{});
    }
    controller.load();
}

void Table::useWarning(const WarningOption& option) {
    view.guard.setOption(option);
    controller.setHoldCheck([this](unsigned held) {
        const auto warning =
            view.guard.check(controller.variant().game, boardCards(state), held, state.BetAmount);
        if (warning) {
            view.warnings.push_back(*warning);
        }
        return !warning;
    });
}

void Table::script(std::string_view cards) {
    for (const int code : cardsFromText(cards)) {
        random.pushIndex(code, deckSize(controller.variant().game));
    }
}

void Table::buy(int option) {
    view.purchaseOption = option;
    controller.purchaseClicked();
}

void Table::hand(std::string_view dealt, unsigned holds, std::string_view drawn) {
    script(dealt);
    controller.drawDealClicked();
    if (holds == 0x1fu) {
        controller.standClicked();
        return;
    }
    for (int p = 0; p < kHandSize; ++p) {
        if ((holds >> p) & 1u) {
            controller.cardClicked(p);
        }
    }
    script(drawn);
    controller.drawDealClicked();
}

} // namespace marivale::testing
