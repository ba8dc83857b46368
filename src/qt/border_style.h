// SPDX-License-Identifier: MIT
//
// The style of the desktop with edges that can be seen. A palette whose backgrounds are all the same leaves no edge without frames around
// fields, lists, buttons and menus, and with the palette of a dark desktop most styles draw edges that hardly differ from their
// surroundings. At night, icons and text cursors are red like everything else. Ticks and options grow with their text.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace vatro {

/// The role of the palette in which the frames are drawn.
inline constexpr QPalette::ColorRole kFrameRole = QPalette::Mid;

/// Which frames are drawn over those of the style.
enum class Frames {
    /// Broad ones around all that can be used, in kFrameRole; for the schemes of the program's own.
    Broad,
    /// Thin ones around what is filled in, ticked or chosen from, in a shade of the text; for the schemes of the desktop. The sliders of
    /// scroll bars have them in all schemes.
    Thin,
};

class BorderStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// `base` is the name of the desktop's style.
    BorderStyle(const QString& base, Frames frames) : QProxyStyle(base), frames_(frames) {}
    Frames Drawn() const { return frames_; }

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;

    /// The icon, made at once.
    QIcon ReadyIcon(StandardPixmap which, const QStyleOption* option = nullptr, const QWidget* widget = nullptr) const;

private:
    Frames frames_;
};

}  // namespace vatro
