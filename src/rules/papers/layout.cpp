// SPDX-License-Identifier: MIT
#include "papers/layout.h"
#include "frame/state.h"

#include "columns.h"
#include "frame/station.h"
#include "frame/version.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

namespace {

/// Columns of a log line that a paper shows; the date stands in front of them.
constexpr std::size_t kVistBredde = 70;

}  // namespace

std::string Indrykket(std::string_view tekst) {
    std::string række;
    række.reserve(kIndryk.size() + tekst.size());
    return række.append(kIndryk).append(tekst);
}

std::string Kontaktrække(std::string_view linje) {
    std::string række;
    række.reserve(kIndryk.size() + kDate.width + 1 + kVistBredde);
    return række.append(kIndryk).append(kDate.Of(linje)).append(1, ' ').append(Columns(linje, 1, kVistBredde));
}

std::string Ialtrække(const IaltForm& form, std::string_view label, const LogSum& sum) {
    std::string række = Indrykket(LeftAligned(label, form.label));
    return række.append(InTemplate(form.point, sum.Points))
        .append(InTemplate(form.mult, sum.Mults))
        .append(InTemplate(form.score, sum.Score));
}

std::string Årstal() {
    return FormatDate(platform().clock.Now(), "yyyy");
}

std::string LogTitel() {
    return "Fieldday log for " + desk().gsMyCall + " " + Årstal();
}

std::string VersionMærke() {
    return ", (Vatro version " + VersionText() + ")";
}

std::string BåndOgMode(std::string_view bånd, std::string_view mode) {
    return std::string(bånd).append(1, ' ').append(mode);
}

void LogPapir::Krop() {
    Files& filer = platform().files;
    LogSum side;
    LogSum ialt;
    for (int LineCount = 0; !filer.EndOfFile(kLogFil); ++LineCount) {
        FørLinje(LineCount);
        const std::string linje = filer.LineInput(kLogFil);
        if (!ErNotelinje(linje)) Række(Kontaktrække(linje));
        side.Tæl(linje);
        if (LineCount % kLinjerPrSide == kLinjerPrSide - 1) {
            LukSide(side, ialt);
            NySide();
        }
    }
    LukSide(side, ialt);
}

void LogPapir::LukSide(LogSum& side, LogSum& ialt) {
    side.BeregnScore();
    Række(" ");
    Række(Ialtrække(Ialt(), kDenneSide, side));
    ialt.LægTil(side);
    ialt.BeregnScore();
    side = {};
    Række(" ");
    Række(Ialtrække(Ialt(), kAkkumuleret, ialt));
}

}  // namespace vatro
