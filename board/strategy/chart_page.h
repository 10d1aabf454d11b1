#pragma once

// The Chart page of the Strategy window: the strategy chart of the pay table on show, complete
// or simple, each line with an example deal, how often it is played, what those deals return and
// what the line is worth; the line the dealt hand falls under is marked. The chart is derived on
// a background thread once the page is on show, and again whenever the table changes, so the
// window never waits for it. It prints, or saves as a PDF, on one page.

// Standard library
#include <optional>

// Qt
#include <QWidget>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/odds/derived_chart.h"
#include "engine/odds/pay_scale.h"
#include "play/background_job.h"

class QComboBox;
class QLabel;
class QPushButton;
class QShowEvent;
class QTableWidget;

namespace marivale {

class ChartPage : public QWidget {
    Q_OBJECT
public:
    static constexpr int kLineColumn = 1;
    static constexpr int kExampleColumn = 2;

    ChartPage(GameId game, const odds::PayScale& scale, QWidget* parent = nullptr);

    // The table on show changed; `edited` when it is not the board's.
    void setTable(const odds::PayScale& scale, bool edited);
    // The hand on show, or none.
    void setDeal(const std::optional<HandCards>& dealt);

    // The chart on show, once derived.
    const std::optional<odds::DerivedChart>& chart() const { return chart_; }
    // The row of the hand on show, once the chart is on show.
    std::optional<int> dealtRow() const { return dealtRow_; }
    // Writes the chart's page to a PDF file; false when it can't.
    bool savePdf(const QString& path);

signals:
    // A chart was derived and is on show.
    void chartShown();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void startWork();
    void showChart(odds::DerivedChart chart);
    void markDealt();
    void print();
    void askPdf();
    QString pageHtml() const;

    GameId game_;
    odds::PayScale scale_{};
    QString tableName_{};
    std::optional<HandCards> dealt_{};
    std::optional<odds::DerivedChart> chart_{};
    std::optional<int> dealtRow_{};
    bool stale_{true};  // the chart on show is not the table's and kind's
    int generation_{0}; // counts the charts asked for, so late results of older ones are dropped

    QComboBox* kind_{nullptr};
    QLabel* summary_{nullptr};
    QLabel* dealtNote_{nullptr};
    QTableWidget* lines_{nullptr};
    QPushButton* print_{nullptr};
    QPushButton* pdf_{nullptr};

    // Last member: stopped and joined first when the page goes.
    BackgroundJob work_{};
};

} // namespace marivale
