// SPDX-License-Identifier: MIT
#include "papers/mult_check.h"

#include <algorithm>

#include "log/contact_line.h"
#include "papers/layout.h"
#include "papers/log_sheets.h"
#include "platform.h"
#include "printing/progress.h"

namespace vatro {

namespace {

constexpr std::size_t kCelle = 7;
constexpr int kRækkerPrSide = 50;
constexpr std::string_view kModes = "CW     SSB    CW     SSB    CW     SSB    CW     SSB    CW     SSB    ";

std::string& Celle(MultTable& table, std::size_t kolonne, std::size_t række) {
    if (række > kMultRækker) throw RunTimeError(Failure::IndexOutOfRange);
    return table[kolonne][række];
}

/// The cells of a row side by side, or nothing below the last row of all columns.
bool Multrække(const MultTable& table, const MultCount& count, std::size_t række, std::string& tekst) {
    tekst.clear();
    bool nogen = false;
    for (std::size_t kolonne = 0; kolonne < table.size(); ++kolonne) {
        const bool brugt = række <= count[kolonne];
        nogen |= brugt;
        if (brugt)
            tekst.append(table[kolonne][række]);
        else
            tekst.append(kCelle, ' ');
    }
    return nogen;
}

}  // namespace

void SamlMult(const LogId& log, MultTable& table, MultCount& count, std::size_t kolonne) {
    Files& filer = platform().files;
    try {
        ÅbnLog(log);
        while (!filer.EndOfFile(kLogFil)) {
            const std::string linje = filer.LineInput(kLogFil);
            if (!TællerSomMult(linje)) continue;
            ++count[kolonne];
            Celle(table, kolonne, count[kolonne]) = kMultiplier.Of(linje).substr(0, kCelle);
        }
        filer.Close(kLogFil);
    } catch (const RunTimeError&) {
        return;
    }
}

void SortMult(MultTable& table, const MultCount& count) {
    for (std::size_t kolonne = 0; kolonne < table.size(); ++kolonne) {
        if (count[kolonne] > kMultRækker) throw RunTimeError(Failure::IndexOutOfRange);
        const auto første = table[kolonne].begin() + 1;
        std::sort(første, første + static_cast<std::ptrdiff_t>(count[kolonne]));
    }
}

void SamlAlleMult(MultTable& table, MultCount& count) {
    for (std::size_t kolonne = 0; kolonne < kTenLogs.size(); ++kolonne) SamlMult(kTenLogs[kolonne], table, count, kolonne);
    SortMult(table, count);
}

void OpsætMult(const MultTable& table, const MultCount& count, const MultPapir& papir) {
    papir.linje(" ");
    papir.linje(Indrykket("10m    10m    15m    15m    20m    20m    40m    40m    80m    80m    "));
    papir.linje(Indrykket(kModes));
    papir.linje(" ");
    int påSiden = 0;
    std::string tekst;
    for (std::size_t række = 1; række <= kMultRækker && Multrække(table, count, række, tekst); ++række) {
        papir.linje(Indrykket(tekst));
        if (++påSiden <= kRækkerPrSide) continue;
        papir.nySide();
        påSiden = 1;
        papir.linje(" ");
        papir.linje(Indrykket("10m           15m           20m           40m           80m           "));
        papir.linje(Indrykket(kModes));
    }
}

void DanMult(const MultTable& table, const MultCount& count) {
    OpsætMult(table, count, {Skriv, [] { DanHoved(kMultHoved.band, kMultHoved.mode); }});
}

void DanMultCheck() {
    VisForløb("Dan log");
    TilføjForløb(kMultTrin);
    ÅbnPapir("Mult.txt");
    DanHoved(kMultHoved.band, kMultHoved.mode);
    MultTable table;
    MultCount count{};
    SamlAlleMult(table, count);
    DanMult(table, count);
    platform().files.Close(kPapirFil);
}

}  // namespace vatro
