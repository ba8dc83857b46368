// SPDX-License-Identifier: MIT
#include "frame/log_file.h"

#include "country/lookup.h"
#include "entry/frmMain.h"
#include "frame/band_mode.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "log/duplicates.h"
#include "numbers.h"
#include "platform.h"
#include "program.h"
#include "score/points.h"
#include "score/stations.h"
#include "tables/unknown.h"

namespace vatro {

std::int16_t giQSOnr = 0;
std::int32_t glPoint = 0;

namespace {

void ShowLog() {
    frmMain->sbStatusBar.SetPanel(1, "Vatro " + gsBand + " " + gsMode);
    ShowScore();
}

/// Takes a contact line into marks and counters.
void CountLine(std::string_view line) {
    const std::string_view multiplier = kMultiplier.Of(line);
    if (!multiplier.empty() && multiplier.front() != ' ') {
        std::string newMultiplier;
        LandWkd(multiplier, newMultiplier, MarkAction::Mark);
    }
    glPoint = ToInt32(glPoint + NumericValue(kPoint.Of(line)));
    // The first six columns of the call as they stand: a call with "/P" is not stripped here, on purpose.
    std::string sixCharacters(kCall.Of(line).substr(0, kEdrCall));
    EDRstnWkd(sixCharacters, MarkAction::Mark);
    giQSOnr = ToInt16(NumericValue(kNumberSent.Of(line)));
}

}  // namespace

std::string LogPath(std::string_view band, std::string_view mode) {
    return PathIn(gsLogLib, LogName(band, mode));
}

std::string CurrentLogPath() {
    return LogPath(gsBand, gsMode);
}

void IndlæsLogfil() {
    Files& files = platform().files;
    ListBox& log = frmMain->List1;
    const ListBox::Filling filling(log);
    // Before the file is opened, so that the bar is right even if it cannot be read.
    ClearLog();
    try {
        files.Open(1, CurrentLogPath(), FileMode::Input);
        while (!files.EndOfFile(1)) {
            log.AddItem(files.LineInput(1));
            const std::string& line = log.Items().back();
            if (!IsNote(line)) CountLine(line);
        }
        files.Close(1);
    } catch (const RunTimeError&) {
        files.Close(1);
        return;
    }
    log.SetListIndex(log.ListCount() - 1);
    ShowLog();
}

void ClearLog() {
    frmMain->List1.Clear();
    ResetLande();
    ResetEDR();
    giQSOnr = 0;
    glPoint = 0;
    giMult = 0;
    ShowLog();
}

void AppendLine(std::string_view file, std::string_view line) {
    Files& files = platform().files;
    try {
        files.Open(1, PathIn(gsLogLib, file), FileMode::Append);
        files.PrintLine(1, line);
        files.Close(1);
    } catch (const RunTimeError&) {
        TjekLogLib();
        EndProgram();
    }
}

void AppendLog(std::string_view line) {
    AppendLine(LogName(gsBand, gsMode), line);
}

void LogLine(const std::string& line) {
    AppendLog(line);
    ListBox& log = frmMain->List1;
    log.AddItem(line);
    log.SetListIndex(log.ListCount() - 1);
}

void SkrivLog() {
    Files& files = platform().files;
    const std::string copy = PathIn(gsLogLib, "FDkopi.txt");
    files.Open(1, copy, FileMode::Output);
    for (const std::string& line : frmMain->List1.Items()) files.PrintLine(1, line);
    files.Close(1);
    files.Replace(copy, CurrentLogPath());
}

void ShowScore() {
    StatusBar& bar = frmMain->sbStatusBar;
    bar.SetPanel(2, PlainNumber(glPoint));
    bar.SetPanel(4, PlainNumber(giMult));
    bar.SetPanel(6, PlainNumber(ToInt32(static_cast<double>(giMult) * glPoint)));
}

void ResetLog() {
    giQSOnr = 0;
    glPoint = 0;
    giMult = 0;
    giQSOPoint = 0;
    gbDupe = false;
    gsCall.clear();
}

}  // namespace vatro
