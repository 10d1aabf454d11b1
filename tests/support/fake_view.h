#pragma once

// A board view that records what the controller shows, for tests without windows.

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "play/play_controller.h"
#include "play/strategy/mistake_guard.h"
#include "tests/support/scripted_random_source.h"

namespace marivale::testing {

class FakeView final : public BoardView, public TreasureHunt {
public:
    void setText(Control control, std::string_view text) override;
    std::string_view text(Control control) const override;
    void setEnabled(Control control, bool enabled) override { enabled_[control] = enabled; }
    void setPayText(int row, std::string_view text) override { pay.at(row) = std::string(text); }
    int selectedPurchase() const override { return purchaseOption; }
    void ShowCards() override { faceUp = true; }
    void ShowCardBacks() override;
    void bell(BellCommand command) override { bells.push_back(command); }
    void runDoubleUp() override;
    TreasureHunt& treasureHunt() override { return *this; }
    void play(GameState& state) override;
    void handDealt() override { guard.dealt(); }
    void handPlayed(const HandHolds& held) override { lastHolds = held; }

    bool enabled(Control control) const;
    void bind(GameState& state) { state_ = &state; }

    std::array<std::string, 9> pay{};
    int purchaseOption{4};
    bool faceUp{false};
    int backsShown{0};
    int doubleUps{0};
    int bonusGames{0};
    std::vector<BellCommand> bells{};
    HandHolds lastHolds{};
    // What the Double Up window does to the state; by default no guess is made.
    std::function<void(GameState&)> doubleUpPlay{[](GameState& s) {
        s.DoubleUpFactor = 1;
    }};
    // The chest factors the Treasure Hunt multiplies by.
    std::vector<int> chests{};
    // The trainer's warning before a costly hold, as the board keeps it.
    MistakeGuard guard{};
    std::vector<MistakeWarning> warnings{};

private:
    std::map<Control, std::string> texts_{};
    std::map<Control, bool> enabled_{};
    GameState* state_{nullptr};
};

// A controller on a fake view with a scripted source, loaded and ready; an observer given
// watches the visit from the load on.
struct Table {
    explicit Table(GameId game, float netWinLoss = 0.0f, float playUnit = 0.25f,
                   HandObserver* observer = nullptr);
    // Queues the cards of the next deal or draw as text ("As Kd 3c 4h 5s"), one per position.
    void script(std::string_view cards);
    // Buys credits with the given option index.
    void buy(int option);
    // Deals these cards, holds the positions in the mask and draws the drawn cards, or stands
    // when every position is held.
    void hand(std::string_view dealt, unsigned holds, std::string_view drawn = {});
    // Consults the warning before each draw or stand, as the board does. Every table does so
    // with the option off when MARIVALE_WARNING_OFF is set.
    void useWarning(const WarningOption& option);

    GameState state{};
    ScriptedRandomSource random{};
    FakeView view{};
    PlayController controller;
};

} // namespace marivale::testing
