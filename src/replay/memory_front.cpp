// SPDX-License-Identifier: MIT
#include "memory_front.h"

#include "by_kind.h"
#include "codepage.h"
#include "memory_keys.h"
#include "program.h"
#include "scene_font.h"
#include "words.h"

namespace vatro {

namespace {

/// The menu entry with this shortcut on the active form, or null.
MenuItem* FindShortcut(const Form& form, const std::string& shortcut) {
    for (Control* control : form.Controls()) {
        auto* item = As<MenuItem>(control);
        if (item != nullptr && item->Shortcut() == shortcut) return item;
    }
    return nullptr;
}

/// A character is no shortcut on its own or with Shift.
bool CanBeShortcut(const KeyStroke& key) {
    return key.ctrl || key.alt || (key.name.size() > 1 && key.name[0] == 'F');
}

}  // namespace

void MemoryFront::Press(const KeyStroke& key) {
    Form* form = ActiveForm();
    if (form == nullptr) throw CannotDeliver("no form is active");
    Dispatch([&] {
        if (menu_ != nullptr)
            PressInMenu(key);
        else
            PressInForm(*form, key);
    });
}

void MemoryFront::PressInMenu(const KeyStroke& key) {
    MenuItem& menu = *menu_;
    if (key.name == "Esc") {
        menu_ = menu.Menu();
        return;
    }
    if (!key.name.empty()) return;
    for (MenuItem* entry : menu.Entries()) {
        if (AccessKey(entry->Caption()) != Upper(key.character) || !entry->Visible()) continue;
        if (!entry->Entries().empty()) {
            if (entry->Enabled()) menu_ = entry;
        } else {
            menu_ = nullptr;
            entry->Choose();
        }
        return;
    }
}

bool MemoryFront::OpenMenu(const Form& form, char letter) {
    for (Control* control : form.Controls()) {
        auto* item = As<MenuItem>(control);
        if (item == nullptr || item->Menu() != nullptr || !item->Choosable() || AccessKey(item->Caption()) != letter) continue;
        menu_ = item;
        return true;
    }
    return false;
}

void MemoryFront::PressInForm(Form& form, const KeyStroke& key) {
    if (key.alt && key.name.empty()) {
        const char letter = Upper(key.character);
        if (form.UserAccessKey(letter) || OpenMenu(form, letter)) return;
    }
    if (CanBeShortcut(key)) {
        if (MenuItem* item = FindShortcut(form, ShortcutOf(key))) {
            item->Choose();
            return;
        }
    }
    if (key.ctrl || key.alt) return;
    if (key.name == "Tab") {
        form.UserTab(key.shift);
        return;
    }
    const KeyCode pressed = KeyCodeOf(key);
    if ((pressed == kEnter || pressed == kEsc) && form.UserDefaultKey(pressed)) return;
    // The key belongs to the control that has the focus now, even if KeyPress moves the focus.
    Control* control = form.ActiveControl();
    const KeyCode code = pressed == kNoKey ? kNoKey : form.UserKey(pressed);
    if (control != nullptr && (pressed == kNoKey || code != kNoKey)) UseKey(*control, key, code);
}

void MemoryFront::Paste(std::string_view text) {
    auto* field = As<TextControl>(ActiveForm()->ActiveControl());
    Dispatch([&] { field->Insert(text); });
}

void MemoryFront::ByMouse(const std::function<void()>& event) {
    // A click closes an open menu.
    menu_ = nullptr;
    Dispatch(event);
}

void MemoryFront::Focus(Control& control) {
    ByMouse([&] {
        auto* field = As<TextControl>(&control);
        const auto caretToEnd = [&] {
            if (field != nullptr) field->UserSelected(static_cast<int>(field->Text().size()), 0);
        };
        caretToEnd();
        control.Parent().UserFocus(control, FocusWay::Mouse);
        // A focus handler may have set another text. If it has selected text, keep that selection.
        if (field != nullptr && field->SelLength() == 0) caretToEnd();
    });
}

void MemoryFront::Click(Control& control) {
    ByMouse([&] {
        Form& form = control.Parent();
        form.UserActivated();
        if (control.TakesFocus()) form.UserFocus(control, FocusWay::Mouse);
        // A focus handler may have hidden or disabled the control.
        if (!form.Reachable() || !control.Enabled() || !control.Visible()) return;
        control.UserClicked();
    });
}

void MemoryFront::ClickForm(Form& form) {
    ByMouse([&] {
        form.UserActivated();
        form.UserClicked();
    });
}

void MemoryFront::Pick(Control& control, int row) {
    ByMouse([&] {
        control.Parent().UserFocus(control, FocusWay::Mouse);
        if (!control.Enabled()) return;
        ByKind(
            control, [row](ListBox& list) { list.UserSelected(row); },
            [row](ComboBox& combo) {
                if (row < combo.ListCount()) combo.UserPicked(row);
            },
            [](Control&) {});
    });
}

void MemoryFront::DoubleClick(ListBox& list, int row) {
    ByMouse([&] {
        list.Parent().UserFocus(list, FocusWay::Mouse);
        list.UserDoubleClicked(row);
    });
}

void MemoryFront::Choose(MenuItem& item) {
    ByMouse([&] {
        item.Parent().UserActivated();
        item.Choose();
    });
}

void MemoryFront::Spin(UpDown& arrows, bool up) {
    ByMouse([&] {
        arrows.Parent().UserActivated();
        arrows.Spin(up);
    });
}

void MemoryFront::Scroll(ScrollBar& bar, int value) {
    ByMouse([&] {
        bar.Parent().UserFocus(bar, FocusWay::Mouse);
        bar.UserScrolled(value);
    });
}

void MemoryFront::PressTool(Toolbar& toolbar, int index) {
    ByMouse([&] {
        toolbar.Parent().UserActivated();
        toolbar.UserPressed(index);
    });
}

void MemoryFront::Close(Form& form) {
    ByMouse([&] { form.UserClosed(); });
}

void MemoryFront::Minimise(Form& form) {
    ByMouse([&] { form.UserState(WindowState::Minimised); });
}

void MemoryFront::Restore(Form& form) {
    ByMouse([&] {
        form.UserState(WindowState::Normal);
        form.UserActivated();
    });
}

void MemoryFront::Place(Form& form, int left, int top, int width, int height) {
    ByMouse([&] { form.UserPlaced(left, top, width, height); });
}

std::string MemoryFront::Mismatch(const Control& control) {
    static_cast<void>(control);
    return {};
}

std::string MemoryFront::Mismatch(const Form& form) {
    static_cast<void>(form);
    return {};
}

void MemoryFront::Created(Form& form) {
    if (form.Kind() == FormKind::Main && form.Width() == 0) form.SetDesignSize(kMainWidth, kMainHeight);
}

void MemoryFront::Destroyed(Form& form) {
    if (menu_ != nullptr && &menu_->Parent() == &form) menu_ = nullptr;
}

void MemoryFront::RunModal(Form& form) {
    playUntil([&] { return !form.Visible(); });
}

double MemoryFront::TextWidth(std::string_view text, const Font& font) {
    return SceneTextWidth(text, font);
}

}  // namespace vatro
