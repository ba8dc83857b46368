// SPDX-License-Identifier: MIT
#include "entry/validation.h"

#include <utility>

#include "call/call_analysis.h"
#include "codepage.h"
#include "columns.h"
#include "datetime.h"
#include "entry/field_questions.h"
#include "entry/frmMain.h"
#include "entry/next_contact.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "platform.h"
#include "tables/unknown.h"
#include "tables/worked.h"

namespace vatro {

using namespace literals;

namespace {

/// Logs an accepted contact. From here on nothing is asked and nothing can be cancelled. The country and its points are found by the
/// call as typed, the station by the base call.
void LogContact(const std::string& time) {
    FrmMain& main = *frmMain;
    DeskState& state = desk();
    Contact contact;
    contact.call = main.fields[kCallField].Text();
    contact.multiplier = RateContact(contact.call, state.gsCall);
    // The station was looked up by the first six characters of its call; from now on gsCall holds only these.
    state.gsCall = StationCall(std::move(state.gsCall));
    contact.time = time;
    contact.reportSent = main.fields[kReportSentField].Text();
    contact.numberSent = main.fields[kNumberSentField].Text();
    contact.reportReceived = main.fields[kReportReceivedField].Text();
    contact.numberReceived = main.fields[kNumberReceivedField].Text();
    const bool unknown = ShownCountry(contact.call).unknown;
    if (unknown) state.giQSOPoint = 0;
    contact.point = state.giQSOPoint;
    contact.operatorCall = Trim(main.operatorBox.Text());
    contact.qsl = main.qsl.Value();
    contact.qsoMode = state.gsQsoMode;
    // Always today's date, even if the operator has set the time back over midnight. Operators who log late by hand correct the line
    // instead (docs/rules.md).
    contact.date = FormatDate(UtcNow());

    const std::string line = QsoLine(contact, state.gsMode);
    if (unknown) GemUkendt(line);
    RecordContact(line);
    ResetQSO();
}

}  // namespace

void ValiderQSO() {
    FrmMain& main = *frmMain;
    DeskState& state = desk();
    if (const auto choice = ChoiceOfWord(main.fields[kCallField].Text())) {
        ChangeBandMode(*choice);
        return;
    }
    if (state.gsBand.empty()) {
        MsgBox("Vælg bånd"_t);
        return;
    }
    if (state.gsMode.empty()) {
        MsgBox("Vælg modulationsart"_t);
        return;
    }
    if (!Accepted(CheckOperator(main.operatorBox.Text()))) return main.operatorBox.SetFocus();
    auto time = AcceptedTime(main.fields[kUtcField]);
    if (!time) return main.fields[kUtcField].SetFocus();
    state.gsCall = StripCall(main.fields[kCallField].Text());
    if (!Accepted(CheckCall(state.gsCall))) return main.fields[kCallField].SetFocus();
    // A duplicate is not an error; it only changes what is logged.
    RecordDuplicate();
    if (const auto field = FieldAtFault(main.fields)) return main.fields[*field].SetFocus();
    // The clock may have changed the time field while a question was open.
    LogContact(CheckTime(main.fields[kUtcField].Text()).value_or(*time));
}

std::string RateContact(std::string_view call, std::string_view station) {
    std::string multiplier;
    if (!call.empty()) multiplier = RecordCountry(call, MarkAction::Mark);
    RecordStation(station, MarkAction::Mark);
    RecordPoints(call);
    if (!desk().gbDupe) return multiplier;
    desk().giQSOPoint = 0;
    return std::string(kDupeMark);
}

void RecordContact(const std::string& line) {
    LogLine(line);
    desk().log.AddPoints(desk().giQSOPoint);
    ShowScore();
}

}  // namespace vatro
