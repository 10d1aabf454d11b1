#include "shell/help_dialog.h"

// Standard library
#include <algorithm>
#include <array>
#include <cstdint>

// Qt
#include <QFont>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>

// Marivale
#include "ui/design_look.h"
#include "ui/dialog_setup.h"

namespace marivale {

namespace {

enum class ItemKind : std::uint8_t { Heading, Line, CentredLine };

struct HelpItem {
    ItemKind kind{ItemKind::Line};
    const char* text{""};
};

// The page from top to bottom; item N is the label LabelN.
constexpr std::array<HelpItem, 21> kItems{{
    {ItemKind::Heading, "Main Menu"},
    {ItemKind::Line,
     "Play Settings: Sets the bet amount allowed, from Play Settings * 1 to Play Settings * 20."},
    {ItemKind::Line, "Clear: Clears the Win/Loss Amount in the Main Menu."},
    {ItemKind::Line,
     "Exit: Exits from Main Menu and stores essential information.  Windows X Button Same."},
    {ItemKind::Line,
     "Status Bar: Clicking toggles between Double Up Enabled and Double Up Not Enabled."},
    {ItemKind::Heading, "Games"},
    {ItemKind::Line,
     "Purchase: Buys Credits and transfers to Credit Box.  Required for game to deal hand."},
    {ItemKind::Line,
     "BetUp: Increases the Bet by the amount selected in the Main Menu Play Settings"},
    {ItemKind::Line,
     "BetDn: Decreases the Bet by the amount selected in the Main Menu Play Settings"},
    {ItemKind::Line, "Exit: Quits game and returns to Main Menu"},
    {ItemKind::Line, "Deal: Deals a hand only if there are enough Credits purchased."},
    {ItemKind::Line,
     "Cash Out: Transfers unused Credits to Winnings, and recalculates Win/Loss Amounts"},
    {ItemKind::Line,
     "Draw: Draws new cards.  Cards can be kept by clicking the card.  'Held' shows over card."},
    {ItemKind::Line,
     "Stand: Does not draw new cards.  Allows players to keep the five existing cards."},
    {ItemKind::Line, "Double Up: Allows player to bet double or nothing on win.  No limit to "
                     "amount of doubling."},
    {ItemKind::Line, "Take Score: If Double Up enabled, allows player to take winnings instead "
                     "of doubling up."},
    {ItemKind::Heading, "Double Up"},
    {ItemKind::Line, "Player chooses either Low (2-7) or High (9-A).  If card dealt matches, then "
                     "win doubled."},
    {ItemKind::Heading, "Treasure Trips Bonus"},
    {ItemKind::Line, "Player selects treasure from three chest.  Amount of bonus shown.  Click "
                     "Button to return"},
    {ItemKind::CentredLine, "Full Help Details in File  'MPReadme.txt'"},
}};

// The page inside the border: 6825 by 6330 twips at 15 twips to the pixel.
constexpr QSize kPageSize{455, 422};
constexpr int kMargin = 8;
constexpr int kHeadingGap = 6; // extra space above a heading
constexpr int kMaxLineGap = 5; // most space added between two items
constexpr QSize kButtonSize{81, 25};

// Widths to try, widest first: every line fits the page on one row in the design face; where
// rounding at some screen scale makes a line too long, the face is condensed a little.
constexpr std::array<int, 4> kStretches{QFont::Unstretched, 95, 90, QFont::SemiCondensed};

QFont pageFont(bool bold, int stretch) {
    QFont font = designFont(8.25, bold);
    font.setStretch(stretch);
    return font;
}

// The widest stretch at which every line fits the page on one row; else the narrowest.
int fittingStretch(int width) {
    for (const int stretch : kStretches) {
        const QFontMetrics regular(pageFont(false, stretch));
        const QFontMetrics bold(pageFont(true, stretch));
        bool fits = true;
        for (const HelpItem& item : kItems) {
            const QFontMetrics& metrics = item.kind == ItemKind::Heading ? bold : regular;
            const QRect row = metrics.boundingRect(QRect(0, 0, width, kPageSize.height()),
                                                   Qt::TextWordWrap, QString::fromUtf8(item.text));
            fits = fits && row.height() <= metrics.height();
        }
        if (fits) {
            return stretch;
        }
    }
    return kStretches.back();
}

} // namespace

HelpDialog::HelpDialog(QWidget* parent) : QDialog(parent) {
    setUpModalWindow(*this, {.name = QStringLiteral("frmHelp"),
                             .caption = QStringLiteral("Marivale Poker Help"),
                             .size = kPageSize,
                             .ground = Qt::white,
                             .text = Qt::black});
    const int width = kPageSize.width() - 2 * kMargin;
    const int stretch = fittingStretch(width);
    setFont(pageFont(false, stretch));

    // Each item takes the height its text needs; the room left above the button is shared out
    // between the items.
    std::array<QLabel*, kItems.size()> labels{};
    int textHeight = 0;
    for (std::size_t i = 0; i < kItems.size(); ++i) {
        const HelpItem& item = kItems[i];
        auto* label = new QLabel(QString::fromUtf8(item.text), this);
        label->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        if (item.kind == ItemKind::Heading) {
            label->setFont(pageFont(true, stretch));
            textHeight += i == 0 ? 0 : kHeadingGap;
        }
        label->setAlignment(item.kind == ItemKind::Line ? Qt::AlignLeft | Qt::AlignTop
                                                        : Qt::AlignHCenter | Qt::AlignTop);
        label->resize(width, label->heightForWidth(width));
        textHeight += label->height();
        labels[i] = label;
    }
    const int room = kPageSize.height() - 3 * kMargin - kButtonSize.height() - textHeight;
    const int gap = std::clamp(room / static_cast<int>(kItems.size()), 0, kMaxLineGap);
    int top = kMargin;
    for (std::size_t i = 0; i < kItems.size(); ++i) {
        if (kItems[i].kind == ItemKind::Heading && i != 0) {
            top += kHeadingGap;
        }
        labels[i]->move(kMargin, top);
        top += labels[i]->height() + gap;
    }

    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    ok->setGeometry((kPageSize.width() - kButtonSize.width()) / 2,
                    kPageSize.height() - kMargin - kButtonSize.height(), kButtonSize.width(),
                    kButtonSize.height());
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}

} // namespace marivale
