// SPDX-License-Identifier: MIT
//
// The properties and events that all controls share. A form owns its controls as values.
//
// A control holds properties and calls handlers. Setting a property notifies the mirror, through which the front updates what is
// shown. Handlers run at once and to completion. User input enters through the procedures marked "Called by the front", which are
// the same for both fronts and enforce the rules that the logic relies on:
//
//   A key goes to KeyPress first. The handler may replace it or cancel it (0); the control's own editing then processes the
//   result. Change runs whenever the text changes, by key, by paste or by the program, but not when the program sets the text that
//   is already there. Pasted text does not go through KeyPress. The length limit applies to keys and paste, not to the program.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "control_kinds.h"

namespace vatro {

class Form;

/// A key as passed to KeyPress: the code of the character, or one of these constants.
using KeyCode = short;
inline constexpr KeyCode kNoKey = 0;
inline constexpr KeyCode kBackspace = 8;
inline constexpr KeyCode kEnter = 13;
inline constexpr KeyCode kEsc = 27;
inline constexpr KeyCode kSpace = 32;

/// A colour, as 0xBBGGRR.
using Colour = int;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kRed = 255;

/// How the focus reaches a control: by mouse, or by key or program.
enum class FocusWay { Key, Mouse };

/// What has changed in a control, as passed to its mirror.
enum class Aspect {
    Text,
    Selection,
    MaxLength,
    Locked,
    Enabled,
    Visible,
    ToolTip,
    Value,
    Items,
    ItemAdded,
    ItemRemoved,
    ItemChanged,
    ListIndex,
    Look,
    Panels,
    Pressed
};

/// Anything with a name on a form.
class Control {
public:
    /// The name is text of the code page, like all text of the logic. `index` is the position in an array of controls with the same name,
    /// or -1 for a control of its own.
    Control(Form& form, std::string_view name, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// The control's concrete type, for code that handles the kinds of control differently; see by_kind.h.
    virtual ControlKind Kind() = 0;
    virtual ReadOnlyControlKind Kind() const = 0;

    Form& Parent() const { return form_; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    /// For example "Text1(1)", or "List1" for a control without an index.
    std::string FullName() const;

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string_view text);

    /// Whether the control can take the focus at all, and whether Tab stops at it.
    virtual bool TakesFocus() const { return false; }
    virtual bool TabStop() const { return TakesFocus() && tabStop_; }
    void SetTabStop(bool stop) { tabStop_ = stop; }

    /// Moves the focus to this control and makes its form the active one. Runs LostFocus of the control that had the focus, then GotFocus
    /// of this one, before it returns; runs neither if this control already has the focus. Fails with 5 if the control cannot take the
    /// focus, is disabled or hidden, or if its form is not shown.
    void SetFocus();
    bool HasFocus() const;

    /// Event handlers of the form; an empty one is skipped. KeyPress may replace the key, or cancel it by setting kNoKey.
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void(KeyCode& KeyAscii)> KeyPress;
    std::function<void()> Click;

    /// The upper-case letter that activates the control together with Alt, or 0.
    virtual char AccessLetter() const { return 0; }

    /// Set by the front that shows the control. Called with what has changed and with the row of the list or the number of the panel that
    /// has changed; -1 if the change concerns the whole control.
    std::function<void(Aspect, int row)> mirror;

    // Called by the front.

    /// Passes the key to the form's KeyPress, then to the control's KeyPress and filter, and returns the resulting key. Returns
    /// kNoKey if the control is disabled.
    KeyCode PressKey(KeyCode key);
    /// Handles the access key: presses a button, flips a check box, chooses an option, or moves the focus from a label or frame to
    /// its target. A button or check box does not take the focus by this.
    virtual void UseAccessLetter() {}
    /// The user has clicked the control. If it can take the focus, it already has it.
    virtual void UserClicked() {
        if (Click) Click();
    }

protected:
    void Tell(Aspect aspect, int row = -1) const {
        if (mirror) mirror(aspect, row);
    }
    /// Sets a property and notifies the mirror. Returns false and does nothing if the property already has this value.
    template <class T, class Value>
    bool Put(T& property, const Value& value, Aspect aspect) {
        if (property == value) return false;
        property = value;
        Tell(aspect);
        return true;
    }

private:
    friend class Form;
    /// Filters the key after KeyPress.
    virtual void Filter(KeyCode& /*key*/) const {}
    /// The control has received the focus; runs before GotFocus.
    virtual void Entered(FocusWay /*way*/) {}
    /// Whether the control handles Enter itself while it has the focus, so that Enter does not press the form's default button.
    virtual bool KeepsEnter() const { return false; }
    /// Enter or Esc was pressed somewhere in the form. Returns whether the control has acted on it.
    virtual bool UseDefaultKey(KeyCode /*key*/) { return false; }
    /// The form has been unloaded but not freed yet.
    virtual void FormUnloaded() {}

    Form& form_;
    std::string name_;
    int index_;
    bool enabled_ = true;
    bool visible_ = true;
    bool tabStop_ = true;
    std::string toolTip_;
};

/// The access letter of a caption in upper case: the character after its "&", or 0 if there is none.
char AccessKey(std::string_view caption);

}  // namespace vatro
