// SPDX-License-Identifier: MIT
#include "correction/frmRetQSO.h"
#include "frame/state.h"

#include <algorithm>
#include <span>

#include "call/call_analysis.h"
#include "correction/frmNote.h"
#include "datetime.h"
#include "entry/field_questions.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "entry/operators.h"
#include "entry/qso_fields.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "log/duplicates.h"
#include "numbers.h"
#include "platform.h"
#include "tables/unknown.h"
#include "tables/worked.h"

namespace vatro {

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
      Label1{{*this, "Label1", 0, "&UTC:", &Text1[kUtcField]},
             {*this, "Label1", 1, "&Call:", &Text1[kCallField]},
             {*this, "Label1", 2, "&RST Sendt:", &Text1[kReportSentField]},
             {*this, "Label1", 3, "RST &modtaget:", &Text1[kReportReceivedField]},
             {*this, "Label1", 4, "&Point:", &Combo2},
             {*this, "Label1", 5, "Multiplier:"},
             {*this, "Label1", 6, "&Operatør Call:"_t, &Combo1},
             {*this, "Label1", 7, "M&ode:", &cboMode},
             {*this, "Label1", 8, "&Dato:", &txtDato}} {
    SetTabOrder({&Text1[0], &Text1[1], &Text1[2], &Text1[3], &Text1[4], &Text1[5], &Combo2, &Text3, &Combo1, &Check1, &cboMode, &txtDato,
                 &Command1, &Command2, &cmdBeregn});
    SetFieldLengths(Text1);
    for (int i = kUtcField; i <= kNumberReceivedField; ++i) {
        Text1[i].KeyPress = [this, i](KeyCode& key) { HandleFieldKey(Text1, i, key, [this] { Command1_Click(); }); };
        Text1[i].KeyFilter = [i](KeyCode& key) { FilterFieldKey(i, key); };
    }
    Text1[kCallField].GotFocus = [this] {
        sbStatusBar.SetPanel(1, "Hop ud af feltet for at få beregnet point automatisk inden du trykker på 'Log'"_t);
    };
    Text1[kCallField].LostFocus = [this] { Text1_LostFocus(); };
    Text3.SetLocked(true);
    for (const std::string_view point : {"0", "1", "3", "5", "6", "10"}) Combo2.AddItem(std::string(point));
    Combo1.KeyPress = [this](KeyCode& key) { OperatørTast(Combo1, key); };
    Combo1.KeyFilter = [this](KeyCode& key) { OperatorFilter(Combo1, key); };
    Combo1.LostFocus = [this] { OperatørTjek(Combo1, false); };
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { Unload(); };
    cmdBeregn.Click = [this] { Calculate(); };
}

void FrmRetQSO::Fill(std::string_view line) {
    LæsOperatører(Combo1, {});
    std::string time(line.substr(0, 2));
    time.append(":").append(Columns(line, 4, 2));
    const auto timeOfDay = ParseTime(time);
    Text1[kUtcField].SetText(timeOfDay ? FormatTime(timeOfDay->hour, timeOfDay->minute) : time);
    Text1[kCallField].SetText(kCall.TrimmedOf(line));
    Text1[kReportSentField].SetText(kReportSent.TrimmedOf(line));
    Text1[kNumberSentField].SetText(kNumberSent.TrimmedOf(line));
    Text1[kReportReceivedField].SetText(kReportReceived.TrimmedOf(line));
    Text1[kNumberReceivedField].SetText(kNumberReceived.TrimmedOf(line));
    Combo2.SetText(kPoint.TrimmedOf(line));
    Text3.SetText(kMultiplier.TrimmedOf(line));
    Combo2.SetEnabled(Text3.Text() != kDupeMark);
    Combo1.SetText(kOperatorAsRead.TrimmedOf(line));
    Check1.SetValue(kQsl.TrimmedOf(line) == "QSL");

    // Lines of earlier years end before mode and date. A contact can change between the modes of its log only.
    std::string mode(kQsoMode.TrimmedOf(line));
    if (mode.empty()) mode = desk().gsQsoMode;
    cboMode.Clear();
    if (mode == "SSB") {
        cboMode.AddItem(mode);
        cboMode.SetListIndex(0);
    } else {
        for (const std::string_view name : {"CW", "PSK31", "RTTY", "HELL"}) {
            cboMode.AddItem(std::string(name));
            if (name == mode) cboMode.SetListIndex(cboMode.ListCount() - 1);
        }
    }
    txtDato.SetText(kDate.Of(line).empty() ? FormatDate(UtcNow()) : std::string(kDate.Of(line)));
}

void FrmRetQSO::NoteDuplicateAbove() {
    const std::span<const std::string> lines = desk().log.Lines();
    const auto above = static_cast<std::size_t>(std::max(frmMain->log.ListIndex(), 0));
    desk().gbDupe = CheckDupQSO(lines.first(std::min(above, lines.size())), desk().gsCall);
}

void FrmRetQSO::StoreState() {
    GemOperatører(Combo1);
}

void FrmRetQSO::Text1_LostFocus() {
    sbStatusBar.SetPanel(1, {});
    desk().gsCall = StripCall(Text1[kCallField].Text());
    if (!Accepted(CheckCall(desk().gsCall))) return Text1[kCallField].SetFocus();
    Calculate();
    if (desk().gbDupe)
        frmQSOnr->visDupe();
    else
        frmQSOnr->visQSOnr();
}

void FrmRetQSO::Calculate() {
    const std::string call = Text1[kCallField].Text();
    if (call.empty()) return;
    desk().gsCall = StripCall(call);
    NoteDuplicateAbove();
    NotePoints(call);
    sbStatusBar.SetPanel(1, ShownCountry(call).text);
    ShowCalculated(NoteCountry(call, MarkAction::Test));
}

void FrmRetQSO::ShowCalculated(std::string_view multiplier) {
    if (desk().gbDupe) return ShowDuplicate();
    Text3.SetText(multiplier);
    Combo2.SetText(PlainNumber(desk().giQSOPoint));
    Combo2.SetEnabled(true);
}

void FrmRetQSO::ShowDuplicate() {
    Text3.SetText(kDupeMark);
    Combo2.SetListIndex(0);
    Combo2.SetEnabled(false);
}

bool FrmRetQSO::CheckDate() {
    if (txtDato.Text().size() == 8) {
        const std::string text = txtDato.Text();
        txtDato.SetText(text.substr(0, 2) + "-" + text.substr(3, 2) + "-" + text.substr(6, 2));
        if (ParseDate(txtDato.Text())) return true;
    }
    MsgBox("Indtast dato i formatet: " + FormatDate(UtcNow()));
    return false;
}

void FrmRetQSO::Command1_Click() {
    if (!Accepted(CheckOperator(Combo1.Text()))) return Combo1.SetFocus();
    if (!CheckDate()) return txtDato.SetFocus();
    const auto time = AcceptedTime(Text1[kUtcField]);
    if (!time) return Text1[kUtcField].SetFocus();
    desk().gsCall = StripCall(Text1[kCallField].Text());
    if (!Accepted(CheckCall(desk().gsCall))) return Text1[kCallField].SetFocus();
    NoteDuplicateAbove();
    if (desk().gbDupe) {
        Text3.SetText(kDupeMark);
        Combo2.SetListIndex(0);
    }
    if (const auto field = FieldAtFault(Text1)) return Text1[*field].SetFocus();
    LogCorrection(*time);
}

void FrmRetQSO::LogCorrection(const std::string& time) {
    const std::string call = Text1[kCallField].Text();
    // As it counts now; what Text3 shows is not used.
    Contact contact;
    contact.multiplier = NoteCountry(call, MarkAction::Mark);
    NoteStation(desk().gsCall, MarkAction::Mark);
    // Six characters are what the station was looked up by, and what the variable shows from now on.
    desk().gsCall = StationCall(desk().gsCall);
    NotePoints(call);
    const double point = NumericValue(Combo2.Text());
    if (point != desk().giQSOPoint) {
        MessageBox question;
        question.text = "Er " + Combo2.Text() + " point korrekt?";
        question.title = "Point";
        question.buttons = Buttons::YesNo;
        if (MsgBox(question) == Answer::No) {
            // The marks just set stay set: a second "&Log" then finds the country marked, and the corrected line has no multiplier
            // until the log is checked. Logs corrected that way are in the archives of many stations.
            if (Combo2.Enabled()) Combo2.SetFocus();
            return;
        }
    }
    desk().giQSOPoint = ToInt32(point);
    contact.time = time;
    contact.call = call;
    contact.reportSent = Text1[kReportSentField].Text();
    contact.numberSent = Text1[kNumberSentField].Text();
    contact.reportReceived = Text1[kReportReceivedField].Text();
    contact.numberReceived = Text1[kNumberReceivedField].Text();
    contact.point = desk().giQSOPoint;
    if (desk().gbDupe) contact.multiplier = kDupeMark;
    contact.operatorCall = Trim(Combo1.Text());
    contact.qsl = Check1.Value();
    contact.qsoMode = cboMode.Text();
    contact.date = txtDato.Text();
    const std::string line = QsoLine(contact, desk().gsMode);

    if (ShownCountry(call).unknown) GemUkendt(line);
    desk().log.Replace(static_cast<std::size_t>(frmMain->log.ListIndex()), line);
    desk().log.AddPoints(desk().giQSOPoint);
    ShowScore();
    Unload();
}

namespace {

/// Takes a contact out of points and marks before it is corrected.
void Withdraw(FrmRetQSO& form) {
    const std::string& call = form.Text1[kCallField].Text();
    if (!call.empty() && !form.Text3.Text().empty() && form.Text3.Text() != kDupeMark) NoteCountry(call, MarkAction::Unmark);
    NoteStation(StripCall(call), MarkAction::Unmark);
    desk().log.AddPoints(-NumericValue(form.Combo2.Text()));
}

}  // namespace

void CorrectLine() {
    const ListBox& list = frmMain->log;
    if (list.ListCount() == 0 || list.ListIndex() < 0) return;
    const std::string line = list.List(list.ListIndex());
    if (line.starts_with(kNoteMark)) return CorrectNote();
    frmRetQSO->Fill(line);
    Withdraw(*frmRetQSO);
    frmRetQSO->ShowModal();
    // Whatever way the window was closed.
    LæsOperatører(frmMain->operatorBox, desk().gsOperatør.Padded());
    SkrivLog();
    frmMain->fields[kCallField].SetFocus();
}

}  // namespace vatro
