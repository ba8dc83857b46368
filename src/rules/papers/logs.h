// SPDX-License-Identifier: MIT
//
// The ten logs as papers read them: each anew from its file, a line at a time, and never changed. What is in memory of the
// log being worked on plays no part.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "frame/log_file.h"

namespace vatro {

/// File numbers: of the log being read, and of the paper being written.
inline constexpr int kLogFil = 1;
inline constexpr int kPapirFil = 2;

/// The order in which papers set them out.
inline constexpr std::array<LogId, 10> kPapirOrden{{{"80m", "CW"},
                                                    {"80m", "SSB"},
                                                    {"40m", "CW"},
                                                    {"40m", "SSB"},
                                                    {"20m", "CW"},
                                                    {"20m", "SSB"},
                                                    {"15m", "CW"},
                                                    {"15m", "SSB"},
                                                    {"10m", "CW"},
                                                    {"10m", "SSB"}}};

/// Opens a log for reading under its number. Fails as Files::Open does.
void ÅbnLog(const LogId& log);
/// Opens a file of the log directory for a paper, which replaces it.
void ÅbnPapir(std::string_view navn);
/// Prints to the paper: a line, or a blank line, which holds one blank.
void Skriv(std::string_view linje);
void SkrivBlank();

/// Whether the line is a note. Unlike the load of a log, papers know the mark only in upper case.
bool ErNotelinje(std::string_view linje);
/// Whether the line counts as a contact: neither a note nor marked as a duplicate.
bool TællerSomQSO(std::string_view linje);
/// Whether the line counts as a multiplier: a contact whose column 44 is not a blank. A line that ends before it counts.
bool TællerSomMult(std::string_view linje);

/// Sums of lines. A sum over 32 bits fails with 6.
struct LogSum {
    std::int32_t Points = 0;
    std::int32_t Mults = 0;
    std::int32_t Score = 0;

    /// Every line counts with the value of its points columns, notes and duplicates too: meant so, they hold 0.
    void Tæl(std::string_view linje);
    void TælPoint(std::string_view linje);
    void LægTil(const LogSum& andre);
    /// Multipliers times points.
    void BeregnScore();
};

}  // namespace vatro
