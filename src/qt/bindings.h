// SPDX-License-Identifier: MIT
//
// The bindings of one form's window: which widget belongs to which control, the connections, and the inputs.
//
// The Bind functions fill this object. The window owns it and closes it before the form is destroyed.
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
    /// Calls Close.
    ~Bindings();
    Bindings(const Bindings&) = delete;
    Bindings& operator=(const Bindings&) = delete;

    /// The widget of a control, or null if it has none.
    QWidget* WidgetOf(const Control& control) const;
    /// Messages about controls without exactly one widget, and about widgets without a control.
    const QStringList& Problems() const { return problems_; }
    /// Gives the caption as accessible name to the widgets that are named after their window.
    void NameWidgets(const QString& caption) const;
    /// Disconnects everything: from now on, nothing from the widgets reaches the controls.
    void Close();

    // For the binder.

    /// Owner of the connections and models of the controls; destroyed before the form.
    QObject& Scope() const { return *scope_; }
    /// Records which widget shows the control.
    void Enter(const Control& control, QWidget& widget) { widgets_[&control] = &widget; }
    /// Passes keys, paste and focus of the widget to the control. `editor` is the widget's line editor, or null.
    void AddInput(Control& control, QWidget& widget, QLineEdit* editor);
    /// The widget takes its accessible name from the form's caption.
    void NameByCaption(QWidget& widget) { namedByCaption_.emplace_back(&widget); }
    /// Records a message for Problems().
    void AddProblem(const QString& problem) { problems_.append(problem); }
    /// Returns the focus to the form's active control once Qt's current event is over.
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
