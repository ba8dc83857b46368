// SPDX-License-Identifier: MIT
//
// The front without windows: it passes events straight to the controls, and has nothing to mirror.
//
// It does what a window system does before a key reaches a control: access keys, the menu, shortcuts, Tab, and the default buttons.
// What controls do after KeyPress is in memory_keys.h.
#pragma once

#include <string>
#include <string_view>

#include "driver.h"

namespace vatro {

class MemoryFront : public Driver, private Front {
public:
    /// Size in twips of the main form's area, as its layout would give it.
    static constexpr int kMainWidth = 13800;
    static constexpr int kMainHeight = 6900;

    Front& ProgramFront() override { return *this; }

    void Press(const KeyStroke& key) override;
    void Paste(std::string_view text) override;
    void Focus(Control& control) override;
    void Click(Control& control) override;
    void ClickForm(Form& form) override;
    void Pick(Control& control, int row) override;
    void DoubleClick(ListBox& list, int row) override;
    void Spin(UpDown& arrows, bool up) override;
    void Scroll(ScrollBar& bar, int value) override;
    void Choose(MenuItem& item) override;
    void PressTool(Toolbar& toolbar, int index) override;
    void Close(Form& form) override;
    void Minimise(Form& form) override;
    void Restore(Form& form) override;
    void Place(Form& form, int left, int top, int width, int height) override;

    void OpenBox(const MessageBox& box) override { static_cast<void>(box); }
    void AnswerBox(Answer answer) override { static_cast<void>(answer); }
    void DropBox() override {}

    void Settle() override {}
    std::string Mismatch(const Control& control) override;
    std::string Mismatch(const Form& form) override;
    void Shot(const std::string& file) override { static_cast<void>(file); }

private:
    void Created(Form& form) override;
    void Destroyed(Form& form) override;
    void Changed(Form& form) override { static_cast<void>(form); }
    void Activated(Form& form) override { static_cast<void>(form); }
    void RunModal(Form& form) override;
    void Refresh(Form& form) override { static_cast<void>(form); }
    void DoEvents() override {}
    double TextWidth(std::string_view text, const Font& font) override;
    void Ended() override { menu_ = nullptr; }

    void PressInMenu(const KeyStroke& key);
    void ByMouse(const std::function<void()>& event);
    bool OpenMenu(const Form& form, char letter);
    void PressInForm(Form& form, const KeyStroke& key);

    /// The open menu, or null.
    MenuItem* menu_ = nullptr;
};

}  // namespace vatro
