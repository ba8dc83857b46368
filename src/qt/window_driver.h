// SPDX-License-Identifier: MIT
//
// The window front as a scenario driver: every event is a real key press or click on a real window.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

#include "driver.h"
#include "qt_front.h"

class QMainWindow;
class QMessageBox;
class QWindow;

namespace vatro {

class WindowDriver : public Driver {
public:
    WindowDriver();
    ~WindowDriver() override;

    Front& ProgramFront() override { return front_; }

    void Press(const KeyStroke& key) override;
    /// Through the clipboard and Ctrl+V.
    void Paste(std::string_view text) override;
    void Focus(Control& control) override;
    void Click(Control& control) override;
    void ClickForm(Form& form) override;
    void Pick(Control& control, int row) override;
    void Spin(UpDown& arrows, bool up) override;
    void Scroll(ScrollBar& bar, int value) override;
    void DoubleClick(ListBox& list, int row) override;
    void Choose(MenuItem& item) override;
    void PressTool(Toolbar& toolbar, int index) override;
    void Close(Form& form) override;
    void Minimise(Form& form) override;
    void Restore(Form& form) override;
    void Place(Form& form, int left, int top, int width, int height) override;

    void OpenBox(const MessageBox& box) override;
    void AnswerBox(Answer answer) override;
    void DropBox() override;

    void Settle() override;
    std::string Mismatch(const Control& control) override;
    std::string Mismatch(const Form& form) override;
    void Shot(const std::string& file) override;

private:
    QWidget& WindowOf(const Form& form) const;
    QWidget& WidgetOf(const Control& control) const;
    /// The window that has the focus. It must be the one that the program expects.
    QWindow& KeyWindow() const;
    bool AtRest() const;

    QtFront front_;
    /// The open message boxes; the one in front is last.
    std::vector<QPointer<QMessageBox>> boxes_;
};

/// The widget as a W. If it is not a W, the scenario ends with an error.
template <class W>
W& WidgetAs(QWidget& widget) {
    auto* own = qobject_cast<W*>(&widget);
    if (own == nullptr) throw CannotDeliver("the widget is a " + std::string(widget.metaObject()->className()));
    return *own;
}
template <class W>
const W& WidgetAs(const QWidget& widget) {
    const auto* own = qobject_cast<const W*>(&widget);
    if (own == nullptr) throw CannotDeliver("the widget is a " + std::string(widget.metaObject()->className()));
    return *own;
}

/// Describes how the widget differs from its control; empty if it does not.
std::string Difference(const Control& control, const QWidget& widget);
/// The same for an entry in the menu of a window, and for a form.
std::string Difference(const MenuItem& item, QMainWindow& main);
std::string Difference(const Form& form, const FormWindow& window);
/// Saves one picture of all visible windows at their places on the screen.
void SaveWindows(const std::string& file);

}  // namespace vatro
