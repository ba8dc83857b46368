// SPDX-License-Identifier: MIT
#include "entry/validation.h"

#include "call/call_analysis.h"
#include "checks/field_checks.h"
#include "codepage.h"
#include "country/lookup.h"
#include "datetime.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "log/duplicates.h"
#include "numbers.h"
#include "platform.h"
#include "score/points.h"
#include "score/stations.h"
#include "tables/unknown.h"

namespace vatro {

using namespace literals;

const std::string_view kDupeWarning = "* DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * ";

namespace {

/// The contact is accepted: from here there is no way back and no question. The call counts as typed for country and points,
/// as base call for the station.
void LogContact(const std::string& time) {
    FrmMain& main = *frmMain;
    Contact contact;
    contact.call = main.Text1[1].Text();
    RateContact(contact, gsCall);
    contact.time = time;
    contact.reportSent = main.Text1[2].Text();
    contact.numberSent = main.Text1[3].Text();
    contact.reportReceived = main.Text1[4].Text();
    contact.numberReceived = main.Text1[5].Text();
    std::string status;
    LandStatusTekst(contact.call, status);
    if (IsUnknown(status)) giQSOPoint = 0;
    contact.point = giQSOPoint;
    contact.operatorCall = Trim(main.Combo1.Text());
    contact.qsl = main.Check1.Value();
    contact.qsoMode = gsQsoMode;
    // Always today's, even if the time was set back over midnight by hand.
    contact.date = FormatDate(UtcNow());

    const std::string line = QsoLine(contact, gsMode);
    if (IsUnknown(status)) GemUkendt(line);
    RecordContact(line);
    ResetQSO();
}

void ResetReport(TextBox& field) {
    const std::string_view standard = StandardRST();
    field.SetText({});
    field.SetMaxLength(static_cast<int>(standard.size()));
    field.SetText(standard);
}

}  // namespace

void ValiderQSO() {
    FrmMain& main = *frmMain;
    if (const int index = ChoiceOfWord(main.Text1[1].Text()); index != 0) {
        ChangeBandMode(index);
        return;
    }
    if (gsBand.empty()) {
        MsgBox("Vælg bånd"_t);
        return;
    }
    if (gsMode.empty()) {
        MsgBox("Vælg modulationsart"_t);
        return;
    }
    if (!CheckOperator(main.Combo1.Text())) return main.Combo1.SetFocus();
    std::string time;
    if (!CheckTime(main.Text1[0], time)) return main.Text1[0].SetFocus();
    gsCall = main.Text1[1].Text();
    StripCall(gsCall);
    if (!CheckCall(gsCall)) return main.Text1[1].SetFocus();
    // A duplicate is no fault: it only changes what is logged.
    CheckDupe();
    if (const int field = CheckReports(main.Text1); field >= 0) return main.Text1[field].SetFocus();
    // The clock may have moved the field on while a question was open.
    if (const auto timeOfDay = ParseTime(main.Text1[0].Text())) time = FormatTime(timeOfDay->hour, timeOfDay->minute);
    LogContact(time);
}

void RateContact(Contact& contact, std::string& baseCall) {
    if (!contact.call.empty()) LandWkd(contact.call, contact.multiplier, MarkAction::Mark);
    EDRstnWkd(baseCall, MarkAction::Mark);
    BeregnPoint(contact.call);
    if (gbDupe) {
        giQSOPoint = 0;
        contact.multiplier = kDupeMark;
    }
    contact.point = giQSOPoint;
}

void RecordContact(const std::string& line) {
    LogLine(line);
    glPoint = ToInt32(static_cast<double>(glPoint) + giQSOPoint);
    ShowScore();
}

void ResetQSO() {
    FrmMain& main = *frmMain;
    if (gbAutoTid == 1) main.Text1[0].SetText(UtcTimeText());
    main.Text1[1].SetText({});
    ResetReport(main.Text1[2]);
    ResetReport(main.Text1[4]);
    giQSOnr = ToInt16(giQSOnr + 1);
    main.Text1[3].SetText(ZeroPadded(giQSOnr, 4));
    main.Text1[5].SetText({});
    main.Check1.SetValue(false);
    frmQSOnr->visQSOnr();
    if (gbAutoTid != 1) {
        main.Text1[0].SetFocus();
        main.Text1[0].SelectAll();
        TimerStop();
    } else {
        main.Text1[1].SetFocus();
        TimerStart();
    }
}

std::string_view StandardRST() {
    if (gsQsoMode == "CW" || gsQsoMode == "RTTY" || gsQsoMode == "HELL" || gsQsoMode == "PSK31") return "599";
    if (gsQsoMode == "SSB") return "59";
    return {};
}

}  // namespace vatro
