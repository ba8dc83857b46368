// SPDX-License-Identifier: MIT
#include "frame/log_file.h"

#include "codepage.h"
#include "entry/frmMain.h"
#include "frame/state.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "platform.h"
#include "program.h"
#include "tables/worked.h"

namespace vatro {

using namespace literals;

namespace {

void ShowLog() {
    frmMain->statusBar.SetPanel(1, "Vatro " + desk().gsBand + " " + desk().gsMode);
    ShowScore();
}

void SelectLastLine() {
    frmMain->log.SetListIndex(frmMain->log.ListCount() - 1);
}

/// Adds a contact line to the worked marks and the counters; giQSOnr becomes its serial number sent.
void CountLine(std::string_view line) {
    const std::string_view multiplier = kMultiplier.Of(line);
    if (!multiplier.empty() && multiplier.front() != ' ') RecordCountry(multiplier, MarkAction::Mark);
    desk().log.AddPoints(NumericValue(kPoint.Of(line)));
    // The station is looked up by the first six columns of the call, without stripping "/P". The marks after a load can therefore
    // differ from those set when the same contacts were logged; points do not. Do not correct this: operators know the list of worked
    // stations as it is after a restart (docs/rules.md).
    RecordStation(kCall.Of(line).substr(0, kEdrCall), MarkAction::Mark);
    desk().log.giQSOnr = ToInt16(NumericValue(kNumberSent.Of(line)));
}

}  // namespace

std::string LogPath(std::string_view band, std::string_view mode) {
    return PathIn(desk().gsLogLib, LogName(band, mode));
}

std::string CurrentLogPath() {
    return LogPath(desk().gsBand, desk().gsMode);
}

void IndlæsLogfil() {
    Files& files = platform().files;
    const ListBox::Filling filling(frmMain->log);
    // This comes before the file is opened, so that the status bar is right even if the file cannot be read.
    ClearLog();
    Log& log = desk().log;
    try {
        files.Open(1, CurrentLogPath(), FileMode::Input);
        while (!files.EndOfFile(1)) {
            log.Append(files.LineInput(1));
            const std::string& line = log.Lines().back();
            if (!IsNote(line)) CountLine(line);
        }
        files.Close(1);
    } catch (const RunTimeError&) {
        files.Close(1);
        return;
    }
    SelectLastLine();
    ShowLog();
}

void ClearLog() {
    // Loads the main form, which shows the log, if it is not loaded yet.
    frmMain.Load();
    Log& log = desk().log;
    log.Clear();
    ClearWorked();
    log.giQSOnr = 0;
    log.glPoint = 0;
    ShowLog();
}

void AppendLog(std::string_view line) {
    AppendLine(LogName(desk().gsBand, desk().gsMode), line);
}

void LogLine(const std::string& line) {
    AppendLog(line);
    desk().log.Append(line);
    SelectLastLine();
}

void AppendLine(std::string_view file, std::string_view line) {
    Files& files = platform().files;
    try {
        files.Open(1, PathIn(desk().gsLogLib, file), FileMode::Append);
        files.PrintLine(1, line);
        files.Close(1);
    } catch (const RunTimeError&) {
        TjekLogLib();
        EndProgram();
    }
}

void SkrivLog() {
    Files& files = platform().files;
    const std::string copy = PathIn(desk().gsLogLib, "FDkopi.txt");
    files.Open(1, copy, FileMode::Output);
    for (const std::string& line : desk().log.Lines()) files.PrintLine(1, line);
    files.Close(1);
    files.Replace(copy, CurrentLogPath());
}

void ShowScore() {
    StatusBar& bar = frmMain->statusBar;
    const Log& log = desk().log;
    bar.SetPanel(2, PlainNumber(log.glPoint));
    bar.SetPanel(4, PlainNumber(desk().giMult));
    bar.SetPanel(6, PlainNumber(ToInt32(static_cast<double>(desk().giMult) * log.glPoint)));
}

void TjekLogLib() {
    MsgBox(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\n"
        "Det er enten ikke defineret endnu eller også er det blevet fjernet, døbt om eller flyttet. Vatro standses.\r\n\r\n"
        "Start Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' og log så qso'en igen."_t);
}

}  // namespace vatro
