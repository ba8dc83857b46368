// SPDX-License-Identifier: MIT
//
// The desktop's own style, with a frame in the text colour around everything that can be typed into or pressed: in bright sunlight, or in
// the dark, the shades by which styles usually tell them apart cannot be seen.
#pragma once

#include <QProxyStyle>

namespace vatro {

class BorderStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace vatro
