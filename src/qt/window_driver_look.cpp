// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

#include "bar_widgets.h"
#include "by_kind.h"
#include "column_head.h"
#include "fields.h"
#include "forms.h"
#include "item_list.h"
#include "qt_text.h"
#include "status_panel.h"
#include "window.h"
#include "window_driver.h"

namespace vatro {

namespace {

std::string Differs(const TextControl& control, const QLineEdit& editor) {
    if (editor.text() != ToQt(control.Text())) return "the text is \"" + editor.text().toStdString() + "\"";
    const int start = editor.hasSelectedText() ? editor.selectionStart() : editor.cursorPosition();
    const auto length = editor.hasSelectedText() ? static_cast<int>(editor.selectionLength()) : 0;
    // A field without the focus shows no selection; it is restored with the focus.
    if (editor.hasFocus() && (start != control.SelStart() || length != control.SelLength()))
        return "the selection is " + std::to_string(start) + " " + std::to_string(length);
    if (editor.isReadOnly() != control.Locked()) return "it is locked on one side only";
    return {};
}

std::string Differs(const TextView& control, const QPlainTextEdit& widget) {
    if (widget.toPlainText() != ToQt(control.Text()).remove(u'\r')) return "the text is another one";
    const QTextCursor cursor = widget.textCursor();
    const QString before = ToQt(control.Text().substr(0, static_cast<std::size_t>(control.SelStart()))).remove(u'\r');
    const qsizetype length = widget.textCursor().selectedText().size();
    const QString selected =
        ToQt(control.Text().substr(static_cast<std::size_t>(control.SelStart()), static_cast<std::size_t>(control.SelLength())));
    if (cursor.selectionStart() != before.size() || length != QString(selected).remove(u'\r').size()) return "the selection is another one";
    return widget.isReadOnly() == control.Locked() ? "" : "it is locked on one side only";
}

std::string Differs(const ComboBox& control, const QComboBox& widget) {
    if (widget.count() != control.ListCount()) return "there are other items";
    for (int row = 0; row < widget.count(); ++row)
        if (widget.itemText(row) != ToQt(control.List(row))) return "item " + std::to_string(row) + " is another one";
    return Differs(control, *widget.lineEdit());
}

std::string Differs(const ListBox& control, const ItemList& widget) {
    const QAbstractItemModel& model = *widget.model();
    if (model.rowCount() != control.ListCount()) return "there are other rows";
    for (int row = 0; row < model.rowCount(); ++row)
        if (model.index(row, 0).data().toString() != ToQt(control.List(row))) return "row " + std::to_string(row) + " is another one";
    const QModelIndexList selected = widget.selectionModel()->selectedIndexes();
    const int row = selected.isEmpty() ? -1 : selected.front().row();
    return row == control.ListIndex() ? "" : "row " + std::to_string(row) + " is selected";
}

std::string Differs(const Label& control, const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* head = qobject_cast<const ColumnHead*>(&widget);
    const QString shown = label != nullptr ? label->text() : head != nullptr ? head->Caption() : QString();
    return shown == ToQt(control.Caption()) ? "" : "the text is \"" + shown.toStdString() + "\"";
}

std::string Differs(const Toolbar& control, const QToolBar& bar) {
    for (const Toolbar::ToolButton& button : control.ToolButtons()) {
        const QAction* action = ActionOf(button.index, bar);
        if (action != nullptr && (action->isChecked() != button.pressed || action->isVisible() != button.visible))
            return "button " + std::to_string(button.index) + " is another one";
    }
    return {};
}

std::string Differs(const StatusBar& control, const QStatusBar& bar) {
    const QList<StatusPanel*> panels = PanelsOf(bar);
    if (panels.size() != static_cast<qsizetype>(control.Panels().size())) return "there are other panels";
    for (std::size_t number = 1; number <= control.Panels().size(); ++number)
        if (panels[static_cast<qsizetype>(number) - 1]->PanelText() != ToQt(control.Panel(number)))
            return "panel " + std::to_string(number) + " is another one";
    return {};
}

std::string Differs(const ProgressBar& control, const QProgressBar& bar) {
    if (bar.maximum() != std::max(control.Max(), 1) || bar.value() != control.Value())
        return "the bar stands at " + std::to_string(bar.value()) + " of " + std::to_string(bar.maximum());
    return {};
}

std::string Differs(const OptionButton& control, const QAbstractButton& widget) {
    if (widget.isChecked() != control.Value()) return "it is on on one side only";
    return widget.text() == ToQt(control.Caption()) ? "" : "the text is another one";
}

std::string Differs(const CheckBox& control, const QAbstractButton& widget) {
    return widget.isChecked() == control.Value() ? "" : "the tick is another one";
}

std::string Differs(const Button& control, const QAbstractButton& widget) {
    return widget.text() == ToQt(control.Caption()) ? "" : "the text is another one";
}

std::string Differs(const ScrollBar& control, const QScrollBar& bar) {
    const ScrollBar::Range& limits = control.Limits();
    if (bar.minimum() != limits.min || bar.maximum() != limits.max) return "the ends are other ones";
    if (bar.sliderPosition() != control.Value()) return "the slide stands at " + std::to_string(bar.sliderPosition());
    return {};
}

}  // namespace

std::string Difference(const Control& control, const QWidget& widget) {
    if (widget.isHidden() == control.Visible()) return "one is hidden, the other shown";
    if (control.Parent().Enabled() && widget.isEnabled() != control.Enabled()) return "one is disabled, the other enabled";
    return ByKind(
        control, [&](const ComboBox& box) { return Differs(box, WidgetAs<QComboBox>(widget)); },
        [&](const TextView& text) { return Differs(text, WidgetAs<QPlainTextEdit>(widget)); },
        [&](const TextBox& text) { return Differs(text, WidgetAs<QLineEdit>(widget)); },
        [&](const ListBox& list) { return Differs(list, WidgetAs<ItemList>(widget)); },
        [&](const Label& label) { return Differs(label, widget); },
        [&](const Toolbar& bar) { return Differs(bar, WidgetAs<QToolBar>(widget)); },
        [&](const StatusBar& bar) { return Differs(bar, WidgetAs<QStatusBar>(widget)); },
        [&](const ProgressBar& bar) { return Differs(bar, WidgetAs<QProgressBar>(widget)); },
        [&](const ScrollBar& bar) { return Differs(bar, WidgetAs<QScrollBar>(widget)); },
        [&](const OptionButton& option) { return Differs(option, WidgetAs<QAbstractButton>(widget)); },
        [&](const CheckBox& box) { return Differs(box, WidgetAs<QAbstractButton>(widget)); },
        [&](const Button& button) { return Differs(button, WidgetAs<QAbstractButton>(widget)); },
        // The appearance of other controls never changes, or is checked elsewhere.
        [](const Control&) { return std::string(); });
}

std::string Difference(const MenuItem& item, QMainWindow& main) {
    const QAction* action = ActionOf(item, main);
    if (action == nullptr) return "no entry in the menu";
    if (item.Separator()) return action->isSeparator() ? "" : "a line is missing";
    if (action->text() != (item.Visible() ? ToQt(item.Caption()) : QString())) return "the text is another one";
    if (action->isChecked() != item.Ticked()) return "the tick is another one";
    // Qt counts an invisible entry as disabled; an entry of a disabled menu still reports its own state.
    return action->isEnabled() == (item.Enabled() && item.Visible()) ? "" : "it is disabled on one side only";
}

std::string Difference(const Form& form, const FormWindow& window) {
    const QWidget& top = *window.Top();
    if (top.windowTitle() != ToQt(form.Caption())) return "the caption is another one";
    if (top.isVisible() != form.Visible()) return "one is hidden, the other shown";
    if (!top.isVisible() || top.isMinimized()) return {};
    if (top.isEnabled() != form.Enabled()) return "one is disabled, the other enabled";
    if (form.Placed() && top.pos() != QPoint(ToPixels(form.Left()), ToPixels(form.Top()))) return "the place is another one";
    const QSize size(qMax(1, ToPixels(form.Width())), qMax(1, ToPixels(form.Height())));
    if (form.Placed() && top.size() != size) return "the size is another one";
    const Control* active = form.ActiveControl();
    const QWidget* focused = top.focusWidget();
    if (&form == ActiveForm() && active != nullptr && active->Enabled() && focused != window.WidgetOf(*active))
        return "the focus is elsewhere";
    return {};
}

void SaveWindows(const std::string& file) {
    QRect all;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && !window->isMinimized()) all = all.united(window->geometry());
    if (all.isEmpty()) throw CannotDeliver("no window is shown");
    const double ratio = qApp->devicePixelRatio();
    QPixmap picture(all.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::darkGray);
    QPainter painter(&picture);
    // Paint main windows first, then the windows above them, then modal windows and the open popup.
    const auto layer = [](const QWidget& window) {
        if (&window == QApplication::activePopupWidget()) return 3;
        if (window.isModal()) return 2;
        return window.parentWidget() != nullptr ? 1 : 0;
    };
    for (int at = 0; at <= 3; ++at)
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && !window->isMinimized() && layer(*window) == at)
                painter.drawPixmap(window->geometry().topLeft() - all.topLeft(), window->grab());
    painter.end();
    if (!picture.save(QString::fromStdString(file), "PNG")) throw CannotDeliver("cannot write " + file);
}

}  // namespace vatro
