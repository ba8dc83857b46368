// SPDX-License-Identifier: MIT
#include "help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <string>

#include "help_pages.h"
#include "help_window.h"
#include "qt_front.h"
#include "qt_text.h"
#include "services.h"
#include "window.h"

namespace vatro {

HelpKey::HelpKey(QtFront& front, QtHelp& help) : front_(front), help_(help) {
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* window = qobject_cast<const QWindow*>(watched);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (window == nullptr || key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
    return key.isAutoRepeat() || Open(*window);
}

bool HelpKey::Open(const QWindow& window) {
    QWidget* front = QApplication::activeModalWidget();
    for (QWidget* top : QApplication::topLevelWidgets())
        if (front == nullptr && top->windowHandle() == &window) front = top;
    if (front == nullptr || qobject_cast<HelpWindow*>(front) != nullptr) return false;
    std::string_view form;
    for (const Form* loaded : LoadedForms())
        if (const FormWindow* its = front_.WindowOf(*loaded); its != nullptr && its->Top() == front) form = loaded->Name();
    // A window that is no form may be known by its own name.
    const std::string name = form.empty() ? FromQt(front->objectName()) : std::string(form);
    help_.ShowPage(ToQt(HelpPageOf(name)), front->isModal() ? front : nullptr);
    return true;
}

}  // namespace vatro
