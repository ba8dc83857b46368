// SPDX-License-Identifier: MIT
#include "printing/progress.h"

#include <string>

#include "printing/frmInfo.h"

namespace vatro {

void VisForløb(std::string_view titel) {
    frmInfo->SetCaption(titel);
    frmInfo->Show();
}

void TilføjForløb(std::string_view trin) {
    frmInfo->List1.AddItem(std::string(trin));
    frmInfo->Refresh();
}

}  // namespace vatro
