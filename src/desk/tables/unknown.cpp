// SPDX-License-Identifier: MIT
#include "tables/unknown.h"

#include <string>

#include "columns.h"
#include "country/lookup.h"
#include "country/tables.h"
#include "entry/frmMain.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "log/contact_line.h"

namespace vatro {

void ResetLande() {
    for (int i = 1; i <= CountriesInUse(); ++i) Lande[static_cast<std::size_t>(i)].Wkd = false;
}

void GemUkendt(std::string_view line) {
    std::string unknownLine = gsBand;
    unknownLine += gsMode == "CW" ? " CW  " : " SSB ";
    unknownLine += line;
    AppendLine("ukendt.txt", unknownLine);
}

void ShowCountryNow() {
    std::string call = frmMain->Text1[1].Text();
    if (call.empty()) {
        const ListBox& log = frmMain->List1;
        if (log.ListCount() == 0) return;
        // One column more than the call has, which is always blank.
        call = Trim(Columns(log.List(log.ListCount() - 1), kCall.from, kCall.width + 1));
        if (call.empty()) return;
    }
    const bool wasOn = gbVisLand;
    gbVisLand = true;
    std::string text;
    LandStatusTekst(call, text);
    frmMain->sbStatusBar.SetPanel(1, text);
    gbVisLand = wasOn;
}

}  // namespace vatro
