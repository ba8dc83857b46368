// SPDX-License-Identifier: MIT
//
// What the benchmarks run on: a log as long as ten big contests and a prefix table that is full.
//
// Both are the same in every run. The calls are made up; their prefixes are those of the program's first tables.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vatro::bench {

inline constexpr int kLogLines = 10000;
/// One more is the spare row of the import's sort.
inline constexpr int kTableRows = 5999;

/// Serial numbers begin again behind it, so that numbers of four figures are left for the contacts that a benchmark logs.
inline constexpr int kHighestNumber = 1000;

/// Contact lines of 79 columns, all in SSB; one in eighty has a multiplier.
std::vector<std::string> SampleLog();

/// Writes lande.txt, refpfx.txt (filled up to kTableRows with exact calls, in order), edr.txt and operator.txt.
void WriteTables(const std::filesystem::path& directory);

/// Writes lines, each ended by CR LF.
void WriteLines(const std::filesystem::path& file, const std::vector<std::string>& lines);

}  // namespace vatro::bench
