// SPDX-License-Identifier: MIT
#include "top_widget.h"

#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "bar_widgets.h"
#include "bindings.h"
#include "fields.h"
#include "forms.h"
#include "layouts.h"
#include "qt_text.h"

namespace vatro {

namespace {

/// The property by which a form's widget is known.
constexpr const char* kForm = "vatroForm";

Qt::WindowFlags FlagsOf(FormKind kind) {
    switch (kind) {
        case FormKind::Main:
            return Qt::Window;
        case FormKind::Tool:
        case FormKind::FixedTool:
            return Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
        case FormKind::Dialog:
        case FormKind::FixedDialog:
            return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
        case FormKind::Splash:
            return Qt::SplashScreen | Qt::FramelessWindowHint;
    }
    return Qt::Window;
}

QWidget* MainTop(const Form& form, QWidget* content, QWidget* owner, Qt::WindowFlags flags) {
    auto* window = new QMainWindow(owner, flags);
    const QSize size = content->size();
    window->setCentralWidget(new ScrollRoom(*content));
    AddBars(form, *window);
    window->resize(size);
    return window;
}

}  // namespace

bool RefusesKeys(const Form& form, bool desktop) {
    return desktop && form.onlyShows;
}

Qt::WindowFlags FlagsOf(const Form& form, bool desktop) {
    Qt::WindowFlags flags = FlagsOf(form.Kind());
    flags.setFlag(Qt::WindowDoesNotAcceptFocus, RefusesKeys(form, desktop));
    return flags;
}

QWidget* MakeTop(Form& form, bool desktop, QWidget* owner, Bindings& bindings) {
    const QString name = ToQt(form.Name());
    auto* content = new QWidget;
    QWidget* top = content;
    const LayoutMaker make = FindLayout(form.Name());
    if (make != nullptr)
        make(content);
    else
        bindings.AddProblem(name + QStringLiteral(" has no layout"));
    // The user may make a side window as small as wanted, and it keeps that size at the next start.
    if (form.Kind() == FormKind::Tool && content->layout() != nullptr) content->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    // The window always has the size of its layout, whatever the desktop's font.
    if (form.Kind() == FormKind::FixedDialog && content->layout() != nullptr) content->layout()->setSizeConstraint(QLayout::SetFixedSize);
    if (form.Kind() == FormKind::Main)
        top = MainTop(form, content, owner, FlagsOf(form, desktop));
    else
        content->setParent(owner, FlagsOf(form, desktop));
    content->setObjectName(name);
    top->setProperty(kForm, true);
    if (form.Kind() == FormKind::Tool || form.Kind() == FormKind::Splash) top->setAttribute(Qt::WA_ShowWithoutActivating);
    return top;
}

bool IsTop(const QWidget& widget) {
    return widget.isWindow() && widget.property(kForm).toBool();
}

void AddExtraMenu(QMainWindow& window, const std::vector<std::function<void(QMainWindow&, QMenu&)>>& entries, Bindings& bindings) {
    if (entries.empty() || window.menuBar()->actions().isEmpty()) return;
    auto* menu = new QMenu(QStringLiteral("&Ekstra"), window.menuBar());
    menu->menuAction()->setObjectName(QStringLiteral("extraMenu"));
    window.menuBar()->insertMenu(window.menuBar()->actions().constLast(), menu);
    ReturnKeysAfter(*menu, bindings);
    for (const auto& add : entries) add(window, *menu);
}

}  // namespace vatro
