// SPDX-License-Identifier: MIT
//
// A started program with logs in its directory. The tests make the papers from the menu.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/band_mode.h"
#include "printing/frmInfo.h"
#include "rules/papers/paper_lines.h"
#include "running_program.h"

namespace vatro {

class PaperProgram : public RunningProgram {
protected:
    PaperProgram() {
        files.files["DATA\\LANDE.TXT"] = {"DL        Fed. Rep. of Germany     EU -1 ", "G         England                  EU 0  ",
                                          "OZ        Denmark                  EU -1 ", "VK        Australia                OC -10"};
        files.files["DATA\\REFPFX.TXT"] = {"DL        DL        14 28", "G         G         14 27", "OZ        OZ        14 18",
                                           "VK        VK        30 59"};
        settings.texts["SETTINGS/MYCALL"] = "OZ1AB/P";
        Start();
    }

    /// Sets the log of "80mCW" and so on; texts in UTF-8.
    void Log(std::string_view bandMode, const Lines& lines) {
        Lines& file = files.files[UpperText("log\\FD" + std::string(bandMode) + ".txt")];
        file.clear();
        for (const std::string& line : lines) file.push_back(FromUtf8(line));
    }
    static void Choose(MenuItem& item) {
        Dispatch([&item] { item.Choose(); });
    }
    Lines Paper(const std::string& name) { return LinesOf("log\\" + name); }
    bool HasPaper(const std::string& name) { return files.files.contains(UpperText("log\\" + name)); }
    /// The content of the paper's file, in UTF-8.
    std::string Bytes(const std::string& name) {
        std::string bytes;
        for (const std::string& line : Paper(name)) bytes += line + "\r\n";
        return bytes;
    }
    /// The title of the progress window, followed by its list; in UTF-8.
    static Lines Progress() {
        if (!frmInfo.Loaded()) return {};
        Lines shown{ToUtf8(frmInfo->Caption())};
        for (const std::string& item : frmInfo->steps.Items()) shown.push_back(ToUtf8(item));
        return shown;
    }
    bool IsFree(int number) {
        try {
            files.Open(number, "data\\edr.txt", FileMode::Input);
        } catch (const RunTimeError&) {
            return false;
        }
        files.Close(number);
        return true;
    }
};

}  // namespace vatro
