#include "board/strategy/strategy_window.h"

// Qt
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QResizeEvent>
#include <QTabWidget>
#include <QVBoxLayout>

// Marivale
#include "board/strategy/chart_page.h"
#include "board/strategy/game_figures.h"
#include "board/strategy/session_page.h"
#include "board/strategy/study_panel.h"
#include "board/strategy/trainer_panel.h"
#include "engine/dealing.h"
#include "engine/hand_analysis.h"
#include "engine/odds/chart_line.h"
#include "engine/odds/draw_tables.h"
#include "engine/odds/named_tables.h"
#include "play/game_variant.h"
#include "play/strategy/game_odds_cache.h"
#include "ui/card_text.h"
#include "ui/money_text.h"
#include "ui/number_text.h"
#include "ui/screen_fit.h"

namespace marivale {

StrategyWindow::StrategyWindow(GameId game, const GameState& state, QWidget* parent)
    : QWidget(parent, Qt::Tool), game_(game), state_(state), boardScale_(odds::ownPayScale(game)),
      scale_(boardScale_) {
    setObjectName(QStringLiteral("Strategy"));
    setWindowTitle(QStringLiteral("Strategy"));
    buildLayout();

    connect(figures_, &GameFigures::multiplierEdited, this, &StrategyWindow::setMultiplier);
    connect(figures_, &GameFigures::boardTableAsked, this, &StrategyWindow::useBoardTable);
    connect(figures_, &GameFigures::tableChosen, this, &StrategyWindow::useTable);
    connect(trainer_, &TrainerPanel::switched, this, &StrategyWindow::trainerSwitched);
    connect(trainer_, &TrainerPanel::warningChanged, this, &StrategyWindow::warningChanged);
    connect(study_, &StudyPanel::studied, this, &StrategyWindow::studyHand);

    dealtLabel_->setText(tr("Deal a hand to see the 32 ways to hold it."));
    figures_->showScale(scale_, edited_);
    resize(sizeHint());
    startGameWork();
}

StrategyWindow::~StrategyWindow() {
    gameWork_.requestStop();
}

// Two columns: the dealt hand's holds and the trainer; the game's figures and the bankroll.
void StrategyWindow::buildLayout() {
    auto* columns = new QHBoxLayout(this);
    // The window grows with what it has to show, never squeezing a page below its least size.
    columns->setSizeConstraint(QLayout::SetMinimumSize);
    auto* layout = new QVBoxLayout;
    columns->addLayout(layout);
    study_ = new StudyPanel(game_, this);
    layout->addWidget(study_);
    dealtLabel_ = new QLabel(this);
    dealtLabel_->setObjectName(QStringLiteral("Dealt"));
    dealtLabel_->setTextFormat(Qt::RichText);
    layout->addWidget(dealtLabel_);

    holds_ = new HoldTable(this);
    layout->addWidget(holds_, 1);

    trainer_ = new TrainerPanel(this);
    layout->addWidget(trainer_);

    // The game's figures and the session's on two pages, so the window fits a laptop's screen.
    auto* side = new QTabWidget(this);
    side->setObjectName(QStringLiteral("StrategyPages"));
    columns->addWidget(side);
    auto* gamePage = new QWidget(side);
    auto* gamePageLayout = new QVBoxLayout(gamePage);
    auto* gameBox = new QGroupBox(
        tr("%1: best play over every deal")
            .arg(QString::fromUtf8(variantFor(game_).title.data(),
                                   static_cast<qsizetype>(variantFor(game_).title.size()))),
        gamePage);
    auto* gameLayout = new QVBoxLayout(gameBox);
    figures_ = new GameFigures(game_, gameBox);
    gameLayout->addWidget(figures_);
    gamePageLayout->addWidget(gameBox);
    gamePageLayout->addStretch(1);
    side->addTab(gamePage, tr("&Game"));

    session_ = new SessionPage(state_.BetAmount, side);
    side->addTab(session_, tr("Sessi&on"));

    chart_ = new ChartPage(game_, scale_, side);
    side->addTab(chart_, tr("Ch&art"));
}

// A window that grows once its figures arrive stays whole on its screen.
void StrategyWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    keepOnScreen(*this);
}

// Builds the game's tables, then the whole-game figures of the table on show, off the
// user-interface thread; each result comes back to the window as a queued call. The board's own
// figures are kept for the life of the process once worked out.
void StrategyWindow::startGameWork() {
    gameWork_.stop();
    ++generation_;
    if (!edited_) {
        if (const auto known = cachedGameOdds(game_)) {
            gameOddsReady(*known, generation_);
        }
    }
    const bool needGame = !gameOddsShown_;
    gameWork_.start([this, needGame, game = game_, scale = scale_, own = !edited_,
                     generation = generation_](std::stop_token stop) {
        const odds::DrawTables* tables = odds::DrawTables::forGameUnlessStopped(game, stop);
        if (tables == nullptr) {
            return;
        }
        QMetaObject::invokeMethod(
            this, [this] { tablesReady(); }, Qt::QueuedConnection);
        if (!needGame || stop.stop_requested()) {
            return;
        }
        const auto result = odds::analyzeGame(*tables, scale, odds::defaultThreadCount(), stop);
        if (!result) {
            return;
        }
        if (own) {
            storeGameOdds(*result);
        }
        QMetaObject::invokeMethod(
            this, [this, found = *result, generation] { gameOddsReady(found, generation); },
            Qt::QueuedConnection);
    });
}

bool StrategyWindow::riskReady() const {
    return session_->riskReady();
}

void StrategyWindow::tablesReady() {
    if (dealt_ && !handOdds_) {
        analyseDeal();
    }
}

void StrategyWindow::gameOddsReady(const odds::GameOdds& result, int generation) {
    if (generation != generation_) {
        return;
    }
    gameOdds_ = result;
    figures_->showOdds(result, scale_, edited_);
    gameOddsShown_ = true;
    session_->setPayouts(odds::payoutDistribution(result, scale_));
}

void StrategyWindow::setMultiplier(int code, double multiplier) {
    if (code < 1 || code > topCode(game_) || !(multiplier >= 0.0) ||
        multiplier > GameFigures::kMostPay) {
        return;
    }
    scale_.multiplier[code] = multiplier;
    payScaleChanged();
}

void StrategyWindow::useBoardTable() {
    useTable(boardScale_);
}

void StrategyWindow::useTable(const odds::PayScale& scale) {
    scale_ = scale;
    payScaleChanged();
}

// Every figure follows the table on show: the holds at once, the game and the risk once worked
// out again.
void StrategyWindow::payScaleChanged() {
    edited_ = scale_ != boardScale_;
    figures_->showScale(scale_, edited_);
    figures_->showComputing();
    gameOdds_.reset();
    gameOddsShown_ = false;
    session_->setPayouts({});
    chart_->setTable(scale_, edited_);
    startGameWork();
    if (dealt_) {
        handOdds_.reset();
        analyseDeal();
    }
}

void StrategyWindow::handDealt() {
    const HandCards dealt = boardCards(state_);
    replayed_.reset();
    studied_ = false;
    handOdds_.reset();
    boardHandOdds_.reset();
    pendingPlay_.reset();
    trainer_->clearVerdict();
    if (!odds::isValidDeal(deckSize(game_), dealt)) {
        dealt_.reset();
        chart_->setDeal(dealt_);
        holds_->showNoDeal();
        dealtLabel_->setText(tr("Deal a hand to see the 32 ways to hold it."));
        return;
    }
    dealt_ = dealt;
    dealtBet_ = state_.BetAmount;
    showDealtLabel();
    analyseDeal();
}

// Works out the 32 holds at once when the tables are built; otherwise shows that they are
// coming and waits for tablesReady().
void StrategyWindow::analyseDeal() {
    chart_->setDeal(dealt_);
    const odds::DrawTables* tables = odds::DrawTables::ifBuilt(game_);
    if (!tables) {
        holds_->showComputing(*dealt_);
        return;
    }
    handOdds_ = odds::analyzeHolds(*tables, *dealt_, scale_);
    boardHandOdds_ = edited_ ? odds::analyzeHolds(*tables, *dealt_, boardScale_) : *handOdds_;
    holds_->showOdds(*dealt_, *handOdds_, dealtBet_, replayed_);
    if (studied_) {
        study_->showBestPlay(*dealt_, *handOdds_);
    }
    if (pendingPlay_) {
        judge(*pendingPlay_);
        pendingPlay_.reset();
    }
}

void StrategyWindow::replayHand(int number, const HandCards& dealt, float bet, unsigned held) {
    if (!odds::isValidDeal(deckSize(game_), dealt)) {
        return;
    }
    replayNumber_ = number;
    showOtherHand(dealt, bet, held, false);
    if (edited_) {
        useBoardTable();
    } else {
        analyseDeal();
    }
}

void StrategyWindow::studyHand(const HandCards& cards) {
    showOtherHand(cards, state_.BetAmount, std::nullopt, true);
    analyseDeal();
}

// Puts a hand that is not the board's on show: one of the history or one the player set up.
void StrategyWindow::showOtherHand(const HandCards& dealt, float bet,
                                   std::optional<unsigned> replayed, bool studied) {
    pendingPlay_.reset();
    trainer_->clearVerdict();
    dealt_ = dealt;
    dealtBet_ = bet;
    replayed_ = replayed;
    studied_ = studied;
    handOdds_.reset();
    boardHandOdds_.reset();
    showDealtLabel();
}

void StrategyWindow::handPlayed(HandHolds held) {
    if (replayed_ || studied_) {
        // A hand of the history was on show: the hand in play comes back to be judged.
        handDealt();
    }
    if (!dealt_ || !trainer_->isOn()) {
        return;
    }
    const unsigned mask = holdMask(held);
    if (!boardHandOdds_) {
        pendingPlay_ = mask;
        trainer_->showChecking();
        return;
    }
    judge(mask);
}

// The trainer judges by the board's own table, whatever table the window shows, and says so
// when the list shows another.
void StrategyWindow::judge(unsigned played) {
    emit holdJudged(trainer_->judge(game_, *boardHandOdds_, *dealt_, played, dealtBet_, edited_));
}

void StrategyWindow::setTrainerMode(bool on) {
    trainer_->setOn(on);
}

void StrategyWindow::showWarning(const MistakeWarning& warning) {
    trainer_->showWarning(game_, warning);
}

// F2 closes the window as it opened it; so does Escape, as in the statistics.
void StrategyWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F2 || event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void StrategyWindow::showTrainerTally(const TrainerSummary& summary) {
    trainer_->showTally(summary);
}

// A hand on show keeps the bet it was dealt at; the bankroll takes the new one.
void StrategyWindow::betChanged() {
    session_->setBet(state_.BetAmount);
}

void StrategyWindow::showDealtLabel() {
    const QString dealt =
        tr("Dealt %1 &nbsp;&nbsp; bet %2").arg(cardsHtml(*dealt_), moneyText(dealtBet_));
    if (studied_) {
        dealtLabel_->setText(
            tr("Studying %1 &nbsp;&nbsp; bet %2").arg(cardsHtml(*dealt_), moneyText(dealtBet_)));
        return;
    }
    dealtLabel_->setText(replayed_ ? tr("Hand %1 again: %2").arg(countText(replayNumber_), dealt)
                                   : dealt);
}

} // namespace marivale
