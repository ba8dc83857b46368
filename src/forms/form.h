// SPDX-License-Identifier: MIT
//
// Form, the base class of the program's windows. Each form is a class that owns its controls as values. Include forms.h to get
// all controls as well.
//
// A form is unloaded, hidden or shown. Using an unloaded form loads it without showing it. A modal form blocks its caller until
// it is hidden or unloaded. Geometry is in twips (1/1440 inch).
//
// The focus moves between the controls of a form. A control does not lose the focus when a message box, a menu, another window or
// another program comes to the front.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "control.h"

namespace vatro {

/// Twips of a window in a point of its text.
inline constexpr double kTwipsPerPoint = 20;

enum class WindowState { Normal, Minimised, Maximised };

/// The kind of window, which decides how the front draws it. The user cannot resize a fixed one. A fixed tool window is centred
/// on the screen, a dialogue on its owner.
enum class FormKind { Main, Tool, FixedTool, Dialog, FixedDialog, Splash };

/// A window of the program; the base class of all forms.
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

    /// Position and size are 0 until somebody places the form; only a main form has the size of its layout from the start.
    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    /// Moves and resizes the form; a front may not allow a window to become as small as requested. Runs Form_Resize if the size
    /// changes.
    void Place(int left, int top, int width, int height);
    /// Whether the program or the user has ever placed the form. If not, the front chooses the position.
    bool Placed() const { return placed_; }
    void MoveTo(int left, int top) { Place(left, top, width_, height_); }
    void SetWidth(int width) { Place(left_, top_, width, height_); }
    void SetHeight(int height) { Place(left_, top_, width_, height); }
    /// Size of the area inside the frame. Width and Height give the same size, because they do not include the frame.
    int ScaleWidth() const { return width_; }
    int ScaleHeight() const { return height_; }
    WindowState State() const { return state_; }

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Hourglass() const { return hourglass_; }
    void SetHourglass(bool on);

    bool Visible() const { return visible_; }
    bool Modal() const { return modal_; }
    /// Shows the form and makes it the active one; returns at once.
    void Show();
    /// Shows the form and blocks the caller until it is hidden or unloaded. Fails with 5 if the form is already shown.
    void ShowModal();
    /// Hides the form but keeps its contents. When a modal form is shown again, the focus starts at its first control.
    void Hide();
    /// Runs Form_QueryUnload, which may keep the form loaded, then Form_Unload, and removes the form; its next use loads it again.
    void Unload();
    /// Makes a shown form the active one; the focus returns to the control that had it. Fails with 5 if the form is not shown.
    void SetFocus();
    /// Repaints the form now.
    void Refresh();

    // Habits that a desktop gives to the window. No rule depends on them, and other fronts do not ask.

    /// The window is only looked at and never needs the keyboard.
    bool onlyShows = false;
    /// The window is at a place that nobody has chosen.
    bool atUsualPlace = false;
    /// Tab selects the text of the field that it enters, so that typing replaces it.
    bool tabSelects = false;
    /// Whether Esc closes the window now, like the button in its frame.
    virtual bool EscCloses() const { return false; }

    /// All controls, in the order of their declaration.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// The control with this name and index (-1 for none), or null.
    Control* Find(std::string_view name, int index) const;
    /// The control that has this form's focus, or null.
    Control* ActiveControl() const { return active_; }
    /// The controls that Tab visits, in order.
    const std::vector<Control*>& TabOrder() const { return tabOrder_; }

    // Called by the front.

    /// The user has moved the focus to this control, by mouse or by key.
    void UserFocus(Control& control, FocusWay way = FocusWay::Key);
    /// Tab or Shift+Tab: moves to the next (previous) control that can take the focus, wrapping around at the end.
    void UserTab(bool back);
    /// Enter or Esc: presses the default button (unless a button has the focus) or the cancel button. False if the form has none.
    bool UserDefaultKey(KeyCode key);
    /// Alt and a letter: presses, flips or focuses the control with that access letter. False if there is none.
    bool UserAccessKey(char letter);
    /// A key: goes to the form first, then to the control that has the focus, if any. Returns the resulting key.
    KeyCode UserKey(KeyCode key);
    /// A click on the form's own surface.
    void UserClicked() { Form_Click(); }
    /// Sets the size that the front's layout gives a main form. Called while the form is created; does not run Form_Resize.
    void SetDesignSize(int width, int height);
    /// The user has moved or resized the window.
    void UserPlaced(int left, int top, int width, int height);
    /// The user has minimised, maximised or restored the window.
    void UserState(WindowState state);
    /// The user has brought the window to the front.
    void UserActivated();
    /// The user closes the window by its frame.
    void UserClosed() { Unload(); }
    /// Whether the form receives user events: it is shown and enabled, and no other modal form is in front.
    bool Reachable() const;

    /// Runs when the form is loaded, before it is shown.
    virtual void Form_Load() {}
    /// Setting `Cancel` to true keeps the form loaded.
    virtual void Form_QueryUnload(bool& Cancel) { static_cast<void>(Cancel); }
    virtual void Form_Unload() { StoreState(); }
    /// Stores what outlives the form, such as its place and its choices. Part of Form_Unload; also run on its own when the
    /// program is about to end without running its handlers. Must not call the front.
    virtual void StoreState() {}
    /// Runs after the size has changed, by the program or by the user.
    virtual void Form_Resize() {}
    virtual void Form_Click() {}
    /// Sees each key before the control that has the focus; setting the key to kNoKey stops it here.
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
    /// GotFocus of the active control has run, so its LostFocus must run when the focus leaves.
    bool entered_ = false;
};

/// Holds one form of the program, loaded or not, and loads it. It has the form's name.
class FormSlotBase {
public:
    FormSlotBase(std::string_view name, std::function<std::unique_ptr<Form>()> make);
    FormSlotBase(const FormSlotBase&) = delete;
    FormSlotBase& operator=(const FormSlotBase&) = delete;

    const std::string& Name() const { return name_; }
    bool Loaded() const { return form_ != nullptr; }
    /// The form if it is loaded, or null. Never loads it.
    Form* Peek() const { return form_.get(); }
    /// Loads the form unless it is loaded: creates it and runs Form_Load.
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

/// The slot of a form of class F, used like a pointer to the form. It is declared after the class, as the program's single variable for
/// this form.
template <class F>
class FormSlot : public FormSlotBase {
public:
    /// For a form of class F, created with its default constructor.
    explicit FormSlot(std::string_view name) : FormSlotBase(name, [] { return std::make_unique<F>(); }) {}
    /// For a form of a class derived from F, created by `make`.
    FormSlot(std::string_view name, std::function<std::unique_ptr<Form>()> make) : FormSlotBase(name, std::move(make)) {}
    /// The form, loaded on first use.
    F* operator->() {
        Load();
        return static_cast<F*>(form_.get());
    }
    F& operator*() { return *operator->(); }
};

/// All forms of the program, loaded or not.
const std::vector<FormSlotBase*>& FormSlots();
/// The slot with this name, or null.
FormSlotBase* FindFormSlot(std::string_view name);
/// The loaded forms, in the order in which they were loaded.
const std::vector<Form*>& LoadedForms();
/// The form that receives keys, or null.
Form* ActiveForm();
/// The modal form in front, or null.
Form* ModalForm();

}  // namespace vatro
