// SPDX-License-Identifier: MIT
//
// Counts the instructions of the logic alone: the program with files on the disk and the front in memory. See counted.h for how it is
// run.
//
//   vatro-count [LINES...]               keys, Enter and the load of a log for logs of these lengths, and what does not depend on the log
//   vatro-count --furnish HOME LINES     writes a log of this length, tables and settings for the program into the directory HOME
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "counted.h"
#include "disk_settings.h"
#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "exchange/ct_import.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "names.h"
#include "paper_station.h"
#include "sample.h"
#include "started_program.h"
#include "tables/worked.h"

namespace vatro::bench {

namespace {

void Check(bool holds, const char* fault) {
    if (!holds) throw std::runtime_error(fault);
}

int Shown() {
    return frmB4->earlierContacts.ListCount();
}

void CountKeys(int lines) {
    const std::vector<std::string> log = SampleLog(lines);
    Program program(log);
    const auto begin = [&program](std::string_view call) {
        program.Press("Esc");
        program.Type(call);
    };
    Count(
        {"log loaded", lines}, [](int) {}, [](int) { IndlæsLogfil(); });
    Check(frmMain->log.ListCount() == lines, "the log was not read");

    Count(
        {"key without a hit", lines}, [&](int) { begin("DL9QQQ"); }, [&](int) { program.Type("Q"); });
    Check(Shown() == 0, "the call stands in the log");
    const std::string call = SharedCall(log);
    Count(
        {"key with hits", lines}, [&](int) { begin(call.substr(0, call.size() - 1)); },
        [&](int) { program.Type(call.substr(call.size() - 1)); });
    Check(Shown() >= 1, "there are no hits");
    Count(
        {"worked-before search", lines}, [&](int) { begin("Q"); }, [&](int) { program.Type("/"); });

    Count(
        {"duplicate check", lines}, [&](int round) { begin(std::string("DL9Q") + static_cast<char>('A' + round) + "Q"); },
        [&](int) { program.Press("Space"); });
    Check(!desk().gbDupe, "the call is a duplicate");
    Count(
        {"Enter", lines},
        [&](int round) {
            begin(std::string("DL9Q") + static_cast<char>('A' + round) + "Q");
            program.Press("Space");
            program.Type("345");
        },
        [&](int) { program.Press("Enter"); });
    Check(frmMain->log.ListCount() == lines + 5, "a contact is missing");
}

void CountCountries() {
    const Program program({});
    CountryStatus status;
    Count(
        {"country lookup, ZS"}, [](int) {},
        [&](int round) { status = ShownCountry(std::string("ZS6AA") + static_cast<char>('A' + round)); });
    Check(!status.unknown, "the country was not found");
    Count(
        {"country lookup, ZS, same call again"}, [](int) {}, [&](int) { status = ShownCountry("ZS6AAA"); });
    Count(
        {"country lookup, unknown prefix"}, [](int) {},
        [&](int round) { status = ShownCountry(std::string("QQ9QQ") + static_cast<char>('A' + round)); });
    Check(status.unknown, "the country was found");
}

void CountPapers() {
    const PaperStation station;
    Count(
        {.name = "error list of ten logs", .rounds = 3}, [](int) {}, [](int) { PaperStation::Choose(frmMain->mnuFilerDanFejlliste); });
    Check(station.Lines() == 2 + 4 * kTenLogs.size(), "errors were found");
}

void CountImport(int lines) {
    const Program program({});
    const std::filesystem::path file = program.Path("felt.40");
    WriteLines(file, CtLog(lines));
    Count(
        {.name = "CT import, each line", .lines = lines, .parts = lines, .rounds = 1}, [](int) {},
        [&](int) { ImporterCt(NativeText(file)); });
    Check(frmMain->log.ListCount() == lines, "contacts are missing");
}

void FurnishHome(const std::filesystem::path& home, int lines) {
    std::filesystem::create_directories(home / ".config/vatro");
    DiskSettings settings(home / ".config/vatro/vatro.ini");
    const Workplace workplace(home);
    workplace.Furnish(SampleLog(lines), settings);
    for (const char* name : {"data", "log"}) std::filesystem::rename(workplace.Path(name), home / name);
    settings.Write("Settings", "gsFDLib", NativeText(home / "data"));
    settings.Write("Settings", "gsLogLib", NativeText(home / "log"));
    settings.Flush();
}

}  // namespace

}  // namespace vatro::bench

int main(int argc, char** argv) {
    try {
        if (argc == 4 && std::strcmp(argv[1], "--furnish") == 0) {
            vatro::bench::FurnishHome(std::filesystem::absolute(argv[2]), std::atoi(argv[3]));
            return 0;
        }
        vatro::bench::CountCountries();
        vatro::bench::CountPapers();
        for (const int lines : {2500, 10000}) vatro::bench::CountImport(lines);
        for (int i = 1; i < argc; ++i) vatro::bench::CountKeys(std::atoi(argv[i]));
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
    return 0;
}
