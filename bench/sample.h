// SPDX-License-Identifier: MIT
//
// The input of the benchmarks: a log as long as those of ten big contests together, or of another length, and a full prefix
// table.
//
// Both are the same in every run. The calls are invented; their prefixes are those of the tables that the program is delivered
// with.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vatro::bench {

inline constexpr int kLogLines = 10000;
/// The table has one more row, the spare row that the import's sort uses.
inline constexpr int kTableRows = 5999;

/// Serial numbers start again after this one, so that four-digit numbers remain free for the contacts that a benchmark logs.
inline constexpr int kHighestNumber = 1000;

/// Contact lines of 79 columns, all in SSB; one in eighty is a multiplier. A longer log begins with the lines of a shorter one.
std::vector<std::string> SampleLog(int lines = kLogLines);

/// The same contacts as a log of 40 metres SSB in the format of CT, after a head of three lines.
std::vector<std::string> CtLog(int lines);

/// A call of the log that shares all but its last character with others, though with fewer than the fifty that are shown at most: a search
/// for it, or for what it shares, runs through the whole log and finds something. In a short log, any call.
std::string SharedCall(const std::vector<std::string>& log);

/// Writes lande.txt, refpfx.txt (filled up to kTableRows with exact calls, in sorted order), edr.txt and operator.txt.
void WriteTables(const std::filesystem::path& directory);

/// Writes the lines, each ending in CR LF.
void WriteLines(const std::filesystem::path& file, const std::vector<std::string>& lines);

}  // namespace vatro::bench
