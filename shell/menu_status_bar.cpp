#include "shell/menu_status_bar.h"

// Standard library
#include <algorithm>
#include <array>

// Qt
#include <QDate>
#include <QLabel>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTime>
#include <QTimer>

// Marivale
#include "play/menu_controller.h"
#include "ui/design_look.h"

namespace marivale {

namespace {

constexpr qreal kPanelPoints = 8.25;

// Dates and times whose texts are the widest of their form: two-digit days, months and hours,
// before and after noon.
constexpr std::array<int, 3> kWideHours{10, 12, 23};

} // namespace

MenuStatusBar::MenuStatusBar(QWidget* parent) : QStatusBar(parent) {
    setObjectName(QStringLiteral("sbStatusBar"));
    setSizeGripEnabled(false);
    setFont(designFont(kPanelPoints));
    installEventFilter(this);
    status_ = addPanel(1, 1);
    date_ = addPanel(2, 0);
    time_ = addPanel(3, 0);
    fitPanels();
    clock_ = new QTimer(this);
    clock_->setInterval(1000);
    connect(clock_, &QTimer::timeout, this, &MenuStatusBar::showClock);
    showClock();
    clock_->start();
}

QLabel* MenuStatusBar::addPanel(int number, int stretch) {
    auto* panel = new QLabel(this);
    panel->setObjectName(QStringLiteral("sbPanel%1").arg(number));
    panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel->setContentsMargins(2, 0, 2, 0);
    panel->installEventFilter(this);
    addPermanentWidget(panel, stretch);
    return panel;
}

void MenuStatusBar::showStatus(const QString& text) {
    status_->setText(text);
}

QString MenuStatusBar::dateFormat(const QLocale& locale) {
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    if (format.contains(QStringLiteral("MMM")) || format.contains(QStringLiteral("ddd"))) {
        return QStringLiteral("yyyy-MM-dd");
    }
    return format;
}

QString MenuStatusBar::timeFormat(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    static const QRegularExpression kSecondsAndZone(QStringLiteral("[:.]ss|\\s*t+"));
    format.remove(kSecondsAndZone);
    return format.trimmed();
}

void MenuStatusBar::showClock() {
    const QLocale locale;
    date_->setText(locale.toString(QDate::currentDate(), dateFormat(locale)));
    time_->setText(locale.toString(QTime::currentTime(), timeFormat(locale)));
}

// Gives each panel the width of the widest text it can show, so that none is cut off; the
// status panel also takes whatever room the window has to spare.
void MenuStatusBar::fitPanels() {
    const QLocale locale;
    const QFontMetrics metrics(status_->font());
    const auto room = [&metrics](const QLabel& panel, const QString& text) {
        const QMargins margins = panel.contentsMargins();
        return metrics.horizontalAdvance(text) + margins.left() + margins.right() +
               2 * panel.frameWidth() + 2;
    };
    // Room for the wider of the two texts panel 1 ever shows.
    status_->setMinimumWidth(
        std::max(room(*status_, QString::fromUtf8(kDoubleUpOff.data(), kDoubleUpOff.size())),
                 room(*status_, QString::fromUtf8(kDoubleUpOn.data(), kDoubleUpOn.size()))));
    const QString dateForm = dateFormat(locale);
    date_->setMinimumWidth(room(*date_, locale.toString(QDate(2026, 12, 28), dateForm)));
    const QString timeForm = timeFormat(locale);
    int timeWidth = 0;
    for (const int hour : kWideHours) {
        timeWidth = std::max(timeWidth, room(*time_, locale.toString(QTime(hour, 58), timeForm)));
    }
    time_->setMinimumWidth(timeWidth);
}

bool MenuStatusBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (mouse->button() == Qt::LeftButton && widget != nullptr &&
            widget->rect().contains(mouse->position().toPoint())) {
            emit clicked();
            return true;
        }
    }
    return QStatusBar::eventFilter(watched, event);
}

} // namespace marivale
