// SPDX-License-Identifier: MIT
//
// The interface of a front: the part of the program that shows the forms, as windows or only in memory.
//
// A front mirrors the forms and controls and decides nothing. It passes user input on by calling the procedures of forms and
// controls that are marked "Called by the front". All calls are made on the program's one thread.
#pragma once

#include <string_view>

#include "font.h"

namespace vatro {

class Form;
struct Platform;

class Front {
public:
    virtual ~Front() = default;
    /// The form has been created with the values of its design. Its load handler has not run yet.
    virtual void Created(Form& form) = 0;
    /// The form is about to be destroyed and must not be used after this call.
    virtual void Destroyed(Form& form) = 0;
    /// A property of the form's frame has changed: caption, place, visibility, window state, enabled state or pointer.
    virtual void Changed(Form& form) = 0;
    /// The form has become the active one.
    virtual void Activated(Form& form) = 0;
    /// Delivers events until the form is hidden or unloaded, or the program has ended.
    virtual void RunModal(Form& form) = 0;
    /// Repaints the window now.
    virtual void Refresh(Form& form) = 0;
    /// Delivers pending events.
    virtual void DoEvents() = 0;
    /// Width of a text in points, in one of the fonts used in windows.
    virtual double TextWidth(std::string_view text, const Font& font) = 0;
    /// The program has ended, either regularly or by EndProgram.
    virtual void Ended() = 0;
};

/// The installed front. Must not be called before InstallPlatform.
Front& InstalledFront();
/// Installs the front and the services for one run, replacing any installed earlier. Both must outlive the run.
void InstallPlatform(Front& front, const Platform& services);

}  // namespace vatro
