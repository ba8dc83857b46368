// SPDX-License-Identifier: MIT
//
//   vatro-cty CTY.DAT            checks whether a country file can be imported
//   vatro-cty CTY.DAT NY.DAT     writes a version that can be imported, and reports what was left out
//
// Exits with 1 if the file cannot be imported, or cannot be made to fit; nothing is written then. Exits with 2 for a wrong number of
// arguments.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "codepage.h"
#include "command_line.h"
#include "country/cty_fit.h"
#include "names.h"

namespace {

using namespace vatro;

std::string ReadWhole(const std::string& path) {
    std::ifstream file(PathOfUtf8(path), std::ios::binary);
    try {
        if (file) return {std::istreambuf_iterator<char>(file), {}};
    } catch (const std::ios_base::failure&) {
        // For example, if the path is a directory.
    }
    throw CtyError{path + " kan ikke læses"};
}

/// Replaces the file; if writing fails, the old file stays as it was. Not synced: after a power cut the tool can be run again.
void WriteWhole(const std::string& path, const std::vector<std::string>& lines) {
    const std::filesystem::path fresh = PathOfUtf8(path + ".ny");
    std::ofstream file(fresh, std::ios::binary);
    for (const std::string& line : lines) file << line << "\r\n";
    file.close();
    std::error_code error;
    if (file) std::filesystem::rename(fresh, PathOfUtf8(path), error);
    if (file && !error) return;
    std::filesystem::remove(fresh, error);
    throw CtyError{path + " kan ikke skrives"};
}

void Tell(const char* what, const std::vector<std::string>& items) {
    if (items.empty()) return;
    std::cout << items.size() << " " << what << ":\n ";
    for (const std::string& item : items) std::cout << ' ' << ToUtf8(item);
    std::cout << '\n';
}

/// Reports what is wrong. Returns true if nothing is.
bool Check(const std::vector<CtyCountry>& countries) {
    const std::vector<std::string> faults = CheckCty(countries);
    for (const std::string& fault : faults) std::cerr << fault << '\n';
    return faults.empty();
}

int Fit(const std::vector<CtyCountry>& whole, const std::string& path) {
    const auto [countries, omissions] = FitCty(whole);
    const std::vector<std::string> lines = WriteCty(countries);
    if (!Check(ReadCtyFile(lines))) return 1;
    WriteWhole(path, lines);
    Tell("lande med * er udeladt", omissions.countries);
    Tell("poster står allerede under et andet land og er udeladt", omissions.duplicates);
    Tell("kald er udeladt, fordi programmet aldrig finder dem", omissions.unreachable);
    Tell("poster er udeladt uden tab", omissions.nothingLost);
    Tell("poster er udeladt, kun deres zoner er tabt", omissions.zones);
    Tell("kald er udeladt og hører nu til et andet land eller intet", omissions.lostCalls);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments = CommandLine(argc, argv);
    if (arguments.size() != 2 && arguments.size() != 3) {
        std::cerr << "brug: vatro-cty CTY.DAT [NY.DAT]\n";
        return 2;
    }
    try {
        const std::vector<CtyCountry> countries = ReadCtyFile(CtyLines(ReadWhole(arguments[1])));
        if (arguments.size() == 3) return Fit(countries, arguments[2]);
        if (!Check(countries)) return 1;
        std::cout << countries.size() << " lande, filen kan importeres\n";
        return 0;
    } catch (const CtyError& error) {
        std::cerr << "vatro-cty: " << error.text << '\n';
        return 1;
    }
}
