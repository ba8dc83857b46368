// SPDX-License-Identifier: MIT
//
// The style of the desktop with frames around fields, lists, buttons and menus. Without them a palette whose backgrounds are all the same
// leaves no edge to be seen. At night, icons and text cursors are red like everything else.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace vatro {

/// The role of the palette in which the frames are drawn.
inline constexpr QPalette::ColorRole kFrameRole = QPalette::Mid;

class BorderStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::polish;
    using QProxyStyle::QProxyStyle;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace vatro
