// SPDX-License-Identifier: MIT
//
// The summary of the contest, counted from the text of the lines with no code of the program.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "contest.h"

namespace contest {

namespace {

/// Cuts columns out of a UTF-8 line. Columns count from 1, and each character is one column.
std::string Cut(const std::string& line, std::size_t from, std::size_t count) {
    std::string cut;
    std::size_t column = 0;
    for (const char c : line) {
        const bool first = (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
        if (first) ++column;
        if (column >= from && column < from + count) cut += c;
    }
    return cut;
}

struct Count {
    int contacts = 0;
    int points = 0;
    int multipliers = 0;

    long long Score() const { return static_cast<long long>(points) * multipliers; }
    void Add(const Count& other) {
        contacts += other.contacts;
        points += other.points;
        multipliers += other.multipliers;
    }
};

Count CountLines(const Log& log, bool phone, std::string& operators) {
    Count count;
    for (const Line& line : log.lines) {
        const std::string text = line.Text(phone);
        const bool counts = !line.IsNote() && Cut(text, 44, 6) != kDuplicate;
        count.contacts += counts ? 1 : 0;
        count.multipliers += counts && Cut(text, 44, 1) != " " ? 1 : 0;
        count.points += std::atoi(Cut(text, 41, 2).c_str());
        std::string call = Cut(text, 55, 6);
        call.erase(call.find_last_not_of(' ') + 1);
        if (operators.empty() || operators.find(call) == std::string::npos) operators += "," + call;
    }
    return count;
}

std::string Sorted(const std::string& operators) {
    std::vector<std::string> calls;
    for (std::size_t from = 1; from <= operators.size();) {
        const std::size_t end = std::min(operators.find(',', from), operators.size());
        calls.push_back(operators.substr(from, end - from));
        from = end + 1;
    }
    std::sort(calls.begin(), calls.end());
    std::string list;
    for (const std::string& call : calls) list += (&call == &calls.front() ? "" : ", ") + call;
    return list;
}

}  // namespace

void Contest::SumUp() {
    std::string operators;
    std::string rows;
    Count total;
    for (const Choice& band : kBands) {
        static const std::map<std::string, std::string> kNames{
            {"10m", " 28 MHz"}, {"15m", " 21 MHz"}, {"20m", " 14 MHz"}, {"40m", "  7 MHz"}, {"80m", "3,5 MHz"}};
        const std::string name = kNames.at(band.name);
        const Count morse = CountLines(logs_[band.name + std::string("CW")], false, operators);
        const Count phone = CountLines(logs_[band.name + std::string("SSB")], true, operators);
        Count both = morse;
        both.Add(phone);
        total.Add(both);
        char text[300];
        std::snprintf(text, sizeof text, "> |%s CW   %5d%12d x %6d = %8lld%49s/|\n> |%s SSB  %5d%12d x %6d = %8lld%14d x %12d = %15lld|\n",
                      name.c_str(), morse.contacts, morse.multipliers, morse.points, morse.Score(), "", name.c_str(), phone.contacts,
                      phone.multipliers, phone.points, phone.Score(), both.multipliers, both.points, both.Score());
        // The logs are read from 10 metres up, and the rows are printed from 80 metres down.
        rows.insert(0, text);
    }
    char all[200];
    std::snprintf(all, sizeof all, "> |Total:       %5d%46d x %12d = %15lld|\n", total.contacts, total.multipliers, total.points,
                  total.Score());
    Say("menu mnuEfterSummary\ncat log/Summary.txt\n"
        "> |Sammentællingsblad for EDR's HF Fieldday for lokalafdelinger|\n> | |\n"
        "> |Kaldesignal:  Kategori: A   Antal logsider: |\n> | |\n> |Navn: |\n> | |\n"
        "> |Operatørernes kaldesignaler: " +
        Sorted(operators) +
        "|\n> | |\n"
        "> |Bånd        QSOs - Dubs  Mults x Points = Band score  Mult total x Points total = Bandscore total  Stn/Ant|\n" +
        rows + "> | |\n" + all + "> | |\n> |Ansvarshavende/Formand|\n> | |\n> | |\n> |Telefon (hvis der er spørgsmål): |");
}

}  // namespace contest
