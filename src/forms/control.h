// SPDX-License-Identifier: MIT
//
// What all controls of a form have; the form owns them as values.
//
// A control holds properties and calls handlers. Setting a property tells the mirror, by which the front shows it;
// the handlers run at once and to their end. What comes from the user enters through the procedures under "From the
// front", in both fronts alike: they keep the rules that the logic leans on.
//
//   A key reaches KeyPress first; the handler may change it or make it nothing (0); then the control's own editing
//   takes it. Change runs when the text has become another one, by key, by paste or by the program; setting the text
//   it already has is no change. Paste does not pass KeyPress; the length limit holds for it and for keys, not for
//   the program.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "control_kinds.h"

namespace vatro {

class Form;

/// Keys as KeyPress gets them: the character's code, or one of these.
using KeyCode = short;
inline constexpr KeyCode kNoKey = 0;
inline constexpr KeyCode kBackspace = 8;
inline constexpr KeyCode kEnter = 13;
inline constexpr KeyCode kEsc = 27;
inline constexpr KeyCode kSpace = 32;

/// A colour, 0xBBGGRR.
using Colour = int;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kRed = 255;

/// How the focus comes to a control: with the mouse, or by key or program.
enum class FocusWay { Key, Mouse };

/// What of a control has changed, as its mirror is told it.
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
    /// The name is text of the code page, as all text of the logic; `index` is that of an indexed array, or -1.
    Control(Form& form, std::string_view name, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// What it is, for those that treat the kinds of control in different ways; see by_kind.h.
    virtual ControlKind Kind() = 0;
    virtual ReadOnlyControlKind Kind() const = 0;

    Form& Parent() const { return form_; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    /// "Text1(1)", or "List1" without an index.
    std::string FullName() const;

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string_view text);

    /// Whether the focus can stand in it at all, and whether Tab comes by.
    virtual bool TakesFocus() const { return false; }
    virtual bool TabStop() const { return TakesFocus() && tabStop_; }
    void SetTabStop(bool stop) { tabStop_ = stop; }

    /// Moves the focus here: runs LostFocus of the control that had it, then GotFocus of this one, at once. Runs
    /// nothing if this control has it. Makes its form the active one. Fails with 5 if the control or its form cannot
    /// be used (disabled, not shown).
    void SetFocus();
    bool HasFocus() const;

    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void(KeyCode& KeyAscii)> KeyPress;
    std::function<void()> Click;

    /// The upper-case letter that reaches the control together with Alt, or 0.
    virtual char AccessLetter() const { return 0; }

    /// Set by the front that shows the control; gets what has changed, and the row of a list where one is meant.
    std::function<void(Aspect, int row)> mirror;

    // From the front.

    /// Runs the form's KeyPress, then its own and its filter, and gives what they have made of the key; kNoKey if the control is disabled.
    KeyCode PressKey(KeyCode key);
    /// The access letter was pressed: a button is pressed, a check box flipped, a frame leads to its target. The focus
    /// stays where it is unless the control only leads to it.
    virtual void UseAccessLetter() {}
    /// The mouse has been clicked on it, and the focus has come with it where it takes any.
    virtual void UserClicked() {
        if (Click) Click();
    }

protected:
    void Tell(Aspect aspect, int row = -1) const {
        if (mirror) mirror(aspect, row);
    }
    /// Sets a property and tells the mirror. False, and nothing done, if it has the value already.
    template <class T, class Value>
    bool Put(T& property, const Value& value, Aspect aspect) {
        if (property == value) return false;
        property = value;
        Tell(aspect);
        return true;
    }

private:
    friend class Form;
    /// Behind KeyPress.
    virtual void Filter(KeyCode& /*key*/) const {}
    /// The control has got the focus; runs before GotFocus.
    virtual void Entered(FocusWay /*way*/) {}
    /// Whether Enter is its own while it has the focus, so that it does not press the form's default button.
    virtual bool KeepsEnter() const { return false; }
    /// Enter or Esc was pressed somewhere in the form: whether the control has acted on it.
    virtual bool UseDefaultKey(KeyCode /*key*/) { return false; }
    /// The form has been unloaded and is not freed yet.
    virtual void FormUnloaded() {}

    Form& form_;
    std::string name_;
    int index_;
    bool enabled_ = true;
    bool visible_ = true;
    bool tabStop_ = true;
    std::string toolTip_;
};

/// The access letter of a caption, upper case: the character behind its "&", or 0 if it has none.
char AccessKey(std::string_view caption);

}  // namespace vatro
