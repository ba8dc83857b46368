// SPDX-License-Identifier: MIT
#include "call_mark.h"

#include <QEvent>
#include <QLineEdit>
#include <QPalette>
#include <QStatusBar>

#include "bar_widgets.h"
#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "qt_front.h"
#include "signal_colours.h"
#include "status_panel.h"

namespace vatro {

CallMark::CallMark(QLineEdit& call, StatusPanel& panel) : QObject(call.window()), call_(call), panel_(panel) {
    connect(&panel_, &StatusPanel::Told, this, &CallMark::Look);
    connect(&call_, &QLineEdit::textChanged, this, [this](const QString& text) {
        panel_.SetFaded(text.isEmpty() && panel_.Mark() != PanelMark::None);
        Look();
    });
    call_.window()->installEventFilter(this);
}

void CallMark::Look() {
    const bool mark = panel_.Mark() == PanelMark::Duplicate && !call_.text().isEmpty();
    if (!mark && !marked_) return;
    marked_ = mark;
    QPalette palette;
    if (mark) {
        const SignalColours colours = ColoursOf(Signal::Duplicate, panel_.palette());
        palette.setColor(QPalette::Base, colours.ground);
        palette.setColor(QPalette::Text, colours.ink);
        palette.setColor(QPalette::Highlight, colours.ink);
        palette.setColor(QPalette::HighlightedText, colours.ground);
    }
    call_.setPalette(palette);
}

bool CallMark::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) Look();
    return QObject::eventFilter(watched, event);
}

void MarkCall(const QtFront& front) {
    auto& call = dynamic_cast<QLineEdit&>(*front.WidgetOf(frmMain->fields[kCallField]));
    const auto& bar = dynamic_cast<const QStatusBar&>(*front.WidgetOf(frmMain->statusBar));
    new CallMark(call, *PanelsOf(bar).constFirst());
}

}  // namespace vatro
