// SPDX-License-Identifier: MIT
//
// Starts the program with arbitrary tables of countries, prefixes, the society's stations and operators. The program starts,
// looks calls up and computes their points, or it ends with a failure that it reports. Input: lines; the first character of
// each selects the table.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "country/tables.h"
#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "frame/start.h"
#include "frame/state.h"
#include "score/stations.h"
#include "tables/worked.h"
#include "world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vatro;
    static auto* const world = new RunningWorld;
    constexpr std::array kTables{"DATA\\LANDE.TXT", "DATA\\REFPFX.TXT", "DATA\\EDR.TXT", "DATA\\OPERATOR.TXT"};
    auto& texts = world->files.texts;
    for (const char* table : kTables) texts[table].clear();
    for (const std::string_view line : LinesOf({reinterpret_cast<const char*>(data), size}))
        if (!line.empty()) texts[kTables[static_cast<unsigned char>(line.front()) % kTables.size()]].append(line.substr(1)).append("\r\n");

    BeginProgram();
    Dispatch(StartProgram);
    if (!ProgramRuns()) return 0;
    if (desk().tables.CountriesInUse() > kCountryRows || desk().tables.Rows().giRefPfx > kPrefixRows + 1 ||
        desk().stations.StationsInUse() > kEdrRows)
        __builtin_trap();
    for (const char* call : {"OZ1ABC", "OZ1ABC/P", "W1AW", "SV9/DL1XYZ", "Q"}) {
        Dispatch([&] {
            frmMain->fields[kCallField].SetText(call);
            RecordPoints(call);
        });
        if (!ProgramRuns()) return 0;
    }
    EndProgram();
    return 0;
}
