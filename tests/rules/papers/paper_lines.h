// SPDX-License-Identifier: MIT
//
// Logs and papers as lines in memory, for tests of papers without the program.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "codepage.h"
#include "errors.h"
#include "papers/context.h"
#include "papers/logs.h"
#include "score/stations.h"

namespace vatro {

using Lines = std::vector<std::string>;

/// The fields of a test line, with their defaults.
struct Told {
    const char* call = "DL1AA";
    int points = 3;
    const char* mult = "";
    const char* operatorCall = "OZ1AB";
    const char* mode = "CW";
    const char* time = "13:05";
    const char* date = "05-09-26";
    const char* sent = "599";
    const char* received = "579";
};

/// A contact line of 79 columns, with the numbers 0012 and 0034.
inline std::string Contact(const Told& told) {
    char line[120];
    std::snprintf(line, sizeof line, "%5s %-15s %-3s-0012 %-3s-0034 %2d %-10s %-6s     %-5s %s", told.time, told.call, told.sent,
                  told.received, told.points, told.mult, told.operatorCall, told.mode, told.date);
    return line;
}

/// A note that holds these texts at its points and multiplier columns.
inline std::string NoteWith(const char* points, const char* mult) {
    char line[120];
    std::snprintf(line, sizeof line, "NOTE: %-34s%-2s %s", "ny antenne", points, mult);
    return line;
}

inline Lines Times(std::size_t n, const std::string& line) {
    return Lines(n, line);
}

inline Lines operator+(Lines a, const Lines& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

/// A source of lines in memory. Reading can be made to fail.
class ListedLines : public LineSource {
public:
    /// `lines` are in UTF-8. The first `good` can be read; after that every read fails.
    explicit ListedLines(Lines lines, std::size_t good = std::numeric_limits<std::size_t>::max()) : lines_(std::move(lines)), good_(good) {}
    bool AtEnd() override { return at_ >= lines_.size(); }
    std::string Next() override {
        if (at_ >= good_) throw RunTimeError(Failure::DiskNotReady);
        if (AtEnd()) throw RunTimeError(Failure::InputPastEnd);
        return FromUtf8(lines_[at_++]);
    }

private:
    Lines lines_;
    std::size_t at_ = 0;
    std::size_t good_;
};

/// A paper in memory, in UTF-8. Writing can be made to fail.
class WrittenLines : public LineSink {
public:
    void Write(std::string_view line) override {
        if (lines.size() >= room) throw RunTimeError(Failure::DiskFull);
        lines.push_back(ToUtf8(line));
    }
    Lines lines;
    std::size_t room = std::numeric_limits<std::size_t>::max();
};

/// Logs in memory. While one is open, no other can be opened.
class ListedLogs : public LogReader {
public:
    LineSource& Open(const LogId& log) override {
        if (open) throw RunTimeError(Failure::FileAlreadyOpen);
        const auto found = logs.find(std::string(log.band).append(log.mode));
        if (found == logs.end()) throw RunTimeError(Failure::FileNotFound);
        return open.emplace(found->second, good);
    }
    void Close() override { open.reset(); }

    /// The lines of each log, by a name like "80mCW"; in UTF-8.
    std::map<std::string, Lines> logs;
    /// How many lines of each log can be read before reading fails.
    std::size_t good = std::numeric_limits<std::size_t>::max();
    std::optional<ListedLines> open;
};

/// Papers of a station without logs, on 5 September 2026.
class Papers : public ::testing::Test {
protected:
    void Log(const std::string& bandMode, const Lines& lines) { logs.logs[bandMode] = lines; }

    ListedLogs logs;
    Stations stations;
    PaperContext context{"OZ1AB/P", "A", "12345678", {}, {2026, 9, 5, 15, 0, 0, 0}, "1.2.3"};
};

inline constexpr LogId k80mCW{"80m", "CW"};

}  // namespace vatro
