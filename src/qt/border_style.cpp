// SPDX-License-Identifier: MIT
#include "border_style.h"

#include <QPainter>
#include <QStyleOption>

namespace vatro {

namespace {

constexpr int kWidth = 2;

void Frame(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const QPalette::ColorGroup group = option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    painter.setPen(QPen(option.palette.color(group, QPalette::WindowText), kWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
    painter.restore();
}

}  // namespace

void BorderStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
        case PE_FrameLineEdit:
        case PE_Frame:
        case PE_PanelButtonCommand:
        case PE_IndicatorCheckBox:
            Frame(*option, *painter);
            break;
        default:
            break;
    }
}

void BorderStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) Frame(*option, *painter);
}

}  // namespace vatro
