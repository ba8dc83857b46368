// SPDX-License-Identifier: MIT
#include "printing/error_list_run.h"

#include "entry/frmMain.h"
#include "entry/validation.h"
#include "frame/log_file.h"
#include "papers/error_list.h"
#include "papers/layout.h"
#include "printing/frmInfo.h"
#include "printing/paper_files.h"
#include "printing/progress.h"

namespace vatro {

void MakeErrorList() {
    frmMain->SetHourglass(true);
    frmMain->SetEnabled(false);
    ShowProgress("Dan fejlliste");
    FileSink list = OpenPaper("Fejllist.txt");
    WriteErrorListHead(list, CurrentPaperContext());
    for (const LogId& log : kPaperOrder) DanFejlList(list, log);
    ClosePaper();

    IndlæsLogfil();
    frmMain->SetEnabled(true);
    ResetQSO();
    frmInfo->Show();
    frmMain->SetHourglass(false);
}

void DanFejlList(LineSink& list, const LogId& log) {
    AddProgress(BandAndMode(log.band, log.mode));
    DanFejlListHoved(list, log);
    const PaperContext context = CurrentPaperContext();
    try {
        FileSource lines = OpenLog(log);
        DanFejlListKrop(lines, list, context, log);
        WriteBlank(list);
        CloseLog();
    } catch (const RunTimeError&) {
        WriteLogNotFound(list);
        CloseLog();
    }
}

}  // namespace vatro
