// SPDX-License-Identifier: MIT
#include "papers/logs.h"
#include "frame/state.h"

#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

void ÅbnLog(const LogId& log) {
    platform().files.Open(kLogFil, LogPath(log.band, log.mode), FileMode::Input);
}

void ÅbnPapir(std::string_view navn) {
    platform().files.Open(kPapirFil, PathIn(desk().gsLogLib, navn), FileMode::Output);
}

void Skriv(std::string_view linje) {
    platform().files.PrintLine(kPapirFil, linje);
}

void SkrivBlank() {
    Skriv(" ");
}

bool ErNotelinje(std::string_view linje) {
    return linje.starts_with(kNoteMark);
}

bool TællerSomQSO(std::string_view linje) {
    return !kMultiplier.Of(linje).starts_with(kDupeMark) && !ErNotelinje(linje);
}

bool TællerSomMult(std::string_view linje) {
    return !kMultiplier.Of(linje).starts_with(' ') && TællerSomQSO(linje);
}

void LogSum::Tæl(std::string_view linje) {
    if (TællerSomMult(linje)) ++Mults;
    TælPoint(linje);
}

void LogSum::TælPoint(std::string_view linje) {
    Points = ToInt32(Points + NumericValue(kPoint.Of(linje)));
}

void LogSum::LægTil(const LogSum& andre) {
    Points = ToInt32(static_cast<double>(Points) + andre.Points);
    Mults += andre.Mults;
}

void LogSum::BeregnScore() {
    Score = ToInt32(static_cast<double>(Mults) * Points);
}

}  // namespace vatro
