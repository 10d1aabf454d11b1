#include "paint_helpers.h"

// Qt
#include <QPolygonF>

namespace marivale::cardart {

void fillOutlined(QPainter& painter, const QPainterPath& path, QRgb fill, qreal width) {
    painter.setPen(QPen(QColor(kOutline), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(fill));
    painter.drawPath(path);
}

QPainterPath polygonPath(std::initializer_list<QPointF> points) {
    QPainterPath path;
    path.addPolygon(QPolygonF(points));
    path.closeSubpath();
    return path;
}

void turnHalf(QPainter& painter) {
    const QPointF centre(kCardWidth / 2.0, kCardHeight / 2.0);
    painter.translate(centre);
    painter.rotate(180.0);
    painter.translate(-centre);
}

} // namespace marivale::cardart
