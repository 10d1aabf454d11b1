// Any hand studied in the Strategy window: typed or picked from the grid, it shows its 32 holds
// and its best play by chart line; bad input is refused with what is wrong, and the board's next
// deal takes the window back.

// Qt
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QtTest>

// Marivale
#include "board/strategy/card_grid.h"
#include "board/strategy/hold_table.h"
#include "board/strategy/strategy_window.h"
#include "state/game_state.h"
#include "tests/support/hand_text.h"

using namespace marivale;

namespace {

constexpr int kTablesTimeoutMs = 120'000;

struct Study {
    GameState state{};
    StrategyWindow window;

    explicit Study(GameId game) : window(game, state) { state.BetAmount = 1.0f; }
    QString type(const char* cards) {
        auto* edit = window.findChild<QLineEdit*>("StudyCards");
        edit->setText(QString::fromUtf8(cards));
        QTest::keyClick(edit, Qt::Key_Return);
        return label("StudyNote");
    }
    QString label(const char* name) { return window.findChild<QLabel*>(name)->text(); }
};

} // namespace

class StudyPanelTest : public QObject {
    Q_OBJECT
private slots:
    void badInputIsRefusedWithWhatIsWrong_data();
    void badInputIsRefusedWithWhatIsWrong();
    void aHandTypedOrPickedShowsItsBestPlay();
};

void StudyPanelTest::badInputIsRefusedWithWhatIsWrong_data() {
    QTest::addColumn<int>("game");
    QTest::addColumn<QString>("cards");
    QTest::addColumn<QString>("message");
    QTest::newRow("four cards") << int(GameId::JacksOrBetter) << "As Kd Tc 5h"
                                << "A hand is five cards, not 4.";
    QTest::newRow("a card twice") << int(GameId::DeucesWild) << "As Kd as 5h 6h"
                                  << "is there twice: the deck has one of each card.";
    QTest::newRow("a joker without one") << int(GameId::JacksOrBetter) << "As Kd Tc 5h Jk"
                                         << "Jacks or Better is played without the joker.";
    QTest::newRow("no card") << int(GameId::JokerWild) << "As Kd Tc 5h 1x"
                             << "\"1x\" is not a card: type a rank";
}

void StudyPanelTest::badInputIsRefusedWithWhatIsWrong() {
    QFETCH(int, game);
    QFETCH(QString, cards);
    QFETCH(QString, message);
    Study study(static_cast<GameId>(game));
    const QString note = study.type(cards.toUtf8().constData());
    QVERIFY2(note.contains(message), qPrintable(note));
    QVERIFY(note.contains("color:#b00000"));
    QVERIFY(study.label("Dealt").startsWith("Deal a hand"));
}

void StudyPanelTest::aHandTypedOrPickedShowsItsBestPlay() {
    Study study(GameId::JacksOrBetter);
    study.type("2c as KS qs Js");
    QVERIFY(study.label("Dealt").startsWith("Studying "));
    QVERIFY(QTest::qWaitFor([&] { return study.window.handOdds().has_value(); }, kTablesTimeoutMs));
    QVERIFY2(study.label("StudyNote")
                 .startsWith("Best play: 4 to a Royal Flush, 1 gap, 4 high "
                             "cards ("),
             qPrintable(study.label("StudyNote")));
    auto* holds = study.window.findChild<QTableWidget*>("Holds");
    QCOMPARE(holds->item(0, HoldTable::kRankColumn)->data(HoldTable::kHeldRole).toUInt(), 0b11110u);

    // The grid takes five cards and no more.
    CardGrid grid(GameId::JacksOrBetter);
    for (const CardCode card : testing::cardsFromText("2c 3c 4c 5c 6c")) {
        grid.toggle(card);
    }
    grid.toggle(makeCard(Rank::Seven, Suit::Clubs));
    QCOMPARE(grid.picked(), testing::cardsFromText("2c 3c 4c 5c 6c"));

    // The board's next deal takes the window back from the hand studied.
    testing::putHand(study.state, "Ah Ad 7c 8s 9d");
    study.window.handDealt();
    QVERIFY(study.label("Dealt").startsWith("Dealt "));
}

QTEST_MAIN(StudyPanelTest)
#include "study_panel_test.moc"
