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
#include "column_head.h"
#include "fields.h"
#include "forms.h"
#include "item_list.h"
#include "picture_view.h"
#include "qt_text.h"
#include "window.h"

namespace vatro {

namespace {

/// Binds if control and widget are of these classes.
template <class C, class W>
bool BindPair(Control& control, QWidget& widget, FormWindow& window) {
    auto* c = dynamic_cast<C*>(&control);
    auto* w = dynamic_cast<W*>(&widget);
    if (c == nullptr || w == nullptr) return false;
    Bind(*c, *w, window);
    return true;
}

/// The pairs there are; a class stands before the one that it is derived from.
constexpr bool (*kPairs[])(Control&, QWidget&, FormWindow&) = {
    BindPair<TextBox, QLineEdit>,
    BindPair<TextView, QPlainTextEdit>,
    BindPair<Picture, PictureView>,
    BindPair<ComboBox, QComboBox>,
    BindPair<ListBox, ItemList>,
    BindPair<Button, QPushButton>,
    BindPair<CheckBox, QCheckBox>,
    BindPair<OptionButton, QRadioButton>,
    BindPair<ScrollBar, QScrollBar>,
    BindPair<Label, FittedText>,
    BindPair<Label, QLabel>,
    BindPair<Label, ColumnHead>,
    BindPair<Frame, QFrame>,
    BindPair<Toolbar, QToolBar>,
    BindPair<StatusBar, QStatusBar>,
    BindPair<UpDown, SpinArrows>,
    BindPair<ProgressBar, QProgressBar>,
};

bool HasWidget(const Control& control) {
    return dynamic_cast<const Timer*>(&control) == nullptr && dynamic_cast<const MenuItem*>(&control) == nullptr;
}

/// The widgets of the window itself, without those of windows above it.
QList<QWidget*> WidgetsOf(const FormWindow& window, const QString& name = {}) {
    QList<QWidget*> widgets = window.Top()->findChildren<QWidget*>(name);
    widgets.removeIf([&](const QWidget* widget) { return widget->window() != window.Top(); });
    return widgets;
}

/// A caption as it is spoken.
QString Spoken(const std::string& caption) {
    const QString plain = PlainCaption(caption);
    return plain.endsWith(u':') ? plain.chopped(1) : plain;
}

/// What the control is called where it is not seen.
QString SpokenName(const Control& control) {
    if (const auto* button = dynamic_cast<const Button*>(&control)) return Spoken(button->Caption());
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return Spoken(box->Caption());
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return Spoken(option->Caption());
    for (const Control* other : control.Parent().Controls()) {
        const auto* label = dynamic_cast<const Label*>(other);
        if (label != nullptr && label->AccessTarget() == &control) return Spoken(label->Caption());
    }
    const QString tip = ToQt(control.ToolTip());
    const qsizetype sentence = tip.indexOf(QStringLiteral(". "));
    return sentence < 0 ? tip : tip.left(sentence);
}

void NameWidget(const Control& control, QWidget& widget, FormWindow& window) {
    const QString name = widget.accessibleName().isEmpty() ? SpokenName(control) : widget.accessibleName();
    QList<QWidget*> named{&widget};
    if (const auto* combo = qobject_cast<QComboBox*>(&widget)) named.append(combo->lineEdit());
    for (QWidget* one : named) {
        one->setAccessibleName(name);
        // What fills its window is called as the window is.
        if (name.isEmpty()) window.NameByCaption(*one);
    }
}

void BindOne(Control& control, FormWindow& window) {
    const QList<QWidget*> widgets = WidgetsOf(window, ObjectName(control));
    if (widgets.size() != 1) {
        window.AddProblem(QStringLiteral("%1 has %2 widgets").arg(ObjectName(control)).arg(widgets.size()));
        return;
    }
    QWidget& widget = *widgets.front();
    window.Enter(control, widget);
    for (const auto& bind : kPairs) {
        if (!bind(control, widget, window)) continue;
        if (control.TakesFocus()) NameWidget(control, widget, window);
        return;
    }
    window.AddProblem(
        QStringLiteral("%1 cannot be tied to a %2").arg(ObjectName(control), QLatin1String(widget.metaObject()->className())));
}

bool Bindable(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLabel*>(&widget) != nullptr || qobject_cast<const QProgressBar*>(&widget) != nullptr ||
           qobject_cast<const QScrollBar*>(&widget) != nullptr || qobject_cast<const ColumnHead*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr || qobject_cast<const PictureView*>(&widget) != nullptr;
}

/// What a widget has inside itself is its own.
bool Inside(const QWidget& widget, const QWidget& owner) {
    if (const auto* room = qobject_cast<const ScrollRoom*>(&owner)) return !room->widget()->isAncestorOf(&widget);
    return qobject_cast<const QComboBox*>(&owner) != nullptr || qobject_cast<const QAbstractScrollArea*>(&owner) != nullptr ||
           qobject_cast<const QToolBar*>(&owner) != nullptr || qobject_cast<const QStatusBar*>(&owner) != nullptr ||
           owner.inherits("QMenuBar");
}

/// Widgets of the layout that no control owns.
void FindOrphans(const Form& form, FormWindow& window) {
    std::set<QString> known{QStringLiteral("FormCaption")};
    for (const Control* control : form.Controls()) {
        known.insert(ObjectName(*control));
        if (dynamic_cast<const Frame*>(control) != nullptr) known.insert(ObjectName(*control) + QStringLiteral("Caption"));
    }
    for (const QWidget* widget : WidgetsOf(window)) {
        if (!Bindable(*widget) || known.count(widget->objectName()) > 0) continue;
        bool inside = false;
        for (const QWidget* parent = widget->parentWidget(); parent != nullptr && !inside; parent = parent->parentWidget())
            inside = Inside(*widget, *parent);
        if (inside || widget->inherits("QToolButton")) continue;
        window.AddProblem(QStringLiteral("no control owns the widget \"%1\"").arg(widget->objectName()));
    }
}

void SetTabOrder(const Form& form, FormWindow& window) {
    QWidget* last = nullptr;
    for (const Control* control : form.TabOrder()) {
        QWidget* widget = window.WidgetOf(*control);
        if (widget == nullptr) continue;
        if (last != nullptr) QWidget::setTabOrder(last, widget);
        last = widget;
    }
}

}  // namespace

void BindForm(Form& form, FormWindow& window) {
    for (QWidget* widget : WidgetsOf(window))
        if (Bindable(*widget)) widget->setFocusPolicy(Qt::NoFocus);
    for (Control* control : form.Controls())
        if (HasWidget(*control)) BindOne(*control, window);
    if (auto* main = qobject_cast<QMainWindow*>(window.Top())) BindMenu(form, *main, window.Scope());
    FindOrphans(form, window);
    SetTabOrder(form, window);
    for (const QString& problem : window.Problems()) qWarning("%s: %s", qUtf8Printable(ToQt(form.Name())), qUtf8Printable(problem));
}

}  // namespace vatro
