// SPDX-License-Identifier: MIT
//
// Imports an arbitrary CT log. The import succeeds or ends with one of its documented failures. Every contact logged until then
// is in the file and in the list alike, has the same columns as any other line, and counts the same when the log is loaded
// again.
// Input: the file itself.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "entry/frmMain.h"
#include "exchange/ct_import.h"
#include "frame/log_file.h"
#include "frame/start.h"
#include "frame/state.h"
#include "log/contact_line.h"
#include "world.h"

namespace {

using namespace vatro;

/// A number of five digits, which "9E99" becomes, moves the columns behind it, so such a line is not checked.
bool InItsColumns(std::string_view line) {
    constexpr std::size_t kLength = 79;
    if (line.size() < kLength) return false;
    if (line.size() > kLength) return true;
    for (const std::size_t blank : {6U, 22U, 31U, 40U, 43U, 54U, 61U, 65U, 71U})
        if (line[blank - 1] != ' ') return false;
    return line[25] == '-' && line[34] == '-' && Trim(kOperator.Of(line)) == "CT-IMP";
}

bool Expected(Failure failure) {
    return failure == Failure::InvalidCall || failure == Failure::Overflow || failure == Failure::TypeMismatch;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto* const world = new RunningWorld;
    auto& texts = world->files.texts;
    texts["FELT.40"].assign(reinterpret_cast<const char*>(data), size);
    for (const char* log : {"LOG\\FD40MSSB.TXT", "LOG\\FD40MCW.TXT", "LOG\\FDCW.TXT"}) texts.erase(log);
    BeginProgram();
    Dispatch(StartProgram);
    try {
        ImporterCt("felt.40");
    } catch (const RunTimeError& failure) {
        if (!Expected(failure.Which())) __builtin_trap();
    }
    std::string file;
    for (const std::string& line : frmMain->log.Items()) {
        if (!InItsColumns(line)) __builtin_trap();
        file += line + "\r\n";
    }
    const auto written = texts.find(UpperText(CurrentLogPath()));
    if (file != (written == texts.end() ? std::string() : written->second)) __builtin_trap();

    const std::int32_t points = desk().log.glPoint;
    const int count = frmMain->log.ListCount();
    const bool whole = file.size() == static_cast<std::size_t>(count) * 81;
    world->files.Close(2);
    IndlæsLogfil();
    // A serial number that is too long moves the columns that the points are read from.
    if (whole && (desk().log.glPoint != points || frmMain->log.ListCount() != count)) __builtin_trap();
    EndProgram();
    return 0;
}
