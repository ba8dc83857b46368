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

const std::string_view kDupeAdvarsel = "* DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * DUPE * ";

namespace {

/// The contact is accepted: from here there is no way back and no question. The call counts as typed for country and points,
/// as base call for the station.
void LogQSO(const std::string& tid) {
    FrmMain& main = *frmMain;
    Qso qso;
    qso.call = main.Text1[1].Text();
    BedømQSO(qso, gsCall);
    qso.tid = tid;
    qso.rstSendt = main.Text1[2].Text();
    qso.nrSendt = main.Text1[3].Text();
    qso.rstModtaget = main.Text1[4].Text();
    qso.nrModtaget = main.Text1[5].Text();
    std::string status;
    LandStatusTekst(qso.call, status);
    if (ErUkendt(status)) giQSOPoint = 0;
    qso.point = giQSOPoint;
    qso.operatør = Trim(main.Combo1.Text());
    qso.qsl = main.Check1.Value();
    qso.qsoMode = gsQsoMode;
    // Always today's, even if the time was set back over midnight by hand.
    qso.dato = FormatDate(NuUTC());

    const std::string linje = QsoLine(qso, gsMode);
    if (ErUkendt(status)) GemUkendt(linje);
    BogførQSO(linje);
    ResetQSO();
}

void ResetRst(TextBox& felt) {
    const std::string_view standard = StandardRST();
    felt.SetText({});
    felt.SetMaxLength(static_cast<int>(standard.size()));
    felt.SetText(standard);
}

}  // namespace

void ValiderQSO() {
    FrmMain& main = *frmMain;
    if (const int index = Kommando(main.Text1[1].Text()); index != 0) {
        SkiftBåndMode(index);
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
    if (!TjekOperatør(main.Combo1.Text())) return main.Combo1.SetFocus();
    std::string tid;
    if (!TjekTid(main.Text1[0], tid)) return main.Text1[0].SetFocus();
    gsCall = main.Text1[1].Text();
    StripCall(gsCall);
    if (!TjekKaldesignal(gsCall)) return main.Text1[1].SetFocus();
    // A duplicate is no fault: it only changes what is logged.
    CheckDupe();
    if (const int felt = TjekRapporter(main.Text1); felt >= 0) return main.Text1[felt].SetFocus();
    // The clock may have moved the field on while a question was open.
    if (const auto klokken = ParseTime(main.Text1[0].Text())) tid = FormatTime(klokken->hour, klokken->minute);
    LogQSO(tid);
}

void BedømQSO(Qso& qso, std::string& edr) {
    if (!qso.call.empty()) LandWkd(qso.call, qso.multiplier, Handling::Op);
    EDRstnWkd(edr, Handling::Op);
    BeregnPoint(qso.call);
    if (gbDupe) {
        giQSOPoint = 0;
        qso.multiplier = kDupeMærke;
    }
    qso.point = giQSOPoint;
}

void BogførQSO(const std::string& linje) {
    LogLinje(linje);
    glPoint = ToInt32(static_cast<double>(glPoint) + giQSOPoint);
    VisStilling();
}

void ResetQSO() {
    FrmMain& main = *frmMain;
    if (gbAutoTid == 1) main.Text1[0].SetText(NuUTCTid());
    main.Text1[1].SetText({});
    ResetRst(main.Text1[2]);
    ResetRst(main.Text1[4]);
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
