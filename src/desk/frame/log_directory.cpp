// SPDX-License-Identifier: MIT
#include "frame/log_directory.h"

#include <string>

#include "codepage.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "frame/station.h"
#include "platform.h"
#include "program.h"

namespace vatro {

using namespace literals;

void SetLogLib() {
    Files& files = platform().files;
    std::string& directory = desk().gsLogLib;
    try {
        const std::string file = ChooseMarkerFile("setlog.txt", "Vælg eller opret logbibliotek"_t);
        files.Open(1, file, FileMode::Output);
        files.Close(1);
        directory = DirectoryOf(file);
        MsgBox("Logbibliotek sat til: " + directory + files.Separator());
        IndlæsLogfil();
    } catch (const RunTimeError&) {
        if (directory.empty()) {
            MsgBox("Logbibliotek er ikke angivet. Vatro standses."_t);
            EndProgram();
        }
        MsgBox("Logbibliotek er beholdt som: " + directory + files.Separator());
    }
}

}  // namespace vatro
