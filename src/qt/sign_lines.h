// SPDX-License-Identifier: MIT
//
// The tick and the cross that stand for what is in order and for what is wrong. Drawn, because not every font has them.
#pragma once

class QPainter;
class QRectF;

namespace vatro {

/// Both are drawn with the pen of the painter.
void PaintTick(QPainter& painter, const QRectF& place);
void PaintCross(QPainter& painter, const QRectF& place);

}  // namespace vatro
