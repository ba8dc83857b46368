// SPDX-License-Identifier: MIT
#include "exchange/ct_import.h"
#include "frame/state.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "datetime.h"
#include "entry/next_contact.h"
#include "entry/validation.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "platform.h"
#include "tables/worked.h"

namespace vatro {

using namespace literals;

namespace {

constexpr int kCtFile = 2;
constexpr Field kCtMode{44, 3};
constexpr Field kCtMark{7, 1};
constexpr Field kCtDate{5, 9};
constexpr Field kCtTime{17, 2};
constexpr Field kCtMinute{19, 2};
constexpr Field kCtNumberSent{23, 4};
constexpr Field kCtCall{36, 12};
constexpr Field kCtReportReceived{49, 3};
constexpr Field kCtNumberReceived{53, 4};

/// Returns the report received as a log of the current mode holds it: two digits in SSB, three in CW.
std::string ReportReceived(std::string_view line) {
    if (desk().gsMode == "SSB") return LeftAligned(kCtReportReceived.TrimmedOf(line), 2);
    return LeftAligned(kCtReportReceived.Of(line), kReportReceived.width);
}

std::string DateOf(std::string_view line) {
    const auto date = ParseDate(kCtDate.Of(line));
    if (!date) throw RunTimeError(Failure::TypeMismatch);
    return FormatDate(*date);
}

/// Opens the CT file and reads its head; the file stays open. If there is a log of its band and mode already, shows a message and returns
/// true.
bool LogExists(const std::string& path, std::string& band, std::string& mode) {
    Files& files = platform().files;
    try {
        files.Open(kCtFile, path, FileMode::Input);
        std::string line;
        for (int i = 0; i < 3; ++i) line = files.LineInput(kCtFile);
        mode = kCtMode.TrimmedOf(line);
        band = std::string(Right(path, 2)) + "m";
        files.Open(1, LogPath(band, mode), FileMode::Input);
        files.Close(1);
        MessageBox exists;
        exists.text = "Log for " + band + " " + mode + " findes allerede.";
        exists.title = "Log kan ikke importeres.";
        MsgBox(exists);
        return true;
    } catch (const RunTimeError&) {
        // Any failure is taken for a missing log; see the header.
        return false;
    }
}

}  // namespace

void ImportCtFromMenu() {
    FileDialog dialog;
    dialog.filter = "CT-logfil (*.10;*.15;*.20;*.40;*.80)|*.10;*.15;*.20;*.40;*.80|";
    dialog.fileMustExist = true;
    std::string path;
    try {
        path = platform().dialogs.OpenFile(dialog);
    } catch (const RunTimeError&) {
        return;
    }
    ImporterCt(path);
}

void ImporterCt(const std::string& path) {
    std::string band;
    std::string mode;
    if (LogExists(path, band, mode)) return;

    desk().gsBand = band;
    desk().gsMode = mode == "SSB" ? "SSB" : "CW";
    desk().gsQsoMode = mode;
    SetToolbar();
    ClearLog();

    Files& files = platform().files;
    if (files.EndOfFile(kCtFile)) {
        MessageBox empty;
        empty.text = path + " er tom.";
        empty.title = "Import af CT-fil";
        empty.icon = Icon::Information;
        MsgBox(empty);
    }
    while (!files.EndOfFile(kCtFile)) {
        const std::string line = files.LineInput(kCtFile);
        if (kCtMark.Of(line) == "-") ImportQSO(line);
    }
    files.Close(kCtFile);
    ResetQSO();
}

void ImportQSO(std::string_view line) {
    Contact contact;
    contact.operatorCall = "CT-IMP";
    contact.time = LeftAligned(kCtTime.Of(line), 2) + ":" + LeftAligned(kCtMinute.Of(line), 2);
    contact.call = kCtCall.TrimmedOf(line);
    desk().gsCall = StripCall(contact.call);
    RecordDuplicate();
    // The report sent is not read from the CT line.
    contact.reportSent = desk().gsMode == "SSB" ? "59" : "599";
    const double numberSent = NumericValue(kCtNumberSent.Of(line));
    contact.numberSent = ZeroPadded(numberSent, 4);
    desk().log.giQSOnr = ToInt16(numberSent);
    contact.reportReceived = ReportReceived(line);
    contact.numberReceived = ZeroPadded(NumericValue(kCtNumberReceived.Of(line)), 4);
    // Passes the call unchanged: as at the load of a log, "/P" is not stripped before the society's list is searched.
    contact.multiplier = RateContact(contact.call, contact.call);
    contact.point = desk().giQSOPoint;
    contact.qsoMode = desk().gsMode;
    contact.date = DateOf(line);
    RecordContact(QsoLine(contact, desk().gsMode));
}

}  // namespace vatro
