// SPDX-License-Identifier: MIT
#include "tables/load_tables.h"

#include <string>
#include <string_view>

#include "codepage.h"
#include "frame/frmSplash.h"
#include "frame/state.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

using namespace literals;

namespace {

struct TableFile {
    std::string_view file;
    /// The file name as the message spells it.
    std::string_view name;
    std::string_view stage;
};

/// Reads every line of a data file. If the file cannot be read, or one of its lines is invalid, a message names the file.
void LoadTable(const TableFile& table, void (CountryTables::*begin)(), void (CountryTables::*read)(std::string_view)) {
    Files& files = platform().files;
    try {
        files.Open(1, PathIn(desk().gsFDLib, table.file), FileMode::Input);
        frmSplash->ShowStage(table.stage);
        CountryTables& tables = desk().tables;
        (tables.*begin)();
        while (!files.EndOfFile(1)) (tables.*read)(files.LineInput(1));
        files.Close(1);
    } catch (const RunTimeError&) {
        files.Close(1);
        MessageBox message;
        message.text = PathIn(desk().gsFDLib, table.name) + " kunne ikke findes. Importer cty.dat";
        message.icon = Icon::Information;
        MsgBox(message);
    }
}

}  // namespace

void IndlæsLande() {
    LoadTable({"lande.txt", "Lande.txt", "Indlæser lande.txt"_t}, &CountryTables::BeginCountries, &CountryTables::ReadCountry);
}

void IndlæsRefPfx() {
    LoadTable({"refpfx.txt", "RefPfx.txt", "Indlæser refpfx.txt"_t}, &CountryTables::BeginPrefixes, &CountryTables::ReadPrefix);
    desk().tables.IndexPrefixes();
}

void IndlæsEDR() {
    Files& files = platform().files;
    const std::string path = PathIn(desk().gsFDLib, "edr.txt");
    try {
        files.Open(1, path, FileMode::Input);
        desk().stations.BeginReading();
        while (!files.EndOfFile(1)) desk().stations.Read(files.LineInput(1));
        files.Close(1);
    } catch (const RunTimeError&) {
        MsgBox("Kan ikke finde filen " + path);
    }
}

}  // namespace vatro
