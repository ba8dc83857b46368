// SPDX-License-Identifier: MIT
//
// Makes every paper from ten arbitrary logs. Each paper is finished whatever the lines hold; the program ends only if a sum is
// too large or a table is full. The lengths in the ADIF file match its texts. Input: as for the log_fuzz target.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "entry/frmMain.h"
#include "frame/start.h"
#include "printing/exports.h"
#include "printing/printer.h"
#include "printing/sheets.h"
#include "world.h"

namespace {

using namespace vatro;

void Make(void (*paper)()) {
    try {
        paper();
    } catch (const RunTimeError& failure) {
        if (failure.Which() != Failure::Overflow && failure.Which() != Failure::IndexOutOfRange) __builtin_trap();
    }
    for (const int number : {1, 2}) platform().files.Close(number);
}

/// Whether the text consists of fields with the length that they state, and of text between them that starts no field.
bool ReadsAsAdif(std::string_view text) {
    const std::size_t head = text.find("<EOH>");
    if (head == std::string_view::npos) return false;
    text.remove_prefix(head + 5);
    for (std::size_t tag = text.find('<'); tag != std::string_view::npos; tag = text.find('<')) {
        const std::size_t end = text.find('>', tag);
        if (end == std::string_view::npos) return false;
        const std::string name(text.substr(tag + 1, end - tag - 1));
        text.remove_prefix(end + 1);
        if (name == "EOR" || name == "eor") continue;
        const std::size_t colon = name.find(':');
        if (colon == std::string::npos) return false;
        const auto length = static_cast<std::size_t>(std::strtoul(name.c_str() + colon + 1, nullptr, 10));
        if (length > text.size()) return false;
        text.remove_prefix(length);
        if (text.empty() || (text.front() != ' ' && text.front() != '<' && text.front() != '\r')) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto* const world = new RunningWorld;
    auto& texts = world->files.texts;
    FillLogs(texts, {reinterpret_cast<const char*>(data), size});
    BeginProgram();
    Dispatch(StartProgram);
    for (void (*paper)() : {MakeAllPapers, MakeHtmlPage, ExportAdif}) Make(paper);
    Make([] { RunPrintJob("Alle papirer", PrintAll); });
    world->pages.TakeJobs();
    for (const auto& [name, text] : texts)
        if (name.ends_with(".ADI") && !ReadsAsAdif(text)) __builtin_trap();
    EndProgram();
    return 0;
}
