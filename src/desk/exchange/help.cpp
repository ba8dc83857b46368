// SPDX-License-Identifier: MIT
#include "exchange/help.h"

#include "codepage.h"
#include "platform.h"

namespace vatro {

using namespace literals;

void VisHjælpIndhold() {
    try {
        platform().help.Show("Vatro.chm");
    } catch (const RunTimeError& fejl) {
        if (fejl.Which() != Failure::FileNotFound) {
            MsgBox(Meaning(fejl.Which()));
            return;
        }
        MessageBox ingen;
        ingen.text = "Kan ikke vise hjælp indhold. Der er ingen hjælp knyttet til dette program."_t;
        ingen.icon = Icon::Information;
        MsgBox(ingen);
    }
}

}  // namespace vatro
