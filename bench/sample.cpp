// SPDX-License-Identifier: MIT
#include "sample.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <set>
#include <stdexcept>

#include "columns.h"
#include "log/contact_line.h"

namespace vatro::bench {

namespace fs = std::filesystem;

namespace {

/// Fills up a prefix for sorting, so that it comes after the longer prefixes that begin with it.
constexpr char kFiller = '\xE5';

std::vector<std::string> ReadLines(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file.string());
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::string TwoFigures(int number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

/// Gives the same calls in every run: the generator of the standard library is used, and its numbers are taken unchanged.
class CallMaker {
public:
    CallMaker() {
        for (const std::string& line : ReadLines(fs::path(VATRO_DATA) / "refpfx.txt")) {
            const std::string_view prefix = Trim(Columns(line, 1, 10));
            if (prefix.size() <= 3 && prefix.find('/') == std::string_view::npos) prefixes_.emplace_back(prefix);
        }
    }

    std::string Prefix() { return prefixes_[Below(prefixes_.size())]; }

    std::string Call() {
        std::string call = Prefix();
        if (call.back() < '0' || call.back() > '9') call += static_cast<char>('0' + Below(10));
        for (std::size_t letters = 2 + Below(2); letters > 0; --letters) call += static_cast<char>('A' + Below(26));
        return call;
    }

    std::size_t Below(std::size_t limit) { return random_() % limit; }

private:
    std::mt19937 random_{20260905};
    std::vector<std::string> prefixes_;
};

}  // namespace

std::vector<std::string> SampleLog(int count) {
    CallMaker maker;
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(count));
    for (int number = 1; number <= count; ++number) {
        const int minute = number % 1440;
        const auto figures = [](int n) { return TwoFigures(n / 100) + TwoFigures(n); };
        Contact qso;
        qso.time = TwoFigures(minute / 60) + ":" + TwoFigures(minute % 60);
        qso.call = maker.Call();
        qso.reportSent = "59";
        qso.numberSent = figures((number - 1) % kHighestNumber + 1);
        qso.reportReceived = "59";
        qso.numberReceived = figures(static_cast<int>(maker.Below(2000)) + 1);
        qso.point = 3;
        if (number % 80 == 0) qso.multiplier = maker.Prefix();
        qso.operatorCall = "OZ1QN";
        qso.qsoMode = "SSB";
        qso.date = "05-09-26";
        lines.push_back(QsoLine(qso, "SSB"));
    }
    return lines;
}

std::vector<std::string> CtLog(int count) {
    std::vector<std::string> lines{"", "", std::string(43, ' ') + "SSB"};
    for (const std::string& line : SampleLog(count)) {
        std::string ct = "    05-Sep-26   ";
        ct.append(kTime.Of(line).substr(0, 2)).append(kTime.Of(line).substr(3)).append("  ");
        ct.append(kNumberSent.Of(line)).append(std::string(9, ' '));
        ct.append(kCall.Of(line).substr(0, 12)).append(" ").append(kReportReceived.Of(line)).append(" ").append(kNumberReceived.Of(line));
        lines.push_back(ct);
    }
    return lines;
}

std::string SharedCall(const std::vector<std::string>& log) {
    std::vector<std::string> calls;
    for (const std::string& line : log) calls.emplace_back(kCall.TrimmedOf(line));
    const auto holders = [&calls](std::string_view text) {
        return std::count_if(calls.begin(), calls.end(), [text](const std::string& call) { return call.find(text) != std::string::npos; });
    };
    // At most this many are tried.
    constexpr std::size_t kTries = 500;
    for (std::size_t i = 0; i < std::min(kTries, calls.size()); ++i) {
        const std::string& call = calls[calls.size() - 1 - i];
        const auto sharing = holders(call.substr(0, call.size() - 1));
        if (sharing < 50 && sharing > holders(call)) return call;
    }
    return calls.back();
}

void WriteTables(const fs::path& directory) {
    for (const char* name : {"lande.txt", "edr.txt", "operator.txt"})
        fs::copy_file(fs::path(VATRO_DATA) / name, directory / name, fs::copy_options::overwrite_existing);

    CallMaker maker;
    std::vector<std::string> rows = ReadLines(fs::path(VATRO_DATA) / "refpfx.txt");
    std::set<std::string> calls;
    while (rows.size() < static_cast<std::size_t>(kTableRows)) {
        const std::string call = maker.Call();
        if (calls.insert(call).second) rows.push_back(LeftAligned(call, 10) + LeftAligned(call.substr(0, 2), 10) + "14 18");
    }
    const auto key = [](const std::string& row) {
        std::string prefix(Trim(Columns(row, 1, 10)));
        prefix.resize(10, kFiller);
        return prefix;
    };
    std::stable_sort(rows.begin(), rows.end(), [&key](const std::string& a, const std::string& b) { return key(a) < key(b); });
    WriteLines(directory / "refpfx.txt", rows);
}

void WriteLines(const fs::path& file, const std::vector<std::string>& lines) {
    std::ofstream out(file, std::ios::binary);
    for (const std::string& line : lines) out << line << "\r\n";
    out.close();
    if (!out) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace vatro::bench
