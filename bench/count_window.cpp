// SPDX-License-Identifier: MIT
//
// Counts the instructions of the program in its windows: from a key until everything is painted, and those of an import. See counted.h for
// how it is run.
//
//   vatro-count-window [LINES | import:LINES]...    keys and Enter for logs of these lengths; imports of so many lines
#include <QApplication>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>

#include "application.h"
#include "counted.h"
#include "deliver.h"
#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "exchange/ct_import.h"
#include "frame/state.h"
#include "names.h"
#include "sample.h"
#include "windows.h"

namespace vatro::bench {

namespace {

void Check(bool holds, const char* fault) {
    if (!holds) throw std::runtime_error(fault);
}

/// Counts the last key until the window is quiet.
void CountKey(std::string_view name, int lines, const std::function<std::string(int round)>& before, std::string_view key) {
    Count(
        {name, lines},
        [&](int round) {
            TypeKeys("\x1b" + before(round));
            UntilQuiet();
        },
        [&](int) {
            TypeKeys(key);
            UntilQuiet();
        });
}

std::string NewCall(int round) {
    return std::string("DL9Q") + static_cast<char>('A' + round) + "Q";
}

void CountKeys(int lines) {
    const std::vector<std::string> log = SampleLog(lines);
    const std::string call = SharedCall(log);
    const Station station(log);
    Windows windows(station.SettingsFile());
    windows.Start(lines);
    windows.WidgetOf(frmMain->fields[kCallField])->window()->activateWindow();
    UntilQuiet();
    windows.WidgetOf(frmMain->fields[kCallField])->setFocus();

    CountKey(
        "window: key without a hit", lines, [](int) { return "DL9QQQ"; }, "Q");
    Check(frmB4->earlierContacts.ListCount() == 0, "the call stands in the log");
    CountKey(
        "window: key with hits", lines, [&call](int) { return call.substr(0, call.size() - 1); }, call.substr(call.size() - 1));
    Check(frmB4->earlierContacts.ListCount() > 0, "there are no hits");
    CountKey("window: duplicate check", lines, NewCall, " ");
    Check(!desk().gbDupe, "the call is a duplicate");
    CountKey(
        "window: Enter", lines, [](int round) { return NewCall(round) + " 345"; }, "\r");
    Check(frmMain->log.ListCount() == lines + 5, "a contact is missing");
}

void CountImport(int lines) {
    const Station station({});
    Windows windows(station.SettingsFile());
    windows.Start(0);
    const std::filesystem::path file = station.Path("felt.40");
    WriteLines(file, CtLog(lines));
    Count(
        {.name = "window: CT import, each line", .lines = lines, .parts = lines, .rounds = 1}, [](int) { UntilQuiet(); },
        [&](int) {
            Deliver([&] { ImporterCt(NativeText(file)); });
            UntilQuiet();
        });
    Check(frmMain->log.ListCount() == lines, "contacts are missing");
}

}  // namespace

}  // namespace vatro::bench

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    // A blinking cursor would be counted with whatever it interrupts.
    QApplication::setCursorFlashTime(0);
    try {
        for (int i = 1; i < argc; ++i) {
            const std::string piece = argv[i];
            if (piece.starts_with("import:"))
                vatro::bench::CountImport(std::atoi(piece.c_str() + 7));
            else
                vatro::bench::CountKeys(std::atoi(piece.c_str()));
        }
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
    return 0;
}
