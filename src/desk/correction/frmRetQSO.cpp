// SPDX-License-Identifier: MIT
#include "correction/frmRetQSO.h"

#include "call/call_analysis.h"
#include "checks/field_checks.h"
#include "correction/frmNote.h"
#include "country/lookup.h"
#include "datetime.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/operators.h"
#include "entry/qso_fields.h"
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

namespace {

std::string MultiplierTest(std::string_view call) {
    std::string multiplier;
    LandWkd(call, multiplier, Handling::Test);
    return multiplier;
}

}  // namespace

FrmRetQSO::FrmRetQSO()
    : Form("frmRetQSO", FormKind::Dialog, "Ret QSO"),
      Text1{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3}, {*this, "Text1", 4}, {*this, "Text1", 5}},
      Combo2(*this, "Combo2"),
      Text3(*this, "Text3"),
      Combo1(*this, "Combo1"),
      Check1(*this, "Check1", "&QSL:"),
      cboMode(*this, "cboMode", ComboStyle::DropDownList),
      txtDato(*this, "txtDato"),
      Command1(*this, "Command1", "&Log"),
      Command2(*this, "Command2", "&Annuller"),
      cmdBeregn(*this, "cmdBeregn", "&Beregn point"),
      sbStatusBar(*this, "sbStatusBar", {""}),
      Label1{{*this, "Label1", 0, "&UTC:", &Text1[kUtcFelt]},
             {*this, "Label1", 1, "&Call:", &Text1[kCallFelt]},
             {*this, "Label1", 2, "&RST Sendt:", &Text1[kRstSendtFelt]},
             {*this, "Label1", 3, "RST &modtaget:", &Text1[kRstModtagetFelt]},
             {*this, "Label1", 4, "&Point:", &Combo2},
             {*this, "Label1", 5, "Multiplier:"},
             {*this, "Label1", 6, "&Operatør Call:"_t, &Combo1},
             {*this, "Label1", 7, "M&ode:", &cboMode},
             {*this, "Label1", 8, "&Dato:", &txtDato}} {
    SetTabOrder({&Text1[0], &Text1[1], &Text1[2], &Text1[3], &Text1[4], &Text1[5], &Combo2, &Text3, &Combo1, &Check1, &cboMode, &txtDato,
                 &Command1, &Command2, &cmdBeregn});
    SætFeltlængder(Text1);
    for (int i = kUtcFelt; i <= kNrModtagetFelt; ++i) {
        Text1[i].KeyPress = [this, i](KeyCode& key) { FeltTast(Text1, i, key, [this] { Command1_Click(); }); };
        Text1[i].KeyFilter = [i](KeyCode& key) { FeltFilter(i, key); };
    }
    Text1[kCallFelt].GotFocus = [this] {
        sbStatusBar.SetPanel(1, "Hop ud af feltet for at få beregnet point automatisk inden du trykker på 'Log'"_t);
    };
    Text1[kCallFelt].LostFocus = [this] { Text1_LostFocus(); };
    Text3.SetLocked(true);
    for (const std::string_view point : {"0", "1", "3", "5", "6", "10"}) Combo2.AddItem(std::string(point));
    Combo1.KeyPress = [this](KeyCode& key) { OperatørTast(Combo1, key); };
    Combo1.KeyFilter = [this](KeyCode& key) { OperatørFilter(Combo1, key); };
    Combo1.LostFocus = [this] { OperatørTjek(Combo1, false); };
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { Unload(); };
    cmdBeregn.Click = [this] { Beregn(); };
}

void FrmRetQSO::Udfyld(std::string_view linje) {
    LæsOperatører(Combo1, {});
    std::string tid(linje.substr(0, 2));
    tid.append(":").append(Columns(linje, 4, 2));
    const auto klokken = ParseTime(tid);
    Text1[kUtcFelt].SetText(klokken ? FormatTime(klokken->hour, klokken->minute) : tid);
    Text1[kCallFelt].SetText(kCall.TrimmetAf(linje));
    Text1[kRstSendtFelt].SetText(kRstSendt.TrimmetAf(linje));
    Text1[kNrSendtFelt].SetText(kNrSendt.TrimmetAf(linje));
    Text1[kRstModtagetFelt].SetText(kRstModtaget.TrimmetAf(linje));
    Text1[kNrModtagetFelt].SetText(kNrModtaget.TrimmetAf(linje));
    Combo2.SetText(kPoint.TrimmetAf(linje));
    Text3.SetText(kMultiplier.TrimmetAf(linje));
    Combo2.SetEnabled(Text3.Text() != kDupeMærke);
    Combo1.SetText(kOperatørLæst.TrimmetAf(linje));
    Check1.SetValue(kQsl.TrimmetAf(linje) == "QSL");

    // Lines of earlier years end before mode and date. A contact can change between the modes of its log only.
    std::string mode(kQsoMode.TrimmetAf(linje));
    if (mode.empty()) mode = gsQsoMode;
    cboMode.Clear();
    if (mode == "SSB") {
        cboMode.AddItem(mode);
        cboMode.SetListIndex(0);
    } else {
        for (const std::string_view navn : {"CW", "PSK31", "RTTY", "HELL"}) {
            cboMode.AddItem(std::string(navn));
            if (navn == mode) cboMode.SetListIndex(cboMode.ListCount() - 1);
        }
    }
    txtDato.SetText(kDato.Af(linje).empty() ? FormatDate(NuUTC()) : std::string(kDato.Af(linje)));
}

void FrmRetQSO::CheckDupQSO() {
    gbDupe = false;
    std::string s;
    for (int i = 0; i < frmMain->List1.ListIndex(); ++i) {
        // The call of the line before, not this line: see the header.
        if (s.starts_with(kNoteMærke)) continue;
        s = kCall.TrimmetAf(frmMain->List1.List(i));
        StripCall(s);
        if (s == gsCall) {
            gbDupe = true;
            return;
        }
    }
}

void FrmRetQSO::StoreState() {
    GemOperatører(Combo1);
}

void FrmRetQSO::Text1_LostFocus() {
    sbStatusBar.SetPanel(1, {});
    gsCall = Text1[kCallFelt].Text();
    StripCall(gsCall);
    if (!TjekKaldesignal(gsCall)) return Text1[kCallFelt].SetFocus();
    Beregn();
    if (gbDupe)
        frmQSOnr->visDupe();
    else
        frmQSOnr->visQSOnr();
}

void FrmRetQSO::Beregn() {
    const std::string call = Text1[kCallFelt].Text();
    if (call.empty()) return;
    gsCall = call;
    StripCall(gsCall);
    CheckDupQSO();
    BeregnPoint(call);
    std::string tekst;
    LandStatusTekst(call, tekst);
    sbStatusBar.SetPanel(1, tekst);
    VisBeregnet(MultiplierTest(call));
}

void FrmRetQSO::VisBeregnet(std::string_view multiplier) {
    if (gbDupe) return VisDupe();
    Text3.SetText(multiplier);
    Combo2.SetText(PlainNumber(giQSOPoint));
    Combo2.SetEnabled(true);
}

void FrmRetQSO::VisDupe() {
    Text3.SetText(kDupeMærke);
    Combo2.SetListIndex(0);
    Combo2.SetEnabled(false);
}

bool FrmRetQSO::TjekDato() {
    if (txtDato.Text().size() == 8) {
        const std::string tekst = txtDato.Text();
        txtDato.SetText(tekst.substr(0, 2) + "-" + tekst.substr(3, 2) + "-" + tekst.substr(6, 2));
        if (ParseDate(txtDato.Text())) return true;
    }
    MsgBox("Indtast dato i formatet: " + FormatDate(NuUTC()));
    return false;
}

void FrmRetQSO::Command1_Click() {
    if (!TjekOperatør(Combo1.Text())) return Combo1.SetFocus();
    if (!TjekDato()) return txtDato.SetFocus();
    std::string tid;
    if (!TjekTid(Text1[kUtcFelt], tid)) return Text1[kUtcFelt].SetFocus();
    gsCall = Text1[kCallFelt].Text();
    StripCall(gsCall);
    if (!TjekKaldesignal(gsCall)) return Text1[kCallFelt].SetFocus();
    CheckDupQSO();
    if (gbDupe) {
        Text3.SetText(kDupeMærke);
        Combo2.SetListIndex(0);
    }
    if (const int felt = TjekRapporter(Text1); felt >= 0) return Text1[felt].SetFocus();
    Log(tid);
}

void FrmRetQSO::Log(const std::string& tid) {
    const std::string call = Text1[kCallFelt].Text();
    // As it counts now; what Text3 shows is not used.
    Qso qso;
    LandWkd(call, qso.multiplier, Handling::Op);
    EDRstnWkd(gsCall, Handling::Op);
    BeregnPoint(call);
    const double point = NumericValue(Combo2.Text());
    if (point != giQSOPoint) {
        MessageBox spørgsmål;
        spørgsmål.text = "Er " + Combo2.Text() + " point korrekt?";
        spørgsmål.title = "Point";
        spørgsmål.buttons = Buttons::YesNo;
        if (MsgBox(spørgsmål) == Answer::No) {
            // The marks just set stay set: a second "&Log" then finds the country marked. Meant so.
            if (Combo2.Enabled()) Combo2.SetFocus();
            return;
        }
    }
    giQSOPoint = ToInt32(point);
    qso.tid = tid;
    qso.call = call;
    qso.rstSendt = Text1[kRstSendtFelt].Text();
    qso.nrSendt = Text1[kNrSendtFelt].Text();
    qso.rstModtaget = Text1[kRstModtagetFelt].Text();
    qso.nrModtaget = Text1[kNrModtagetFelt].Text();
    qso.point = giQSOPoint;
    if (gbDupe) qso.multiplier = kDupeMærke;
    qso.operatør = Trim(Combo1.Text());
    qso.qsl = Check1.Value();
    qso.qsoMode = cboMode.Text();
    qso.dato = txtDato.Text();
    const std::string linje = QsoLine(qso, gsMode);

    std::string status;
    LandStatusTekst(call, status);
    if (ErUkendt(status)) GemUkendt(linje);
    frmMain->List1.SetList(frmMain->List1.ListIndex(), linje);
    glPoint = ToInt32(static_cast<double>(glPoint) + giQSOPoint);
    VisStilling();
    Unload();
}

namespace {

/// Takes a contact out of points and marks before it is corrected.
void TrækTilbage(FrmRetQSO& form) {
    std::string call = form.Text1[kCallFelt].Text();
    if (!call.empty() && !form.Text3.Text().empty() && form.Text3.Text() != kDupeMærke) {
        std::string multiplier;
        LandWkd(call, multiplier, Handling::Ned);
    }
    StripCall(call);
    EDRstnWkd(call, Handling::Ned);
    glPoint = ToInt32(glPoint - NumericValue(form.Combo2.Text()));
}

}  // namespace

void RetLinje() {
    ListBox& log = frmMain->List1;
    if (log.ListCount() == 0 || log.ListIndex() < 0) return;
    const std::string linje = log.List(log.ListIndex());
    if (linje.starts_with(kNoteMærke)) return RetNote();
    frmRetQSO->Udfyld(linje);
    TrækTilbage(*frmRetQSO);
    frmRetQSO->ShowModal();
    // Whatever way the window was closed.
    LæsOperatører(frmMain->Combo1, gsOperatør.Padded());
    SkrivLog();
    frmMain->Text1[kCallFelt].SetFocus();
}

}  // namespace vatro
