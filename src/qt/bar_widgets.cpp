// SPDX-License-Identifier: MIT
#include "bar_widgets.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <utility>

#include "bindings.h"
#include "by_kind.h"
#include "deliver.h"
#include "entry/validation.h"
#include "forms.h"
#include "press_button.h"
#include "qt_text.h"
#include "status_panel.h"

namespace vatro {

namespace {

constexpr const char* kToolIndex = "vatroIndex";

/// Qt repaints a whole status bar whenever the layout is asked for, which every new text of a panel does. This lets only those through
/// that have moved a panel or changed the height that one needs.
class PanelsAtRest : public QObject {
public:
    explicit PanelsAtRest(QStatusBar& bar) : QObject(&bar), bar_(bar) { bar.installEventFilter(this); }
    /// The layout of the bar has taken this event before any filter.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::LayoutRequest) return QObject::eventFilter(watched, event);
        QList<QRect> places;
        for (const StatusPanel* panel : PanelsOf(bar_)) places << panel->geometry() << QRect(QPoint(), panel->minimumSize());
        return std::exchange(places_, places) == places;
    }

private:
    QStatusBar& bar_;
    QList<QRect> places_;
};

void PushTick(const MenuItem& item, QAction& action) {
    // Checkable entries reserve space for a tick, so make an entry checkable only while it is ticked.
    action.setCheckable(item.Ticked());
    action.setChecked(item.Ticked());
}

/// A hidden entry or button has no text, because a screen reader would list it by its text.
QString TextUnlessHidden(const std::string& caption, bool visible) {
    return visible ? ToQt(caption) : QString();
}

QAction* AddEntry(MenuItem& item, QMenu& menu, QObject& scope);

QAction* AddMenu(MenuItem& item, QMenu& menu, QObject& scope) {
    for (MenuItem* entry : item.Entries()) AddEntry(*entry, menu, scope);
    return menu.menuAction();
}

QAction* AddEntry(MenuItem& item, QMenu& menu, QObject& scope) {
    const QString caption = TextUnlessHidden(item.Caption(), item.Visible());
    QAction* action = nullptr;
    if (item.Separator())
        action = menu.addSeparator();
    else if (!item.Entries().empty())
        action = AddMenu(item, *menu.addMenu(caption), scope);
    else
        action = menu.addAction(caption);
    action->setObjectName(ObjectName(item));
    if (!item.Shortcut().empty()) action->setShortcut(QKeySequence(ToQt(item.Shortcut())));
    action->setEnabled(item.Enabled());
    action->setVisible(item.Visible());
    PushTick(item, *action);
    item.mirror = [&item, action](Aspect aspect, int /*row*/) {
        if (aspect == Aspect::Text || aspect == Aspect::Visible) action->setText(TextUnlessHidden(item.Caption(), item.Visible()));
        if (aspect == Aspect::Enabled) action->setEnabled(item.Enabled());
        if (aspect == Aspect::Visible) action->setVisible(item.Visible());
        if (aspect == Aspect::Value) PushTick(item, *action);
    };
    QObject::connect(action, &QAction::triggered, &scope, [&item, action] {
        // Undo the toggle that Qt has made; the control decides about the tick.
        PushTick(item, *action);
        Deliver([&] {
            if (item.Parent().Reachable()) item.Choose();
        });
    });
    return action;
}

void PushPressed(const Toolbar& control, const QToolBar& widget) {
    for (const Toolbar::ToolButton& button : control.ToolButtons())
        if (QAction* action = ActionOf(button.index, widget)) action->setChecked(button.pressed);
}

}  // namespace

QString ObjectName(const Control& control) {
    const QString name = ToQt(control.Name());
    return control.Index() < 0 ? name : name + u'_' + QString::number(control.Index());
}

void AddBars(const Form& form, QMainWindow& window) {
    // Qt's default context menu of a main window would let the user hide toolbars without the form knowing.
    window.setContextMenuPolicy(Qt::NoContextMenu);
    for (const Control* control : form.Controls()) {
        ByKind(
            *control,
            [&window](const Toolbar& toolbar) {
                auto* bar = new QToolBar(&window);
                bar->setObjectName(ObjectName(toolbar));
                bar->setMovable(false);
                window.addToolBar(bar);
            },
            [&window](const StatusBar& bar) { window.statusBar()->setObjectName(ObjectName(bar)); }, [](const Control&) {});
    }
    window.menuBar()->setAccessibleName(QStringLiteral("Menulinje"));
}

void BindMenu(Form& form, QMainWindow& window, Bindings& bindings) {
    QObject& scope = bindings.Scope();
    for (Control* control : form.Controls()) {
        auto* item = As<MenuItem>(control);
        if (item == nullptr || item->Menu() != nullptr) continue;
        QMenu* menu = window.menuBar()->addMenu(ToQt(item->Caption()));
        QAction* action = AddMenu(*item, *menu, scope);
        ReturnKeysAfter(*menu, bindings);
        action->setObjectName(ObjectName(*item));
        action->setEnabled(item->Enabled());
        action->setVisible(item->Visible());
        item->mirror = [item, action](Aspect aspect, int /*row*/) {
            if (aspect == Aspect::Text) action->setText(ToQt(item->Caption()));
            if (aspect == Aspect::Enabled) action->setEnabled(item->Enabled());
            if (aspect == Aspect::Visible) action->setVisible(item->Visible());
        };
    }
}

void ReturnKeysAfter(QMenu& menu, Bindings& bindings) {
    QObject::connect(&menu, &QMenu::aboutToHide, &bindings.Scope(), [&bindings] {
        QTimer::singleShot(0, &bindings.Scope(), [&bindings] {
            if (QApplication::activePopupWidget() == nullptr) bindings.FollowFocusSoon();
        });
    });
}

void Bind(Toolbar& control, QToolBar& widget, Bindings& bindings) {
    const QString tip = ToQt(control.ToolTip());
    widget.setWindowTitle(tip);
    for (const Toolbar::ToolButton& button : control.ToolButtons()) {
        if (button.group == 0) {
            widget.addSeparator();
            continue;
        }
        auto* action = new PressAction(&widget);
        action->setText(TextUnlessHidden(button.caption, button.visible));
        action->setProperty(kToolIndex, button.index);
        action->setCheckable(true);
        action->setVisible(button.visible);
        action->setToolTip(button.toolTip.empty() ? tip : ToQt(button.toolTip));
        QObject::connect(action, &QAction::triggered, &bindings.Scope(), [&control, &widget, index = button.index] {
            // Undo the toggle that Qt has made; the control decides which buttons are pressed.
            PushPressed(control, widget);
            Deliver([&] {
                if (control.Parent().Reachable()) control.UserPressed(index);
            });
        });
        widget.addAction(action);
        if (QWidget* face = widget.widgetForAction(action)) face->setAccessibleName(action->text());
    }
    PushPressed(control, widget);
    widget.setEnabled(control.Enabled());
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        if (aspect == Aspect::Pressed) PushPressed(control, widget);
        if (aspect == Aspect::Enabled) widget.setEnabled(control.Enabled());
        if (aspect == Aspect::Visible) widget.setVisible(control.Visible());
    };
}

void Bind(StatusBar& control, QStatusBar& widget, Bindings& /*bindings*/) {
    widget.setAccessibleName(QStringLiteral("Statuslinje"));
    const auto push = [&control, &widget](std::size_t number) {
        PanelsOf(widget)
            .at(static_cast<qsizetype>(number) - 1)
            ->SetPanelText(ToQt(control.Panel(number)), ToQt(control.ToolTip()), control.Mark(number));
    };
    // In line with the fields above; in a dialogue the layout sees to that.
    constexpr int kEdge = 6;
    const bool main = qobject_cast<QMainWindow*>(widget.parentWidget()) != nullptr;
    if (main) widget.setContentsMargins(kEdge, 0, 0, kEdge / 2);
    for (std::size_t number = 1; number <= control.Panels().size(); ++number) {
        auto* panel = new StatusPanel(&widget);
        panel->setObjectName(ObjectName(control) + u'_' + QString::number(number));
        // The others are pairs of a value and its caption; a gap tells one pair from the next.
        if (number > 1 && number % 2 == 0) panel->SetGap(2 * panel->fontMetrics().averageCharWidth());
        // The first panel takes the space that the others do not need.
        if (number == 1) {
            panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
            // The longest of the program's own messages.
            if (main) panel->KeepRoomFor(ToQt(kDupeWarning), PanelMark::Duplicate);
        }
        widget.addWidget(panel, number == 1 ? 1 : 0);
        push(number);
    }
    new PanelsAtRest(widget);
    control.mirror = [&control, push](Aspect aspect, int row) {
        if (aspect == Aspect::Panels) push(static_cast<std::size_t>(row));
        if (aspect == Aspect::ToolTip)
            for (std::size_t number = 1; number <= control.Panels().size(); ++number) push(number);
    };
}

QAction* ActionOf(const MenuItem& item, const QMainWindow& window) {
    return window.menuBar()->findChild<QAction*>(ObjectName(item));
}

QAction* ActionOf(int index, const QToolBar& bar) {
    for (QAction* action : bar.actions())
        if (action->property(kToolIndex).isValid() && action->property(kToolIndex).toInt() == index) return action;
    return nullptr;
}

QList<StatusPanel*> PanelsOf(const QStatusBar& bar) {
    return bar.findChildren<StatusPanel*>(Qt::FindDirectChildrenOnly);
}

}  // namespace vatro
