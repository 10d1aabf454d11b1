#include "court_parts.h"

// Qt
#include <QPolygonF>

// Marivale
#include "paint_helpers.h"
#include "suit_shapes.h"

namespace marivale::cardart {

QPainterPath shoulders() {
    QPainterPath path;
    path.moveTo(kFrame.left() + 3, kMiddle);
    path.lineTo(kFrame.left() + 3, 90);
    path.cubicTo(40, 79, 52, 73, 65, 71);
    path.lineTo(89, 71);
    path.cubicTo(102, 73, 114, 79, kFrame.right() - 3, 90);
    path.lineTo(kFrame.right() - 3, kMiddle);
    path.closeSubpath();
    return path;
}

void paintRobe(QPainter& painter, Suit suit) {
    const QPainterPath robe = shoulders();
    fillOutlined(painter, robe, suitColor(suit).rgb());
    painter.save();
    painter.setClipPath(robe, Qt::IntersectClip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kGold));
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 12; ++column) {
            const QPointF at(36 + column * 8 + (row % 2) * 4, 76 + row * 6);
            painter.drawPolygon(QPolygonF{at + QPointF(0, -1.8), at + QPointF(1.8, 0),
                                          at + QPointF(0, 1.8), at + QPointF(-1.8, 0)});
        }
    }
    painter.restore();
}

void paintTabard(QPainter& painter, Suit suit, qreal top) {
    fillOutlined(painter, polygonPath({{67, top}, {87, top}, {87, kMiddle + 1}, {67, kMiddle + 1}}),
                 kGold, 1.0);
    fillOutlined(painter, polygonPath({{70, top}, {84, top}, {84, kMiddle + 1}, {70, kMiddle + 1}}),
                 kPaper, 0.8);
    painter.fillPath(suitPath(suit, QRectF(71.5, kMiddle - 14, 11, 12)), suitColor(suit));
}

void paintStaff(QPainter& painter, qreal x, qreal top) {
    painter.setPen(QPen(QColor(kOutline), 3.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x, kMiddle), QPointF(x, top));
    painter.setPen(QPen(QColor(kGold), 2.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x, kMiddle), QPointF(x, top));
}

void paintHand(QPainter& painter, qreal x) {
    fillOutlined(painter, polygonPath({{x - 9, 95}, {x - 2, 90}, {x + 1, 96}, {x - 6, 101}}), kGold,
                 1.0);
    painter.setPen(QPen(QColor(kOutline), 1.0));
    painter.setBrush(QColor(kSkin));
    painter.drawEllipse(QPointF(x, 92), 4.0, 3.6);
}

void paintFace(QPainter& painter, bool lashes) {
    painter.setPen(QPen(QColor(kOutline), 1.2));
    painter.setBrush(QColor(kSkin));
    painter.drawRect(QRectF(kFaceX - 5, 62, 10, 10)); // neck
    painter.drawEllipse(QPointF(kFaceX, 52), 12.5, 15.5);
    painter.setBrush(QColor(kOutline));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(kFaceX - 5.5, 50), 1.7, 1.4);
    painter.drawEllipse(QPointF(kFaceX + 5.5, 50), 1.7, 1.4);
    painter.setPen(QPen(QColor(kOutline), 1.1, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(kFaceX - 8.5, 46.5), QPointF(kFaceX - 3, 46));
    painter.drawLine(QPointF(kFaceX + 3, 46), QPointF(kFaceX + 8.5, 46.5));
    if (lashes) {
        painter.drawLine(QPointF(kFaceX - 7.5, 49), QPointF(kFaceX - 9, 48));
        painter.drawLine(QPointF(kFaceX + 7.5, 49), QPointF(kFaceX + 9, 48));
    }
    QPainterPath nose;
    nose.moveTo(kFaceX, 50);
    nose.lineTo(kFaceX - 1.5, 57);
    nose.lineTo(kFaceX + 1, 57.5);
    painter.drawPath(nose);
    painter.setPen(QPen(QColor(kInkRed), 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(kFaceX - 3.5, 58.5, 7, 3), 200 * 16, 140 * 16);
}

} // namespace marivale::cardart
