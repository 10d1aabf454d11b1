// The help screen's design, its texts line by line and the keys that close it; that every line
// is whole on the page, above the button, is the look test's part.

// Qt
#include <QLabel>
#include <QPushButton>
#include <QtTest>

// Marivale
#include "shell/help_dialog.h"
#include "tests/support/test_support.h"

using namespace marivale;

class HelpScreenTest : public QObject {
    Q_OBJECT
private slots:
    void pageDesign();
    void labelTexts_data();
    void labelTexts();
    void closes_data();
    void closes();
};

void HelpScreenTest::pageDesign() {
    HelpDialog help;
    QCOMPARE(help.objectName(), QStringLiteral("frmHelp"));
    QCOMPARE(help.windowTitle(), QStringLiteral("Marivale Poker Help"));
    QCOMPARE(help.size(), QSize(455, 422)); // 6825 by 6330 twips
    QCOMPARE(help.minimumSize(), help.maximumSize());
    QVERIFY(help.isModal());
    auto* ok = help.findChild<QPushButton*>("Command1");
    QCOMPARE(ok->text(), QStringLiteral("&OK"));
    QVERIFY(ok->isDefault());
    QCOMPARE(ok->geometry().center().x(), help.width() / 2);
    QCOMPARE(help.findChildren<QLabel*>().size(), 21);
    help.show();
    testing::saveShot(help, QStringLiteral("frmHelp.png"));
}

void HelpScreenTest::labelTexts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("heading");
    QTest::addColumn<bool>("centred");
    const auto row = [](int n, const char* text, bool heading, bool centred) {
        QTest::addRow("Label%d", n) << QString::fromUtf8(text) << heading << centred;
    };
    row(1, "Main Menu", true, true);
    row(2,
        "Play Settings: Sets the bet amount allowed, from Play Settings * 1 to Play Settings * 20.",
        false, false);
    row(3, "Clear: Clears the Win/Loss Amount in the Main Menu.", false, false);
    row(4, "Exit: Exits from Main Menu and stores essential information.  Windows X Button Same.",
        false, false);
    row(5, "Status Bar: Clicking toggles between Double Up Enabled and Double Up Not Enabled.",
        false, false);
    row(6, "Games", true, true);
    row(7, "Purchase: Buys Credits and transfers to Credit Box.  Required for game to deal hand.",
        false, false);
    row(8, "BetUp: Increases the Bet by the amount selected in the Main Menu Play Settings", false,
        false);
    row(9, "BetDn: Decreases the Bet by the amount selected in the Main Menu Play Settings", false,
        false);
    row(10, "Exit: Quits game and returns to Main Menu", false, false);
    row(11, "Deal: Deals a hand only if there are enough Credits purchased.", false, false);
    row(12, "Cash Out: Transfers unused Credits to Winnings, and recalculates Win/Loss Amounts",
        false, false);
    row(13,
        "Draw: Draws new cards.  Cards can be kept by clicking the card.  'Held' shows over card.",
        false, false);
    row(14, "Stand: Does not draw new cards.  Allows players to keep the five existing cards.",
        false, false);
    row(15,
        "Double Up: Allows player to bet double or nothing on win.  No limit to amount of "
        "doubling.",
        false, false);
    row(16,
        "Take Score: If Double Up enabled, allows player to take winnings instead of doubling up.",
        false, false);
    row(17, "Double Up", true, true);
    row(18,
        "Player chooses either Low (2-7) or High (9-A).  If card dealt matches, then win doubled.",
        false, false);
    row(19, "Treasure Trips Bonus", true, true);
    row(20,
        "Player selects treasure from three chest.  Amount of bonus shown.  Click Button to return",
        false, false);
    row(21, "Full Help Details in File  'MPReadme.txt'", false, true);
}

void HelpScreenTest::labelTexts() {
    QFETCH(QString, text);
    QFETCH(bool, heading);
    QFETCH(bool, centred);
    HelpDialog help;
    auto* label = help.findChild<QLabel*>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(label != nullptr);
    QCOMPARE(label->text(), text);
    QCOMPARE(label->font().bold(), heading);
    QCOMPARE(label->font().family(), QStringLiteral("Liberation Sans"));
    QCOMPARE(label->font().pixelSize(), 11); // 8.25 points at 96 dots per inch
    QCOMPARE(bool(label->alignment() & Qt::AlignHCenter), centred);
}

void HelpScreenTest::closes_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Enter") << int(Qt::Key_Return) << int(Qt::NoModifier);
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier);
    QTest::newRow("Alt+O") << int(Qt::Key_O) << int(Qt::AltModifier);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << int(Qt::NoModifier);
}

void HelpScreenTest::closes() {
    QFETCH(int, key);
    QFETCH(int, modifiers);
    HelpDialog help;
    help.show();
    help.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&help));
    QTest::keyClick(&help, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    // An access key presses the button visibly, so the click lands a moment later.
    QTRY_VERIFY(!help.isVisible());
}

QTEST_MAIN(HelpScreenTest)
#include "help_dialog_test.moc"
