// SPDX-License-Identifier: MIT
//
// What ties the widgets of one form's window to its controls: which widget is whose, the connections, the inputs.
//
// The functions Bind fill it; the window owns it and lets it go before the form goes.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <map>
#include <memory>
#include <vector>

#include "input.h"

class QLineEdit;
class QWidget;

namespace vatro {

class Control;

class Bindings {
public:
    explicit Bindings(InputSurroundings surroundings);
    /// Closes.
    ~Bindings();
    Bindings(const Bindings&) = delete;
    Bindings& operator=(const Bindings&) = delete;

    /// The widget of a control, or nothing if it has none.
    QWidget* WidgetOf(const Control& control) const;
    /// Controls without exactly one widget, and widgets without a control.
    const QStringList& Problems() const { return problems_; }
    /// Gives the widgets that are called as their window is this name.
    void NameWidgets(const QString& caption) const;
    /// Nothing of the widgets reaches the controls any more.
    void Close();

    // Of the binder.

    /// Connections and models of the controls; gone before the form is.
    QObject& Scope() const { return *scope_; }
    void Enter(const Control& control, QWidget& widget) { widgets_[&control] = &widget; }
    /// Keys, paste and focus of the widget go into the control. `editor` is its line under editing, or nothing.
    void AddInput(Control& control, QWidget& widget, QLineEdit* editor);
    /// The widget is called as the form's caption says.
    void NameByCaption(QWidget& widget) { namedByCaption_.emplace_back(&widget); }
    void AddProblem(const QString& problem) { problems_.append(problem); }
    /// Gives the focus back to the form's active control when the present event of Qt is over.
    void FollowFocusSoon() const { surroundings_.followFocusSoon(); }

private:
    InputSurroundings surroundings_;
    std::unique_ptr<QObject> scope_;
    std::map<const Control*, QPointer<QWidget>> widgets_;
    std::vector<QPointer<Input>> inputs_;
    std::vector<QPointer<QWidget>> namedByCaption_;
    QStringList problems_;
};

}  // namespace vatro
