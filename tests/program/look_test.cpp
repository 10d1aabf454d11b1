// Every window as the player opens it, on any desktop: each board opened from a stand-in for the
// main menu, and Double Up, Treasure Hunt, help and Strategy opened from the board by its own
// buttons and keys. Each window shows its own colours and keeps every text whole, whatever the
// desktop's default font and the locale. The screen's scale factor comes from the test's
// environment (QT_SCALE_FACTOR), one test entry per factor.

// Standard library
#include <array>

// Qt
#include <QApplication>
#include <QLabel>
#include <QtTest>

// Marivale
#include "tests/support/board_fixture.h"
#include "tests/support/legibility.h"
#include "tests/support/test_support.h"
#include "tests/support/text_fit.h"
#include "ui/design_look.h"

using namespace marivale;
using namespace marivale::testing;

namespace {

// The stand-in for the main menu a board is opened from.
struct MenuStandIn {
    MenuStandIn() {
        menu.setObjectName(QStringLiteral("frmMain"));
        menu.resize(300, 200);
        menu.show();
    }
    QWidget menu{};
};

// A visit to a board opened as the main menu opens it, with Double Up on.
struct Visit : MenuStandIn, BoardFixture {
    Visit(GameId g, float playUnit) : BoardFixture(g, 0.0f, playUnit, true, &menu) {}
    // Deals the cards given as text ("2h 5h 9h Jh Kh").
    void deal(const char* cards) {
        script(cards);
        click(QStringLiteral("DrawDeal"));
    }
    // A control's rectangle in the board's coordinates.
    QRect placeOf(const QString& name) const {
        QWidget* widget = find(name);
        return {widget->mapTo(board.get(), QPoint(0, 0)), widget->size()};
    }
};

// Collects every fault seen, each line naming where it was seen.
class Faults {
public:
    void add(const QString& where, const QStringList& found) {
        for (const QString& fault : found) {
            lines_ << where + QStringLiteral(": ") + fault;
        }
    }
    void expect(const QString& where, bool ok, const QString& what) {
        if (!ok) {
            lines_ << where + QStringLiteral(": ") + what;
        }
    }
    // Every text of the window whole, readable and in the design face; with MARIVALE_SHOTS set
    // to a directory, a picture of the window is saved there for a look.
    void whole(const QString& where, QWidget& window) {
        saveShot(window, where + QStringLiteral(".png"));
        add(where, cutTexts(window));
        add(where, illegibleTexts(window));
        QList<QWidget*> controls = shownControls(window);
        controls << &window;
        for (const QWidget* control : controls) {
            const QFont font = control->font();
            expect(where, font.family() == QLatin1String(kDesignFamily) && font.pixelSize() > 0,
                   control->objectName() + QStringLiteral(" is not in the design face"));
        }
    }
    // The count and every fault, one a line, for the test's failure message.
    QString report() const {
        return QStringLiteral("%1 faults:\n").arg(lines_.size()) + lines_.join('\n');
    }
    bool empty() const { return lines_.isEmpty(); }

private:
    QStringList lines_{};
};

const QColor kBlack(0, 0, 0);
const QColor kWhite(255, 255, 255);

struct BoardLook {
    GameId game{};
    QColor board{};
    QColor display{};
    bool treasureHunt{false}; // a paying hand with three Threes opens the Treasure Hunt
};

// Each board's colour and display colour, boards in the menu's order.
const std::array<BoardLook, kGameCount> kLooks{{
    {GameId::TreasureTrips, QColor(0, 0, 128), QColor(0, 255, 255), true},
    {GameId::DeucesWild, QColor(0, 128, 0), QColor(0, 255, 0)},
    {GameId::JokerWild, QColor(128, 0, 0), QColor(192, 0, 0)},
    {GameId::JacksOrBetter, QColor(0, 128, 128), QColor(0, 192, 192)},
}};

void checkBoard(Visit& v, const BoardLook& look, const QString& where, Faults& faults) {
    QWidget& board = *v.board;
    faults.whole(where, board);
    const QColor ground = colourAt(board, QPoint(560, 350));
    faults.expect(where, ground == look.board, QStringLiteral("board is ") + ground.name());
    const QColor table =
        colourAt(board, v.placeOf(QStringLiteral("Frame1")).topLeft() + QPoint(2, 2));
    faults.expect(where, table == kBlack, QStringLiteral("pay table is ") + table.name());
    faults.expect(where, showsColour(board, v.placeOf(QStringLiteral("Label1")), kWhite),
                  QStringLiteral("title is not white"));
    faults.expect(where, showsColour(board, v.placeOf(QStringLiteral("PurchasedLabel")), kWhite),
                  QStringLiteral("Play Statistics texts are not white"));
    faults.expect(where, showsColour(board, v.placeOf(QStringLiteral("Credit")), look.display),
                  QStringLiteral("Credit is not in the display colour"));
    const QLabel* title = v.find<QLabel>(QStringLiteral("Label1"));
    faults.expect(where,
                  title->font().pixelSize() == 32 && title->font().bold() && title->font().italic(),
                  QStringLiteral("title is not 24 pt bold italic"));
    for (const char* name : {"Label10", "Label31"}) {
        if (const QLabel* note = v.find<QLabel>(QString::fromLatin1(name))) {
            faults.expect(where, note->font().pixelSize() == 16 && note->font().bold(),
                          QStringLiteral("note is not 12 pt bold"));
        }
    }
    // The title and the note have their own sizes; every other text is 8.25 points bold.
    for (const QWidget* control : shownControls(board)) {
        if (control != title && !control->objectName().startsWith("Label")) {
            faults.expect(where, control->font().pixelSize() == 11 && control->font().bold(),
                          control->objectName() + QStringLiteral(" is not in 8.25 pt bold"));
        }
    }
}

void checkHelp(QWidget& help, const QString& where, Faults& faults) {
    faults.whole(where, help);
    const QColor page = colourAt(help, QPoint(2, 2));
    faults.expect(where, page == kWhite, QStringLiteral("page is ") + page.name());
    // Every text black on the page; which texts there are is the help screen's own test.
    for (const QLabel* label : help.findChildren<QLabel*>()) {
        const QRect place(label->mapTo(&help, QPoint(0, 0)), label->size());
        faults.expect(where, showsColour(help, place, kBlack, 40),
                      label->objectName() + QStringLiteral(" is not black"));
    }
    auto* ok = help.findChild<QWidget*>(QStringLiteral("Command1"));
    faults.expect(where, ok != nullptr && ok->isVisible(), QStringLiteral("no OK button"));
}

void checkDoubleUp(QWidget& dup, const QString& where, Faults& faults) {
    faults.whole(where, dup);
    const QColor ground = colourAt(dup, QPoint(4, dup.height() / 2));
    faults.expect(where, ground == QColor(255, 255, 0),
                  QStringLiteral("ground is ") + ground.name());
    auto* title = dup.findChild<QWidget*>(QStringLiteral("Label1"));
    faults.expect(where, showsColour(dup, title->geometry(), kBlack, 40),
                  QStringLiteral("title is not black"));
}

void checkTreasureHunt(QWidget& hunt, const QString& where, Faults& faults) {
    faults.whole(where, hunt);
    const QColor ground = colourAt(hunt, QPoint(4, 4));
    faults.expect(where, ground == QColor(0, 0, 192), QStringLiteral("ground is ") + ground.name());
    auto* title = hunt.findChild<QWidget*>(QStringLiteral("Label1"));
    faults.expect(where, showsColour(hunt, title->geometry(), kWhite),
                  QStringLiteral("title is not white"));
}

// F2 opens the Strategy companion beside the board. It lays itself out for the desktop's font;
// it has to stay readable on every board.
void checkStrategy(Visit& v, const QString& name, Faults& faults) {
    QTest::keyClick(v.board.get(), Qt::Key_F2);
    QWidget* strategy = v.find(QStringLiteral("Strategy"));
    if (strategy == nullptr || !strategy->isVisible()) {
        faults.expect(name, false, QStringLiteral("F2 did not open Strategy"));
        return;
    }
    saveShot(*strategy, name + QStringLiteral(" Strategy.png"));
    faults.add(name + QStringLiteral(" Strategy"), illegibleTexts(*strategy));
    QTest::keyClick(v.board.get(), Qt::Key_F2);
    faults.expect(name, !strategy->isVisible(), QStringLiteral("F2 did not close Strategy"));
}

// One visit to the board: its look, help, Strategy when asked, a Treasure Hunt where the board has
// one, a won Double Up, and the board again after the hand.
void visitBoard(const BoardLook& look, bool strategyToo, Faults& faults) {
    Visit v(look.game, 1.0f);
    const QString name = v.board->objectName();
    checkBoard(v, look, name, faults);

    bool seen = false;
    answerModal([&](QWidget& help) {
        seen = help.objectName() == QLatin1String("frmHelp");
        checkHelp(help, name + QStringLiteral(" frmHelp"), faults);
        clickIn(help, QStringLiteral("Command1"));
    });
    v.click(QStringLiteral("Help"));
    faults.expect(name, seen, QStringLiteral("Help did not open frmHelp"));

    if (strategyToo) {
        checkStrategy(v, name, faults);
    }

    v.click(QStringLiteral("POption4"));
    v.click(QStringLiteral("Purchase"));
    if (look.treasureHunt) {
        v.deal("3s 3d 3h Jk Kd");
        seen = false;
        answerModal([&](QWidget& hunt) {
            seen = hunt.objectName() == QLatin1String("TrTrip");
            checkTreasureHunt(hunt, name + QStringLiteral(" TrTrip"), faults);
            v.random.push(0.95); // the largest chest
            clickIn(hunt, QStringLiteral("Tr2"));
            checkTreasureHunt(hunt, name + QStringLiteral(" TrTrip after a chest"), faults);
            clickIn(hunt, QStringLiteral("TClose"));
        });
        v.click(QStringLiteral("Stand"));
        faults.expect(name, seen, QStringLiteral("a bonus hand did not open TrTrip"));
    }

    v.deal("2h 5h 9h Jh Kh");
    v.click(QStringLiteral("Stand"));
    faults.expect(name, v.find<QAbstractButton>("Stand")->text() == "&Double      Up",
                  QStringLiteral("no Double Up after a Flush"));
    seen = false;
    answerModal([&](QWidget& dup) {
        seen = dup.objectName() == QLatin1String("frmDup");
        checkDoubleUp(dup, name + QStringLiteral(" frmDup"), faults);
        v.random.pushIndex(4, 52); // a Five
        clickIn(dup, QStringLiteral("Low"));
        checkDoubleUp(dup, name + QStringLiteral(" frmDup after a guess"), faults);
        clickIn(dup, QStringLiteral("RetBtn"));
    });
    v.click(QStringLiteral("Stand"));
    faults.expect(name, seen, QStringLiteral("Stand did not open frmDup"));
    checkBoard(v, look, name + QStringLiteral(" after the hand"), faults);
}

// The widest amounts a board shows: the largest bet unit at the largest bet.
void visitAtTheTopBet(GameId game, Faults& faults) {
    Visit v(game, 10.0f);
    for (int i = 0; i < 20; ++i) {
        v.click(QStringLiteral("BetUp"));
    }
    faults.add(v.board->objectName() + QStringLiteral(" at the top bet"), cutTexts(*v.board));
}

} // namespace

class LookTest : public QObject {
    Q_OBJECT
private slots:
    void everyWindowFromItsBoard_data();
    void everyWindowFromItsBoard();
    void cleanup();
};

void LookTest::everyWindowFromItsBoard_data() {
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("locale");
    const QStringList families{QStringLiteral("DejaVu Serif"), QStringLiteral("DejaVu Sans")};
    // Every desktop font in the C locale, and German numbers with the largest font.
    const QStringList locales{"C", "de_DE"};
    for (const QString& family : families) {
        for (const int points : {9, 10, 11, 12}) {
            QTest::addRow("%s %d pt, C", qPrintable(family), points) << family << points << "C";
        }
    }
    for (const QString& locale : locales.mid(1)) {
        QTest::addRow("DejaVu Serif 12 pt, %s", qPrintable(locale))
            << QStringLiteral("DejaVu Serif") << 12 << locale;
    }
}

void LookTest::everyWindowFromItsBoard() {
    QFETCH(QString, family);
    QFETCH(int, points);
    QFETCH(QString, locale);
    QApplication::setFont(QFont(family, points));
    QLocale::setDefault(QLocale(locale));
    Faults faults;
    for (const BoardLook& look : kLooks) {
        // Strategy at the smallest font and in the locale whose numbers differ.
        visitBoard(look, points == 9 || locale == QLatin1String("de_DE"), faults);
        visitAtTheTopBet(look.game, faults);
    }
    QVERIFY2(faults.empty(), qPrintable(faults.report()));
}

void LookTest::cleanup() {
    QLocale::setDefault(QLocale::c());
}

QTEST_MAIN(LookTest)
#include "look_test.moc"
