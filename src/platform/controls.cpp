// SPDX-License-Identifier: MIT
#include "platform/controls.h"

#include <algorithm>

#include "platform/forms.h"
#include "platform/platform.h"
#include "text/codepage.h"
#include "text/numbers.h"

namespace vatro {

char AccessKey(std::string_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return Upper(caption[i + 1]);
        ++i;
    }
    return 0;
}

// --- Control

Control::Control(Form& form, std::string_view name, int index) : form_(form), name_(name), index_(index) {
    form.Enrol(*this);
}

std::string Control::FullName() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Tell(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Tell(Aspect::Visible);
}

void Control::SetToolTip(std::string_view text) {
    toolTip_ = text;
    Tell(Aspect::ToolTip);
}

void Control::SetFocus() {
    if (!form_.CanFocus(*this)) throw RunTimeError(Failure::InvalidCall);
    form_.SetFocus();
    form_.MoveFocus(*this);
}

bool Control::HasFocus() const {
    return form_.ActiveControl() == this;
}

KeyCode Control::PressKey(KeyCode key) {
    if (!enabled_) return kNoKey;
    form_.Form_KeyPress(key);
    if (key != kNoKey && KeyPress) KeyPress(key);
    return key;
}

// --- TextControl

void TextControl::SetText(std::string_view text) {
    if (text == text_) return;
    TakeText(text);
    if (Change) Change();
}

void TextControl::TakeText(std::string_view text) {
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    Tell(Aspect::Text);
}

void TextControl::SetMaxLength(int length) {
    if (maxLength_ == length) return;
    maxLength_ = length;
    Tell(Aspect::MaxLength);
}

void TextControl::SetLocked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    Tell(Aspect::Locked);
}

void TextControl::Select(int start, int length) {
    const int size = static_cast<int>(text_.size());
    selStart_ = std::clamp(start, 0, size);
    selLength_ = std::clamp(length, 0, size - selStart_);
    Tell(Aspect::Selection);
}

std::size_t TextControl::Room() const {
    if (maxLength_ <= 0) return std::string::npos;
    const std::size_t kept = text_.size() - static_cast<std::size_t>(selLength_);
    const auto limit = static_cast<std::size_t>(maxLength_);
    return kept >= limit ? 0 : limit - kept;
}

void TextControl::Insert(std::string_view text) {
    text = text.substr(0, text.find_first_of("\r\n"));
    text = text.substr(0, Room());
    if (text.empty()) return;
    Replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), text);
}

void TextControl::DeleteBack() {
    if (selLength_ > 0)
        Replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), {});
    else if (selStart_ > 0)
        Replace(static_cast<std::size_t>(selStart_) - 1, 1, {});
}

void TextControl::DeleteForward() {
    if (selLength_ > 0)
        Replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), {});
    else if (static_cast<std::size_t>(selStart_) < text_.size())
        Replace(static_cast<std::size_t>(selStart_), 1, {});
}

void TextControl::Replace(std::size_t start, std::size_t length, std::string_view by) {
    if (locked_ || !Enabled()) return;
    std::string text = text_;
    text.replace(start, length, by);
    UserEdited(text, static_cast<int>(start + by.size()), 0);
}

void TextControl::UserEdited(std::string_view text, int selStart, int selLength) {
    const bool another = text != text_;
    if (another) {
        TakeText(text);
    }
    Select(selStart, selLength);
    if (another && Change) Change();
}

void TextControl::UserSelected(int selStart, int selLength) {
    if (selStart == selStart_ && selLength == selLength_) return;
    Select(selStart, selLength);
}

// --- Label and Frame

Label::Label(Form& form, std::string_view name, std::string_view caption, Font font)
    : Control(form, name), caption_(caption), font_(std::move(font)) {}

Label::Label(Form& form, std::string_view name, int index, std::string_view caption, Control* accessTarget)
    : Control(form, name, index), caption_(caption), accessTarget_(accessTarget) {}

char Label::AccessLetter() const {
    return accessTarget_ != nullptr ? AccessKey(caption_) : '\0';
}

void Label::UseAccessLetter() {
    Parent().UserFocus(*accessTarget_);
}

void Label::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Tell(Aspect::Text);
    if (Change) Change();
}

void Label::SetFontSize(double points) {
    if (font_.size == points) return;
    font_.size = points;
    Tell(Aspect::Look);
}

void Label::SetForeColour(Colour colour) {
    if (foreColour_ == colour) return;
    foreColour_ = colour;
    Tell(Aspect::Look);
}

void Label::SetBackColour(Colour colour) {
    if (backColour_ == colour) return;
    backColour_ = colour;
    Tell(Aspect::Look);
}

void Label::SetOpaque(bool opaque) {
    if (opaque_ == opaque) return;
    opaque_ = opaque;
    Tell(Aspect::Look);
}

double Label::TextWidth() const {
    return platform().front.TextWidth(caption_, font_);
}

Frame::Frame(Form& form, std::string_view name, std::string_view caption, Control* accessTarget)
    : Control(form, name), caption_(caption), accessTarget_(accessTarget) {}

char Frame::AccessLetter() const {
    return accessTarget_ != nullptr ? AccessKey(caption_) : '\0';
}

void Frame::UseAccessLetter() {
    for (Control* control : Parent().Controls()) {
        // Of a choice the one that is on.
        const auto* option = dynamic_cast<OptionButton*>(control);
        if (option == nullptr || &option->Group() != this || !option->TabStop()) continue;
        Parent().UserFocus(*control);
        return;
    }
    Parent().UserFocus(*accessTarget_);
}

// --- Picture

void Picture::UserClicked() {
    if (Enabled() && Click) Click();
}

// --- Button and CheckBox

char Button::AccessLetter() const {
    return AccessKey(caption_);
}

void Button::Press() {
    if (Enabled() && Click) Click();
}

char CheckBox::AccessLetter() const {
    return AccessKey(caption_);
}

void CheckBox::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    Tell(Aspect::Value);
    if (Click) Click();
}

// --- OptionButton and ScrollBar

std::vector<OptionButton*> OptionButton::Others() const {
    std::vector<OptionButton*> others;
    for (Control* control : Parent().Controls()) {
        auto* option = dynamic_cast<OptionButton*>(control);
        if (option != nullptr && option != this && &option->group_ == &group_) others.push_back(option);
    }
    return others;
}

bool OptionButton::TabStop() const {
    return Control::TabStop() && (value_ || std::ranges::none_of(Others(), [](const OptionButton* other) { return other->value_; }));
}

void OptionButton::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    Tell(Aspect::Value);
    if (!value) return;
    for (OptionButton* other : Others()) other->SetValue(false);
    if (Click) Click();
}

char OptionButton::AccessLetter() const {
    return AccessKey(caption_);
}

void OptionButton::UserChosen(FocusWay way) {
    Parent().UserFocus(*this, way);
    // A handler of the change of focus may have taken it out of use.
    if (Enabled() && Visible()) SetValue(true);
}

void OptionButton::UserArrow(bool back) {
    std::vector<OptionButton*> round;
    for (Control* control : Parent().Controls()) {
        auto* option = dynamic_cast<OptionButton*>(control);
        if (option == nullptr || &option->group_ != &group_) continue;
        if (option == this || (option->Enabled() && option->Visible())) round.push_back(option);
    }
    if (back) std::ranges::reverse(round);
    const auto here = std::ranges::find(round, this);
    OptionButton* next = here + 1 == round.end() ? round.front() : *(here + 1);
    if (next != this) next->UserChosen(FocusWay::Key);
}

void ScrollBar::SetValue(int value) {
    if (value < range_.min || value > range_.max) throw RunTimeError(Failure::InvalidCall);
    if (value_ == value) return;
    value_ = value;
    Tell(Aspect::Value);
    if (Change) Change();
}

void ScrollBar::UserScrolled(int value) {
    SetValue(std::clamp(value, range_.min, range_.max));
}

void ScrollBar::UserMoved(Move move) {
    switch (move) {
        case Move::StepBack:
            return UserScrolled(value_ - range_.smallChange);
        case Move::StepOn:
            return UserScrolled(value_ + range_.smallChange);
        case Move::PageBack:
            return UserScrolled(value_ - range_.largeChange);
        case Move::PageOn:
            return UserScrolled(value_ + range_.largeChange);
        case Move::ToStart:
            return UserScrolled(range_.min);
        case Move::ToEnd:
            return UserScrolled(range_.max);
    }
}

// --- ListBox

ListBox::ListBox(Form& form, std::string_view name, Font font, int columns)
    : Control(form, name), font_(std::move(font)), columns_(columns) {
    Revise();
}

ListBox::ListBox(Form& form, std::string_view name, Font font, ListOrder order) : ListBox(form, name, std::move(font)) {
    order_ = order;
}

void ListBox::Revise() {
    static unsigned last = 0;
    revision_ = ++last;
}

const std::string& ListBox::List(int row) const {
    if (row < 0 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    return items_[static_cast<std::size_t>(row)];
}

void ListBox::SetList(int row, std::string_view text) {
    if (row < 0 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    items_[static_cast<std::size_t>(row)] = text;
    Revise();
    Tell(Aspect::ItemChanged, row);
}

void ListBox::AddItem(std::string text) {
    // std::string compares characters as unsigned.
    const auto place = order_ == ListOrder::Sorted ? std::upper_bound(items_.begin(), items_.end(), text) : items_.end();
    const int row = static_cast<int>(place - items_.begin());
    items_.insert(place, std::move(text));
    if (listIndex_ >= row) ++listIndex_;
    Revise();
    if (!filling_) Tell(Aspect::ItemAdded, row);
}

void ListBox::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    items_.erase(items_.begin() + row);
    if (listIndex_ == row)
        listIndex_ = -1;
    else if (listIndex_ > row)
        --listIndex_;
    Revise();
    if (!filling_) Tell(Aspect::ItemRemoved, row);
}

void ListBox::Clear() {
    if (items_.empty() && listIndex_ < 0) return;
    items_.clear();
    Revise();
    listIndex_ = -1;
    if (!filling_) Tell(Aspect::Items);
}

void ListBox::SetListIndex(int row) {
    if (row < -1 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    const bool another = row != listIndex_;
    listIndex_ = row;
    if (!filling_) Tell(Aspect::ListIndex);
    if (another && Click) Click();
}

void ListBox::UserSelected(int row) {
    if (row >= 0 && row < ListCount() && row != listIndex_) SetListIndex(row);
}

void ListBox::UserDoubleClicked(int row) {
    UserSelected(row);
    if (Enabled() && DblClick) DblClick();
}

ListBox::Filling::Filling(ListBox& list) : list_(list), outer_(list.filling_) {
    list.filling_ = true;
}

ListBox::Filling::~Filling() {
    list_.filling_ = outer_;
    if (outer_) return;
    list_.Tell(Aspect::Items);
    list_.Tell(Aspect::ListIndex);
}

// --- ComboBox

const std::string& ComboBox::List(int row) const {
    if (row < 0 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    return items_[static_cast<std::size_t>(row)];
}

void ComboBox::AddItem(std::string text) {
    items_.push_back(std::move(text));
    Tell(Aspect::Items);
}

void ComboBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    Tell(Aspect::Items);
    SetText({});
}

void ComboBox::SetListIndex(int row) {
    if (row < -1 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    listIndex_ = row;
    if (row >= 0) TakeText(items_[static_cast<std::size_t>(row)]);
    Tell(Aspect::ListIndex);
    if (Click) Click();
}

// --- UpDown

void UpDown::Spin(bool up) {
    if (!Enabled()) return;
    const double value = NumericValue(buddy_.Text()) + (up ? range_.step : -range_.step);
    buddy_.SetText(PlainNumber(static_cast<long long>(std::clamp<double>(value, range_.min, range_.max))));
}

// --- Timer

Timer::~Timer() {
    SetRunning(false);
}

void Timer::SetInterval(int milliseconds) {
    interval_ = milliseconds;
    platform().clock.Schedule(*this);
}

void Timer::SetRunning(bool running) {
    if (running_ == running) return;
    running_ = running;
    platform().clock.Schedule(*this);
}

void Timer::Tick() {
    if (Running() && OnTimer) OnTimer();
}

// --- Toolbar and StatusBar

void Toolbar::Press(int index) {
    const auto it = std::find_if(buttons_.begin(), buttons_.end(), [&](const ToolButton& b) { return b.index == index; });
    if (it == buttons_.end() || it->group == 0) return;
    for (ToolButton& button : buttons_)
        if (button.group == it->group) button.pressed = button.index == index;
    Tell(Aspect::Pressed);
}

void Toolbar::UserPressed(int index) {
    if (!Enabled()) return;
    Press(index);
    if (ButtonClick) ButtonClick(index);
}

void StatusBar::SetPanel(std::size_t number, std::string_view text) {
    std::string& panel = panels_.at(number - 1);
    if (panel == text) return;
    panel = text;
    Tell(Aspect::Panels, static_cast<int>(number));
}

// --- ProgressBar

void ProgressBar::SetMax(int max) {
    max = std::max(max, 0);
    if (max_ == max) return;
    max_ = max;
    value_ = std::min(value_, max_);
    Tell(Aspect::Value);
}

void ProgressBar::SetValue(int value) {
    value = std::clamp(value, 0, max_);
    if (value_ == value) return;
    value_ = value;
    Tell(Aspect::Value);
}

// --- MenuItem

MenuItem::MenuItem(Form& form, MenuItem* menu, std::string_view name, std::string_view caption, int index, MenuLook look)
    : Control(form, name, index), menu_(menu), caption_(caption), shortcut_(look.shortcut), separator_(look.separator) {
    if (menu_ != nullptr) menu_->entries_.push_back(this);
    if (look.hidden) SetVisible(false);
}

void MenuItem::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Tell(Aspect::Text);
}

void MenuItem::SetTicked(bool ticked) {
    if (ticked_ == ticked) return;
    ticked_ = ticked;
    Tell(Aspect::Value);
}

bool MenuItem::Choosable() const {
    for (const MenuItem* item = this; item != nullptr; item = item->menu_)
        if (!item->Enabled() || !item->Visible()) return false;
    return !separator_;
}

void MenuItem::Choose() {
    if (Choosable() && Click) Click();
}

}  // namespace vatro
