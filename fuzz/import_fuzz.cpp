// SPDX-License-Identifier: MIT
//
// Imports an arbitrary country file. The import either ends with one of its failures and has written nothing, or leaves sorted
// tables behind. Input: the file itself.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "country/tables.h"
#include "frame/state.h"
#include "tables/frmCtyDat.h"
#include "tables/import_country_file.h"
#include "world.h"

namespace {

using namespace vatro;

class OneFile : public Files {
public:
    void Open(int, std::string_view, FileMode mode) override { wrote = wrote || mode != FileMode::Input; }
    std::string LineInput(int) override {
        if (EndOfFile(1)) throw RunTimeError(Failure::InputPastEnd);
        std::string line(rest.substr(0, rest.find('\n')));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        return line;
    }
    bool EndOfFile(int) override { return rest.empty(); }
    void PrintLine(int, std::string_view) override {}
    void Print(int, std::string_view) override {}
    void Close(int) override {}
    void Delete(std::string_view) override {}
    void Rename(std::string_view, std::string_view) override {}
    void Copy(std::string_view, std::string_view) override {}
    std::string CurrentDirectory() override { return {}; }
    char Separator() const override { return '/'; }
    std::string_view rest;
    bool wrote = false;
};

struct World : FuzzWorld<OneFile> {
    World() {
        BeginProgram();
        frmCtyDat.Load();
    }
};

bool Expected(Failure failure) {
    return failure == Failure::InvalidCall || failure == Failure::Overflow || failure == Failure::IndexOutOfRange ||
           failure == Failure::InputPastEnd;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto* const world = new World;
    desk().tables = {};
    world->files.rest = {reinterpret_cast<const char*>(data), size};
    world->files.wrote = false;
    try {
        ImporterCty();
    } catch (const RunTimeError& failure) {
        if (!Expected(failure.Which()) || world->files.wrote || desk().tables.Rows().giRefPfx != 0) __builtin_trap();
        return 0;
    }
    const CountryTables& tables = desk().tables;
    if (tables.Rows().giLande > kCountryRows || tables.Rows().giRefPfx > kPrefixRows) __builtin_trap();
    for (int i = 1; i <= tables.Rows().giRefPfx; ++i) {
        const auto found = tables.FindWholeCall(tables.Rows().RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed(), 1);
        if (!found || *found > i) __builtin_trap();
    }
    return 0;
}
