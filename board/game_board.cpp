#include "board/game_board.h"

// Standard library
#include <map>
#include <memory>
#include <utility>

// Qt
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

// Marivale
#include "board/board_companions.h"
#include "board/board_design.h"
#include "board/board_keys.h"
#include "board/hint_marks.h"
#include "board/strategy/trainer_panel.h"
#include "engine/dealing.h"
#include "play/play_controller.h"
#include "play/stats/session_stats.h"
#include "play/strategy/mistake_guard.h"
#include "ui/bell.h"
#include "ui/card_pictures.h"
#include "ui/key_repeat_guard.h"

namespace marivale {

// The window's side of the board: it shows what the controller tells it and opens the modal
// windows the controller asks for.
class GameBoard::Impl final : public BoardView, public TreasureHunt {
public:
    Impl(GameBoard& window, const GameVariant& variant, GameState& state, RandomSource& random,
         BoardWindows windows, SessionStats* stats)
        : window_(window), variant_(variant), state_(state), random_(random),
          windows_(std::move(windows)), widgets_(buildBoard(window, variant)),
          bell_(new Bell(&window)),
          ownStats_(stats == nullptr ? std::make_unique<SessionStats>() : nullptr),
          stats_(stats == nullptr ? *ownStats_ : *stats),
          controller_(variant, state, random, *this),
          companions_(window, variant.game, state, stats_) {
        mapControls();
        connectClicks();
        prepareBoardKeys(window_, widgets_);
        controller_.setObserver(&stats_);
        guard_.setOption(savedWarningOption());
        companions_.setWarningListener(
            [this](const WarningOption& option) { guard_.setOption(option); });
        controller_.setHoldCheck([this](unsigned held) { return holdMayPlay(held); });
        controller_.load();
    }

    void setText(Control control, std::string_view text) override;
    std::string_view text(Control control) const override;
    void setEnabled(Control control, bool enabled) override;
    void setPayText(int row, std::string_view text) override;
    int selectedPurchase() const override;
    void ShowCards() override;
    void ShowCardBacks() override;
    void bell(BellCommand command) override;
    void runDoubleUp() override;
    TreasureHunt& treasureHunt() override { return *this; }
    void play(GameState& state) override;
    void handDealt() override;
    void handPlayed(const HandHolds& held) override;
    void betChanged() override { companions_.betChanged(); }

    // Runs the board's unload once, however the window goes away.
    void unloadOnce();
    void toggleStrategy() { companions_.toggleStrategy(); }
    void toggleStatistics() { companions_.toggleStatistics(); }
    void togglePractice() { companions_.togglePractice(); }
    // The keys of play: 1 to 5 hold, Enter deals, draws or takes the score. True when used.
    bool playKey(const QKeyEvent& event) { return playBoardKey(widgets_, event, keys_); }
    void keyReleased(const QKeyEvent& event) { keys_.released(event); }
    // F5: frames the cards of the best hold of the hand in play.
    void showHint();

private:
    bool holdMayPlay(unsigned held);
    void mapControls();
    void connectClicks();
    void checkPictures();

    GameBoard& window_;
    const GameVariant& variant_;
    GameState& state_;
    RandomSource& random_;
    BoardWindows windows_;
    BoardWidgets widgets_;
    CardPictures pictures_{};
    Bell* bell_{nullptr};
    std::unique_ptr<SessionStats> ownStats_;
    SessionStats& stats_;
    PlayController controller_;
    BoardCompanions companions_;
    std::map<Control, QWidget*> controls_{};
    std::map<Control, std::string> texts_{};
    bool unloaded_{false};
    bool toldMissing_{false};
    KeyRepeatGuard keys_{};
    MistakeGuard guard_{};
    HintMarks hints_{widgets_.cards};
};

void GameBoard::Impl::mapControls() {
    const BoardWidgets& w = widgets_;
    controls_ = {
        {Control::DrawDeal, w.drawDeal},
        {Control::Stand, w.stand},
        {Control::Purchase, w.purchase},
        {Control::BetUp, w.betUp},
        {Control::BetDn, w.betDn},
        {Control::Exit, w.exit},
        {Control::Credit, w.credit},
        {Control::Bet, w.bet},
        {Control::Win, w.win},
        {Control::Last, w.last},
        {Control::TotPurchased, w.totPurchased},
        {Control::TotWinGame, w.totWinGame},
        {Control::ProfLoss, w.profLoss},
        {Control::PLTitle, w.plTitle},
        {Control::Output2, w.output},
    };
    for (int p = 0; p < kHandSize; ++p) {
        controls_[holdMark(p)] = w.holdMarks[p];
    }
}

void GameBoard::Impl::connectClicks() {
    const BoardWidgets& w = widgets_;
    PlayController* c = &controller_;
    QObject::connect(w.drawDeal, &QPushButton::clicked, &window_, [c] { c->drawDealClicked(); });
    QObject::connect(w.stand, &QPushButton::clicked, &window_, [c] { c->standClicked(); });
    QObject::connect(w.purchase, &QPushButton::clicked, &window_, [c] { c->purchaseClicked(); });
    QObject::connect(w.betUp, &QPushButton::clicked, &window_, [c] { c->betUpClicked(); });
    QObject::connect(w.betDn, &QPushButton::clicked, &window_, [c] { c->betDnClicked(); });
    QObject::connect(w.exit, &QPushButton::clicked, &window_, &QDialog::close);
    QObject::connect(w.help, &QPushButton::clicked, &window_, [this] {
        if (windows_.help) {
            windows_.help(window_);
        }
    });
    for (int p = 0; p < kHandSize; ++p) {
        QObject::connect(w.cards[p], &QPushButton::clicked, &window_,
                         [c, p] { c->cardClicked(p); });
    }
}

void GameBoard::Impl::setText(Control control, std::string_view text) {
    texts_[control] = std::string(text);
    const QString value = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    QWidget* widget = controls_.at(control);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setText(value);
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
        label->setText(value);
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
        button->setText(value);
    }
}

std::string_view GameBoard::Impl::text(Control control) const {
    const auto found = texts_.find(control);
    return found == texts_.end() ? std::string_view{} : std::string_view{found->second};
}

void GameBoard::Impl::setEnabled(Control control, bool enabled) {
    controls_.at(control)->setEnabled(enabled);
}

void GameBoard::Impl::setPayText(int row, std::string_view text) {
    widgets_.payBoxes.at(row)->setText(
        QString::fromUtf8(text.data(), static_cast<int>(text.size())));
}

int GameBoard::Impl::selectedPurchase() const {
    for (int i = 0; i < kPurchaseOptionCount; ++i) {
        if (widgets_.purchaseOptions[i]->isChecked()) {
            return i;
        }
    }
    return -1;
}

void GameBoard::Impl::ShowCards() {
    for (int p = 0; p < kHandSize; ++p) {
        const int code = static_cast<int>(state_.Hand[p]);
        pictures_.showOn(*widgets_.cards[p],
                         QString::fromStdString(pictureFileName(variant_.game, code)));
    }
    checkPictures();
}

void GameBoard::Impl::ShowCardBacks() {
    for (QPushButton* card : widgets_.cards) {
        pictures_.showOn(*card, QString::fromLatin1(kCardBackFile.data(), kCardBackFile.size()));
    }
    checkPictures();
}

// Tells the player once which pictures are missing; play goes on with drawn cards.
void GameBoard::Impl::checkPictures() {
    if (toldMissing_ || pictures_.missingFiles().isEmpty()) {
        return;
    }
    toldMissing_ = true;
    QTimer::singleShot(0, &window_, [this] {
        auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Card Pictures Missing"),
                                    QStringLiteral("These card pictures could not be loaded from "
                                                   "the game folder, so plain cards are drawn "
                                                   "instead:\n\n%1")
                                        .arg(pictures_.missingFiles().join(QStringLiteral(", "))),
                                    QMessageBox::Ok, &window_);
        box->setObjectName(QStringLiteral("MissingPictures"));
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    });
}

void GameBoard::Impl::bell(BellCommand command) {
    switch (command) {
    case BellCommand::Open:
        bell_->open();
        break;
    case BellCommand::Play:
        bell_->play();
        break;
    case BellCommand::Prev:
        bell_->prev();
        break;
    case BellCommand::Close:
        bell_->close();
        break;
    }
}

void GameBoard::Impl::runDoubleUp() {
    if (windows_.doubleUp) {
        windows_.doubleUp(window_, state_, random_, pictures_);
    }
}

// The Treasure Hunt window is built afresh for every bonus.
void GameBoard::Impl::play(GameState& state) {
    if (windows_.treasureHunt) {
        windows_.treasureHunt(window_, state, random_);
    }
}

void GameBoard::Impl::handDealt() {
    guard_.dealt();
    hints_.clear();
    companions_.handDealt();
}

void GameBoard::Impl::handPlayed(const HandHolds& held) {
    hints_.clear();
    companions_.handPlayed(held);
}

// A costly hold waits once, with its warning in the Strategy window; the board stays as it is.
bool GameBoard::Impl::holdMayPlay(unsigned held) {
    const auto warning = guard_.check(variant_.game, boardCards(state_), held, state_.BetAmount);
    if (!warning) {
        return true;
    }
    stats_.markWarned();
    companions_.warn(*warning);
    return false;
}

// The hint builds the game's draw tables the first time, a fraction of a second once.
void GameBoard::Impl::showHint() {
    if (phaseOf(state_) != Phase::Dealt) {
        return;
    }
    const auto best = judgeHold(variant_.game, boardCards(state_), 0, state_.BetAmount);
    if (!best) {
        return;
    }
    hints_.show(best->best);
    stats_.markHinted();
}

void GameBoard::Impl::unloadOnce() {
    if (unloaded_) {
        return;
    }
    unloaded_ = true;
    companions_.closeAll();
    controller_.unload();
}

GameBoard::GameBoard(const GameVariant& variant, GameState& state, RandomSource& random,
                     BoardWindows windows, QWidget* parent, SessionStats* stats)
    : QDialog(parent),
      impl_(std::make_unique<Impl>(*this, variant, state, random, std::move(windows), stats)) {}

GameBoard::~GameBoard() {
    impl_->unloadOnce();
}

// F2 opens or closes the Strategy window, F3 the statistics, F4 Practice, F5 shows the best
// hold; 1 to 5 and Enter play; Escape never ends a visit by accident.
void GameBoard::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F2) {
        impl_->toggleStrategy();
        return;
    }
    if (event->key() == Qt::Key_F3) {
        impl_->toggleStatistics();
        return;
    }
    if (event->key() == Qt::Key_F4) {
        impl_->togglePractice();
        return;
    }
    if (event->key() == Qt::Key_F5) {
        impl_->showHint();
        return;
    }
    if (impl_->playKey(*event)) {
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

void GameBoard::keyReleaseEvent(QKeyEvent* event) {
    impl_->keyReleased(*event);
    QDialog::keyReleaseEvent(event);
}

void GameBoard::done(int result) {
    impl_->unloadOnce();
    QDialog::done(result);
}

} // namespace marivale
