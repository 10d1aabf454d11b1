#pragma once

// The main menu's status bar, sbStatusBar: panel 1 carries the Double Up status, panels 2 and 3
// the date and the time of day. A click on any panel is reported. Every panel is wide enough for
// the longest text it can show in the current locale, so none is ever cut off.

// Qt
#include <QLocale>
#include <QStatusBar>
#include <QString>

class QLabel;
class QTimer;

namespace marivale {

class MenuStatusBar : public QStatusBar {
    Q_OBJECT
public:
    explicit MenuStatusBar(QWidget* parent = nullptr);

    // Shows the Double Up status in panel 1.
    void showStatus(const QString& text);

    // The date form of panel 2: the locale's short numeric date, or year-month-day where the
    // locale's short date spells out a month or a day name (the C locale's "23 Nov 2026").
    static QString dateFormat(const QLocale& locale);
    // The time form of panel 3: the locale's short time of day in hours and minutes.
    static QString timeFormat(const QLocale& locale);

signals:
    // The left button was released over a panel or the bar.
    void clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* addPanel(int number, int stretch);
    void showClock();
    void fitPanels();

    QLabel* status_{nullptr};
    QLabel* date_{nullptr};
    QLabel* time_{nullptr};
    QTimer* clock_{nullptr};
};

} // namespace marivale
