// SPDX-License-Identifier: MIT
#include "sign_lines.h"

#include <QPainter>
#include <QPolygonF>
#include <QRectF>

namespace vatro {

namespace {

QPointF PointIn(const QRectF& place, double x, double y) {
    return {place.x() + x * place.width(), place.y() + y * place.height()};
}

}  // namespace

void PaintTick(QPainter& painter, const QRectF& place) {
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({PointIn(place, 0.08, 0.55), PointIn(place, 0.38, 0.86), PointIn(place, 0.94, 0.14)}));
}

void PaintCross(QPainter& painter, const QRectF& place) {
    painter.drawLine(PointIn(place, 0.08, 0.08), PointIn(place, 0.92, 0.92));
    painter.drawLine(PointIn(place, 0.92, 0.08), PointIn(place, 0.08, 0.92));
}

}  // namespace vatro
