// SPDX-License-Identifier: MIT
//
// A program in memory without an operator, with files that the fuzz target provides.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "codepage.h"
#include "frame/log_file.h"
#include "memory_platform.h"
#include "platform.h"
#include "program.h"

namespace vatro {

/// Says OK or Yes to every box.
class Agreeing : public NobodyThere {
public:
    using NobodyThere::Show;
    Answer Show(const MessageBox& box) override { return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Yes; }
    void ShowFailure(const RunTimeError&) override {}
};

/// Files as texts, by their paths in upper case. A path without a text does not exist.
class TextFiles : public Files {
public:
    void Open(int number, std::string_view path, FileMode mode) override {
        Slot& slot = slots_[number];
        if (slot.open) throw RunTimeError(Failure::FileAlreadyOpen);
        const std::string name = UpperText(path);
        if (mode == FileMode::Input && !texts.contains(name)) throw RunTimeError(Failure::FileNotFound);
        if (mode == FileMode::Output) texts[name].clear();
        slot = {true, name, mode == FileMode::Input ? texts[name] : std::string()};
    }
    std::string LineInput(int number) override {
        if (EndOfFile(number)) throw RunTimeError(Failure::InputPastEnd);
        std::string& rest = slots_[number].rest;
        const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
        std::string line = rest.substr(0, end);
        rest.erase(0, end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
        return line;
    }
    bool EndOfFile(int number) override {
        if (!slots_[number].open) throw RunTimeError(Failure::BadFileNumber);
        return slots_[number].rest.empty();
    }
    void PrintLine(int number, std::string_view text) override { Print(number, std::string(text) + "\r\n"); }
    void Print(int number, std::string_view text) override { texts[slots_[number].name] += text; }
    void Close(int number) override { slots_[number] = {}; }
    void Delete(std::string_view path) override { texts.erase(UpperText(path)); }
    void Rename(std::string_view from, std::string_view to) override { texts[UpperText(to)] = std::exchange(texts[UpperText(from)], {}); }
    void Copy(std::string_view from, std::string_view to) override { texts[UpperText(to)] = texts[UpperText(from)]; }
    std::string CurrentDirectory() override { return "data"; }
    char Separator() const override { return '\\'; }

    std::map<std::string, std::string> texts;

private:
    struct Slot {
        bool open = false;
        std::string name;
        std::string rest;
    };
    std::map<int, Slot> slots_;
};

/// The platform. No code of the program runs before BeginProgram.
template <class F>
struct FuzzWorld : MemoryPlatform {
    FuzzWorld() { Install(agreeing, files); }
    Agreeing agreeing;
    F files;
};

/// A program with a few countries and stations, on 80 metres SSB in the directory "log".
struct RunningWorld : FuzzWorld<TextFiles> {
    RunningWorld() {
        files.texts["DATA\\LANDE.TXT"] =
            "DL        Germany                  EU -1 \r\nOZ        Denmark                  EU -1 \r\n"
            "W         United States            NA +5 \r\n";
        files.texts["DATA\\REFPFX.TXT"] = "DL        DL        14 28\r\nOZ        OZ        14 18\r\nW         W         5  8 \r\n";
        files.texts["DATA\\EDR.TXT"] = "OZ1ABC Test, formand\r\n";
        files.texts["DATA\\OPERATOR.TXT"] = "OZ1AB\r\n";
        for (const auto& [key, text] : {std::pair{"gsLogLib", "log"}, std::pair{"LastOP", "OZ1AB"}, std::pair{"VisInfo2002", "False"}})
            settings.Write("Settings", key, text);
    }
};

/// The lines of a text, without their line ends.
inline std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

inline std::string LogName(const LogId& log) {
    return UpperText("log\\" + LogName(log.band, log.mode));
}

/// Puts lines into the ten logs and replaces what is there. The first character of each line selects its log.
inline void FillLogs(std::map<std::string, std::string>& texts, std::string_view input) {
    for (const LogId& log : kTenLogs) texts.erase(LogName(log));
    for (const std::string_view line : LinesOf(input))
        if (!line.empty())
            texts[LogName(kTenLogs[static_cast<unsigned char>(line.front()) % kTenLogs.size()])].append(line.substr(1)).append("\r\n");
}

}  // namespace vatro
