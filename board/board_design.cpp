#include "board/board_design.h"

// Qt
#include <QDialog>
#include <QFont>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

// Marivale
#include "engine/pay_table.h"
#include "ui/design_look.h"
#include "ui/twips.h"

namespace marivale {

namespace {

// Places of the controls, in twips, relative to their frame or the window.
constexpr TwipRect kPayFrame{120, 120, 3240, 2880};
constexpr TwipRect kCreditsFrame{120, 3120, 3240, 2400};
constexpr TwipRect kTitle{3480, 60, 5880, 660};
constexpr TwipRect kNote{3480, 720, 5880, 360};
constexpr TwipRect kHelp{3480, 1200, 960, 420};
constexpr TwipRect kExit{3480, 1740, 960, 420};
constexpr TwipRect kCreditPanel{4560, 1200, 1800, 660};
constexpr TwipRect kBetPanel{4560, 1920, 1800, 420};
constexpr TwipRect kResultsPanel{6480, 1200, 1800, 1140};
constexpr TwipRect kBetUp{8400, 1200, 960, 480};
constexpr TwipRect kBetDn{8400, 1800, 960, 480};
constexpr TwipRect kStand{3420, 4440, 1150, 480};
constexpr TwipRect kOutput{4620, 4440, 3550, 480};
constexpr TwipRect kDrawDeal{8220, 4440, 1150, 480};
constexpr TwipRect kStatsFrame{120, 5640, 9240, 1035};
constexpr int kCardLeft = 3420;
constexpr int kCardStep = 1200;
constexpr int kCardTop = 2790;
constexpr int kCardWidth = 1150;
constexpr int kCardHeight = 1550;
constexpr int kHoldTop = 2460;
constexpr int kHoldHeight = 300;
// Amount box widths of the pay table: the top three rows widest, the bottom three narrowest.
constexpr std::array<int, 3> kPayBoxWidths{1260, 1080, 900};

constexpr qreal kTextPoints = 8.25;

QColor colour(Rgb rgb) {
    return QColor(rgb.red, rgb.green, rgb.blue);
}

// The two schemes: board colour with white text, and black panels in the display colour. Each is
// set once on the widget that starts it and reaches the controls inside it.
struct Schemes {
    QPalette board{};
    QPalette boardField{};
    QPalette boardOption{};
    QPalette display{};
    QPalette displayField{};
};

Schemes schemes(const GameVariant& v) {
    const QColor board = colour(v.boardColour);
    const QColor display = colour(v.displayColour);
    Schemes s{designPalette(board, Qt::white), {}, {}, designPalette(Qt::black, display), {}};
    s.board.setColor(QPalette::Base, board);
    s.board.setColor(QPalette::Text, Qt::white);
    // A field's outline is drawn a shade darker than its window colour.
    s.boardField = s.board;
    s.boardField.setColor(QPalette::Window, Qt::white);
    s.boardOption = s.board;
    s.boardOption.setColor(QPalette::Base, Qt::white);
    s.boardOption.setColor(QPalette::Text, Qt::black);
    s.display.setColor(QPalette::Base, Qt::black);
    s.display.setColor(QPalette::Text, display);
    s.displayField = s.display;
    s.displayField.setColor(QPalette::Window, QColor(112, 112, 112));
    return s;
}

// A frame with a white outline and its caption on the board colour, alike under every style.
class DesignFrame final : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QFontMetrics metrics(font());
        const int captionTop = metrics.height() / 2;
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, captionTop + 0.5, -0.5, -0.5), 3, 3);
        const QRect caption = captionRect();
        painter.fillRect(caption, palette().color(QPalette::Window));
        painter.drawText(caption, Qt::AlignCenter | Qt::TextShowMnemonic, title());
    }

private:
    // Where the caption is drawn: over the top line, a little in from the left.
    QRect captionRect() const {
        const QFontMetrics metrics(font());
        return QRect(kCaptionLeft, 0, metrics.horizontalAdvance(title()) + 2 * kCaptionPad,
                     metrics.height());
    }

    static constexpr int kCaptionLeft = 8;
    static constexpr int kCaptionPad = 3;
};

template <typename W> W* place(W* widget, QWidget& parent, const char* name, TwipRect rect) {
    widget->setParent(&parent);
    widget->setObjectName(QString::fromLatin1(name));
    widget->setGeometry(fromTwips(rect));
    return widget;
}

QLabel* label(QWidget& parent, const char* name, const QString& text, TwipRect rect,
              Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter) {
    auto* l = place(new QLabel(text), parent, name, rect);
    l->setTextFormat(Qt::PlainText);
    l->setAlignment(align);
    return l;
}

QLineEdit* field(QWidget& parent, const char* name, TwipRect rect, const QPalette& scheme) {
    auto* f = place(new QLineEdit, parent, name, rect);
    f->setPalette(scheme);
    f->setReadOnly(true);
    f->setFocusPolicy(Qt::NoFocus);
    f->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return f;
}

QPushButton* button(QWidget& parent, const char* name, std::string_view caption, TwipRect rect) {
    return place(
        new QPushButton(QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()))),
        parent, name, rect);
}

QFrame* panel(QWidget& parent, const char* name, TwipRect rect, const QPalette& display) {
    auto* frame = place(new QFrame, parent, name, rect);
    frame->setPalette(display);
    frame->setAutoFillBackground(true);
    return frame;
}

// A label of the board in the display scheme: the hold marks and the message line.
QLabel* displayLabel(QWidget& parent, const char* name, TwipRect rect, const QPalette& display) {
    QLabel* mark = label(parent, name, QString(), rect, Qt::AlignCenter);
    mark->setPalette(display);
    mark->setAutoFillBackground(true);
    return mark;
}

void buildPayTable(QDialog& window, const GameVariant& v, const Schemes& s, BoardWidgets& w) {
    QFrame* frame = panel(window, "Frame1", kPayFrame, s.display);
    const PayTable& table = payTable(v.game);
    for (int row = 0; row < kPayRows; ++row) {
        const int top = 90 + row * 300;
        const int boxWidth = kPayBoxWidths[row / 3];
        const QString captionName = QStringLiteral("PayLabel%1").arg(row);
        w.payCaptions[row] = label(
            *frame, "", QString::fromLatin1(table[row].caption.data(), table[row].caption.size()),
            {90, top, 1770, 270});
        w.payCaptions[row]->setObjectName(captionName);
        w.payBoxes[row] = field(*frame, "", {kPayFrame.width - 90 - boxWidth, top, boxWidth, 270},
                                s.displayField);
        w.payBoxes[row]->setObjectName(
            QString::fromLatin1(table[row].box.data(), static_cast<int>(table[row].box.size())));
    }
}

void buildPurchase(QDialog& window, const Schemes& s, BoardWidgets& w) {
    auto* frame =
        place(new DesignFrame(QStringLiteral("Credits")), window, "Frame2", kCreditsFrame);
    constexpr int perColumn = kPurchaseOptionCount / 2;
    for (int i = 0; i < kPurchaseOptionCount; ++i) {
        const TwipRect rect{i < perColumn ? 240 : 1740, 360 + (i % perColumn) * 360, 1380, 300};
        const std::string_view caption = kPurchaseOptions[i].caption;
        auto* option = place(new QRadioButton(QString::fromUtf8(
                                 caption.data(), static_cast<qsizetype>(caption.size()))),
                             *frame, "", rect);
        option->setObjectName(QStringLiteral("POption%1").arg(i));
        option->setPalette(s.boardOption);
        w.purchaseOptions[i] = option;
    }
    w.purchaseOptions[kFirstPurchaseOption]->setChecked(true);
    w.purchase = button(*frame, "Purchase", "&Purchase", {870, 1860, 1500, 420});
}

void buildPanels(QDialog& window, const Schemes& s, BoardWidgets& w) {
    QFrame* credit = panel(window, "Frame3", kCreditPanel, s.display);
    label(*credit, "CreditLabel", QStringLiteral("Credit"), {60, 30, 1680, 270}, Qt::AlignCenter);
    w.credit = field(*credit, "Credit", {60, 330, 1680, 300}, s.displayField);
    QFrame* bet = panel(window, "Frame4", kBetPanel, s.display);
    label(*bet, "BetLabel", QStringLiteral("Bet"), {60, 60, 600, 300});
    w.bet = field(*bet, "Bet", {720, 60, 1020, 300}, s.displayField);
    QFrame* results = panel(window, "Frame5", kResultsPanel, s.display);
    label(*results, "ResultsLabel", QStringLiteral("Results"), {60, 30, 1680, 270},
          Qt::AlignCenter);
    label(*results, "WinLabel", QStringLiteral("Win"), {60, 360, 480, 300});
    w.win = field(*results, "Win", {600, 360, 1140, 300}, s.displayField);
    label(*results, "LastLabel", QStringLiteral("Last"), {60, 720, 480, 300});
    w.last = field(*results, "Last", {600, 720, 1140, 300}, s.displayField);
}

void buildCards(QDialog& window, const Schemes& s, BoardWidgets& w) {
    for (int p = 0; p < kHandSize; ++p) {
        const int left = kCardLeft + p * kCardStep;
        w.holdMarks[p] =
            displayLabel(window, "", {left, kHoldTop, kCardWidth, kHoldHeight}, s.display);
        w.holdMarks[p]->setObjectName(QStringLiteral("Card%1Ind").arg(p));
        w.cards[p] = button(window, "", "", {left, kCardTop, kCardWidth, kCardHeight});
        w.cards[p]->setObjectName(QStringLiteral("Card%1").arg(p));
    }
    const PhaseCaptions opening = phaseCaptions(Phase::BeforeDeal);
    w.stand = button(window, "Stand", opening.stand, kStand);
    w.output = displayLabel(window, "Output2", kOutput, s.display);
    w.drawDeal = button(window, "DrawDeal", opening.drawDeal, kDrawDeal);
}

void buildStatistics(QDialog& window, const Schemes& s, BoardWidgets& w) {
    auto* frame =
        place(new DesignFrame(QStringLiteral("Play Statistics")), window, "Frame6", kStatsFrame);
    label(*frame, "PurchasedLabel", QStringLiteral("Credits Purchased"), {120, 420, 1920, 300});
    w.totPurchased = field(*frame, "TotPurchased", {2100, 390, 1320, 330}, s.boardField);
    label(*frame, "WinningsLabel", QStringLiteral("Winnings"), {3600, 420, 1020, 300});
    w.totWinGame = field(*frame, "TotWinGame", {4680, 390, 1320, 330}, s.boardField);
    w.plTitle = label(*frame, "PLTitle", QStringLiteral("Net Winnings"), {6180, 420, 1380, 300});
    w.profLoss = field(*frame, "ProfLoss", {7620, 390, 1320, 330}, s.boardField);
}

} // namespace

BoardWidgets buildBoard(QDialog& window, const GameVariant& v) {
    BoardWidgets w;
    window.setObjectName(QString::fromLatin1(v.boardName.data(), v.boardName.size()));
    window.setWindowTitle(QString::fromLatin1(v.windowCaption.data(), v.windowCaption.size()));
    window.setFixedSize(kBoardWidthTwips / kTwipsPerPixel, kBoardHeightTwips / kTwipsPerPixel);
    window.setFont(designFont(kTextPoints, true));
    const Schemes s = schemes(v);
    window.setPalette(s.board);

    w.title = label(window, "Label1", QString::fromLatin1(v.title.data(), v.title.size()), kTitle,
                    Qt::AlignCenter);
    w.title->setFont(designFont(24, true, true));
    if (!v.noteName.empty()) {
        w.note = label(window, "", QString::fromLatin1(v.noteText.data(), v.noteText.size()), kNote,
                       Qt::AlignCenter);
        w.note->setObjectName(QString::fromLatin1(v.noteName.data(), v.noteName.size()));
        w.note->setFont(designFont(12, true));
    }
    buildPayTable(window, v, s, w);
    buildPurchase(window, s, w);
    w.help = button(window, "Help", "&Help", kHelp);
    w.exit = button(window, "Exit", "E&xit", kExit);
    buildPanels(window, s, w);
    w.betUp = button(window, "BetUp", "Bet &Up", kBetUp);
    w.betDn = button(window, "BetDn", "Bet D&n", kBetDn);
    buildCards(window, s, w);
    buildStatistics(window, s, w);
    return w;
}

} // namespace marivale
