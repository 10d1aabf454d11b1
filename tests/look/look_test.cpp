// Every window as the player opens it, on any desktop: each board opened from a stand-in for the
// main menu, and Double Up, Treasure Hunt, help and Strategy opened from the board by its own
// buttons and keys. Each window shows its own colours and keeps every text whole, whatever the
// desktop's default font and the locale. The screen's scale factor comes from the test's
// environment (QT_SCALE_FACTOR), one test entry per factor.

// Standard library
#include <functional>

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

// Marivale
#include "board/game_board.h"
#include "board/game_variant.h"
#include "engine/game.h"
#include "hand_text.h"
#include "text_fit.h"

using namespace marivale;
using namespace marivale::testing;

namespace {

const QColor kBlack(0, 0, 0);
const QColor kWhite(255, 255, 255);

struct BoardLook {
    GameId game;
    QColor board;
    QColor display;
};

constexpr std::array<GameId, 4> kGames{GameId::TreasureTrips, GameId::DeucesWild, GameId::JokerWild,
                                       GameId::JacksOrBetter};

const std::map<GameId, BoardLook> kLooks{
    {GameId::TreasureTrips, {GameId::TreasureTrips, QColor(0, 0, 128), QColor(0, 255, 255)}},
    {GameId::DeucesWild, {GameId::DeucesWild, QColor(0, 128, 0), QColor(0, 255, 0)}},
    {GameId::JokerWild, {GameId::JokerWild, QColor(128, 0, 0), QColor(192, 0, 0)}},
    {GameId::JacksOrBetter, {GameId::JacksOrBetter, QColor(0, 128, 128), QColor(0, 192, 192)}},
};

// A visit to a board opened as the main menu opens it: a window of the menu's, on the one state.
struct Visit {
    Visit(GameId g, float playUnit) : game(g) {
        state.PlayUnit = playUnit;
        state.NetWinLoss = 0.0f;
        state.DoubleUpEnabled = kTrue;
        menu.setObjectName(QStringLiteral("frmMain"));
        menu.resize(300, 200);
        menu.show();
        board = new GameBoard(variantFor(game), state, random, &menu);
        board->show();
    }

    template <typename W = QWidget> W* find(const QString& name) const {
        return board->findChild<W*>(name);
    }
    void click(const QString& name) const {
        if (auto* button = find<QAbstractButton>(name); button != nullptr && button->isEnabled()) {
            button->click();
        }
        QCoreApplication::processEvents();
    }
    void deal(const char* cards) {
        for (const int code : cardsFromText(cards)) {
            random.pushIndex(code, deckSize(game));
        }
        click(QStringLiteral("DrawDeal"));
    }
    // A control's rectangle in the board's coordinates.
    QRect placeOf(const QString& name) const {
        QWidget* widget = find(name);
        return QRect(widget->mapTo(board, QPoint(0, 0)), widget->size());
    }

    GameId game;
    GameState state{};
    ScriptedRandomSource random{};
    QWidget menu{};
    GameBoard* board{nullptr};
};

// Runs the action on the modal window of that name once it is up, from inside its event loop.
// A window that never comes is given up after a few seconds, closing whatever window waits.
void whenModal(const QString& name, std::function<void(QWidget&)> action) {
    auto* poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, name, action = std::move(action)] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal != nullptr && modal->objectName() == name) {
            poll->stop();
            poll->deleteLater();
            action(*modal);
        } else if (poll->property("ticks").toInt() > 600) {
            poll->stop();
            poll->deleteLater();
            if (modal != nullptr) {
                modal->close();
            }
        }
        poll->setProperty("ticks", poll->property("ticks").toInt() + 1);
    });
    poll->start();
}

void clickIn(QWidget& window, const QString& name) {
    if (auto* button = window.findChild<QAbstractButton*>(name)) {
        button->click();
    }
}

// Collects every fault of one window, each line naming where it was seen.
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
    // Every text whole and readable.
    void whole(const QString& where, QWidget& window) {
        add(where, cutTexts(window));
        add(where, illegibleTexts(window));
    }
    // Lists every fault in the log; the test's own message holds only the count.
    QString report() const {
        for (const QString& line : lines_) {
            qInfo().noquote() << line;
        }
        return QStringLiteral("%1 faults, listed above").arg(lines_.size());
    }
    bool empty() const { return lines_.isEmpty(); }

private:
    QStringList lines_;
};

// With MARIVALE_SHOTS set to a directory, saves a picture of the window there for a look.
void saveShot(QWidget& window, const QString& name) {
    const QString dir = qEnvironmentVariable("MARIVALE_SHOTS");
    if (!dir.isEmpty()) {
        window.grab().save(QDir(dir).absoluteFilePath(name + QStringLiteral(".png")));
    }
}

QString colourText(const QColor& c) {
    return c.name();
}

void checkBoard(Visit& v, const QString& where, Faults& faults) {
    const BoardLook& look = kLooks.at(v.game);
    QWidget& board = *v.board;
    saveShot(board, where);
    faults.whole(where, board);
    const QColor ground = colourAt(board, QPoint(560, 350));
    faults.expect(where, ground == look.board, QStringLiteral("board is ") + colourText(ground));
    const QColor table =
        colourAt(board, v.placeOf(QStringLiteral("Frame1")).topLeft() + QPoint(2, 2));
    faults.expect(where, table == kBlack, QStringLiteral("pay table is ") + colourText(table));
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
    for (QWidget* control : board.findChildren<QWidget*>()) {
        bool own = true;
        for (const QWidget* up = control; up != &board && own; up = up->parentWidget()) {
            own = !up->isWindow();
        }
        if (!own || control == title || control->objectName().startsWith("Label")) {
            continue;
        }
        const QFont font = control->font();
        faults.expect(where,
                      font.pixelSize() == 11 && font.bold() && font.family() == "Liberation Sans",
                      control->objectName() + QStringLiteral(" is not in 8.25 pt bold"));
    }
}

void checkHelp(QWidget& help, const QString& where, Faults& faults) {
    saveShot(help, where);
    faults.whole(where, help);
    const QColor page = colourAt(help, QPoint(2, 2));
    faults.expect(where, page == kWhite, QStringLiteral("page is ") + colourText(page));
    for (int n = 1; n <= 21; ++n) {
        auto* label = help.findChild<QLabel*>(QStringLiteral("Label%1").arg(n));
        faults.expect(where, label != nullptr && label->isVisible(),
                      QStringLiteral("Label%1 missing").arg(n));
        if (label == nullptr) {
            continue;
        }
        const QRect place(label->mapTo(&help, QPoint(0, 0)), label->size());
        faults.expect(where, showsColour(help, place, kBlack, 40),
                      label->objectName() + QStringLiteral(" is not black"));
        const bool heading = n == 1 || n == 6 || n == 17 || n == 19;
        faults.expect(where, label->font().bold() == heading && label->font().pixelSize() == 11,
                      label->objectName() + QStringLiteral(" is not in 8.25 pt"));
    }
    auto* ok = help.findChild<QWidget*>(QStringLiteral("Command1"));
    faults.expect(where, ok != nullptr && ok->isVisible(), QStringLiteral("no OK button"));
}

void checkDoubleUp(QWidget& dup, const QString& where, Faults& faults) {
    saveShot(dup, where);
    faults.whole(where, dup);
    const QColor ground = colourAt(dup, QPoint(4, dup.height() / 2));
    faults.expect(where, ground == QColor(255, 255, 0),
                  QStringLiteral("ground is ") + colourText(ground));
    auto* title = dup.findChild<QWidget*>(QStringLiteral("Label1"));
    faults.expect(where, showsColour(dup, title->geometry(), kBlack, 40),
                  QStringLiteral("title is not black"));
}

void checkTreasureHunt(QWidget& hunt, const QString& where, Faults& faults) {
    saveShot(hunt, where);
    faults.whole(where, hunt);
    const QColor ground = colourAt(hunt, QPoint(4, 4));
    faults.expect(where, ground == QColor(0, 0, 192),
                  QStringLiteral("ground is ") + colourText(ground));
    auto* title = hunt.findChild<QWidget*>(QStringLiteral("Label1"));
    faults.expect(where, showsColour(hunt, title->geometry(), kWhite),
                  QStringLiteral("title is not white"));
}

// F2 opens the Strategy companion beside the board. It lays itself out for the desktop's font;
// it has to stay readable on every board.
void checkStrategy(Visit& v, const QString& name, Faults& faults) {
    QTest::keyClick(v.board, Qt::Key_F2);
    QWidget* strategy = v.find(QStringLiteral("Strategy"));
    if (strategy == nullptr || !strategy->isVisible()) {
        faults.expect(name, false, QStringLiteral("F2 did not open Strategy"));
        return;
    }
    saveShot(*strategy, name + QStringLiteral(" Strategy"));
    faults.add(name + QStringLiteral(" Strategy"), illegibleTexts(*strategy));
    QTest::keyClick(v.board, Qt::Key_F2);
}

// One visit to the board: its look, help, Strategy when asked, a Treasure Hunt where the board has
// one, a won Double Up, and the board again after the hand.
void visitBoard(GameId game, bool strategyToo, Faults& faults) {
    Visit v(game, 1.0f);
    const QString name = v.board->objectName();
    checkBoard(v, name, faults);

    bool seen = false;
    whenModal(QStringLiteral("frmHelp"), [&](QWidget& help) {
        seen = true;
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
    if (game == GameId::TreasureTrips) {
        seen = false;
        whenModal(QStringLiteral("TrTrip"), [&](QWidget& hunt) {
            seen = true;
            checkTreasureHunt(hunt, name + QStringLiteral(" TrTrip"), faults);
            v.random.push(0.95); // the largest chest
            clickIn(hunt, QStringLiteral("Tr2"));
            checkTreasureHunt(hunt, name + QStringLiteral(" TrTrip after a chest"), faults);
            clickIn(hunt, QStringLiteral("TClose"));
        });
        v.deal("3s 3d 3h Jk Kd");
        v.click(QStringLiteral("Stand"));
        faults.expect(name, seen, QStringLiteral("a bonus hand did not open TrTrip"));
    }

    seen = false;
    whenModal(QStringLiteral("frmDup"), [&](QWidget& dup) {
        seen = true;
        checkDoubleUp(dup, name + QStringLiteral(" frmDup"), faults);
        v.random.pushIndex(4, 52); // a Five
        clickIn(dup, QStringLiteral("Low"));
        checkDoubleUp(dup, name + QStringLiteral(" frmDup after a guess"), faults);
        clickIn(dup, QStringLiteral("RetBtn"));
    });
    v.deal("2h 5h 9h Jh Kh");
    v.click(QStringLiteral("Stand"));
    faults.expect(name, v.find<QAbstractButton>("Stand")->text() == "&Double      Up",
                  QStringLiteral("no Double Up after a Flush"));
    v.click(QStringLiteral("Stand"));
    faults.expect(name, seen, QStringLiteral("Stand did not open frmDup"));
    checkBoard(v, name + QStringLiteral(" after the hand"), faults);
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
    const QStringList locales{"C", "en_US", "en_GB", "de_DE", "fr_FR", "ja_JP", "ru_RU"};
    // Every desktop font in one locale, and every locale with the largest font.
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
    for (const GameId game : kGames) {
        visitBoard(game, points == 9 && locale == QLatin1String("C"), faults);
        visitAtTheTopBet(game, faults);
    }
    QVERIFY2(faults.empty(), qPrintable(faults.report()));
}

void LookTest::cleanup() {
    QLocale::setDefault(QLocale::c());
}

QTEST_MAIN(LookTest)
#include "look_test.moc"
