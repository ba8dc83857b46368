// SPDX-License-Identifier: MIT
#include "papers/logs.h"

#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

void ÅbnLog(const BåndMode& log) {
    platform().files.Open(kLogFil, LogSti(log.bånd, log.mode), FileMode::Input);
}

void ÅbnPapir(std::string_view navn) {
    platform().files.Open(kPapirFil, Sti(gsLogLib, navn), FileMode::Output);
}

void Skriv(std::string_view linje) {
    platform().files.PrintLine(kPapirFil, linje);
}

void SkrivBlank() {
    Skriv(" ");
}

bool ErNotelinje(std::string_view linje) {
    return linje.starts_with(kNoteMærke);
}

bool TællerSomQSO(std::string_view linje) {
    return !kMultiplier.Af(linje).starts_with(kDupeMærke) && !ErNotelinje(linje);
}

bool TællerSomMult(std::string_view linje) {
    return !kMultiplier.Af(linje).starts_with(' ') && TællerSomQSO(linje);
}

void LogSum::Tæl(std::string_view linje) {
    if (TællerSomMult(linje)) ++Mults;
    TælPoint(linje);
}

void LogSum::TælPoint(std::string_view linje) {
    Points = ToInt32(Points + NumericValue(kPoint.Af(linje)));
}

void LogSum::LægTil(const LogSum& andre) {
    Points = ToInt32(static_cast<double>(Points) + andre.Points);
    Mults += andre.Mults;
}

void LogSum::BeregnScore() {
    Score = ToInt32(static_cast<double>(Mults) * Points);
}

}  // namespace vatro
