// SPDX-License-Identifier: MIT
#include "frame/station.h"

#include "numbers.h"
#include "platform.h"

namespace vatro {

std::string gsFDLib;
std::string gsMyCall;
std::string gsKlasse;
std::string gsTelefon;
std::string gsUTC;
bool gbVisInfo = false;

DateTime NuUTC() {
    return AddHours(platform().clock.Now(), ToInt16(ToNumber(gsUTC)));
}

std::string NuUTCTid() {
    const DateTime nu = NuUTC();
    return FormatTime(nu.hour, nu.minute);
}

std::string Sti(const std::string& bibliotek, std::string_view navn) {
    std::string sti = bibliotek;
    sti += platform().files.Separator();
    sti += navn;
    return sti;
}

std::string BibliotekAf(const std::string& sti) {
    const std::size_t skel = sti.find_last_of(platform().files.Separator());
    if (skel == std::string::npos) throw RunTimeError(Failure::InvalidCall);
    return sti.substr(0, skel);
}

std::string VælgMærkefil(std::string_view navn, std::string_view titel) {
    FileDialog dialog;
    dialog.fileName = navn;
    dialog.title = titel;
    dialog.filter = std::string(navn) + " (*.txt)|*.txt";
    dialog.defaultExtension = "txt";
    dialog.overwritePrompt = true;
    dialog.markerFile = true;
    return platform().dialogs.SaveFile(dialog);
}

void NulstilStation() {
    gsFDLib.clear();
    gsMyCall.clear();
    gsKlasse.clear();
    gsTelefon.clear();
    gsUTC.clear();
    gbVisInfo = false;
}

}  // namespace vatro
