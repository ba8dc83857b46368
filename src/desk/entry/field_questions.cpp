// SPDX-License-Identifier: MIT
#include "entry/field_questions.h"

#include "frame/state.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

namespace {

bool NumberReceivedIsAccepted(TextBox& field) {
    if (const auto zero = CheckZeroNumber(field.Text())) {
        if (!Accepted(zero)) return false;
        field.SetText(kZeroNumber);
    }
    return Accepted(CheckNumberReceived(field.Text()));
}

}  // namespace

bool Accepted(const std::optional<Objection>& objection) {
    if (!objection) return true;
    MessageBox box;
    box.text = objection->text;
    if (objection->isQuestion) {
        box.title = objection->title;
        box.buttons = Buttons::YesNo;
        box.defaultNo = true;
    }
    return MsgBox(box) == Answer::Yes && objection->isQuestion;
}

std::optional<std::string> AcceptedTime(TextBox& field) {
    if (const auto withColon = WithColon(field.Text())) {
        field.SetText(*withColon);
        if (auto time = CheckTime(field.Text())) return time;
    }
    MsgBox("Indtast tid i formatet: " + UtcTimeText());
    return std::nullopt;
}

std::optional<ContactField> FieldAtFault(ContactFields& fields) {
    const std::string& mode = desk().gsMode;
    if (!Accepted(CheckReport(fields[kReportSentField].Text(), mode))) return kReportSentField;
    if (!Accepted(CheckNumberSent(fields[kNumberSentField].Text()))) return kNumberSentField;
    if (!Accepted(CheckReport(fields[kReportReceivedField].Text(), mode))) return kReportReceivedField;
    if (!NumberReceivedIsAccepted(fields[kNumberReceivedField])) return kNumberReceivedField;
    return std::nullopt;
}

}  // namespace vatro
