// The joker and the marks that turn a plain card into a bonus or wild one.

// Standard library
#include <array>
#include <cmath>
#include <numbers>

// Qt
#include <QPainterPath>
#include <QPolygonF>

// Marivale
#include "card_face.h"
#include "card_painters.h"
#include "paint_helpers.h"

namespace marivale::cardart {

namespace {

constexpr QRgb kWildPurple = qRgb(110, 40, 150);
constexpr QRgb kBonusText = qRgb(110, 60, 0);

QPainterPath star(QPointF centre, qreal outer, qreal inner, int points) {
    QPolygonF polygon;
    for (int i = 0; i < points * 2; ++i) {
        const qreal radius = i % 2 == 0 ? outer : inner;
        const qreal angle = std::numbers::pi * i / points - std::numbers::pi / 2;
        polygon << centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

// One point of the jester's cap, from the brim out to a bell.
void capPoint(QPainter& painter, QPointF left, QPointF right, QPointF tip, QPointF bend,
              QRgb fill) {
    QPainterPath path;
    path.moveTo(left);
    path.quadTo(bend, tip);
    path.quadTo(bend + (right - left) * 0.5, right);
    path.closeSubpath();
    fillOutlined(painter, path, fill);
    painter.setBrush(QColor(kGold));
    painter.drawEllipse(tip, 5.0, 5.0);
}

void paintJester(QPainter& painter) {
    // Cap: three points, left red, middle black, right red, each ending in a bell.
    capPoint(painter, {52, 80}, {72, 66}, {34, 40}, {40, 70}, kInkRed);
    capPoint(painter, {82, 66}, {102, 80}, {120, 40}, {114, 70}, kInkRed);
    capPoint(painter, {64, 70}, {90, 70}, {77, 22}, {72, 44}, kInkBlack);
    QPainterPath brim;
    brim.addRoundedRect(QRectF(52, 70, 50, 10), 4, 4);
    fillOutlined(painter, brim, kGold);
    // Harlequin body below the ruff.
    QPainterPath body;
    body.moveTo(40, 150);
    body.cubicTo(42, 128, 56, 118, 77, 118);
    body.cubicTo(98, 118, 112, 128, 114, 150);
    body.closeSubpath();
    fillOutlined(painter, body, kInkRed);
    painter.save();
    painter.setClipPath(body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kInkBlack));
    for (int column = 0; column < 6; ++column) {
        const qreal x = 40 + column * 15;
        QPolygonF diamond{{x, 118}, {x + 7.5, 134}, {x, 150}, {x - 7.5, 134}};
        if (column % 2 == 0) {
            painter.drawPolygon(diamond);
        }
    }
    painter.restore();
    // Ruff of alternating white and gold points.
    QPolygonF ruff;
    for (int i = 0; i <= 12; ++i) {
        const qreal x = 54 + i * 46.0 / 12;
        ruff << QPointF(x, i % 2 == 0 ? 130 : 118);
    }
    ruff << QPointF(100, 112) << QPointF(54, 112);
    QPainterPath ruffPath;
    ruffPath.addPolygon(ruff);
    ruffPath.closeSubpath();
    fillOutlined(painter, ruffPath, kPaper);
    // Face with a wide grin, rosy cheeks and a diamond under each eye.
    painter.setPen(QPen(QColor(kOutline), 1.2));
    painter.setBrush(QColor(kSkin));
    painter.drawEllipse(QPointF(77, 97), 17, 19);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(qRgb(240, 150, 140)));
    painter.drawEllipse(QPointF(66, 103), 4, 3);
    painter.drawEllipse(QPointF(88, 103), 4, 3);
    painter.setBrush(QColor(kOutline));
    painter.drawEllipse(QPointF(70, 93), 2.2, 2.6);
    painter.drawEllipse(QPointF(84, 93), 2.2, 2.6);
    painter.setBrush(QColor(kInkRed));
    painter.drawEllipse(QPointF(77, 100), 3.2, 3.2);
    painter.drawPolygon(QPolygonF{{70, 96}, {71.8, 99.5}, {70, 103}, {68.2, 99.5}});
    painter.drawPolygon(QPolygonF{{84, 96}, {85.8, 99.5}, {84, 103}, {82.2, 99.5}});
    painter.setPen(QPen(QColor(kInkRed), 2.0, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(67, 96, 20, 13), 200 * 16, 140 * 16);
}

} // namespace

void paintJoker(QPainter& painter) {
    paintJester(painter);
    painter.fillPath(textInBox(QStringLiteral("JOKER"), QRectF(32, 158, 90, 20)), QColor(kInkRed));
    // Corners: the word stacked letter by letter under a star, upright and turned.
    QPainterPath corner = star(QPointF(17, 17), 10, 4.2, 5);
    const QString word = QStringLiteral("JOKER");
    for (int i = 0; i < word.size(); ++i) {
        corner.addPath(textInBox(word.mid(i, 1), QRectF(9, 32 + i * 15.5, 16, 12)));
    }
    corner.setFillRule(Qt::WindingFill);
    painter.save();
    for (int turn = 0; turn < 2; ++turn) {
        painter.fillPath(corner, QColor(turn == 0 ? kInkRed : kInkBlack));
        turnHalf(painter);
    }
    painter.restore();
}

void paintTreasureFrame(QPainter& painter) {
    QPainterPath frame;
    frame.addRoundedRect(QRectF(2.0, 2.0, kCardWidth - 4.0, kCardHeight - 4.0), 8.5, 8.5);
    frame.addRoundedRect(QRectF(6.5, 6.5, kCardWidth - 13.0, kCardHeight - 13.0), 5, 5);
    frame.setFillRule(Qt::OddEvenFill);
    painter.save();
    painter.setPen(QPen(QColor(kGoldDark), 1.0));
    painter.setBrush(QColor(kGold));
    painter.drawPath(frame);
    painter.restore();
}

void paintTreasurePlaques(QPainter& painter) {
    const QRectF plaque(37, 12, 80, 26);
    QPainterPath shape;
    shape.addRoundedRect(plaque, 6, 6);
    QPainterPath text = textInBox(QStringLiteral("BONUS"), plaque.adjusted(6, 6, -6, -6));
    painter.save();
    for (int turn = 0; turn < 2; ++turn) {
        fillOutlined(painter, shape, kGold, 1.4);
        painter.fillPath(text, QColor(kBonusText));
        turnHalf(painter);
    }
    painter.restore();
}

void paintWildBanner(QPainter& painter) {
    constexpr qreal top = 86.0;
    constexpr qreal height = 34.0;
    // Swallow tails behind the band, then the band with its gold edge.
    const QRgb tail = qRgb(70, 20, 100);
    fillOutlined(
        painter,
        [&] {
            QPainterPath tails;
            tails.addPolygon(QPolygonF{{8, top + 8},
                                       {30, top + 8},
                                       {30, top + height + 8},
                                       {8, top + height + 8},
                                       {16, top + height / 2 + 8}});
            tails.closeSubpath();
            tails.addPolygon(QPolygonF{{146, top + 8},
                                       {124, top + 8},
                                       {124, top + height + 8},
                                       {146, top + height + 8},
                                       {138, top + height / 2 + 8}});
            tails.closeSubpath();
            return tails;
        }(),
        tail);
    QPainterPath band;
    band.addRect(QRectF(20, top, 114, height));
    painter.save();
    painter.setPen(QPen(QColor(kGold), 2.5));
    painter.setBrush(QColor(kWildPurple));
    painter.drawPath(band);
    painter.restore();
    painter.fillPath(textInBox(QStringLiteral("WILD"), QRectF(28, top + 7, 98, height - 14)),
                     QColor(kPaper));
}

} // namespace marivale::cardart
