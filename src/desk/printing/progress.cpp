// SPDX-License-Identifier: MIT
#include "printing/progress.h"

#include <string>

#include "printing/frmInfo.h"

namespace vatro {

void ShowProgress(std::string_view title) {
    frmInfo->SetCaption(title);
    frmInfo->Show();
}

void AddProgress(std::string_view step) {
    frmInfo->steps.AddItem(std::string(step));
    frmInfo->Refresh();
}

}  // namespace vatro
