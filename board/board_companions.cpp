#include "board/board_companions.h"

// Qt
#include <QCheckBox>

// Marivale
#include "board/advisor/strategy_window.h"
#include "board/board_keys.h"
#include "board/stats/stats_window.h"
#include "play/stats/session_stats.h"

namespace marivale {

BoardCompanions::BoardCompanions(QWidget& board, GameId game, GameState& state, SessionStats& stats)
    : board_(board), game_(game), state_(state), stats_(stats) {}

void BoardCompanions::toggleStrategy() {
    if (strategy_ == nullptr) {
        strategy_ = new StrategyWindow(game_, state_, &board_);
        if (state_.DrawPhase == 1) {
            strategy_->handDealt();
        }
        if (auto* trainer = strategy_->findChild<QCheckBox*>(QStringLiteral("Trainer"))) {
            QObject::connect(trainer, &QCheckBox::toggled, &board_,
                             [this](bool on) { stats_.setTrainerMode(on); });
        }
    }
    if (strategy_->isVisible()) {
        strategy_->hide();
        return;
    }
    placeBeside(*strategy_, board_, Side::Right);
    strategy_->show();
    strategy_->raise();
}

void BoardCompanions::toggleStatistics() {
    if (statsWindow_ == nullptr) {
        statsWindow_ = new StatsWindow(stats_, &board_);
    }
    if (statsWindow_->isVisible()) {
        statsWindow_->hide();
        return;
    }
    placeBeside(*statsWindow_, board_, Side::Left);
    statsWindow_->show();
    statsWindow_->raise();
}

void BoardCompanions::handDealt() {
    if (strategy_ != nullptr) {
        strategy_->handDealt();
    }
}

void BoardCompanions::handPlayed(const std::array<bool, 5>& held) {
    if (strategy_ != nullptr) {
        strategy_->handPlayed(held);
    }
}

void BoardCompanions::betChanged() {
    if (strategy_ != nullptr) {
        strategy_->betChanged();
    }
}

void BoardCompanions::closeAll() {
    delete statsWindow_;
    statsWindow_ = nullptr;
    if (strategy_ != nullptr) {
        strategy_->close();
    }
}

} // namespace marivale
