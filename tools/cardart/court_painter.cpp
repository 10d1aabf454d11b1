// The Jack, Queen and King: a framed bust drawn once for the top half and turned for the bottom.

// Qt
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>

// Marivale
#include "card_painters.h"
#include "court_parts.h"
#include "paint_helpers.h"
#include "suit_shapes.h"

namespace marivale::cardart {

namespace {

constexpr QRgb kHairBrown = qRgb(120, 72, 30);
constexpr QRgb kHairGold = qRgb(200, 140, 40);
constexpr QRgb kErmine = qRgb(255, 255, 255);

void paintKing(QPainter& painter, Suit suit) {
    const QRgb robe = suitColor(suit).rgb();
    paintRobe(painter, suit);
    paintTabard(painter, suit, 84);
    // Ermine collar across the shoulders.
    QPainterPath collar;
    collar.moveTo(43, 87);
    collar.cubicTo(54, 76, 64, 73, kFaceX, 73);
    collar.cubicTo(90, 73, 100, 76, 111, 87);
    collar.lineTo(107, 94);
    collar.cubicTo(96, 86, 88, 84, kFaceX, 84);
    collar.cubicTo(66, 84, 58, 86, 47, 94);
    collar.closeSubpath();
    fillOutlined(painter, collar, kErmine);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kInkBlack));
    for (const QPointF spot :
         {QPointF(52, 84), QPointF(64, 78), QPointF(90, 78), QPointF(102, 84)}) {
        painter.drawEllipse(spot, 1.3, 2.0);
    }
    // Hair, face, then the beard over the chin.
    fillOutlined(painter, polygonPath({{63, 40}, {91, 40}, {93, 62}, {61, 62}}), kHairBrown);
    paintFace(painter, false);
    QPainterPath beard;
    beard.moveTo(65, 55);
    beard.cubicTo(66, 70, 72, 78, kFaceX, 82);
    beard.cubicTo(82, 78, 88, 70, 89, 55);
    beard.cubicTo(86, 62, 82, 64, kFaceX, 64);
    beard.cubicTo(72, 64, 68, 62, 65, 55);
    fillOutlined(painter, beard, kHairBrown);
    painter.setPen(QPen(QColor(kHairBrown), 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(kFaceX - 1, 59), QPointF(kFaceX - 7, 61));
    painter.drawLine(QPointF(kFaceX + 1, 59), QPointF(kFaceX + 7, 61));
    // Crown: a cap in the suit colour under three gold points.
    fillOutlined(painter, polygonPath({{63, 38}, {63, 24}, {91, 24}, {91, 38}}), robe);
    QPainterPath crown =
        polygonPath({{61, 41}, {60, 21}, {68, 30}, {kFaceX, 15}, {86, 30}, {94, 21}, {93, 41}});
    fillOutlined(painter, crown, kGold);
    painter.setBrush(QColor(kGold));
    for (const QPointF tip : {QPointF(60, 20), QPointF(kFaceX, 14), QPointF(94, 20)}) {
        painter.drawEllipse(tip, 2.2, 2.2);
    }
    fillOutlined(painter, polygonPath({{61, 35}, {93, 35}, {93, 41}, {61, 41}}), kGoldDark);
    painter.setBrush(QColor(isRed(suit) ? kBlue : kInkRed));
    painter.drawEllipse(QPointF(kFaceX, 38), 2.4, 2.0);
    painter.drawEllipse(QPointF(kFaceX, 27), 2.0, 2.6);
    // Sceptre topped with the suit, in the right hand.
    paintStaff(painter, 109, 36);
    const QPainterPath top = suitPath(suit, QRectF(102, 21, 14, 15));
    fillOutlined(painter, top, kGold, 1.0);
    paintHand(painter, 109);
}

void paintQueen(QPainter& painter, Suit suit) {
    const QRgb robe = suitColor(suit).rgb();
    // Long hair behind the face, down to the shoulders.
    QPainterPath hair;
    hair.moveTo(kFaceX, 33);
    hair.cubicTo(58, 33, 58, 60, 54, 84);
    hair.lineTo(100, 84);
    hair.cubicTo(96, 60, 96, 33, kFaceX, 33);
    fillOutlined(painter, hair, kHairGold);
    paintRobe(painter, suit);
    // Square neckline with a gold border and a necklace.
    QPainterPath neckline = polygonPath({{63, 71}, {91, 71}, {88, 88}, {66, 88}});
    fillOutlined(painter, neckline, kGold);
    fillOutlined(painter, polygonPath({{66, 71}, {88, 71}, {86, 85}, {68, 85}}), kSkin, 0.8);
    paintFace(painter, true);
    painter.setPen(QPen(QColor(kOutline), 0.8));
    painter.setBrush(QColor(kPaper));
    for (int bead = 0; bead < 7; ++bead) {
        painter.drawEllipse(QPointF(68.5 + bead * 2.9, 72.5 + (bead == 3  ? 3.5
                                                               : bead % 6 ? 2.2
                                                                          : 0)),
                            1.4, 1.4);
    }
    painter.setBrush(QColor(isRed(suit) ? kBlue : kInkRed));
    painter.drawEllipse(QPointF(kFaceX, 80), 2.2, 2.6);
    // Fringe over the forehead, then a tiara of rounded arches.
    QPainterPath fringe;
    fringe.moveTo(64.5, 47);
    fringe.cubicTo(66, 36, 88, 36, 89.5, 47);
    fringe.cubicTo(84, 41, 70, 41, 64.5, 47);
    fillOutlined(painter, fringe, kHairGold, 0.8);
    QPainterPath tiara;
    tiara.moveTo(64, 39);
    tiara.lineTo(64, 31);
    tiara.quadTo(67.5, 24, 71, 31);
    tiara.quadTo(kFaceX, 19, 83, 31);
    tiara.quadTo(86.5, 24, 90, 31);
    tiara.lineTo(90, 39);
    tiara.closeSubpath();
    fillOutlined(painter, tiara, kGold);
    painter.setBrush(QColor(kPaper));
    for (const QPointF pearl : {QPointF(67.5, 26), QPointF(kFaceX, 20.5), QPointF(86.5, 26)}) {
        painter.drawEllipse(pearl, 1.8, 1.8);
    }
    painter.setBrush(QColor(robe));
    painter.drawEllipse(QPointF(kFaceX, 34), 2.2, 2.6);
    // A flower held in the right hand.
    painter.setPen(QPen(QColor(qRgb(40, 120, 50)), 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(108, kMiddle), QPointF(108, 40));
    painter.setBrush(QColor(qRgb(60, 150, 70)));
    painter.setPen(QPen(QColor(kOutline), 0.8));
    painter.drawEllipse(QRectF(108, 58, 8, 4));
    painter.setBrush(QColor(isRed(suit) ? kPaper : kInkRed));
    for (int petal = 0; petal < 5; ++petal) {
        const QPointF offset = QTransform().rotate(petal * 72.0).map(QPointF(0, -4.6));
        painter.drawEllipse(QPointF(108, 35) + offset, 3.4, 3.4);
    }
    painter.setBrush(QColor(kGold));
    painter.drawEllipse(QPointF(108, 35), 2.6, 2.6);
    paintHand(painter, 108);
}

void paintJack(QPainter& painter, Suit suit) {
    const QRgb robe = suitColor(suit).rgb();
    paintRobe(painter, suit);
    // Tunic front: gold placket with buttons, white collar.
    fillOutlined(painter, polygonPath({{71, 72}, {83, 72}, {83, kMiddle + 1}, {71, kMiddle + 1}}),
                 kGold);
    painter.setBrush(QColor(kGoldDark));
    for (const qreal y : {81.0, 89.0, 97.0}) {
        painter.drawEllipse(QPointF(kFaceX, y), 1.9, 1.9);
    }
    fillOutlined(painter, polygonPath({{61, 71}, {93, 71}, {87, 79}, {kFaceX, 74}, {67, 79}}),
                 kErmine);
    // Short hair, face, then a cap with a plume.
    QPainterPath hair;
    hair.moveTo(63, 42);
    hair.cubicTo(60, 52, 62, 62, 66, 64);
    hair.lineTo(88, 64);
    hair.cubicTo(92, 62, 94, 52, 91, 42);
    hair.closeSubpath();
    fillOutlined(painter, hair, kHairBrown);
    paintFace(painter, false);
    QPainterPath plume;
    plume.moveTo(86, 36);
    plume.cubicTo(82, 24, 94, 14, 111, 15);
    plume.cubicTo(108, 22, 104, 30, 90, 39);
    plume.closeSubpath();
    fillOutlined(painter, plume, isRed(suit) ? kPaper : kInkRed);
    painter.setPen(QPen(QColor(kOutline), 0.8));
    painter.drawLine(QPointF(88, 37), QPointF(109, 16));
    for (int barb = 1; barb < 5; ++barb) {
        const QPointF at(88 + barb * 4.2, 37 - barb * 4.2);
        painter.drawLine(at, at + QPointF(-3.5, -1.2));
    }
    QPainterPath cap;
    cap.moveTo(58, 40);
    cap.cubicTo(56, 20, 97, 16, 97, 38);
    cap.closeSubpath();
    fillOutlined(painter, cap, robe);
    fillOutlined(painter, polygonPath({{59, 36}, {97, 34}, {97, 40}, {59, 42}}), kGold);
    painter.setBrush(QColor(isRed(suit) ? kBlue : kInkRed));
    painter.drawEllipse(QPointF(kFaceX, 38), 2.0, 2.0);
    // A pike in the right hand.
    paintStaff(painter, 110, 46);
    fillOutlined(painter, polygonPath({{110, 28}, {114.5, 42}, {110, 48}, {105.5, 42}}),
                 qRgb(210, 210, 220), 1.0);
    paintHand(painter, 110);
}

} // namespace

void paintCourt(QPainter& painter, Suit suit, int rank) {
    painter.save();
    painter.setPen(QPen(suitColor(suit), 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(kFrame);
    painter.setPen(QPen(QColor(kGold), 1.0));
    painter.drawRect(kFrame.adjusted(2.5, 2.5, -2.5, -2.5));
    const QRectF upper(kFrame.left() + 1, kFrame.top() + 1, kFrame.width() - 2,
                       kMiddle - kFrame.top() - 1);
    for (int half = 0; half < 2; ++half) {
        painter.save();
        if (half == 1) {
            turnHalf(painter);
        }
        painter.setClipRect(upper);
        switch (rank) {
        case 10:
            paintJack(painter, suit);
            break;
        case 11:
            paintQueen(painter, suit);
            break;
        default:
            paintKing(painter, suit);
            break;
        }
        painter.fillPath(suitPath(suit, QRectF(39, 17, 13, 14)), suitColor(suit));
        painter.restore();
    }
    painter.setPen(QPen(QColor(kGoldDark), 1.6));
    painter.drawLine(QPointF(kFrame.left(), kMiddle), QPointF(kFrame.right(), kMiddle));
    painter.restore();
}

} // namespace marivale::cardart
