// SPDX-License-Identifier: MIT
//
// Form, the base of the program's windows, each a class that owns its controls as values; forms.h has it with all controls.
//
// A form is unloaded, hidden or shown. Using a form that is unloaded loads it, without showing it. A modal form holds
// its caller until it is hidden or unloaded. Geometry is in twips (1/1440 inch).
//
// Focus moves between the controls of a form. A message box, a menu, another window or another program in front is no
// loss of focus.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "control.h"

namespace vatro {

enum class WindowState { Normal, Minimised, Maximised };

/// What kind of window a form is; the front draws it accordingly. The user does not size a fixed one; a fixed tool stands in the
/// middle of the screen, a dialogue in that of its owner.
enum class FormKind { Main, Tool, FixedTool, Dialog, FixedDialog, Splash };

/// A window of the program; the base of each form.
class Form {
public:
    Form(std::string_view name, FormKind kind, std::string_view caption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    FormKind Kind() const { return kind_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);

    /// Nothing but noughts until somebody has placed the form; a main form has the size of its layout from the beginning.
    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    /// Sets the place; a front may not let a window become as small as asked. Form_Resize runs if the size has become
    /// another one.
    void Place(int left, int top, int width, int height);
    /// Whether the program or the user has ever placed the form. Where it has not, the front puts the window where it likes.
    bool Placed() const { return placed_; }
    void MoveTo(int left, int top) { Place(left, top, width_, height_); }
    void SetWidth(int width) { Place(left_, top_, width, height_); }
    void SetHeight(int height) { Place(left_, top_, width_, height); }
    /// The room inside the frame. The stored size of a window is the size of this room, so both are the same.
    int ScaleWidth() const { return width_; }
    int ScaleHeight() const { return height_; }
    WindowState State() const { return state_; }

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Hourglass() const { return hourglass_; }
    void SetHourglass(bool on);

    bool Visible() const { return visible_; }
    bool Modal() const { return modal_; }
    /// Shows the form and makes it the active one; it does not hold the caller.
    void Show();
    /// Shows the form and holds the caller until it is hidden or unloaded. Fails with 5 if it is shown.
    void ShowModal();
    /// The form keeps what stands in it. A modal one has its focus at the first control when it is shown again.
    void Hide();
    /// Runs Form_QueryUnload and Form_Unload and removes the form; its next use loads it anew.
    void Unload();
    /// Makes a shown form the active one, with the focus where it was in it. Fails with 5 if it is not shown.
    void SetFocus();
    /// Paints the form now.
    void Refresh();

    /// In the order of their declaration.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control of this name and index (-1 without one), or nothing.
    Control* Find(std::string_view name, int index) const;
    /// The control that has the focus of this form, or nothing.
    Control* ActiveControl() const { return active_; }
    /// The controls that Tab walks through, in its order.
    const std::vector<Control*>& TabOrder() const { return tabOrder_; }

    // From the front.

    /// The user has moved the focus to this control, with the mouse or by key.
    void UserFocus(Control& control, FocusWay way = FocusWay::Key);
    /// Tab or Shift+Tab: the next control that can take the focus; round at the end.
    void UserTab(bool back);
    /// Enter and Esc: presses the default button (unless the focus is on a button) or the cancel button; false if the
    /// form has none.
    bool UserDefaultKey(KeyCode key);
    /// Alt and a letter: presses, flips or focuses the control with that access letter; false if there is none.
    bool UserAccessKey(char letter);
    /// A key: the form sees it first, then the control that has the focus, if any. Gives what they have made of it.
    KeyCode UserKey(KeyCode key);
    /// A click on the form's own surface.
    void UserClicked() { Form_Click(); }
    /// The size that the layout of the front gives a main form, told while it is created; no Form_Resize.
    void SetDesignSize(int width, int height);
    /// The user has moved or sized the window.
    void UserPlaced(int left, int top, int width, int height);
    void UserState(WindowState state);
    /// The user has brought the window to the front.
    void UserActivated();
    /// The user closes the window by its frame.
    void UserClosed() { Unload(); }
    /// Whether events of the user reach it: shown, enabled, and no other modal form in front.
    bool Reachable() const;

    virtual void Form_Load() {}
    /// `Cancel` made true keeps the form.
    virtual void Form_QueryUnload(bool& Cancel) { static_cast<void>(Cancel); }
    virtual void Form_Unload() { StoreState(); }
    /// Writes down what of the form outlives it: its place, its choices. Part of Form_Unload, and also run, without the rest, where
    /// the program is about to end without its handlers. Asks nothing of the front.
    virtual void StoreState() {}
    virtual void Form_Resize() {}
    virtual void Form_Click() {}
    /// A key before the control that has the focus gets it; made kNoKey it ends here.
    virtual void Form_KeyPress(KeyCode& KeyAscii) { static_cast<void>(KeyAscii); }

protected:
    void SetTabOrder(std::vector<Control*> order) { tabOrder_ = std::move(order); }

private:
    friend class Control;
    friend class FormSlotBase;
    void Enrol(Control& control) { controls_.push_back(&control); }
    void MoveFocus(Control& control, FocusWay way = FocusWay::Key);
    bool CanFocus(const Control& control) const;
    void FocusFirst();

    std::string name_;
    FormKind kind_;
    std::string caption_;
    int left_ = 0;
    int top_ = 0;
    int width_ = 0;
    int height_ = 0;
    bool placed_ = false;
    WindowState state_ = WindowState::Normal;
    bool enabled_ = true;
    bool hourglass_ = false;
    bool visible_ = false;
    bool modal_ = false;
    std::vector<Control*> controls_;
    std::vector<Control*> tabOrder_;
    Control* active_ = nullptr;
    /// GotFocus of the active control has run, so its LostFocus is owed.
    bool entered_ = false;
};

/// The place of one form of the program, loaded or not. Named after the form; used like a pointer to it.
class FormSlotBase {
public:
    FormSlotBase(std::string_view name, std::function<std::unique_ptr<Form>()> make);
    FormSlotBase(const FormSlotBase&) = delete;
    FormSlotBase& operator=(const FormSlotBase&) = delete;

    const std::string& Name() const { return name_; }
    bool Loaded() const { return form_ != nullptr; }
    /// The form if it is loaded, or nothing; loads nothing.
    Form* Peek() const { return form_.get(); }
    /// Loads the form if it is not: creates it, runs Form_Load.
    void Load();
    void Unload() {
        if (form_) form_->Unload();
    }

protected:
    std::unique_ptr<Form> form_;

private:
    friend class Form;
    friend void DropForms();
    std::string name_;
    std::function<std::unique_ptr<Form>()> make_;
};

/// The slot of a form of the class F, declared behind it as one variable of the program.
template <class F>
class FormSlot : public FormSlotBase {
public:
    explicit FormSlot(std::string_view name) : FormSlotBase(name, [] { return std::make_unique<F>(); }) {}
    /// Of a class derived from F, made by `make`.
    FormSlot(std::string_view name, std::function<std::unique_ptr<Form>()> make) : FormSlotBase(name, std::move(make)) {}
    /// The form, loaded by this if it is not.
    F* operator->() {
        Load();
        return static_cast<F*>(form_.get());
    }
    F& operator*() { return *operator->(); }
};

/// All forms that the program has, loaded or not.
const std::vector<FormSlotBase*>& FormSlots();
/// The slot of this name, or nothing.
FormSlotBase* FindFormSlot(std::string_view name);
/// The loaded forms, in the order in which they were loaded.
const std::vector<Form*>& LoadedForms();
/// The form that gets the keys, or nothing.
Form* ActiveForm();
/// The modal form in front, or nothing.
Form* ModalForm();

}  // namespace vatro
