// SPDX-License-Identifier: MIT
#include "correction/frmRetQSO.h"
#include "frame/state.h"

#include <algorithm>
#include <utility>

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
      fields{{*this, "Text1", 0}, {*this, "Text1", 1}, {*this, "Text1", 2}, {*this, "Text1", 3}, {*this, "Text1", 4}, {*this, "Text1", 5}},
      pointBox(*this, "Combo2"),
      multiplierField(*this, "Text3"),
      operatorBox(*this, "Combo1"),
      qsl(*this, "Check1", "&QSL:"),
      modeBox(*this, "cboMode", ComboStyle::DropDownList),
      dateField(*this, "txtDato"),
      logButton(*this, "Command1", "&Log"),
      cancelButton(*this, "Command2", "&Annuller"),
      calculateButton(*this, "cmdBeregn", "&Beregn point"),
      statusBar(*this, "sbStatusBar", {""}),
      fieldLabels{{*this, "Label1", 0, "&UTC:", &fields[kUtcField]},
                  {*this, "Label1", 1, "&Call:", &fields[kCallField]},
                  {*this, "Label1", 2, "&RST Sendt:", &fields[kReportSentField]},
                  {*this, "Label1", 3, "RST &modtaget:", &fields[kReportReceivedField]},
                  {*this, "Label1", 4, "&Point:", &pointBox},
                  {*this, "Label1", 5, "Multiplier:"},
                  {*this, "Label1", 6, "&Operatør Call:"_t, &operatorBox},
                  {*this, "Label1", 7, "M&ode:", &modeBox},
                  {*this, "Label1", 8, "&Dato:", &dateField}} {
    SetTabOrder({&fields[0], &fields[1], &fields[2], &fields[3], &fields[4], &fields[5], &pointBox, &multiplierField, &operatorBox, &qsl,
                 &modeBox, &dateField, &logButton, &cancelButton, &calculateButton});
    SetFieldLengths(fields);
    for (int i = kUtcField; i <= kNumberReceivedField; ++i) {
        fields[i].KeyPress = [this, i](KeyCode& key) { HandleFieldKey(fields, i, key, [this] { TakeCorrection(); }); };
        fields[i].KeyFilter = [i](KeyCode& key) { FilterFieldKey(i, key); };
    }
    fields[kCallField].GotFocus = [this] {
        statusBar.SetPanel(1, "Hop ud af feltet for at få beregnet point automatisk inden du trykker på 'Log'"_t);
    };
    fields[kCallField].LostFocus = [this] { CallLeft(); };
    multiplierField.SetLocked(true);
    for (const std::string_view point : {"0", "1", "3", "5", "6", "10"}) pointBox.AddItem(std::string(point));
    operatorBox.KeyPress = [this](KeyCode& key) { OperatørTast(operatorBox, key); };
    operatorBox.KeyFilter = [this](KeyCode& key) { OperatorFilter(operatorBox, key); };
    operatorBox.LostFocus = [this] { OperatørTjek(operatorBox, false); };
    logButton.Click = [this] { TakeCorrection(); };
    cancelButton.Click = [this] { Unload(); };
    calculateButton.Click = [this] { Calculate(); };
}

void FrmRetQSO::Fill(std::string_view line) {
    LæsOperatører(operatorBox, {});
    std::string time(line.substr(0, 2));
    time.append(":").append(Columns(line, 4, 2));
    const auto timeOfDay = ParseTime(time);
    fields[kUtcField].SetText(timeOfDay ? FormatTime(timeOfDay->hour, timeOfDay->minute) : time);
    fields[kCallField].SetText(kCall.TrimmedOf(line));
    fields[kReportSentField].SetText(kReportSent.TrimmedOf(line));
    fields[kNumberSentField].SetText(kNumberSent.TrimmedOf(line));
    fields[kReportReceivedField].SetText(kReportReceived.TrimmedOf(line));
    fields[kNumberReceivedField].SetText(kNumberReceived.TrimmedOf(line));
    pointBox.SetText(kPoint.TrimmedOf(line));
    multiplierField.SetText(kMultiplier.TrimmedOf(line));
    pointBox.SetEnabled(multiplierField.Text() != kDupeMark);
    operatorBox.SetText(kOperatorAsRead.TrimmedOf(line));
    qsl.SetValue(kQsl.TrimmedOf(line) == "QSL");

    // Lines written by earlier versions end before mode and date. Only modes of the same log can be chosen.
    std::string mode(kQsoMode.TrimmedOf(line));
    if (mode.empty()) mode = desk().gsQsoMode;
    modeBox.Clear();
    if (mode == "SSB") {
        modeBox.AddItem(mode);
        modeBox.SetListIndex(0);
    } else {
        for (const std::string_view name : {"CW", "PSK31", "RTTY", "HELL"}) {
            modeBox.AddItem(std::string(name));
            if (name == mode) modeBox.SetListIndex(modeBox.ListCount() - 1);
        }
    }
    dateField.SetText(kDate.Of(line).empty() ? FormatDate(UtcNow()) : std::string(kDate.Of(line)));
}

void FrmRetQSO::RecordDuplicateAbove() {
    const auto above = static_cast<std::size_t>(std::max(frmMain->log.ListIndex(), 0));
    desk().gbDupe = CheckDupQSO(desk().log, above, desk().gsCall);
}

void FrmRetQSO::StoreState() {
    GemOperatører(operatorBox);
}

void FrmRetQSO::CallLeft() {
    statusBar.SetPanel(1, {});
    desk().gsCall = StripCall(fields[kCallField].Text());
    if (!Accepted(CheckCall(desk().gsCall))) return fields[kCallField].SetFocus();
    Calculate();
    if (desk().gbDupe)
        frmQSOnr->visDupe();
    else
        frmQSOnr->visQSOnr();
}

void FrmRetQSO::Calculate() {
    const std::string call = fields[kCallField].Text();
    if (call.empty()) return;
    desk().gsCall = StripCall(call);
    RecordDuplicateAbove();
    RecordPoints(call);
    const CountryStatus country = ShownCountry(call);
    statusBar.SetPanel(1, country.text, MarkOf(country));
    ShowCalculated(RecordCountry(call, MarkAction::Test));
}

void FrmRetQSO::ShowCalculated(std::string_view multiplier) {
    if (desk().gbDupe) return ShowDuplicate();
    multiplierField.SetText(multiplier);
    pointBox.SetText(PlainNumber(desk().giQSOPoint));
    pointBox.SetEnabled(true);
}

void FrmRetQSO::ShowDuplicate() {
    multiplierField.SetText(kDupeMark);
    pointBox.SetListIndex(0);
    pointBox.SetEnabled(false);
}

bool FrmRetQSO::CheckDate() {
    if (dateField.Text().size() == 8) {
        const std::string text = dateField.Text();
        dateField.SetText(text.substr(0, 2) + "-" + text.substr(3, 2) + "-" + text.substr(6, 2));
        if (ParseDate(dateField.Text())) return true;
    }
    MsgBox("Indtast dato i formatet: " + FormatDate(UtcNow()));
    return false;
}

void FrmRetQSO::TakeCorrection() {
    if (!Accepted(CheckOperator(operatorBox.Text()))) return operatorBox.SetFocus();
    if (!CheckDate()) return dateField.SetFocus();
    const auto time = AcceptedTime(fields[kUtcField]);
    if (!time) return fields[kUtcField].SetFocus();
    desk().gsCall = StripCall(fields[kCallField].Text());
    if (!Accepted(CheckCall(desk().gsCall))) return fields[kCallField].SetFocus();
    RecordDuplicateAbove();
    if (desk().gbDupe) {
        multiplierField.SetText(kDupeMark);
        pointBox.SetListIndex(0);
    }
    if (const auto field = FieldAtFault(fields)) return fields[*field].SetFocus();
    LogCorrection(*time);
}

void FrmRetQSO::LogCorrection(const std::string& time) {
    const std::string call = fields[kCallField].Text();
    // The multiplier is computed again; the text of multiplierField is not used.
    Contact contact;
    contact.multiplier = RecordCountry(call, MarkAction::Mark);
    RecordStation(desk().gsCall, MarkAction::Mark);
    // The station was looked up by the first six characters of its call; from now on gsCall holds only these.
    desk().gsCall = StationCall(std::move(desk().gsCall));
    RecordPoints(call);
    const double point = NumericValue(pointBox.Text());
    if (point != desk().giQSOPoint) {
        MessageBox question;
        question.text = "Er " + pointBox.Text() + " point korrekt?";
        question.title = "Point";
        question.buttons = Buttons::YesNo;
        if (MsgBox(question) == Answer::No) {
            // The marks just set are kept: a second "&Log" then finds the country marked already, and the corrected line loses its
            // multiplier. Do not correct this: logs of many stations were corrected this way, and the error list reports such a line
            // (docs/rules.md).
            if (pointBox.Enabled()) pointBox.SetFocus();
            return;
        }
    }
    desk().giQSOPoint = ToInt32(point);
    contact.time = time;
    contact.call = call;
    contact.reportSent = fields[kReportSentField].Text();
    contact.numberSent = fields[kNumberSentField].Text();
    contact.reportReceived = fields[kReportReceivedField].Text();
    contact.numberReceived = fields[kNumberReceivedField].Text();
    contact.point = desk().giQSOPoint;
    if (desk().gbDupe) contact.multiplier = kDupeMark;
    contact.operatorCall = Trim(operatorBox.Text());
    contact.qsl = qsl.Value();
    contact.qsoMode = modeBox.Text();
    contact.date = dateField.Text();
    const std::string line = QsoLine(contact, desk().gsMode);

    // Unlike a new contact, a corrected one keeps the points that the operator chose, even for an unknown prefix, and each correction
    // adds a line to ukendt.txt. Keep this: whoever looks into the unknown prefixes takes the last line of a contact (docs/rules.md).
    if (ShownCountry(call).unknown) GemUkendt(line);
    desk().log.Replace(static_cast<std::size_t>(frmMain->log.ListIndex()), line);
    desk().log.AddPoints(desk().giQSOPoint);
    ShowScore();
    Unload();
}

namespace {

/// Takes a contact out of the points and the worked marks before it is corrected.
void Withdraw(FrmRetQSO& form) {
    const std::string& call = form.fields[kCallField].Text();
    if (!call.empty() && !form.multiplierField.Text().empty() && form.multiplierField.Text() != kDupeMark)
        RecordCountry(call, MarkAction::Unmark);
    RecordStation(StripCall(call), MarkAction::Unmark);
    desk().log.AddPoints(-NumericValue(form.pointBox.Text()));
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
    // This runs however the window was closed.
    LæsOperatører(frmMain->operatorBox, desk().gsOperatør.Padded());
    SkrivLog();
    frmMain->fields[kCallField].SetFocus();
}

}  // namespace vatro
