// SPDX-License-Identifier: MIT
//
// The controls of a form, as values that the form owns.
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

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

struct Font {
    std::string name;
    /// In points.
    double size = 0;
    bool bold = false;
    bool underline = false;
    friend bool operator==(const Font&, const Font&) = default;
};

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
    bool TabStop() const { return TakesFocus() && tabStop_; }
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

    /// Runs the form's KeyPress, then its own, and gives what they have made of the key; kNoKey if the control is disabled.
    KeyCode PressKey(KeyCode key);
    /// The access letter was pressed: a button is pressed, a check box flipped, a frame leads to its target. The focus
    /// stays where it is unless the control only leads to it.
    virtual void UseAccessLetter() {}

protected:
    void Tell(Aspect aspect, int row = -1) const {
        if (mirror) mirror(aspect, row);
    }

private:
    friend class Form;
    /// The control has got the focus; runs before GotFocus.
    virtual void Entered(FocusWay /*way*/) {}

    Form& form_;
    std::string name_;
    int index_;
    bool enabled_ = true;
    bool visible_ = true;
    bool tabStop_ = true;
    std::string toolTip_;
};

/// A control that holds a line of text under editing: a text field or the field of a combo box.
class TextControl : public Control {
public:
    using Control::Control;
    bool TakesFocus() const override { return true; }

    const std::string& Text() const { return text_; }
    /// Puts the caret at the start with nothing selected, whatever the length limit; runs Change if the text has
    /// become another one.
    void SetText(std::string_view text);
    /// At most so many characters by key and paste; 0 is no limit.
    int MaxLength() const { return maxLength_; }
    void SetMaxLength(int length);
    /// Keys and paste do not change the text.
    bool Locked() const { return locked_; }
    void SetLocked(bool locked);

    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    /// Both are cut to the text.
    void Select(int start, int length);
    void SelectAll() { Select(0, static_cast<int>(text_.size())); }

    std::function<void()> Change;

    // From the front.

    /// How many characters a key or a paste may still put in over the selection; never below 0.
    std::size_t Room() const;
    /// Puts text over the selection, as far as there is room, with the caret behind it, as a key or a paste does. A
    /// field is one line: what stands behind a line end is left out.
    void Insert(std::string_view text);
    /// Removes the selection, or the character before (after) the caret.
    void DeleteBack();
    void DeleteForward();
    /// The user has edited the text in a widget of its own, or moved the caret.
    void UserEdited(std::string_view text, int selStart, int selLength);
    /// As UserEdited, caret and selection alone.
    void UserSelected(int selStart, int selLength);

protected:
    /// Takes the text over without a Change.
    void TakeText(std::string_view text);

private:
    void Replace(std::size_t start, std::size_t length, std::string_view by);

    std::string text_;
    int maxLength_ = 0;
    int selStart_ = 0;
    int selLength_ = 0;
    bool locked_ = false;
};

class TextBox : public TextControl {
public:
    using TextControl::TextControl;
};

/// A line of text that the user does not edit.
class Label : public Control {
public:
    explicit Label(Form& form, std::string_view name, std::string_view caption = {}, Font font = {});
    /// The name of a field: the access letter in the caption leads to the field.
    Label(Form& form, std::string_view name, int index, std::string_view caption, Control* accessTarget = nullptr);

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    const Font& LabelFont() const { return font_; }
    void SetFontSize(double points);
    Colour ForeColour() const { return foreColour_; }
    void SetForeColour(Colour colour);
    Colour BackColour() const { return backColour_; }
    void SetBackColour(Colour colour);
    bool Opaque() const { return opaque_; }
    void SetOpaque(bool opaque);
    std::function<void()> Change;
    /// Width of the caption in the font, in points.
    double TextWidth() const;
    char AccessLetter() const override;
    void UseAccessLetter() override;

private:
    std::string caption_;
    Font font_;
    Control* accessTarget_ = nullptr;
    Colour foreColour_ = kBlack;
    Colour backColour_ = 0xFFFFFF;
    bool opaque_ = false;
};

/// A frame round other controls, with a caption. The access key in the caption leads to `accessTarget`.
class Frame : public Control {
public:
    Frame(Form& form, std::string_view name, std::string_view caption, Control* accessTarget = nullptr);
    const std::string& Caption() const { return caption_; }
    char AccessLetter() const override;
    void UseAccessLetter() override;

private:
    std::string caption_;
    Control* accessTarget_;
};

/// A button. As default button it is pressed by Enter in any control of the form but another button, as cancel button
/// by Esc.
class Button : public Control {
public:
    Button(Form& form, std::string_view name, std::string_view caption) : Control(form, name), caption_(caption) {}
    bool TakesFocus() const override { return true; }
    const std::string& Caption() const { return caption_; }
    bool isDefault = false;
    bool isCancel = false;
    char AccessLetter() const override;

    // From the front.

    /// Runs Click if the button is enabled.
    void Press();
    void UseAccessLetter() override { Press(); }

private:
    std::string caption_;
};

class CheckBox : public Control {
public:
    CheckBox(Form& form, std::string_view name, std::string_view caption) : Control(form, name), caption_(caption) {}
    bool TakesFocus() const override { return true; }
    const std::string& Caption() const { return caption_; }
    bool Value() const { return value_; }
    /// Runs Click if the value has become another one.
    void SetValue(bool value);
    char AccessLetter() const override;

    // From the front.
    void Flip() { SetValue(!value_); }
    void UseAccessLetter() override { Flip(); }

private:
    std::string caption_;
    bool value_ = false;
};

/// Rows of text of which one may be selected. Row numbers start at 0; no selection is -1.
class ListBox : public Control {
public:
    explicit ListBox(Form& form, std::string_view name, Font font = {}, int columns = 0);
    bool TakesFocus() const override { return true; }
    const Font& ListFont() const { return font_; }
    /// Number of columns in which the rows run on, 0 for one row under the other.
    int ColumnCount() const { return columns_; }

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    /// Fails with 5 if there is no such row.
    const std::string& List(int row) const;
    /// Another number after every change of the rows; no two lists ever have the same.
    unsigned Revision() const { return revision_; }
    void SetList(int row, std::string_view text);
    void AddItem(std::string text);
    void Clear();
    /// Keeps the mirror still until the end of a run of additions; a guard object of one procedure.
    class Filling {
    public:
        explicit Filling(ListBox& list);
        ~Filling();
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;

    private:
        ListBox& list_;
        bool outer_;
    };

    int ListIndex() const { return listIndex_; }
    /// Fails with 5 if there is no such row; -1 is no selection. Brings the row into view; runs Click if the selection has
    /// become another one.
    void SetListIndex(int row);

    std::function<void()> DblClick;

    // From the front.
    void UserSelected(int row);
    void UserDoubleClicked(int row);

private:
    void Revise();

    std::vector<std::string> items_;
    unsigned revision_ = 0;
    Font font_;
    int columns_;
    int listIndex_ = -1;
    bool filling_ = false;
};

/// Whether the text of a combo box can be edited or only be chosen.
enum class ComboStyle { DropDown, DropDownList };

/// A text field with a list of texts to choose from.
class ComboBox : public TextControl {
public:
    explicit ComboBox(Form& form, std::string_view name, ComboStyle style = ComboStyle::DropDown) : TextControl(form, name), style_(style) {
        SetLocked(style == ComboStyle::DropDownList);
    }
    ComboStyle Style() const { return style_; }

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int row) const;
    void AddItem(std::string text);
    /// Removes the items and the text.
    void Clear();
    int ListIndex() const { return listIndex_; }
    /// Fails with 5 if there is no such row. Takes the item over as the text and runs Click.
    void SetListIndex(int row);

    // From the front.
    void UserPicked(int row) { SetListIndex(row); }

private:
    /// Its text is selected, so that what is typed takes its place; a click only sets the caret.
    void Entered(FocusWay way) override {
        if (way == FocusWay::Key) SelectAll();
    }

    std::vector<std::string> items_;
    int listIndex_ = -1;
    ComboStyle style_;
};

/// A pair of arrows that counts the number in a text field up and down.
class UpDown : public Control {
public:
    struct Range {
        int min = 0;
        int max = 0;
        int step = 1;
    };
    UpDown(Form& form, std::string_view name, TextBox& buddy, Range range) : Control(form, name), buddy_(buddy), range_(range) {}
    const Range& Limits() const { return range_; }
    const TextBox& Buddy() const { return buddy_; }
    void SetMin(int min) { range_.min = min; }

    // From the front.

    /// One step from the number in the field, within the range.
    void Spin(bool up);

private:
    TextBox& buddy_;
    Range range_;
};

/// Ticks on the clock service: every Interval milliseconds while it is enabled and its interval is above 0.
class Timer : public Control {
public:
    Timer(Form& form, std::string_view name, int interval) : Control(form, name), interval_(interval) {}
    ~Timer() override;
    /// Milliseconds.
    int Interval() const { return interval_; }
    void SetInterval(int milliseconds);
    bool Running() const { return running_ && interval_ > 0; }
    void SetRunning(bool running);

    std::function<void()> OnTimer;

    // From the front.
    void Tick();

private:
    int interval_;
    bool running_ = false;
};

/// Buttons in groups, of which at most one is pressed in each. Buttons are known by their index, from 1.
class Toolbar : public Control {
public:
    struct ToolButton {
        int index = 0;
        std::string caption;
        /// Buttons of one group release each other; group 0 is a separator.
        int group = 0;
        std::string toolTip;
        bool visible = true;
        bool pressed = false;
    };
    Toolbar(Form& form, std::string_view name, std::vector<ToolButton> buttons) : Control(form, name), buttons_(std::move(buttons)) {}
    const std::vector<ToolButton>& ToolButtons() const { return buttons_; }
    /// Shows the button of this index as pressed and the others of its group as released. No such button: nothing.
    void Press(int index);

    std::function<void(int index)> ButtonClick;

    // From the front.
    void UserPressed(int index);

private:
    std::vector<ToolButton> buttons_;
};

/// Panels of text at the foot of a form, numbered from 1.
class StatusBar : public Control {
public:
    StatusBar(Form& form, std::string_view name, std::vector<std::string> panels) : Control(form, name), panels_(std::move(panels)) {}
    const std::vector<std::string>& Panels() const { return panels_; }
    const std::string& Panel(std::size_t number) const { return panels_.at(number - 1); }
    void SetPanel(std::size_t number, std::string_view text);

private:
    std::vector<std::string> panels_;
};

/// A bar that fills from 0 to Max.
class ProgressBar : public Control {
public:
    using Control::Control;
    int Max() const { return max_; }
    /// A value above the new maximum becomes it. A maximum below 0 is 0.
    void SetMax(int max);
    int Value() const { return value_; }
    /// Is cut to the bar.
    void SetValue(int value);

private:
    int max_ = 100;
    int value_ = 0;
};

/// What a menu entry has beside its caption.
struct MenuLook {
    /// As "Ctrl+F1"; empty for none.
    std::string_view shortcut = {};
    bool hidden = false;
    bool separator = false;
};

/// An entry of the menu bar or of a menu. Entries form a tree that the form describes.
class MenuItem : public Control {
public:
    MenuItem(Form& form, MenuItem* menu, std::string_view name, std::string_view caption, int index = -1, MenuLook look = {});

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    const std::string& Shortcut() const { return shortcut_; }
    bool Separator() const { return separator_; }
    bool Ticked() const { return ticked_; }
    void SetTicked(bool ticked);
    /// Its menu, or nothing for an entry of the menu bar.
    MenuItem* Menu() const { return menu_; }
    const std::vector<MenuItem*>& Entries() const { return entries_; }
    /// Whether it can be chosen: enabled, shown, and all menus above it too.
    bool Choosable() const;

    // From the front.

    /// Runs Click if the entry can be chosen.
    void Choose();

private:
    MenuItem* menu_;
    std::vector<MenuItem*> entries_;
    std::string caption_;
    std::string shortcut_;
    bool separator_;
    bool ticked_ = false;
};

/// The access letter of a caption, upper case: the character behind its "&", or 0 if it has none.
char AccessKey(std::string_view caption);

}  // namespace vatro
