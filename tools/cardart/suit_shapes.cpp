#include "suit_shapes.h"

// Qt
#include <QPolygonF>
#include <QTransform>

namespace marivale::cardart {

namespace {

// The flared foot shared by clubs and spades, joining the body at half-width `neck`. Every part
// of a symbol runs clockwise, so overlapping parts add up under the winding fill rule.
void addStem(QPainterPath& path, qreal neck, qreal top) {
    QPainterPath stem;
    stem.moveTo(neck, top);
    stem.quadTo(neck * 0.6, 0.38, 0.24, 0.5);
    stem.lineTo(-0.24, 0.5);
    stem.quadTo(-neck * 0.6, 0.38, -neck, top);
    stem.closeSubpath();
    path.addPath(stem);
}

QPainterPath unitHeart() {
    QPainterPath path;
    path.moveTo(0.0, 0.5);
    path.cubicTo(-0.12, 0.3, -0.5, 0.08, -0.5, -0.2);
    path.cubicTo(-0.5, -0.42, -0.34, -0.5, -0.24, -0.5);
    path.cubicTo(-0.1, -0.5, -0.02, -0.42, 0.0, -0.3);
    path.cubicTo(0.02, -0.42, 0.1, -0.5, 0.24, -0.5);
    path.cubicTo(0.34, -0.5, 0.5, -0.42, 0.5, -0.2);
    path.cubicTo(0.5, 0.08, 0.12, 0.3, 0.0, 0.5);
    path.closeSubpath();
    return path;
}

QPainterPath unitDiamond() {
    QPainterPath path;
    path.moveTo(0.0, -0.5);
    path.quadTo(0.16, -0.2, 0.42, 0.0);
    path.quadTo(0.16, 0.2, 0.0, 0.5);
    path.quadTo(-0.16, 0.2, -0.42, 0.0);
    path.quadTo(-0.16, -0.2, 0.0, -0.5);
    path.closeSubpath();
    return path;
}

QPainterPath unitSpade() {
    QPainterPath path;
    path.moveTo(0.0, -0.5);
    path.cubicTo(0.12, -0.3, 0.5, -0.1, 0.5, 0.12);
    path.cubicTo(0.5, 0.3, 0.36, 0.36, 0.26, 0.36);
    path.cubicTo(0.14, 0.36, 0.06, 0.3, 0.0, 0.2);
    path.cubicTo(-0.06, 0.3, -0.14, 0.36, -0.26, 0.36);
    path.cubicTo(-0.36, 0.36, -0.5, 0.3, -0.5, 0.12);
    path.cubicTo(-0.5, -0.1, -0.12, -0.3, 0.0, -0.5);
    path.closeSubpath();
    addStem(path, 0.05, 0.2);
    return path;
}

QPainterPath unitClub() {
    constexpr qreal r = 0.235;
    QPainterPath path;
    path.addEllipse(QPointF(0.0, -0.265), r, r);
    path.addEllipse(QPointF(-0.265, 0.085), r, r);
    path.addEllipse(QPointF(0.265, 0.085), r, r);
    path.addPolygon(QPolygonF{{0.0, -0.265}, {0.265, 0.085}, {-0.265, 0.085}});
    path.closeSubpath();
    addStem(path, 0.05, 0.0);
    path.setFillRule(Qt::WindingFill);
    return path;
}

} // namespace

QPainterPath suitPath(Suit suit, const QRectF& box) {
    QPainterPath unit;
    switch (suit) {
    case Suit::Clubs:
        unit = unitClub();
        break;
    case Suit::Diamonds:
        unit = unitDiamond();
        break;
    case Suit::Hearts:
        unit = unitHeart();
        break;
    case Suit::Spades:
        unit = unitSpade();
        break;
    }
    unit.setFillRule(Qt::WindingFill);
    QTransform toBox;
    toBox.translate(box.center().x(), box.center().y());
    toBox.scale(box.width(), box.height());
    return toBox.map(unit);
}

} // namespace marivale::cardart
