// The card back: a blue lattice with a gold star medallion, the same either way up.

// Standard library
#include <cmath>
#include <numbers>

// Qt
#include <QPainterPath>
#include <QPolygonF>

// Marivale
#include "card_face.h"
#include "card_painters.h"

namespace marivale::cardart {

namespace {

constexpr QRgb kBackBlue = qRgb(28, 58, 140);
constexpr QRgb kLattice = qRgb(96, 132, 214);
constexpr QRgb kDot = qRgb(236, 242, 255);

QPainterPath compassStar(QPointF centre, qreal outer, qreal inner) {
    QPolygonF polygon;
    for (int i = 0; i < 16; ++i) {
        const qreal radius = i % 2 == 0 ? (i % 4 == 0 ? outer : outer * 0.62) : inner;
        const qreal angle = std::numbers::pi * i / 8 - std::numbers::pi / 2;
        polygon << centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

} // namespace

QImage drawCardBack() {
    QImage image = newCardCanvas();
    QPainter painter(&image);
    prepare(painter);
    paintBlankCard(painter, kPaper);
    QPainterPath field;
    const QRectF fieldRect(8, 8, kCardWidth - 16.0, kCardHeight - 16.0);
    field.addRoundedRect(fieldRect, 5, 5);
    painter.fillPath(field, QColor(kBackBlue));
    // Diagonal lattice with a dot at every crossing, centred on the card.
    painter.setClipPath(field);
    constexpr qreal step = 14.0;
    const QPointF centre(kCardWidth / 2.0, kCardHeight / 2.0);
    painter.setPen(QPen(QColor(kLattice), 1.4));
    for (int k = -20; k <= 20; ++k) {
        const qreal offset = k * step;
        painter.drawLine(centre + QPointF(offset - 200, -200), centre + QPointF(offset + 200, 200));
        painter.drawLine(centre + QPointF(offset + 200, -200), centre + QPointF(offset - 200, 200));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kDot));
    for (int i = -12; i <= 12; ++i) {
        for (int j = -12; j <= 12; ++j) {
            if ((i + j) % 2 == 0) {
                painter.drawEllipse(centre + QPointF(i * step / 2, j * step / 2), 1.8, 1.8);
            }
        }
    }
    painter.setClipping(false);
    painter.setPen(QPen(QColor(kPaper), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(fieldRect.adjusted(4, 4, -4, -4), 3, 3);
    // Medallion in the middle.
    painter.setPen(QPen(QColor(kPaper), 3.0));
    painter.setBrush(QColor(kBackBlue));
    painter.drawEllipse(centre, 30, 38);
    painter.setPen(QPen(QColor(kGoldDark), 1.0));
    painter.setBrush(QColor(kGold));
    painter.drawPath(compassStar(centre, 30, 8));
    painter.setBrush(QColor(kPaper));
    painter.drawEllipse(centre, 5, 5);
    painter.end();
    return image;
}

} // namespace marivale::cardart
