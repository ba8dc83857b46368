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

void VisLog() {
    frmMain->sbStatusBar.SetPanel(1, "Vatro " + gsBand + " " + gsMode);
    VisStilling();
}

/// Takes a contact line into marks and counters.
void TælMed(std::string_view linje) {
    const std::string_view multiplier = kMultiplier.Af(linje);
    if (!multiplier.empty() && multiplier.front() != ' ') {
        std::string nyt;
        LandWkd(multiplier, nyt, Handling::Op);
    }
    glPoint = ToInt32(glPoint + NumericValue(kPoint.Af(linje)));
    // The first six columns of the call as they stand: a call with "/P" is not stripped here, on purpose.
    std::string edr(kCall.Af(linje).substr(0, kEdrCall));
    EDRstnWkd(edr, Handling::Op);
    giQSOnr = ToInt16(NumericValue(kNrSendt.Af(linje)));
}

}  // namespace

std::string LogNavn(std::string_view bånd, std::string_view mode) {
    std::string navn = "FD";
    navn.append(bånd).append(mode).append(".txt");
    return navn;
}

std::string LogSti(std::string_view bånd, std::string_view mode) {
    return Sti(gsLogLib, LogNavn(bånd, mode));
}

std::string AktuelLogSti() {
    return LogSti(gsBand, gsMode);
}

void IndlæsLogfil() {
    Files& filer = platform().files;
    ListBox& log = frmMain->List1;
    const ListBox::Filling fylder(log);
    // Before the file is opened, so that the bar is right even if it cannot be read.
    TømLog();
    try {
        filer.Open(1, AktuelLogSti(), FileMode::Input);
        while (!filer.EndOfFile(1)) {
            log.AddItem(filer.LineInput(1));
            const std::string& linje = log.Items().back();
            if (!ErNote(linje)) TælMed(linje);
        }
        filer.Close(1);
    } catch (const RunTimeError&) {
        filer.Close(1);
        return;
    }
    log.SetListIndex(log.ListCount() - 1);
    VisLog();
}

void TømLog() {
    frmMain->List1.Clear();
    ResetLande();
    ResetEDR();
    giQSOnr = 0;
    glPoint = 0;
    giMult = 0;
    VisLog();
}

void TilføjLinje(std::string_view fil, std::string_view linje) {
    Files& filer = platform().files;
    try {
        filer.Open(1, Sti(gsLogLib, fil), FileMode::Append);
        filer.PrintLine(1, linje);
        filer.Close(1);
    } catch (const RunTimeError&) {
        TjekLogLib();
        EndProgram();
    }
}

void AppendLog(std::string_view linje) {
    TilføjLinje(LogNavn(gsBand, gsMode), linje);
}

void LogLinje(const std::string& linje) {
    AppendLog(linje);
    ListBox& log = frmMain->List1;
    log.AddItem(linje);
    log.SetListIndex(log.ListCount() - 1);
}

void SkrivLog() {
    Files& filer = platform().files;
    const std::string kopi = Sti(gsLogLib, "FDkopi.txt");
    filer.Open(1, kopi, FileMode::Output);
    for (const std::string& linje : frmMain->List1.Items()) filer.PrintLine(1, linje);
    filer.Close(1);
    filer.Replace(kopi, AktuelLogSti());
}

void VisStilling() {
    StatusBar& bjælke = frmMain->sbStatusBar;
    bjælke.SetPanel(2, PlainNumber(glPoint));
    bjælke.SetPanel(4, PlainNumber(giMult));
    bjælke.SetPanel(6, PlainNumber(ToInt32(static_cast<double>(giMult) * glPoint)));
}

void NulstilLog() {
    giQSOnr = 0;
    glPoint = 0;
    giMult = 0;
    giQSOPoint = 0;
    gbDupe = false;
    gsCall.clear();
}

}  // namespace vatro
