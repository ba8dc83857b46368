// SPDX-License-Identifier: MIT
#include "call_mark.h"

#include <QEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPalette>

#include "qt_front.h"
#include "signal_colours.h"
#include "status_panel.h"

namespace vatro {

CallMark::CallMark(QMainWindow& window, QLineEdit& call, StatusPanel& panel) : QObject(&window), call_(call), panel_(panel) {
    connect(&panel_, &StatusPanel::Told, this, &CallMark::Look);
    connect(&call_, &QLineEdit::textChanged, this, [this](const QString& text) {
        panel_.SetFaded(text.isEmpty() && panel_.Mark() != PanelMark::None);
        Look();
    });
    window.installEventFilter(this);
}

void CallMark::Look() {
    const bool mark = panel_.Mark() == PanelMark::Duplicate && !call_.text().isEmpty();
    if (!mark && !marked_) return;
    marked_ = mark;
    QPalette palette;
    if (mark) {
        const SignalColours colours = ColoursOf(Signal::Wrong, panel_.palette());
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

void MarkCalls(QtFront& front) {
    front.extraEntries.emplace_back([](QMainWindow& window, QMenu& /*menu*/) {
        auto* call = window.findChild<QLineEdit*>(QStringLiteral("Text1_1"));
        auto* panel = window.findChild<StatusPanel*>(QStringLiteral("sbStatusBar_1"));
        if (call != nullptr && panel != nullptr) new CallMark(window, *call, *panel);
    });
}

}  // namespace vatro
