// The Chart page of the Strategy window: the chart of the table on show once worked out, the line
// of the dealt hand marked, a simple chart on request, a new chart for an edited table, and the
// page saved as a one-page PDF that poppler reads back.

// Qt
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

// Marivale
#include "board/strategy/chart_page.h"
#include "board/strategy/strategy_window.h"
#include "state/game_state.h"
#include "tests/support/hand_text.h"

using namespace marivale;

namespace {

// A whole chart takes well under a second optimised, far longer in a debug build.
constexpr int kChartTimeoutMs = 120'000;

struct ChartFixture {
    GameState state{};
    StrategyWindow window{GameId::JacksOrBetter, state};
    ChartPage& page{window.chartPage()};
    QTableWidget* lines{page.findChild<QTableWidget*>("ChartLines")};

    void deal(const char* cards) {
        state.BetAmount = 1.0f;
        testing::putHand(state, cards);
        window.handDealt();
    }
    void openPage() {
        window.show();
        window.findChild<QTabWidget*>("StrategyPages")->setCurrentWidget(&page);
    }
    bool waitForChart() {
        QSignalSpy shown(&page, &ChartPage::chartShown);
        return shown.wait(kChartTimeoutMs);
    }
    QString text(const char* name) { return page.findChild<QLabel*>(name)->text(); }
    QString line(int row) { return lines->item(row, ChartPage::kLineColumn)->text(); }
};

#ifdef MARIVALE_ODDS_OPTIMISED
QString pdfTool(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}
#endif

} // namespace

class ChartPageTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void chartOfTheTableWithTheDealtLineMarked();
};

void ChartPageTest::chartOfTheTableWithTheDealtLineMarked() {
    ChartFixture f;
    f.deal("2c As Ks Qs Js");
    // Nothing is worked out until the page is on show.
    QVERIFY(!f.page.chart());
    f.openPage();
    QVERIFY(f.text("ChartSummary").startsWith("Working out the chart"));
#ifdef MARIVALE_ODDS_OPTIMISED
    QVERIFY(f.waitForChart());
    QVERIFY(f.text("ChartSummary").startsWith("The board's pay table: chart return "));
    QCOMPARE(f.lines->rowCount(), static_cast<int>(f.page.chart()->rows.size()));
    QCOMPARE(f.line(f.lines->rowCount() - 1), QStringLiteral("Discard everything"));
    // Four to a royal and a Two: the line of the four to a royal, marked in bold.
    QVERIFY(f.page.dealtRow());
    const int dealt = *f.page.dealtRow();
    QCOMPARE(f.line(dealt), QStringLiteral("4 to a Royal Flush, 1 gap, 4 high cards"));
    QVERIFY(f.lines->item(dealt, ChartPage::kLineColumn)->font().bold());
    QVERIFY(!f.lines->item(0, ChartPage::kLineColumn)->font().bold() || dealt == 0);
    QCOMPARE(
        f.text("ChartDealt"),
        QStringLiteral("The hand on show plays line %1: 4 to a Royal Flush, 1 gap, 4 high cards.")
            .arg(dealt + 1));
    auto* example = qobject_cast<QLabel*>(f.lines->cellWidget(dealt, ChartPage::kExampleColumn));
    QVERIFY(example != nullptr && example->text().count("<b>") == 4);

    // The simple chart, then a pay table edited to 9/6: a chart of its own, named as such.
    f.page.findChild<QComboBox*>("ChartKind")->setCurrentIndex(1);
    QVERIFY(f.waitForChart());
    QVERIFY(f.lines->rowCount() <= 15);
    for (int code = 1; code <= 9; ++code) {
        f.window.setMultiplier(code, std::array{0, 1, 2, 3, 4, 6, 9, 25, 50, 800}[code]);
    }
    QVERIFY(f.waitForChart());
    QVERIFY(f.text("ChartSummary").startsWith("9/6 Jacks or Better: chart return 99,4458 %") ||
            f.text("ChartSummary").startsWith("9/6 Jacks or Better: chart return 99.4458%"));

    // Saved as a PDF: one page with the game, the table, the return and the cost.
    QTemporaryDir dir;
    const QString path = dir.filePath("chart.pdf");
    QVERIFY(f.page.savePdf(path));
    QVERIFY(pdfTool("pdfinfo", {path}).contains(QRegularExpression("Pages:\\s+1\\n")));
    const QString text = pdfTool("pdftotext", {path, "-"}).simplified();
    for (const char* expected :
         {"Jacks or Better: simple strategy chart", "9/6 Jacks or Better", "Four of a Kind",
          "Chart return 99", "Cost 0", "Discard everything"}) {
        QVERIFY2(text.contains(QString::fromUtf8(expected)), expected);
    }
    QVERIFY(!f.page.savePdf(dir.filePath("no/such/folder/chart.pdf")));
#endif
}

QTEST_MAIN(ChartPageTest)
#include "chart_page_test.moc"
