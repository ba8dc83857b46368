// SPDX-License-Identifier: MIT
#include "binder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <set>

#include "bar_widgets.h"
#include "bindings.h"
#include "by_kind.h"
#include "column_head.h"
#include "fields.h"
#include "forms.h"
#include "item_list.h"
#include "picture_view.h"
#include "qt_text.h"

namespace vatro {

namespace {

/// Binds the control if the widget is of one of these classes. List a class before its base class.
template <class... W, class C>
bool BindAs(C& control, QWidget& widget, Bindings& bindings) {
    const auto bind = [&](auto* own) {
        if (own == nullptr) return false;
        Bind(control, *own, bindings);
        return true;
    };
    return (bind(qobject_cast<W*>(&widget)) || ...);
}

/// All supported pairs of control and widget.
bool BindPair(Control& control, QWidget& widget, Bindings& bindings) {
    return ByKind(
        control, [&](TextBox& c) { return BindAs<QLineEdit>(c, widget, bindings); },
        [&](TextView& c) { return BindAs<QPlainTextEdit>(c, widget, bindings); },
        [&](Picture& c) { return BindAs<PictureView>(c, widget, bindings); },
        [&](ComboBox& c) { return BindAs<QComboBox>(c, widget, bindings); },
        [&](ListBox& c) { return BindAs<ItemList>(c, widget, bindings); },
        [&](Button& c) { return BindAs<QPushButton>(c, widget, bindings); },
        [&](CheckBox& c) { return BindAs<QCheckBox>(c, widget, bindings); },
        [&](OptionButton& c) { return BindAs<QRadioButton>(c, widget, bindings); },
        [&](ScrollBar& c) { return BindAs<QScrollBar>(c, widget, bindings); },
        [&](Label& c) { return BindAs<FittedText, QLabel, ColumnHead>(c, widget, bindings); },
        [&](Frame& c) { return BindAs<QFrame>(c, widget, bindings); }, [&](Toolbar& c) { return BindAs<QToolBar>(c, widget, bindings); },
        [&](StatusBar& c) { return BindAs<QStatusBar>(c, widget, bindings); },
        [&](UpDown& c) { return BindAs<SpinArrows>(c, widget, bindings); },
        [&](ProgressBar& c) { return BindAs<QProgressBar>(c, widget, bindings); },
        // A timer has no widget, and a menu item is an action of the menu bar.
        [](Timer&) { return false; }, [](MenuItem&) { return false; });
}

bool HasWidget(const Control& control) {
    return As<Timer>(&control) == nullptr && As<MenuItem>(&control) == nullptr;
}

/// The widgets of the window itself, without those of windows that belong to it.
QList<QWidget*> WidgetsOf(const QWidget& top, const QString& name = {}) {
    QList<QWidget*> widgets = top.findChildren<QWidget*>(name);
    widgets.removeIf([&](const QWidget* widget) { return widget->window() != &top; });
    return widgets;
}

/// A caption as a screen reader should speak it.
QString Spoken(const std::string& caption) {
    const QString plain = PlainCaption(caption);
    return plain.endsWith(u':') ? plain.chopped(1) : plain;
}

/// The name of the control for screen readers.
QString SpokenName(const Control& control) {
    if (const auto* captioned = As<CaptionedControl>(&control)) return Spoken(captioned->Caption());
    for (const Control* other : control.Parent().Controls()) {
        const auto* label = As<Label>(other);
        if (label != nullptr && label->AccessTarget() == &control) return Spoken(label->Caption());
    }
    const QString tip = ToQt(control.ToolTip());
    const qsizetype sentence = tip.indexOf(QStringLiteral(". "));
    return sentence < 0 ? tip : tip.left(sentence);
}

void NameWidget(const Control& control, QWidget& widget, Bindings& bindings) {
    const QString name = widget.accessibleName().isEmpty() ? SpokenName(control) : widget.accessibleName();
    QList<QWidget*> named{&widget};
    if (const auto* combo = qobject_cast<QComboBox*>(&widget)) named.append(combo->lineEdit());
    for (QWidget* one : named) {
        one->setAccessibleName(name);
        // A widget without a name of its own is named after its window.
        if (name.isEmpty()) bindings.NameByCaption(*one);
    }
}

void BindOne(Control& control, const QWidget& top, Bindings& bindings) {
    const QList<QWidget*> widgets = WidgetsOf(top, ObjectName(control));
    if (widgets.size() != 1) {
        bindings.AddProblem(QStringLiteral("%1 has %2 widgets").arg(ObjectName(control)).arg(widgets.size()));
        return;
    }
    QWidget& widget = *widgets.front();
    bindings.Enter(control, widget);
    if (!BindPair(control, widget, bindings)) {
        bindings.AddProblem(
            QStringLiteral("%1 cannot be tied to a %2").arg(ObjectName(control), QLatin1String(widget.metaObject()->className())));
        return;
    }
    if (control.TakesFocus()) NameWidget(control, widget, bindings);
}

bool Bindable(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLabel*>(&widget) != nullptr || qobject_cast<const QProgressBar*>(&widget) != nullptr ||
           qobject_cast<const QScrollBar*>(&widget) != nullptr || qobject_cast<const ColumnHead*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr || qobject_cast<const PictureView*>(&widget) != nullptr;
}

/// Whether `widget` is an internal part of `owner`.
bool Inside(const QWidget& widget, const QWidget& owner) {
    if (const auto* room = qobject_cast<const ScrollRoom*>(&owner)) return !room->widget()->isAncestorOf(&widget);
    return qobject_cast<const QComboBox*>(&owner) != nullptr || qobject_cast<const QAbstractScrollArea*>(&owner) != nullptr ||
           qobject_cast<const QToolBar*>(&owner) != nullptr || qobject_cast<const QStatusBar*>(&owner) != nullptr ||
           owner.inherits("QMenuBar");
}

/// Reports bindable widgets of the layout that no control owns.
void FindOrphans(const Form& form, const QWidget& top, Bindings& bindings) {
    std::set<QString> known{QStringLiteral("FormCaption")};
    for (const Control* control : form.Controls()) {
        known.insert(ObjectName(*control));
        if (As<Frame>(control) != nullptr) known.insert(ObjectName(*control) + QStringLiteral("Caption"));
    }
    for (const QWidget* widget : WidgetsOf(top)) {
        if (!Bindable(*widget) || known.count(widget->objectName()) > 0) continue;
        bool inside = false;
        for (const QWidget* parent = widget->parentWidget(); parent != nullptr && !inside; parent = parent->parentWidget())
            inside = Inside(*widget, *parent);
        if (inside || widget->inherits("QToolButton")) continue;
        bindings.AddProblem(QStringLiteral("no control owns the widget \"%1\"").arg(widget->objectName()));
    }
}

void SetTabOrder(const Form& form, const Bindings& bindings) {
    QWidget* last = nullptr;
    for (const Control* control : form.TabOrder()) {
        QWidget* widget = bindings.WidgetOf(*control);
        if (widget == nullptr) continue;
        if (last != nullptr) QWidget::setTabOrder(last, widget);
        last = widget;
    }
}

}  // namespace

void BindForm(Form& form, QWidget& top, Bindings& bindings) {
    for (QWidget* widget : WidgetsOf(top))
        if (Bindable(*widget)) widget->setFocusPolicy(Qt::NoFocus);
    for (Control* control : form.Controls())
        if (HasWidget(*control)) BindOne(*control, top, bindings);
    if (auto* main = qobject_cast<QMainWindow*>(&top)) BindMenu(form, *main, bindings);
    FindOrphans(form, top, bindings);
    SetTabOrder(form, bindings);
    for (const QString& problem : bindings.Problems()) qWarning("%s: %s", qUtf8Printable(ToQt(form.Name())), qUtf8Printable(problem));
}

}  // namespace vatro
