// SPDX-License-Identifier: MIT
//
// The program on real windows, with everything that the desktop adds to the rules.
#pragma once

#include "desktop.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {

class DesktopProgram : public WindowProgram {
protected:
    /// Starts the program in the log of 80 m CW, with a text on F5.
    void StartInMorse() {
        settings.texts["SETTINGS/MODE"] = "CW";
        settings.texts["SETTINGS/QSOMODE"] = "CW";
        settings.texts["CW/TEKST1"] = "PARIS";
        settings.texts["CW/WPM"] = "24";
        StartVatro();
    }

    QtFront& qtFront = dynamic_cast<QtFront&>(driver.ProgramFront());
    QtHelp handbook;
    Desktop desktop{qtFront, handbook};
};

}  // namespace vatro
