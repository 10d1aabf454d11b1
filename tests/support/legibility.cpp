#include "tests/support/legibility.h"

// Standard library
#include <cmath>

// Qt
#include <QCheckBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

// Marivale
#include "tests/support/text_fit.h"

namespace marivale::testing {

namespace {

// What a text is drawn on: the colour most pixels along its control's edge show.
QColor edgeColour(const QImage& shot, const QRect& area) {
    QHash<QRgb, int> counts;
    const QRect inside = area.intersected(shot.rect());
    for (int x = inside.left(); x <= inside.right(); ++x) {
        ++counts[shot.pixel(x, inside.top())];
        ++counts[shot.pixel(x, inside.bottom())];
    }
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        ++counts[shot.pixel(inside.left(), y)];
        ++counts[shot.pixel(inside.right(), y)];
    }
    QRgb most = 0;
    int mostCount = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > mostCount) {
            most = it.key();
            mostCount = it.value();
        }
    }
    return QColor::fromRgb(most);
}

double luminance(const QColor& colour) {
    const auto channel = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
}

// The contrast ratio of two colours, 1 (alike) to 21 (black on white).
double contrast(const QColor& a, const QColor& b) {
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

} // namespace

QStringList illegibleTexts(const QWidget& window) {
    QStringList faults;
    const QImage shot =
        const_cast<QWidget&>(window).grab().toImage().convertToFormat(QImage::Format_RGB32);
    const qreal ratio = shot.devicePixelRatio();
    for (QWidget* widget : shownControls(window)) {
        QColor text;
        QColor back;
        if (const auto* edit = qobject_cast<QLineEdit*>(widget)) {
            text = edit->palette().color(QPalette::Text);
            back = edit->palette().color(QPalette::Base);
        } else if (qobject_cast<QLabel*>(widget) != nullptr ||
                   qobject_cast<QRadioButton*>(widget) != nullptr ||
                   qobject_cast<QCheckBox*>(widget) != nullptr) {
            // A disabled control is greyed out on purpose.
            if (widget->property("text").toString().isEmpty() || !widget->isEnabled()) {
                continue;
            }
            text = widget->palette().color(widget->foregroundRole());
            const QPoint corner = widget->mapTo(&window, QPoint(0, 0));
            back = edgeColour(shot,
                              QRect(QPoint(qRound(corner.x() * ratio), qRound(corner.y() * ratio)),
                                    widget->size() * ratio));
        } else {
            continue;
        }
        if (contrast(text, back) < 3.0) {
            faults << QStringLiteral("%1: %2 on %3")
                          .arg(widget->objectName(), text.name(), back.name());
        }
    }
    return faults;
}

bool showsColour(QWidget& widget, const QRect& area, const QColor& colour, int tolerance) {
    const QImage shot = widget.grab(area).toImage();
    for (int y = 0; y < shot.height(); ++y) {
        for (int x = 0; x < shot.width(); ++x) {
            const QColor c = shot.pixelColor(x, y);
            if (std::abs(c.red() - colour.red()) <= tolerance &&
                std::abs(c.green() - colour.green()) <= tolerance &&
                std::abs(c.blue() - colour.blue()) <= tolerance) {
                return true;
            }
        }
    }
    return false;
}

QColor colourAt(QWidget& widget, const QPoint& point) {
    const QImage shot = widget.grab(QRect(point, QSize(1, 1))).toImage();
    return shot.pixelColor(0, 0);
}

} // namespace marivale::testing
