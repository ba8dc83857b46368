// SPDX-License-Identifier: MIT
#include "papers/summary.h"
#include "frame/state.h"

#include <algorithm>
#include <vector>

#include "columns.h"
#include "exchange/equipment.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "platform.h"
#include "printing/progress.h"
#include "score/stations.h"

namespace vatro {

namespace {

constexpr std::string_view kImporteret = "CT-IMP";
constexpr std::string_view kTelefonStandard = "12345678";
constexpr std::size_t kZone = 14;

constexpr std::string_view UdenBlankeEfter(std::string_view tekst) {
    return tekst.substr(0, tekst.find_last_not_of(' ') + 1);
}

void TilføjOperatør(std::string& Operators, std::string_view op) {
    if (op == kImporteret) return;
    // Nothing is found in an empty list, not even the empty text.
    if (!Operators.empty() && Operators.find(op) != std::string::npos) return;
    Operators.append(1, ',').append(op);
}

std::string StationsNavn() {
    for (int i = 1; i <= desk().stations.StationsInUse(); ++i) {
        const std::string_view linje = desk().stations.EDRstn[static_cast<std::size_t>(i)].Linje.Padded();
        const std::string call = std::string(UdenBlankeEfter(linje.substr(0, kEdrCall))) + "/P";
        if (call == desk().gsMyCall) return std::string(linje.substr(kEdrCall + 1));
    }
    return {};
}

/// Goes to the next print zone: at least one blank.
std::string TilNæsteZone(std::string linje) {
    linje.resize((linje.size() / kZone + 1) * kZone, ' ');
    return linje;
}

constexpr Båndsøjler kSøjler{"       @@@@@ x ", "@@@@@@@@"};

void SkrivBånd(const Sammentælling& alt, std::size_t båndNr) {
    constexpr std::size_t kTilUdstyr = 49;
    Skriv(Båndrække(kSøjler, båndNr, " CW   ", alt.CW(båndNr)).append(kTilUdstyr, ' ') + RigAf(båndNr) + "/" + AntAf(båndNr));
    const LogSum& bånd = alt.band[båndNr];
    Skriv(Båndrække(kSøjler, båndNr, " SSB  ", alt.SSB(båndNr)) + InTemplate("         @@@@@ x ", bånd.Mults) +
          InTemplate("      @@@@@@ = ", bånd.Points) + InTemplate("      @@@@@@@@@", bånd.Score));
}

void SkrivTotal(const Sammentælling& alt) {
    constexpr std::size_t kTilTotaler = 40;
    Skriv(("Total:       " + InTemplate("@@@@@", alt.TotalQSOs)).append(kTilTotaler, ' ') + InTemplate("@@@@@@ x ", alt.Total.Mults) +
          InTemplate("     @@@@@@@ = ", alt.Total.Points) + InTemplate("      @@@@@@@@@", alt.Total.Score));
}

void SkrivBlad(const Sammentælling& alt) {
    Skriv(kSammentællingsblad);
    SkrivBlank();
    Skriv(TilNæsteZone(TilNæsteZone("Kaldesignal: " + desk().gsMyCall) + "Kategori: " + desk().gsKlasse) + "Antal logsider: ");
    SkrivBlank();
    Skriv("Navn: " + alt.name);
    SkrivBlank();
    Skriv(std::string(kOperatørerne) + alt.Operatører());
    SkrivBlank();
    Skriv("Bånd        QSOs - Dubs  Mults x Points = Band score  Mult total x Points total = Bandscore total  Stn/Ant"_t);
    for (std::size_t båndNr = kAntalBånd; båndNr-- > 0;) SkrivBånd(alt, båndNr);
    SkrivBlank();
    SkrivTotal(alt);
    SkrivBlank();
    Skriv("Ansvarshavende/Formand");
    SkrivBlank();
    SkrivBlank();
    Skriv(std::string(kTelefonSpørgsmål).append(OplystTelefon()));
}

}  // namespace

std::string Båndrække(const Båndsøjler& søjler, std::size_t båndNr, std::string_view mode, const BandSum& sum) {
    return std::string(kMegahertz[båndNr])
        .append(mode)
        .append(InTemplate("@@@@@", sum.QSOs))
        .append(InTemplate(søjler.mults, sum.Mults))
        .append(InTemplate("@@@@@@ = ", sum.Points))
        .append(InTemplate(søjler.score, sum.Score));
}

void SumLog(const LogId& log, BandSum& sum, std::string& Operators) {
    Files& filer = platform().files;
    try {
        ÅbnLog(log);
        while (!filer.EndOfFile(kLogFil)) {
            const std::string linje = filer.LineInput(kLogFil);
            if (TællerSomQSO(linje)) ++sum.QSOs;
            sum.Tæl(linje);
            TilføjOperatør(Operators, UdenBlankeEfter(kOperator.Of(linje)));
        }
        filer.Close(kLogFil);
    } catch (const RunTimeError&) {
        return;
    }
}

void SortOper(std::string& Operators) {
    std::vector<std::string> stykker;
    std::size_t fra = 0;
    for (std::size_t skel = Operators.find(','); skel != std::string::npos; skel = Operators.find(',', fra)) {
        stykker.push_back(Operators.substr(fra, skel - fra));
        fra = skel + 1;
    }
    stykker.push_back(Operators.substr(fra));
    std::sort(stykker.begin(), stykker.end());
    Operators = stykker.front();
    for (std::size_t i = 1; i < stykker.size(); ++i) Operators.append(", ").append(stykker[i]);
}

std::string Sammentælling::Operatører() const {
    std::string liste(Columns(Operators, 2));
    SortOper(liste);
    return liste;
}

Sammentælling Sammentæl() {
    Sammentælling alt;
    alt.name = StationsNavn();
    for (std::size_t i = 0; i < kTenLogs.size(); ++i) SumLog(kTenLogs[i], alt.rækker[i], alt.Operators);
    for (BandSum& række : alt.rækker) {
        række.BeregnScore();
        alt.TotalQSOs += række.QSOs;
    }
    for (std::size_t båndNr = 0; båndNr < kAntalBånd; ++båndNr) {
        alt.band[båndNr].LægTil(alt.CW(båndNr));
        alt.band[båndNr].LægTil(alt.SSB(båndNr));
        alt.band[båndNr].BeregnScore();
        alt.Total.LægTil(alt.band[båndNr]);
    }
    alt.Total.BeregnScore();
    return alt;
}

const std::string& RigAf(std::size_t båndNr) {
    return desk().rigs[kEquipmentBands.size() - 1 - båndNr];
}

const std::string& AntAf(std::size_t båndNr) {
    return desk().antennas[kEquipmentBands.size() - 1 - båndNr];
}

std::string_view OplystTelefon() {
    return desk().gsTelefon == kTelefonStandard ? std::string_view{} : desk().gsTelefon;
}

void DanSummary() {
    VisForløb("Dan log");
    TilføjForløb("Summary");
    const Sammentælling alt = Sammentæl();
    ÅbnPapir("Summary.txt");
    SkrivBlad(alt);
    platform().files.Close(kPapirFil);
}

}  // namespace vatro
