// SPDX-License-Identifier: MIT
#include "exchange/help.h"

#include "codepage.h"
#include "platform.h"

namespace vatro {

using namespace literals;

void ShowHelpContents() {
    try {
        platform().help.Show("Vatro.chm");
    } catch (const RunTimeError& error) {
        if (error.Which() != Failure::FileNotFound) {
            MsgBox(Meaning(error.Which()));
            return;
        }
        MessageBox none;
        none.text = "Kan ikke vise hjælp indhold. Der er ingen hjælp knyttet til dette program."_t;
        none.icon = Icon::Information;
        MsgBox(none);
    }
}

}  // namespace vatro
