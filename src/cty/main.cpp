// SPDX-License-Identifier: MIT
//
//   vatro-cty CTY.DAT            checks a country file against the rules of the import
//   vatro-cty CTY.DAT NY.DAT    writes one that the import takes, and tells what it has left out
//
// Exit 1 if the file cannot be taken, or not be made to fit; nothing is written then. Exit 2 for another number of arguments.
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

std::string Læs(const std::string& sti) {
    std::ifstream fil(PathOfUtf8(sti), std::ios::binary);
    try {
        if (fil) return {std::istreambuf_iterator<char>(fil), {}};
    } catch (const std::ios_base::failure&) {
        // As a directory does.
    }
    throw CtyFejl{sti + " kan ikke læses"};
}

/// Writes the file whole or not at all.
void Skriv(const std::string& sti, const std::vector<std::string>& linjer) {
    const std::filesystem::path ny = PathOfUtf8(sti + ".ny");
    std::ofstream fil(ny, std::ios::binary);
    for (const std::string& linje : linjer) fil << linje << "\r\n";
    fil.close();
    std::error_code fejl;
    if (fil) std::filesystem::rename(ny, PathOfUtf8(sti), fejl);
    if (fil && !fejl) return;
    std::filesystem::remove(ny, fejl);
    throw CtyFejl{sti + " kan ikke skrives"};
}

void Fortæl(const char* hvad, const std::vector<std::string>& poster) {
    if (poster.empty()) return;
    std::cout << poster.size() << " " << hvad << ":\n ";
    for (const std::string& post : poster) std::cout << ' ' << ToUtf8(post);
    std::cout << '\n';
}

/// Tells what is wrong; whether nothing is.
bool Kontroller(const std::vector<CtyLand>& lande) {
    const std::vector<std::string> fejl = KontrollerCty(lande);
    for (const std::string& linje : fejl) std::cerr << linje << '\n';
    return fejl.empty();
}

int Tilpas(std::vector<CtyLand>& lande, const std::string& sti) {
    const CtyUdeladt ude = TilpasCty(lande);
    const std::vector<std::string> linjer = SkrivCty(lande);
    if (!Kontroller(LæsCtyFil(linjer))) return 1;
    Skriv(sti, linjer);
    Fortæl("lande med * er udeladt", ude.lande);
    Fortæl("poster står allerede under et andet land og er udeladt", ude.dubletter);
    Fortæl("kald er udeladt, fordi programmet aldrig finder dem", ude.uopnåelige);
    Fortæl("poster er udeladt uden tab", ude.intetTabt);
    Fortæl("poster er udeladt, kun deres zoner er tabt", ude.zoner);
    Fortæl("kald er udeladt og hører nu til et andet land eller intet", ude.kald);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> argumenter = CommandLine(argc, argv);
    if (argumenter.size() != 2 && argumenter.size() != 3) {
        std::cerr << "brug: vatro-cty CTY.DAT [NY.DAT]\n";
        return 2;
    }
    try {
        std::vector<CtyLand> lande = LæsCtyFil(CtyLinjer(Læs(argumenter[1])));
        if (argumenter.size() == 3) return Tilpas(lande, argumenter[2]);
        if (!Kontroller(lande)) return 1;
        std::cout << lande.size() << " lande, filen kan importeres\n";
        return 0;
    } catch (const CtyFejl& fejl) {
        std::cerr << "vatro-cty: " << fejl.tekst << '\n';
        return 1;
    }
}
