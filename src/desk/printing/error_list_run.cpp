// SPDX-License-Identifier: MIT
#include "printing/error_list_run.h"

#include "entry/frmMain.h"
#include "entry/next_contact.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "papers/error_list.h"
#include "papers/layout.h"
#include "printing/frmInfo.h"
#include "printing/paper_files.h"
#include "printing/progress.h"

namespace vatro {

namespace {

/// The error list with the tables and marks of the desk. Its destructor, which also runs after a failure, copies what the last log
/// checked has left into the desk's state.
class ErrorListOfDesk : public ErrorList {
public:
    ErrorListOfDesk() : ErrorList(desk().countries, desk().stations) {}
    ~ErrorListOfDesk() {
        desk().countries.TakeMarks(Countries());
        desk().stations = CheckedStations();
        if (Left().gsCall) desk().gsCall = *Left().gsCall;
        desk().giQSOPoint = Left().giQSOPoint.value_or(desk().giQSOPoint);
        desk().giMult = static_cast<std::int16_t>(desk().giMult + Left().newCountries);
    }
    ErrorListOfDesk(const ErrorListOfDesk&) = delete;
    ErrorListOfDesk& operator=(const ErrorListOfDesk&) = delete;
};

}  // namespace

void MakeErrorList() {
    frmMain->SetHourglass(true);
    frmMain->SetEnabled(false);
    ShowProgress("Dan fejlliste");
    FileSink list = OpenPaper(kErrorListName);
    WriteErrorListHead(list, CurrentPaperContext());
    {
        ErrorListOfDesk checker;
        for (const LogId& log : kPaperOrder) DanFejlList(checker, list, log);
    }
    ClosePaper();

    IndlæsLogfil();
    frmMain->SetEnabled(true);
    ResetQSO();
    frmInfo->Show();
    frmMain->SetHourglass(false);
}

void DanFejlList(ErrorList& checker, LineSink& list, const LogId& log) {
    AddProgress(BandAndMode(log.band, log.mode));
    DanFejlListHoved(list, log);
    const PaperContext context = CurrentPaperContext();
    try {
        FileLines lines = OpenLog(log);
        checker.DanFejlListKrop(lines, list, context, log);
        WriteBlank(list);
        CloseLog();
    } catch (const RunTimeError&) {
        WriteLogNotFound(list);
        CloseLog();
    }
}

}  // namespace vatro
