// SPDX-License-Identifier: MIT
#include "tables/unknown.h"
#include "frame/state.h"

#include <string>

#include "columns.h"
#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "log/contact_line.h"
#include "tables/worked.h"

namespace vatro {

void GemUkendt(std::string_view line) {
    std::string unknownLine = desk().gsBand;
    unknownLine += desk().gsMode == "CW" ? " CW  " : " SSB ";
    unknownLine += line;
    AppendLine("ukendt.txt", unknownLine);
}

void ShowCountryNow() {
    std::string call = frmMain->fields[kCallField].Text();
    if (call.empty()) {
        const auto& lines = desk().log.Lines();
        if (lines.empty()) return;
        // The call field and one more column, which only a note can fill.
        call = Trim(Columns(lines.back(), kCall.from, kCall.width + 1));
        if (call.empty()) return;
    }
    const CountryStatus country = desk().countries.LandStatusTekst(call);
    frmMain->statusBar.SetPanel(1, country.text, MarkOf(country));
}

}  // namespace vatro
