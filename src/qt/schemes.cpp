// SPDX-License-Identifier: MIT
#include "schemes.h"

#include <QApplication>
#include <QStyle>

#include "border_style.h"

namespace vatro {

namespace {

constexpr QColor kNightText(0xe4, 0x3c, 0x2c);
constexpr QColor kNightCaption(0xc8, 0x34, 0x28);
constexpr QColor kNightFrame(0xa8, 0x2c, 0x20);
constexpr QColor kNightDisabled(0x78, 0x20, 0x18);
/// Lines and shades that a style draws by itself.
constexpr QColor kNightShade(0x48, 0x14, 0x0e);

constexpr QPalette::ColorRole kBacks[]{QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button, QPalette::ToolTipBase};

}  // namespace

QPalette SunPalette() {
    QPalette sun(Qt::white);
    for (const QPalette::ColorRole back : kBacks) sun.setColor(back, Qt::white);
    for (const QPalette::ColorRole front :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText})
        sun.setColor(front, Qt::black);
    sun.setColor(kFrameRole, Qt::black);
    sun.setColor(QPalette::Highlight, Qt::black);
    sun.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole front : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        sun.setColor(QPalette::Disabled, front, Qt::darkGray);
    return sun;
}

QPalette NightPalette() {
    QPalette night(Qt::black);
    for (const QPalette::ColorRole back : kBacks) night.setColor(back, Qt::black);
    for (const QPalette::ColorRole front : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                                            QPalette::BrightText, QPalette::Link, QPalette::LinkVisited})
        night.setColor(front, kNightText);
    for (const QPalette::ColorRole shade : {QPalette::Light, QPalette::Midlight, QPalette::Dark, QPalette::Shadow})
        night.setColor(shade, kNightShade);
    night.setColor(kFrameRole, kNightFrame);
    night.setColor(QPalette::Highlight, kNightText);
    night.setColor(QPalette::HighlightedText, Qt::black);
    night.setColor(QPalette::PlaceholderText, kNightDisabled);
    for (const QPalette::ColorRole front : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        night.setColor(QPalette::Disabled, front, kNightDisabled);
    night.setColor(QPalette::Disabled, kFrameRole, kNightDisabled);
    return night;
}

void UseScheme(Scheme scheme) {
    const Frames frames = scheme == Scheme::Desktop ? Frames::Thin : Frames::Broad;
    const auto* framed = qobject_cast<BorderStyle*>(QApplication::style());
    const QString own = (framed != nullptr ? framed->baseStyle() : QApplication::style())->name();
    if (framed == nullptr || framed->Drawn() != frames) QApplication::setStyle(new BorderStyle(own, frames));
    // An empty palette is the desktop's own.
    QApplication::setPalette(scheme == Scheme::Sun ? SunPalette() : scheme == Scheme::Night ? NightPalette() : QPalette());
    // Captions over lists and fields are read once, and are dimmer than what changes.
    QPalette caption = QApplication::palette();
    if (scheme == Scheme::Night) caption.setColor(QPalette::Active, QPalette::WindowText, kNightCaption);
    if (scheme == Scheme::Night) caption.setColor(QPalette::Inactive, QPalette::WindowText, kNightCaption);
    if (scheme == Scheme::Night) QApplication::setPalette(caption, "vatro::ColumnHead");
}

}  // namespace vatro
