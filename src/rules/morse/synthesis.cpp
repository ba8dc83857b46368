// SPDX-License-Identifier: MIT
#include "morse/synthesis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "columns.h"
#include "errors.h"
#include "keyer/keyer_settings.h"
#include "morse/morse_table.h"
#include "numbers.h"

namespace vatro {

std::int32_t Priklen = 0;
Stykke CWStreg;
Stykke CWStart;
Stykke CWMidte;
Stykke CWSlut;
Stykke CWPrik;
Stykke CWPause;
std::vector<std::int16_t> CWBillede;

std::string gsCWTekst;
std::int32_t glTegnPos = 0;
std::string gscwtegn;
std::int32_t glElementPos = 0;
std::string gsElement;
std::int32_t glCWSlat = 0;

namespace {

/// Samples of a ramp, whatever the speed.
constexpr int kRampe = 25;
constexpr std::string_view kSlutmærke = "0";

/// A half of the buffer, in samples.
struct Del {
    int start;
    int slut;
};
constexpr Del kDel1{0, kBufferSamples / 2};
constexpr Del kDel2{kDel1.slut, kBufferSamples};

std::size_t Plads(std::int32_t sample) {
    return static_cast<std::size_t>(sample);
}

bool Slut() {
    return gsElement == kSlutmærke;
}

/// The piece of the present element; nothing for an unknown one.
const Stykke* AktueltStykke() {
    if (gsElement.size() != 1) return nullptr;
    switch (gsElement.front()) {
        case '1':
            return &CWStart;
        case '2':
            return &CWMidte;
        case '3':
            return &CWSlut;
        case '4':
            return &CWPrik;
        case ' ':
        case '0':
            return &CWPause;
        case '-':
            return &CWStreg;
        default:
            return nullptr;
    }
}

/// The part `trin` of 25 of a sample, downwards also where it is negative.
void Dæmp(std::int16_t& sample, int trin) {
    sample = ToInt16(std::floor(static_cast<double>(sample) / kRampe * trin));
}

/// The key that the text has behind the characters done with. "<" brings the two letters behind it together and is done with
/// at once, letters and all; the ">" is then passed by as the character that was sent.
std::string_view NæsteTegn() {
    const std::string_view rest = Columns(gsCWTekst, Plads(glTegnPos + 1));
    if (!rest.starts_with('<')) return rest.substr(0, 1);
    glTegnPos += 3;
    return Columns(rest, 2, 2);
}

void FyldDel(Del del, bool& aktiv, SoundBuffer& buffer) {
    aktiv = false;
    std::int32_t i = del.start;
    const auto indsæt = [&](std::int32_t fra, std::int32_t antal) {
        if (const Stykke* stykke = AktueltStykke()) std::copy_n(stykke->begin() + fra, antal, CWBillede.begin() + i);
        i += antal;
        if (!Slut()) aktiv = true;
    };
    const auto næste = [] {
        if (!Slut()) NæsteElement(gsElement);
    };

    // The rest of the piece that the end of the other half has cut: the tone runs on across the seam.
    if (glCWSlat > 0) {
        indsæt(glCWSlat, Priklen - glCWSlat);
        glCWSlat = 0;
    }
    while (i < del.slut - Priklen) {
        næste();
        indsæt(0, Priklen);
    }
    if (i < del.slut) {
        næste();
        glCWSlat = del.slut - i;
        indsæt(0, glCWSlat);
    }
    buffer.Write(del.start, {CWBillede.begin() + del.start, CWBillede.begin() + del.slut});
}

}  // namespace

void BeregnPriklen() {
    if (giCWWPM == 0) throw RunTimeError(Failure::DivisionByZero);
    Priklen = static_cast<std::int32_t>(std::floor(static_cast<double>(kSamplesPerSecond) * 12 / giCWWPM / 10));
}

void TildelPladser() {
    if (Priklen < kRampe) throw RunTimeError(Failure::IndexOutOfRange);
    CWBillede.assign(2 * kBufferSamples + 1, 0);
    CWStreg.assign(Plads(3 * Priklen + 1), 0);
}

void DanTone() {
    const double w = std::numbers::pi * 2 * giCWTone / kSamplesPerSecond;
    const std::int16_t a = ToInt16(glCWVolume);
    // Each sample comes from the two rounded ones before it, so that the peak wanders a little round A: meant so.
    CWStreg[1] = ToInt16(-std::sin(w) * a);
    const double faktor = 2 * std::cos(w);
    for (std::size_t i = 2; i < CWStreg.size(); ++i) CWStreg[i] = ToInt16(faktor * CWStreg[i - 1] - CWStreg[i - 2]);
}

void DanElementer() {
    const auto stykke = [](Stykke& nyt, std::int32_t fra) {
        nyt.assign(Plads(Priklen + 1), 0);
        std::copy_n(CWStreg.begin() + fra, Priklen, nyt.begin());
    };
    stykke(CWPrik, 0);
    stykke(CWStart, 0);
    // One sample early: a dash has the last sample of its first third twice. Meant so.
    stykke(CWMidte, Priklen - 1);
    stykke(CWSlut, 2 * Priklen - 1);
    CWPause.assign(Plads(Priklen + 1), 0);

    for (int i = 0; i <= kRampe; ++i) {
        Dæmp(CWStart[Plads(i)], i);
        Dæmp(CWPrik[Plads(i)], i);
    }
    for (std::int32_t i = Priklen - kRampe; i <= Priklen; ++i) {
        Dæmp(CWSlut[Plads(i)], Priklen - i);
        Dæmp(CWPrik[Plads(i)], Priklen - i);
    }
}

void NæsteElement(std::string& element) {
    if (glTegnPos > static_cast<std::int32_t>(gsCWTekst.size())) {
        element = kSlutmærke;
        gscwtegn.clear();
        glTegnPos = 0;
        glElementPos = 0;
        return;
    }
    ++glElementPos;
    if (gscwtegn.empty()) gscwtegn = MorseElementer(NæsteTegn());
    const auto længde = static_cast<std::int32_t>(gscwtegn.size());
    if (glElementPos <= længde) {
        element = gscwtegn[Plads(glElementPos - 1)];
        return;
    }
    element = ' ';
    if (glElementPos > længde + 2 + giCWFarnsworth) {
        glElementPos = 0;
        gscwtegn.clear();
        ++glTegnPos;
    }
}

void FyldDel1(bool& aktiv, SoundBuffer& buffer) {
    FyldDel(kDel1, aktiv, buffer);
}

void FyldDel2(bool& aktiv, SoundBuffer& buffer) {
    FyldDel(kDel2, aktiv, buffer);
}

void NulstilStilling() {
    glTegnPos = 0;
    gscwtegn.clear();
    gsElement.clear();
    glElementPos = 0;
}

void NulstilSyntese() {
    NulstilStilling();
    gsCWTekst.clear();
    glCWSlat = 0;
    Priklen = 0;
    for (Stykke* stykke : {&CWStreg, &CWStart, &CWMidte, &CWSlut, &CWPrik, &CWPause, &CWBillede}) stykke->clear();
}

}  // namespace vatro
