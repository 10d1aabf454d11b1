#include "board/advisor/strategy_window.h"

// Standard library
#include <cmath>

// Qt
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

// Marivale
#include "board/advisor/card_text.h"
#include "board/advisor/game_figures.h"
#include "board/advisor/game_odds_cache.h"
#include "board/game_variant.h"
#include "engine/money_format.h"
#include "engine/odds/draw_tables.h"

namespace marivale {
namespace {

constexpr std::string_view kDollarPattern = "$#,##0.00";

QString money(float dollars) {
    return QString::fromStdString(FormatMoney(dollars, kDollarPattern));
}

// The board's five cards; anything that is not a card code reads as -1.
DealtCards readDeal(const GameState& state) {
    DealtCards dealt{};
    for (std::size_t p = 0; p < dealt.size(); ++p) {
        const float value = state.Hand[p];
        dealt[p] = value >= 0.0f && value <= static_cast<float>(kJoker)
                       ? static_cast<CardCode>(std::lround(value))
                       : -1;
    }
    return dealt;
}

// The cards a hold keeps, as coloured text; "nothing" for a draw of five.
QString heldHtml(const DealtCards& dealt, unsigned held) {
    QStringList cards;
    for (std::size_t p = 0; p < dealt.size(); ++p) {
        if ((held >> p) & 1u) {
            cards << cardHtml(dealt[p]);
        }
    }
    return cards.isEmpty() ? QObject::tr("nothing") : cards.join(' ');
}

} // namespace

StrategyWindow::StrategyWindow(GameId game, const GameState& state, QWidget* parent)
    : QWidget(parent, Qt::Tool), game_(game), state_(state), scale_(odds::ownPayScale(game)) {
    setObjectName(QStringLiteral("Strategy"));
    setWindowTitle(QStringLiteral("Strategy"));

    auto* layout = new QVBoxLayout(this);
    dealtLabel_ = new QLabel(this);
    dealtLabel_->setObjectName(QStringLiteral("Dealt"));
    dealtLabel_->setTextFormat(Qt::RichText);
    layout->addWidget(dealtLabel_);

    holds_ = new HoldTable(this);
    layout->addWidget(holds_, 1);

    auto* trainerRow = new QHBoxLayout;
    trainer_ = new QCheckBox(tr("Trainer mode"), this);
    trainer_->setObjectName(QStringLiteral("Trainer"));
    trainerRow->addWidget(trainer_);
    trainerRow->addStretch(1);
    tallyLabel_ = new QLabel(this);
    tallyLabel_->setObjectName(QStringLiteral("TrainerTally"));
    trainerRow->addWidget(tallyLabel_);
    layout->addLayout(trainerRow);

    verdict_ = new QLabel(this);
    verdict_->setObjectName(QStringLiteral("TrainerVerdict"));
    verdict_->setTextFormat(Qt::RichText);
    verdict_->setWordWrap(true);
    verdict_->setMinimumHeight(2 * verdict_->fontMetrics().lineSpacing());
    verdict_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(verdict_);

    auto* gameBox = new QGroupBox(
        tr("%1: best play over every deal")
            .arg(QString::fromUtf8(variantFor(game).title.data(),
                                   static_cast<qsizetype>(variantFor(game).title.size()))),
        this);
    auto* gameLayout = new QVBoxLayout(gameBox);
    figures_ = new GameFigures(game, gameBox);
    gameLayout->addWidget(figures_);
    layout->addWidget(gameBox);

    connect(trainer_, &QCheckBox::toggled, this, [this](bool on) {
        if (!on) {
            verdict_->clear();
        }
        showTally();
    });

    dealtLabel_->setText(tr("Deal a hand to see the 32 ways to hold it."));
    showTally();
    resize(sizeHint());
    startBackgroundWork();
}

StrategyWindow::~StrategyWindow() {
    worker_.request_stop();
    if (worker_.joinable()) {
        worker_.join();
    }
}

// Builds the game's tables, then its whole-game figures, off the user-interface thread; each
// result comes back to the window as a queued call.
void StrategyWindow::startBackgroundWork() {
    if (const auto known = cachedGameOdds(game_)) {
        gameOddsReady(*known);
    }
    const bool needGame = !gameOddsShown_;
    worker_ = std::jthread([this, needGame, game = game_, scale = scale_](std::stop_token stop) {
        const odds::DrawTables& tables = odds::DrawTables::forGame(game);
        QMetaObject::invokeMethod(
            this, [this] { tablesReady(); }, Qt::QueuedConnection);
        if (!needGame || stop.stop_requested()) {
            return;
        }
        const auto result = odds::analyzeGame(tables, scale, odds::defaultThreadCount(), stop);
        if (result) {
            storeGameOdds(*result);
            QMetaObject::invokeMethod(
                this, [this, found = *result] { gameOddsReady(found); }, Qt::QueuedConnection);
        }
    });
}

void StrategyWindow::tablesReady() {
    if (dealt_ && !handOdds_) {
        analyseDeal();
    }
}

void StrategyWindow::gameOddsReady(const odds::GameOdds& result) {
    figures_->showOdds(result, scale_);
    gameOddsShown_ = true;
}

void StrategyWindow::handDealt() {
    const DealtCards dealt = readDeal(state_);
    handOdds_.reset();
    pendingPlay_.reset();
    verdict_->clear();
    if (!odds::isValidDeal(deckSize(game_), dealt)) {
        dealt_.reset();
        holds_->showNoDeal();
        dealtLabel_->setText(tr("Deal a hand to see the 32 ways to hold it."));
        return;
    }
    dealt_ = dealt;
    showDealtLabel();
    analyseDeal();
}

// Works out the 32 holds at once when the tables are built; otherwise shows that they are
// coming and waits for tablesReady().
void StrategyWindow::analyseDeal() {
    const odds::DrawTables* tables = odds::DrawTables::ifBuilt(game_);
    if (!tables) {
        holds_->showComputing(*dealt_);
        return;
    }
    handOdds_ = odds::analyzeHolds(*tables, *dealt_, scale_);
    holds_->showOdds(*dealt_, *handOdds_, state_.BetAmount);
    if (pendingPlay_) {
        judge(*pendingPlay_);
        pendingPlay_.reset();
    }
}

void StrategyWindow::handPlayed(std::array<bool, 5> held) {
    if (!dealt_ || !trainer_->isChecked()) {
        return;
    }
    unsigned mask = 0;
    for (std::size_t p = 0; p < held.size(); ++p) {
        mask |= held[p] ? 1u << p : 0u;
    }
    if (!handOdds_) {
        pendingPlay_ = mask;
        verdict_->setText(tr("Checking your hold\u2026"));
        return;
    }
    judge(mask);
}

void StrategyWindow::judge(unsigned played) {
    const TrainerVerdict verdict = tally_.judge(*handOdds_, played, state_.BetAmount);
    if (verdict.mistake) {
        verdict_->setText(
            tr("<b>Mistake:</b> you held %1 (%2 bets); the best hold was %3 (%4 bets). "
               "It cost %5.")
                .arg(heldHtml(*dealt_, verdict.played),
                     QString::number(verdict.playedReturn, 'f', 4), heldHtml(*dealt_, verdict.best),
                     QString::number(verdict.bestReturn, 'f', 4), money(verdict.cost)));
    } else {
        verdict_->setText(
            tr("Best hold played (%1 bets).").arg(QString::number(verdict.playedReturn, 'f', 4)));
    }
    showTally();
}

void StrategyWindow::betChanged() {
    holds_->showBet(state_.BetAmount);
    if (dealt_) {
        showDealtLabel();
    }
}

void StrategyWindow::showDealtLabel() {
    QStringList cards;
    for (const CardCode card : *dealt_) {
        cards << cardHtml(card);
    }
    dealtLabel_->setText(
        tr("Dealt %1 &nbsp;&nbsp; bet %2").arg(cards.join(' '), money(state_.BetAmount)));
}

void StrategyWindow::showTally() {
    tallyLabel_->setText(
        tr("Mistakes: %1   Cost: %2").arg(tally_.mistakes()).arg(money(tally_.cost())));
    tallyLabel_->setEnabled(trainer_->isChecked());
}

} // namespace marivale
