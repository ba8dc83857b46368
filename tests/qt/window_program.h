// SPDX-License-Identifier: MIT
//
// The program, or a small form that tests the platform's rules, on real windows with a fake platform behind them.
#pragma once

#include <QApplication>

#include "forms/rules_forms.h"
#include "qt/rules_layouts.h"
#include "running_program.h"
#include "window.h"
#include "window_driver.h"

namespace vatro {

class WindowProgram : public RunningProgram {
protected:
    WindowProgram() {
        happenings = {};
        AddRulesLayouts();
        driver.playUntil = [](const std::function<bool()>&) { ADD_FAILURE() << "unexpected modal form"; };
        InstallPlatform(driver.ProgramFront(), {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
    }
    ~WindowProgram() override {
        EndProgram();
        driver.Settle();
    }

    void StartRules() {
        BeginProgram();
        Dispatch([] { frmRules->Show(); });
        driver.Settle();
        happenings.lines.clear();
    }
    void StartVatro() {
        Start();
        driver.Settle();
    }
    void Key(const KeyStroke& key) {
        driver.Press(key);
        driver.Settle();
    }
    /// Presses the keys one by one; a blank is the space bar.
    void Type(std::string_view text) {
        for (const char c : text) Key(c == ' ' ? KeyStroke{.name = "Space"} : KeyStroke{.name = {}, .character = c});
    }
    /// The text of a field of the entry form.
    static std::string Field(int index) { return frmMain->fields[index].Text(); }
    const FormWindow& WindowOf(const Form& form) const {
        const FormWindow* window = Qt().WindowOf(form);
        if (window == nullptr) throw std::logic_error("no window");
        return *window;
    }
    template <class W>
    W& WidgetOf(const Control& control) const {
        return dynamic_cast<W&>(*Qt().WidgetOf(control));
    }

    WindowDriver driver;

private:
    const QtFront& Qt() const { return dynamic_cast<const QtFront&>(InstalledFront()); }
};

}  // namespace vatro
