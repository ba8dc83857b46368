// SPDX-License-Identifier: MIT
#include "entry/next_contact.h"

#include "codepage.h"
#include "entry/clock.h"
#include "entry/frmMain.h"
#include "entry/frmQSOnr.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "frame/station.h"
#include "log/ten_logs.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

using namespace literals;

namespace {

void ResetReport(TextBox& field) {
    const std::string_view standard = StandardRST(desk().gsQsoMode);
    field.SetText({});
    field.SetMaxLength(static_cast<int>(standard.size()));
    field.SetText(standard);
}

}  // namespace

void ResetQSO() {
    FrmMain& main = *frmMain;
    std::int16_t& number = desk().log.giQSOnr;
    if (desk().gbAutoTid == 1) main.fields[kUtcField].SetText(UtcTimeText());
    main.fields[kCallField].SetText({});
    ResetReport(main.fields[kReportSentField]);
    ResetReport(main.fields[kReportReceivedField]);
    number = ToInt16(number + 1);
    main.fields[kNumberSentField].SetText(ZeroPadded(number, 4));
    main.fields[kNumberReceivedField].SetText({});
    main.qsl.SetValue(false);
    frmQSOnr->visQSOnr();
    if (desk().gbAutoTid != 1) {
        main.fields[kUtcField].SetFocus();
        main.fields[kUtcField].SelectAll();
        TimerStop();
    } else {
        main.fields[kCallField].SetFocus();
        TimerStart();
    }
}

void ChangeBandMode(int index) {
    SetIndstillinger(index);
    if (desk().gsBand.empty()) {
        MsgBox("Vælg bånd"_t);
        return;
    }
    if (desk().gsMode.empty()) {
        MsgBox("Vælg mode"_t);
        return;
    }
    SetToolbar();
    IndlæsLogfil();
    ResetQSO();

    MessageBox question;
    question.text = "Fortsætter samme operatør?"_t;
    question.title = "Bånd/modeskift"_t;
    question.buttons = Buttons::YesNo;
    if (MsgBox(question) == Answer::Yes) return;

    frmMain->operatorBox.SetText({});
    frmMain->operatorBox.SetFocus();
    MessageBox instruction;
    instruction.text = "Angiv/vælg ny operatør\r\n\r\nTryk derefter Alt+C for at hoppe til Call-felt"_t;
    instruction.title = "Operatør"_t;
    MsgBox(instruction);
}

}  // namespace vatro
