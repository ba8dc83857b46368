// SPDX-License-Identifier: MIT
#include "form.h"

#include <algorithm>

#include "errors.h"
#include "front.h"
#include "program.h"

namespace vatro {

namespace {

std::vector<FormSlotBase*>& Slots() {
    static std::vector<FormSlotBase*> slots;
    return slots;
}

/// Loaded forms, in load order.
std::vector<Form*> loaded;
/// Shown forms, in order of activation; the most recent is last.
std::vector<Form*> activation;
/// Modal forms; the one in front is last.
std::vector<Form*> modals;
/// Unloaded forms whose handlers may still be running; freed after the outermost event.
std::vector<std::unique_ptr<Form>> unloaded;

void Remove(std::vector<Form*>& forms, Form* form) {
    forms.erase(std::remove(forms.begin(), forms.end(), form), forms.end());
}

void Activate(Form& form) {
    if (ActiveForm() == &form) return;
    Remove(activation, &form);
    activation.push_back(&form);
    InstalledFront().Activated(form);
}

/// Removes a form that is no longer shown; the previously active form becomes active again.
void Deactivate(Form& form) {
    const bool wasActive = ActiveForm() == &form;
    Remove(activation, &form);
    Remove(modals, &form);
    if (wasActive && ActiveForm() != nullptr) InstalledFront().Activated(*ActiveForm());
}

}  // namespace

Form::Form(std::string_view name, FormKind kind, std::string_view caption) : name_(name), kind_(kind), caption_(caption) {}

void Form::SetCaption(std::string_view caption) {
    caption_ = caption;
    InstalledFront().Changed(*this);
}

void Form::Place(int left, int top, int width, int height) {
    const bool resized = width != width_ || height != height_;
    if (placed_ && !resized && left == left_ && top == top_) return;
    placed_ = true;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    InstalledFront().Changed(*this);
    if (resized) Form_Resize();
}

void Form::SetEnabled(bool enabled) {
    enabled_ = enabled;
    InstalledFront().Changed(*this);
}

void Form::SetHourglass(bool on) {
    hourglass_ = on;
    InstalledFront().Changed(*this);
}

void Form::Show() {
    if (!visible_) {
        visible_ = true;
        InstalledFront().Changed(*this);
    }
    Activate(*this);
    FocusFirst();
}

void Form::ShowModal() {
    if (visible_) throw RunTimeError(Failure::InvalidCall);
    modal_ = true;
    modals.push_back(this);
    Show();
    InstalledFront().RunModal(*this);
    LeaveIfEnding();
}

void Form::Hide() {
    if (!visible_) return;
    visible_ = false;
    if (modal_) {
        // When the form is shown again, the focus starts at the first control.
        active_ = nullptr;
        entered_ = false;
    }
    modal_ = false;
    Deactivate(*this);
    InstalledFront().Changed(*this);
}

void Form::Unload() {
    FormSlotBase* slot = FindFormSlot(name_);
    if (slot == nullptr || slot->Peek() != this) return;
    bool cancel = false;
    Form_QueryUnload(cancel);
    if (cancel) return;
    Form_Unload();
    // The handlers may have unloaded the form themselves.
    if (slot->Peek() != this) return;
    for (Control* control : controls_) control->FormUnloaded();
    visible_ = false;
    modal_ = false;
    Deactivate(*this);
    InstalledFront().Destroyed(*this);
    Remove(loaded, this);
    unloaded.push_back(std::move(slot->form_));
}

void Form::SetFocus() {
    if (!visible_) throw RunTimeError(Failure::InvalidCall);
    Activate(*this);
}

void Form::Refresh() {
    InstalledFront().Refresh(*this);
}

Control* Form::Find(std::string_view name, int index) const {
    for (Control* control : controls_)
        if (control->Name() == name && control->Index() == index) return control;
    return nullptr;
}

bool Form::CanFocus(const Control& control) const {
    return visible_ && control.TakesFocus() && control.Enabled() && control.Visible();
}

void Form::MoveFocus(Control& control, FocusWay way) {
    if (active_ == &control) return;
    Control* const left = active_;
    const bool owed = entered_;
    active_ = &control;
    entered_ = false;
    // Move the focus before LostFocus runs, so that a box shown by LostFocus finds it at the new control.
    InstalledFront().Changed(*this);
    if (left != nullptr && owed && left->LostFocus) left->LostFocus();
    // LostFocus may have moved the focus elsewhere, or may already have completed the move to this control.
    if (active_ != &control || entered_) return;
    entered_ = true;
    control.Entered(way);
    if (control.GotFocus) control.GotFocus();
}

void Form::FocusFirst() {
    if (active_ != nullptr) return;
    for (Control* control : tabOrder_) {
        if (CanFocus(*control) && control->TabStop()) {
            MoveFocus(*control);
            return;
        }
    }
}

void Form::UserFocus(Control& control, FocusWay way) {
    if (!CanFocus(control)) return;
    Activate(*this);
    MoveFocus(control, way);
}

void Form::UserTab(bool back) {
    if (tabOrder_.empty()) return;
    const auto size = static_cast<std::ptrdiff_t>(tabOrder_.size());
    auto at = std::find(tabOrder_.begin(), tabOrder_.end(), active_) - tabOrder_.begin();
    if (at == size) at = back ? 0 : -1;
    for (std::ptrdiff_t step = 1; step <= size; ++step) {
        const auto next = ((at + (back ? -step : step)) % size + size) % size;
        Control& control = *tabOrder_[static_cast<std::size_t>(next)];
        if (!CanFocus(control) || !control.TabStop()) continue;
        MoveFocus(control);
        return;
    }
}

bool Form::UserDefaultKey(KeyCode key) {
    if (key == kEnter && active_ != nullptr && active_->KeepsEnter()) return false;
    return std::ranges::any_of(controls_, [key](Control* control) { return control->UseDefaultKey(key); });
}

bool Form::UserAccessKey(char letter) {
    for (Control* control : controls_) {
        if (control->AccessLetter() != letter || !control->Enabled() || !control->Visible()) continue;
        control->UseAccessLetter();
        return true;
    }
    return false;
}

KeyCode Form::UserKey(KeyCode key) {
    if (active_ != nullptr) return active_->PressKey(key);
    Form_KeyPress(key);
    return key;
}

void Form::SetDesignSize(int width, int height) {
    width_ = width;
    height_ = height;
}

void Form::UserPlaced(int left, int top, int width, int height) {
    atUsualPlace = false;
    Place(left, top, width, height);
}

void Form::UserState(WindowState state) {
    if (state_ == state) return;
    state_ = state;
    InstalledFront().Changed(*this);
    Form_Resize();
}

void Form::UserActivated() {
    Activate(*this);
}

bool Form::Reachable() const {
    return visible_ && enabled_ && (modals.empty() || modals.back() == this);
}

FormSlotBase::FormSlotBase(std::string_view name, std::function<std::unique_ptr<Form>()> make) : name_(name), make_(std::move(make)) {
    Slots().push_back(this);
}

void FormSlotBase::Load() {
    if (form_) return;
    form_ = make_();
    Form& form = *form_;
    loaded.push_back(&form);
    InstalledFront().Created(form);
    form.Form_Load();
}

const std::vector<FormSlotBase*>& FormSlots() {
    return Slots();
}

FormSlotBase* FindFormSlot(std::string_view name) {
    for (FormSlotBase* slot : Slots())
        if (slot->Name() == name) return slot;
    return nullptr;
}

const std::vector<Form*>& LoadedForms() {
    return loaded;
}

Form* ActiveForm() {
    return activation.empty() ? nullptr : activation.back();
}

Form* ModalForm() {
    return modals.empty() ? nullptr : modals.back();
}

void FreeUnloadedForms() {
    unloaded.clear();
}

/// The program has ended: drops all forms without running their handlers.
void DropForms() {
    activation.clear();
    modals.clear();
    while (!loaded.empty()) {
        Form& form = *loaded.back();
        InstalledFront().Destroyed(form);
        loaded.pop_back();
        FindFormSlot(form.Name())->form_.reset();
    }
    unloaded.clear();
}

}  // namespace vatro
