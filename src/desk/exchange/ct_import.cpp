// SPDX-License-Identifier: MIT
#include "exchange/ct_import.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "datetime.h"
#include "entry/frmMain.h"
#include "entry/validation.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "log/contact_line.h"
#include "log/duplicates.h"
#include "numbers.h"
#include "platform.h"
#include "score/stations.h"

namespace vatro {

using namespace literals;

namespace {

constexpr int kCtFil = 2;
constexpr Felt kCtMode{44, 3};
constexpr Felt kCtMærke{7, 1};
constexpr Felt kCtDato{5, 9};
constexpr Felt kCtTime{17, 2};
constexpr Felt kCtMinut{19, 2};
constexpr Felt kCtNrSendt{23, 4};
constexpr Felt kCtCall{36, 12};
constexpr Felt kCtRstModtaget{49, 3};
constexpr Felt kCtNrModtaget{53, 4};

/// The report received in the columns of a log of the current mode: two figures in SSB, three in CW.
std::string RstModtaget(std::string_view linje) {
    if (gsMode == "SSB") return LeftAligned(kCtRstModtaget.TrimmetAf(linje), 2);
    return LeftAligned(kCtRstModtaget.Af(linje), kRstModtaget.bredde);
}

std::string Dato(std::string_view linje) {
    const auto dato = ParseDate(kCtDato.Af(linje));
    if (!dato) throw RunTimeError(Failure::TypeMismatch);
    return FormatDate(*dato);
}

/// Opens the CT file and reads its head. True if there is a log of its band and mode, which has been told.
bool LogFindes(const std::string& filnavn, std::string& bånd, std::string& mode) {
    Files& filer = platform().files;
    try {
        filer.Open(kCtFil, filnavn, FileMode::Input);
        std::string linje;
        for (int i = 0; i < 3; ++i) linje = filer.LineInput(kCtFil);
        mode = kCtMode.TrimmetAf(linje);
        bånd = std::string(Right(filnavn, 2)) + "m";
        filer.Open(1, LogSti(bånd, mode), FileMode::Input);
        filer.Close(1);
        MessageBox findes;
        findes.text = "Log for " + bånd + " " + mode + " findes allerede.";
        findes.title = "Log kan ikke importeres.";
        MsgBox(findes);
        return true;
    } catch (const RunTimeError&) {
        // Nothing tells a missing log from any other failure.
        return false;
    }
}

}  // namespace

void ImporterCtMenu() {
    FileDialog dialog;
    dialog.filter = "CT-logfil (*.10;*.15;*.20;*.40;*.80)|*.10;*.15;*.20;*.40;*.80|";
    dialog.fileMustExist = true;
    std::string filnavn;
    try {
        filnavn = platform().dialogs.OpenFile(dialog);
    } catch (const RunTimeError&) {
        return;
    }
    ImporterCt(filnavn);
}

void ImporterCt(const std::string& filnavn) {
    std::string bånd;
    std::string mode;
    if (LogFindes(filnavn, bånd, mode)) return;

    gsBand = bånd;
    gsMode = mode == "SSB" ? "SSB" : "CW";
    gsQsoMode = mode;
    SetToolbar();
    TømLog();

    Files& filer = platform().files;
    if (filer.EndOfFile(kCtFil)) {
        MessageBox tom;
        tom.text = filnavn + " er tom.";
        tom.title = "Import af CT-fil";
        tom.icon = Icon::Information;
        MsgBox(tom);
    }
    while (!filer.EndOfFile(kCtFil)) {
        const std::string linje = filer.LineInput(kCtFil);
        if (kCtMærke.Af(linje) == "-") ImportQSO(linje);
    }
    filer.Close(kCtFil);
    ResetQSO();
}

void ImportQSO(std::string_view linje) {
    Qso qso;
    qso.operatør = "CT-IMP";
    qso.tid = LeftAligned(kCtTime.Af(linje), 2) + ":" + LeftAligned(kCtMinut.Af(linje), 2);
    qso.call = kCtCall.TrimmetAf(linje);
    gsCall = qso.call;
    StripCall(gsCall);
    CheckDupe();
    // What CT says of the report sent is not asked.
    qso.rstSendt = gsMode == "SSB" ? "59" : "599";
    const double nrSendt = NumericValue(kCtNrSendt.Af(linje));
    qso.nrSendt = ZeroPadded(nrSendt, 4);
    giQSOnr = ToInt16(nrSendt);
    qso.rstModtaget = RstModtaget(linje);
    qso.nrModtaget = ZeroPadded(NumericValue(kCtNrModtaget.Af(linje)), 4);
    // The first characters as they stand: as at a load, a call with "/P" is not stripped for the society's list.
    std::string edr = qso.call.substr(0, kEdrCall);
    BedømQSO(qso, edr);
    qso.qsoMode = gsMode;
    qso.dato = Dato(linje);
    BogførQSO(QsoLine(qso, gsMode));
}

}  // namespace vatro
