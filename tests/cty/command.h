// SPDX-License-Identifier: MIT
//
// Runs the program vatro-cty as a separate process in a temporary directory.
#pragma once

#include <string>
#include <vector>

#include "child_process.h"
#include "country/lookup.h"
#include "country/tables.h"
#include "disk/temporary_world.h"
#include "frame/state.h"
#include "program.h"
#include "running_program.h"
#include "tables/frmCtyDat.h"
#include "tables/import_country_file.h"

namespace vatro {

/// A header line of Fantasia with this primary prefix.
inline std::string CtyHeader(const std::string& prefix) {
    return "Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  " + prefix + ":";
}

class CtyCommand : public TemporaryWorld {
protected:
    using Result = ProcessResult;

    ~CtyCommand() override {
        if (ProgramRuns()) EndProgram();
        ResetDesk();
    }

    /// Runs it with these arguments in that directory.
    Result Run(const std::vector<std::string>& arguments) const { return RunProcess(VATRO_CTY, arguments, root_); }

    static std::string Joined(const std::vector<std::string>& lines, const std::string& end) {
        std::string all;
        for (const std::string& line : lines) all += line + end;
        return all;
    }
    void PutLines(const std::string& name, const std::vector<std::string>& lines) const { Put(name, Joined(lines, "\r\n")); }

    /// Runs the program's own import on this file of the directory. Returns the number of the failure that stops it, 0 for
    /// none.
    int Import(const std::string& name) {
        Put("cty.dat", Content(name));
        InstallPlatform(front_, {dialogs_, settings_, files_, clock_, help_, instance_, sound_, printer_, {1, 0, 0}});
        BeginProgram();
        ResetDesk();
        desk().gsFDLib = NativeText(root_);
        const int number = NumberOf(ImporterCty);
        // The end of the program does the same.
        files_.Close(1);
        frmCtyDat.Unload();
        return number;
    }
    /// The primary prefix of the country that the program finds for the call, or "".
    static std::string CountryOf(const std::string& call) {
        return std::string(Trim(desk().countries.LandWkd(call, MarkAction::Test).prefix));
    }

    FakeDialogs dialogs_;

private:
    FakeFront front_;
    FakeSettings settings_;
    DiskFiles files_;
    FakeClock clock_;
    FakeHelp help_;
    FakeInstance instance_;
    FakeSound sound_;
    FakePages pages_;
    PageSurface printer_{pages_};
};

}  // namespace vatro
