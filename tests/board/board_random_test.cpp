// Thousands of random clicks on whatever is enabled on each real board, with the Double Up and
// Treasure Hunt windows answered at random: nothing crashes and the money always balances.

#include <QtTest>

// Standard library
#include <random>

// Qt
#include <QApplication>

// Marivale
#include "tests/support/board_fixture.h"

using namespace marivale;
using marivale::testing::BoardFixture;

Q_DECLARE_METATYPE(marivale::GameId)

namespace {

// Plays any open Double Up or Treasure Hunt window at random and closes it; counts the windows.
void answerAtRandom(std::mt19937& pick, int& answered) {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) {
        return;
    }
    ++answered;
    const bool hunt = modal->objectName() == QLatin1String("TrTrip");
    const char* choices[] = {hunt ? "Tr1" : "Low", hunt ? "Tr2" : "High", hunt ? "Tr3" : "Low"};
    for (int guess = static_cast<int>(pick() % 4); guess > 0; --guess) {
        auto* button = modal->findChild<QAbstractButton*>(choices[pick() % 3]);
        if (button != nullptr && button->isEnabled()) {
            button->click();
        }
    }
    if (pick() % 2) {
        modal->close();
    } else if (auto* done = modal->findChild<QAbstractButton*>(hunt ? "TClose" : "RetBtn");
               done != nullptr && done->isEnabled() && done->isVisible()) {
        done->click();
    } else {
        modal->close();
    }
}

} // namespace

class BoardRandomTest : public QObject {
    Q_OBJECT
private slots:
    void moneyBalances_data() {
        QTest::addColumn<GameId>("game");
        for (const GameId game : kAllGames) {
            QTest::newRow(shortName(game).data()) << game;
        }
    }

    void moneyBalances() {
        QFETCH(GameId, game);
        std::mt19937 pick(static_cast<unsigned>(game) * 7 + 3);
        BoardFixture t(game, 40.0f, 1.0f, true);
        const double startCredits = t.state.Credits;
        double payouts = 0.0;
        double bets = 0.0;
        int answered = 0;
        QTimer answerer;
        QObject::connect(&answerer, &QTimer::timeout,
                         [&pick, &answered] { answerAtRandom(pick, answered); });
        answerer.start(0);
        const QStringList controls{"DrawDeal", "DrawDeal", "Stand",    "Stand",   "Card0",
                                   "Card1",    "Card2",    "Card3",    "Card4",   "Purchase",
                                   "BetUp",    "BetDn",    "POption0", "POption7"};
        for (int step = 0; step < 3000; ++step) {
            if (t.state.DrawPhase == 0 && t.state.Credits < t.state.BetAmount && pick() % 2) {
                t.buy(0);
            }
            auto* button =
                t.find<QAbstractButton>(controls[static_cast<int>(pick() % controls.size())]);
            if (!button->isEnabled()) {
                continue;
            }
            const int phase = t.state.DrawPhase;
            const float creditsBefore = t.state.Credits;
            button->click();
            if (phase == 0 && t.state.DrawPhase == 1) {
                bets += t.state.BetAmount;
            }
            if (phase != 0 && t.state.DrawPhase == 0 && t.state.Credits > creditsBefore) {
                payouts += t.state.Credits - creditsBefore;
            }
            const double held = static_cast<double>(t.state.Credits) + t.state.GameWinnings;
            const double owed = startCredits + t.state.TotalPurchased + payouts - bets;
            QVERIFY2(std::fabs(held - owed) <= 1e-6 * std::max(1.0, std::fabs(owed)),
                     qPrintable(QStringLiteral("step %1: %2 vs %3").arg(step).arg(held).arg(owed)));
            QVERIFY(t.state.DrawPhase <= 2);
        }
        answerer.stop();
        QVERIFY2(answered > 10, qPrintable(QStringLiteral("only %1 modal windows").arg(answered)));
        const float visitNet = t.state.GameWinnings - t.state.TotalPurchased + t.state.Credits;
        t.board->close();
        QCOMPARE(t.state.NetWinLoss, visitNet);
    }
};

QTEST_MAIN(BoardRandomTest)
#include "board_random_test.moc"
