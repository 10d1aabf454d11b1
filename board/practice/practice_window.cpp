#include "board/practice/practice_window.h"

// Standard library
#include <utility>

// Qt
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

// Marivale
#include "board/practice/answer_label.h"
#include "board/practice/drill_chart.h"
#include "board/practice/drill_texts.h"
#include "engine/odds/draw_tables.h"
#include "play/game_variant.h"
#include "play/practice/line_deals.h"
#include "ui/design_look.h"

namespace marivale {
namespace {

constexpr QSize kCardSize{72, 96};

// The position 1 to 5 keys (top row or keypad) stand for, or -1.
int positionKey(const QKeyEvent& event) {
    const int key = event.key();
    return key >= Qt::Key_1 && key <= Qt::Key_5 ? key - Qt::Key_1 : -1;
}

} // namespace

PracticeWindow::PracticeWindow(GameId game, QWidget* parent, std::unique_ptr<RandomSource> random)
    : QWidget(parent, Qt::Tool), random_(std::move(random)), drill_(game, *random_) {
    setObjectName(QStringLiteral("Practice"));
    setWindowTitle(tr("Practice"));
    setFont(designFont(10));
    auto* layout = new QVBoxLayout(this);

    auto* modeRow = new QHBoxLayout;
    mode_ = new QComboBox(this);
    mode_->setObjectName(QStringLiteral("DrillMode"));
    mode_->addItems({tr("Random deals"), tr("Close calls"), tr("Weak spots")});
    auto* modeLabel = new QLabel(tr("&Focus:"), this);
    modeLabel->setBuddy(mode_);
    modeRow->addWidget(modeLabel);
    modeRow->addWidget(mode_);
    modeRow->addStretch();
    layout->addLayout(modeRow);

    auto* cardsRow = new QHBoxLayout;
    for (int p = 0; p < kHandSize; ++p) {
        auto* column = new QVBoxLayout;
        cards_[p] = new QPushButton(this);
        cards_[p]->setObjectName(QStringLiteral("DrillCard%1").arg(p));
        cards_[p]->setFixedSize(kCardSize);
        cards_[p]->setFlat(true);
        cards_[p]->setFocusPolicy(Qt::NoFocus);
        marks_[p] = new QLabel(this);
        marks_[p]->setObjectName(QStringLiteral("DrillHeld%1").arg(p));
        marks_[p]->setAlignment(Qt::AlignCenter);
        marks_[p]->setFont(designFont(10, true));
        column->addWidget(cards_[p]);
        column->addWidget(marks_[p]);
        cardsRow->addLayout(column);
        connect(cards_[p], &QPushButton::clicked, this, [this, p] { toggle(p); });
    }
    cardsRow->addStretch();
    layout->addLayout(cardsRow);

    verdict_ = new AnswerLabel(this, [this] { answerPainted(); });
    verdict_->setObjectName(QStringLiteral("DrillVerdict"));
    verdict_->setTextFormat(Qt::RichText);
    verdict_->setMinimumHeight(4 * verdict_->fontMetrics().height());
    verdict_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(verdict_);

    auto* buttons = new QHBoxLayout;
    submit_ = new QPushButton(tr("Sub&mit"), this);
    submit_->setObjectName(QStringLiteral("DrillSubmit"));
    next_ = new QPushButton(tr("Ne&w Deal"), this);
    next_->setObjectName(QStringLiteral("DrillNext"));
    for (QPushButton* button : {submit_, next_}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    connect(submit_, &QPushButton::clicked, this, &PracticeWindow::submit);
    connect(next_, &QPushButton::clicked, this, &PracticeWindow::dealNext);

    score_ = new QLabel(this);
    score_->setObjectName(QStringLiteral("DrillScore"));
    score_->setTextFormat(Qt::PlainText);
    layout->addWidget(score_);
    weak_ = new QLabel(this);
    weak_->setObjectName(QStringLiteral("DrillWeakLines"));
    weak_->setWordWrap(true);
    weak_->setTextFormat(Qt::PlainText);
    layout->addWidget(weak_);
    chart_ = new DrillChart(this);
    chart_->setMinimumSize(420, 200);
    layout->addWidget(chart_, 1);

    connect(mode_, &QComboBox::currentIndexChanged, this, &PracticeWindow::modeChosen);
    mode_->installEventFilter(this);

    if (const QString path = qEnvironmentVariable("MARIVALE_TIMING_LOG"); !path.isEmpty()) {
        timingLog_.setFileName(path);
        if (!timingLog_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
            timingLog_.setFileName(QString());
        }
    }
    showHand();
    showScore();
    showWeakLines();
    if (odds::DrawTables::ifBuilt(game) != nullptr) {
        oddsReady();
    }
    // The deals filed by line come after the odds, for the weak spots.
    work_.start([this, game](std::stop_token stop) {
        if (odds::DrawTables::forGameUnlessStopped(game, stop) == nullptr) {
            return;
        }
        QMetaObject::invokeMethod(this, &PracticeWindow::oddsReady, Qt::QueuedConnection);
        if (auto filed = LineDeals::build(game, stop)) {
            QMetaObject::invokeMethod(
                this, [this, filed] { drill_.setLineDeals(filed); }, Qt::QueuedConnection);
        }
    });
}

PracticeWindow::~PracticeWindow() = default;

// Fits every card of the deck once while the odds are worked out, so no hand waits for a
// picture.
void PracticeWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (picturesReady_) {
        return;
    }
    picturesReady_ = true;
    const qreal ratio = cards_[0]->devicePixelRatioF();
    for (CardCode card = 0; card < deckSize(drill_.game()); ++card) {
        pictures_.picture(QString::fromStdString(pictureFileName(drill_.game(), card)),
                          cards_[0]->size(), ratio);
    }
}

void PracticeWindow::oddsReady() {
    if (!working_) {
        return;
    }
    working_ = false;
    dealNext();
}

void PracticeWindow::setWeakLines(const std::vector<WeakLine>& lines) {
    drill_.setWeakLines(lines);
    showWeakLines();
}

void PracticeWindow::modeChosen(int index) {
    drill_.setMode(static_cast<DrillMode>(index));
    if (drill_.mode() == DrillMode::WeakSpots) {
        emit weakLinesWanted();
    }
    showWeakLines();
}

void PracticeWindow::toggle(int position) {
    drill_.toggle(position);
    showHand();
}

// Enter submits the holds, and once the hand is judged deals the next one.
void PracticeWindow::enter() {
    if (drill_.verdict()) {
        dealNext();
    } else {
        submit();
    }
}

void PracticeWindow::submit() {
    if (working_ || !drill_.dealt() || drill_.verdict()) {
        return;
    }
    emit drillJudged(drill_.game(), drill_.hand().cards, drill_.submit());
    showHand();
    showVerdict();
    showScore();
    showWeakLines();
    chart_->addPoint(drill_.score().hands(), drill_.score().costPer100());
}

void PracticeWindow::dealNext() {
    if (working_) {
        return;
    }
    drill_.deal();
    showHand();
    showVerdict();
}

void PracticeWindow::showHand() {
    const bool dealt = drill_.dealt();
    const bool judged = drill_.verdict().has_value();
    for (int p = 0; p < kHandSize; ++p) {
        const std::string file = dealt ? pictureFileName(drill_.game(), drill_.hand().cards[p])
                                       : std::string(kCardBackFile);
        pictures_.showOn(*cards_[p], QString::fromStdString(file));
        const bool held = dealt && (drill_.held() >> p & 1u) != 0;
        const bool best = judged && (drill_.verdict()->best >> p & 1u) != 0;
        marks_[p]->setText(held ? tr("HELD") : QString());
        marks_[p]->setStyleSheet(best ? QStringLiteral("border: 2px solid #1a7f37;") : QString());
    }
    submit_->setEnabled(dealt && !judged && !working_);
    next_->setEnabled(judged);
}

void PracticeWindow::showVerdict() {
    if (working_) {
        verdict_->setText(tr("Working out the odds of the game…"));
        return;
    }
    verdict_->setText(drillAnswerText(drill_));
}

void PracticeWindow::showScore() {
    score_->setText(drillScoreText(drill_.score()));
}

void PracticeWindow::showWeakLines() {
    if (drill_.mode() == DrillMode::WeakSpots) {
        weak_->setText(weakLinesText(drill_.weakLines()));
    } else {
        weak_->clear();
    }
}

void PracticeWindow::answerPainted() {
    if (!keyAt_ || !timingLog_.isOpen()) {
        return;
    }
    const std::chrono::duration<double, std::milli> took =
        std::chrono::steady_clock::now() - *keyAt_;
    keyAt_.reset();
    timingLog_.write(QStringLiteral("enter %1\n").arg(took.count(), 0, 'f', 3).toLatin1());
    timingLog_.flush();
}

// 1 to 5 hold, Enter submits or deals the next hand, F4 and Escape close the window.
bool PracticeWindow::handleKey(const QKeyEvent& event) {
    const int key = event.key();
    if (key == Qt::Key_F4 || key == Qt::Key_Escape) {
        close();
        return true;
    }
    if (keys_.isRepeat(event)) {
        return key == Qt::Key_Return || key == Qt::Key_Enter || positionKey(event) >= 0;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (timingLog_.isOpen()) {
            keyAt_ = std::chrono::steady_clock::now();
        }
        enter();
        return true;
    }
    if (const int position = positionKey(event);
        position >= 0 && event.modifiers() != Qt::AltModifier) {
        toggle(position);
        return true;
    }
    return false;
}

void PracticeWindow::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void PracticeWindow::keyReleaseEvent(QKeyEvent* event) {
    keys_.released(*event);
    QWidget::keyReleaseEvent(event);
}

// The focused mode list passes the keys of play to the window.
bool PracticeWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mode_ && event->type() == QEvent::KeyPress) {
        return handleKey(*static_cast<QKeyEvent*>(event));
    }
    if (watched == mode_ && event->type() == QEvent::KeyRelease) {
        keys_.released(*static_cast<QKeyEvent*>(event));
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace marivale
