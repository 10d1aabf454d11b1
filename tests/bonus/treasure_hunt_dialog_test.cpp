// The Treasure Hunt window: its opening, the bonus each chest grows to, and Escape only after a
// chest. The chest factors are the side game's rules; the window's colours are the look test's.

// Standard library
#include <cstdint>
#include <vector>

// Qt
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

// Marivale
#include "bonus/treasure_hunt_dialog.h"
#include "tests/support/test_support.h"

using namespace marivale;

namespace {

// One Treasure Hunt window over its own state and scripted random values.
struct Hunt {
    GameState state{};
    testing::RecordingRandomSource random{};
    TreasureHuntDialog dialog{random};

    explicit Hunt(float bet) { state.BonusAmount = bet; }
    QPushButton* button(const QString& name) { return dialog.findChild<QPushButton*>(name); }
    QString pay() { return dialog.findChild<QLineEdit*>("TrPay")->text(); }

    // Queues the value that gives this chest factor (3, 6, ... 30) and clicks the chest.
    void choose(const QString& chest, int factor) {
        random.scripted.pushIndex(factor / 3 - 1, 10);
        QTest::mouseClick(button(chest), Qt::LeftButton);
    }
};

} // namespace

class TreasureHuntTest : public QObject {
    Q_OBJECT
private slots:
    void opensWithNothingShown();
    void eachChestShowsTheBonusSoFar();
    void escapeClosesOnlyAfterAChest();
};

void TreasureHuntTest::opensWithNothingShown() {
    Hunt hunt(1.0F);
    hunt.dialog.load(hunt.state);

    QCOMPARE(hunt.dialog.objectName(), QStringLiteral("TrTrip"));
    QCOMPARE(hunt.dialog.windowTitle(), QStringLiteral("Treasure Hunt"));
    QCOMPARE(hunt.dialog.findChild<QLabel*>("Label1")->text(), QStringLiteral("Treasure Hunt"));
    QCOMPARE(hunt.dialog.findChild<QLabel*>("Label2")->text(),
             QStringLiteral("Select Your Bonus Treasure"));
    for (const char* chest : {"Tr1", "Tr2", "Tr3"}) {
        QVERIFY(hunt.button(chest)->text().isEmpty());
        QVERIFY(!hunt.button(chest)->icon().isNull());
    }
    QVERIFY(hunt.pay().isEmpty());
    QVERIFY(hunt.dialog.findChild<QLineEdit*>("TrPay")->isReadOnly());
    QPushButton* close = hunt.button("TClose");
    QCOMPARE(close->text(), QStringLiteral("&Open Chest"));
    QVERIFY(!close->isVisible());
    QCOMPARE(hunt.state.BonusAmount, 1.0F);
    // The middle chest stands higher than the outer two.
    QVERIFY(hunt.button("Tr2")->y() < hunt.button("Tr1")->y());
    QCOMPARE(hunt.button("Tr1")->y(), hunt.button("Tr3")->y());
}

// Each chest shows what the bonus has grown to, in dollars grouped by thousands: a factor of 30
// after a factor of 3 is 90 times the bet. The source is reseeded from the clock before the
// chest's value is drawn.
void TreasureHuntTest::eachChestShowsTheBonusSoFar() {
    Hunt hunt(200.0F);
    hunt.dialog.load(hunt.state);
    hunt.choose("Tr1", 3);
    QVERIFY(hunt.button("TClose")->isVisible());
    QVERIFY(hunt.button("Tr1")->isEnabled());
    QCOMPARE(hunt.random.log, (std::vector<std::string>{"reseed", "next"}));
    hunt.choose("Tr3", 30);
    QCOMPARE(hunt.pay(), QStringLiteral("$18,000.00"));
    QCOMPARE(hunt.state.BonusAmount, 18000.0F);
}

// Escape, pressed or held on a chest, does nothing until a chest has been chosen; a fresh press
// after that closes the window with the bonus as it stands. Whatever is left open is closed by
// its close box.
void TreasureHuntTest::escapeClosesOnlyAfterAChest() {
    enum class Step : std::uint8_t { Escape, Held, Chest };
    using enum Step;
    const struct {
        const char* name;
        std::vector<Step> steps;
        bool open; // still open after the steps
        float bets;
    } cases[] = {
        {"Escape before a chest", {Escape}, true, 1.0F},
        {"Escape held before a chest", {Escape, Held, Held, Held}, true, 1.0F},
        {"Escape right after the first chest", {Chest, Escape}, false, 3.0F},
        {"Escape held through the first chest", {Escape, Held, Chest, Held, Held}, true, 3.0F},
        {"Escape after two chests", {Chest, Chest, Escape, Escape}, false, 9.0F},
    };
    for (const auto& c : cases) {
        Hunt hunt(2.0F);
        bool open = false;
        QTimer::singleShot(0, &hunt.dialog, [&hunt, &c, &open] {
            QWidget* chest = hunt.button("Tr2");
            for (const Step step : c.steps) {
                if (step == Chest) {
                    hunt.choose("Tr2", 3);
                } else {
                    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(),
                                    step == Held);
                    QApplication::sendEvent(chest, &press);
                }
            }
            open = hunt.dialog.isVisible();
            hunt.dialog.close();
        });
        hunt.dialog.play(hunt.state);
        QVERIFY2(open == c.open, c.name);
        QVERIFY2(hunt.state.BonusAmount == c.bets * 2.0F, c.name);
    }
}

QTEST_MAIN(TreasureHuntTest)
#include "treasure_hunt_dialog_test.moc"
