// SPDX-License-Identifier: MIT
//
// What a front must be: the part of the program that shows the forms, as windows or only in memory.
//
// A front mirrors what the forms and controls tell it and decides nothing. What the user does enters through the procedures
// that forms and controls list under "From the front". Every call is made on the program's one thread.
#pragma once

#include <string_view>

#include "font.h"

namespace vatro {

class Form;
struct Platform;

class Front {
public:
    virtual ~Front() = default;
    /// The form has been created with the values of its design and has not run its load handler yet.
    virtual void Created(Form& form) = 0;
    /// The form is about to go; nothing of it may be used after this call.
    virtual void Destroyed(Form& form) = 0;
    /// A property of the form's frame has changed: caption, place, visibility, window state, enabled, pointer.
    virtual void Changed(Form& form) = 0;
    /// The form has become the active one.
    virtual void Activated(Form& form) = 0;
    /// Delivers events until the form is hidden or unloaded, or the program has ended.
    virtual void RunModal(Form& form) = 0;
    /// Lets the window be painted now.
    virtual void Refresh(Form& form) = 0;
    /// Lets pending events run.
    virtual void DoEvents() = 0;
    /// Width of a text in a font of the windows, in points.
    virtual double TextWidth(std::string_view text, const Font& font) = 0;
    /// The program has ended, regularly or at once.
    virtual void Ended() = 0;
};

/// The front installed. Must not be called before InstallPlatform.
Front& InstalledFront();
/// Installs the front and the services of one run. Both replace any installed earlier and must outlive the run.
void InstallPlatform(Front& front, const Platform& services);

}  // namespace vatro
