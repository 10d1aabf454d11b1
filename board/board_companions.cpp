#include "board/board_companions.h"

// Standard library
#include <algorithm>
#include <vector>

// Qt
#include <QScreen>

// Marivale
#include "board/practice/practice_window.h"
#include "board/stats/stats_window.h"
#include "board/strategy/strategy_window.h"
#include "play/practice/practice_drill.h"
#include "play/stats/session_stats.h"
#include "record/record_query.h"
#include "record/record_rows.h"
#include "record/record_store.h"

namespace marivale {
namespace {

constexpr int kGap = 8;

} // namespace

void placeBeside(QWidget& companion, const QWidget& board, Side preferred) {
    const QRect outer = board.frameGeometry();
    const QRect screen = board.screen()->availableGeometry();
    const QSize size = companion.frameGeometry().size();
    const int left = outer.left() - size.width() - kGap;
    const int right = outer.right() + kGap;
    const bool leftFits = left >= screen.left();
    const bool rightFits = right + size.width() <= screen.right();
    int x = preferred == Side::Left ? (leftFits || !rightFits ? left : right)
                                    : (rightFits || !leftFits ? right : left);
    x = std::min(x, screen.right() - size.width());
    const int y = std::min(outer.top(), screen.bottom() - size.height());
    companion.move(std::max(x, screen.left()), std::max(y, screen.top()));
}

BoardCompanions::BoardCompanions(QWidget& board, GameId game, GameState& state, SessionStats& stats)
    : board_(board), game_(game), state_(state), stats_(stats) {}

void BoardCompanions::toggleStrategy() {
    makeStrategy();
    if (strategy_->isVisible()) {
        strategy_->hide();
        return;
    }
    placeBeside(*strategy_, board_, Side::Right);
    strategy_->show();
    strategy_->raise();
}

void BoardCompanions::makeStrategy() {
    if (strategy_ == nullptr) {
        strategy_ = new StrategyWindow(game_, state_, &board_);
        if (phaseOf(state_) == Phase::Dealt) {
            strategy_->handDealt();
        }
        strategy_->setTrainerMode(stats_.trainerMode());
        strategy_->showTrainerTally(stats_.trainer(true));
        QObject::connect(strategy_, &StrategyWindow::trainerSwitched, &board_,
                         [this](bool on) { stats_.setTrainerMode(on); });
        QObject::connect(strategy_, &StrategyWindow::holdJudged, &board_,
                         [this](const HoldJudgement& judgement) {
                             stats_.setLatestJudgement(judgement);
                             strategy_->showTrainerTally(stats_.trainer(true));
                         });
        QObject::connect(strategy_, &StrategyWindow::warningChanged, &board_,
                         [this](const WarningOption& option) {
                             if (warningListener_) {
                                 warningListener_(option);
                             }
                         });
    }
}

void BoardCompanions::warn(const MistakeWarning& warning) {
    makeStrategy();
    strategy_->showWarning(warning);
    if (!strategy_->isVisible()) {
        placeBeside(*strategy_, board_, Side::Right);
        strategy_->setAttribute(Qt::WA_ShowWithoutActivating);
        strategy_->show();
        strategy_->setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
    // The board keeps the keys, so Enter plays the hold as the warning says.
    strategy_->raise();
    board_.activateWindow();
}

void BoardCompanions::replay(const HandRecord& hand) {
    StrategyWindow* window = nullptr;
    if (hand.game == game_) {
        makeStrategy();
        window = strategy_;
    } else {
        StrategyWindow*& other = replays_[gameIndex(hand.game)];
        if (other == nullptr) {
            other = new StrategyWindow(hand.game, replayState_, &board_);
        }
        window = other;
    }
    window->replayHand(hand.number, hand.dealt, hand.bet, hand.holds);
    if (!window->isVisible()) {
        placeBeside(*window, board_, Side::Right);
        window->show();
    }
    window->raise();
}

void BoardCompanions::toggleStatistics() {
    if (statsWindow_ == nullptr) {
        // The run's statistics send their hands to the player's record, when there is one.
        statsWindow_ = new StatsWindow(stats_, &board_, dynamic_cast<RecordStore*>(stats_.sink()));
        QObject::connect(statsWindow_, &StatsWindow::replayAsked, &board_,
                         [this](const HandRecord& hand) { replay(hand); });
    }
    if (statsWindow_->isVisible()) {
        statsWindow_->hide();
        return;
    }
    placeBeside(*statsWindow_, board_, Side::Left);
    statsWindow_->show();
    statsWindow_->raise();
}

// The drills' weak spots: the chart lines of the board's game and table that the player got wrong
// most over every run recorded, or this run's judged hands when nothing is recorded.
void BoardCompanions::togglePractice() {
    if (practice_ == nullptr) {
        practice_ = new PracticeWindow(game_, &board_);
        QObject::connect(practice_, &PracticeWindow::weakLinesWanted, &board_, [this] {
            const auto* store = dynamic_cast<RecordStore*>(stats_.sink());
            if (store == nullptr || !store->recording()) {
                practice_->setWeakLines(weakLinesOf(stats_, game_));
                return;
            }
            std::vector<WeakLine> lines;
            for (const LineCost& line : lineCosts(store->database(), game_, payTableText(game_))) {
                if (line.mistakes > 0) {
                    lines.push_back(
                        {.name = line.line.toStdString(), .mistakes = int(line.mistakes)});
                }
            }
            practice_->setWeakLines(lines);
        });
        if (auto* store = dynamic_cast<RecordStore*>(stats_.sink())) {
            QObject::connect(
                practice_, &PracticeWindow::drillJudged, &board_,
                [store](GameId game, const HandCards& dealt, const DrillVerdict& verdict) {
                    store->drillHand(game, dealt, verdict);
                });
        }
        // Laid out before it is placed, so that it stands clear of the board at its full size.
        practice_->adjustSize();
    }
    if (practice_->isVisible()) {
        practice_->hide();
        return;
    }
    placeBeside(*practice_, board_, Side::Left);
    practice_->show();
    practice_->raise();
    practice_->activateWindow();
}

void BoardCompanions::handDealt() {
    if (strategy_ != nullptr) {
        strategy_->handDealt();
    }
}

void BoardCompanions::handPlayed(const HandHolds& held) {
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
    delete practice_;
    practice_ = nullptr;
    if (strategy_ != nullptr) {
        strategy_->close();
    }
    for (StrategyWindow* window : replays_) {
        if (window != nullptr) {
            window->close();
        }
    }
}

} // namespace marivale
