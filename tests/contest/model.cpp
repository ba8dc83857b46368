// SPDX-License-Identifier: MIT
#include "model.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace contest {

const std::vector<Country>& Countries() {
    static const std::vector<Country> kCountries{{"9A", "Croatia", "EU"},     {"DL", "Fed. Rep. of Germany", "EU"},
                                                 {"EA", "Spain", "EU"},       {"F", "France", "EU"},
                                                 {"G", "England", "EU"},      {"I", "Italy", "EU"},
                                                 {"JA", "Japan", "AS"},       {"K", "United States", "NA"},
                                                 {"LA", "Norway", "EU"},      {"OH", "Finland", "EU"},
                                                 {"ON", "Belgium", "EU"},     {"OZ", "Denmark", "EU"},
                                                 {"PA", "Holland", "EU"},     {"PY", "Brazil", "SA"},
                                                 {"SM", "Sweden", "EU"},      {"SP", "Poland", "EU"},
                                                 {"TA", "Turkey", "AS"},      {"VK", "Australia", "OC"},
                                                 {"ZS", "South Africa", "AF"}};
    return kCountries;
}

const std::vector<Prefix>& Prefixes() {
    static const std::vector<Prefix> kPrefixes{{"5P", "OZ"}, {"9A", "9A"}, {"DK", "DL"}, {"DL", "DL"}, {"EA", "EA"}, {"F", "F"},
                                               {"G", "G"},   {"I", "I"},   {"JA", "JA"}, {"K", "K"},   {"LA", "LA"}, {"OH", "OH"},
                                               {"ON", "ON"}, {"OU", "OZ"}, {"OZ", "OZ"}, {"PA", "PA"}, {"PY", "PY"}, {"SM", "SM"},
                                               {"SP", "SP"}, {"TA", "TA"}, {"VK", "VK"}, {"W", "K"},   {"ZS", "ZS"}};
    return kPrefixes;
}

const std::vector<std::string>& Society() {
    static const std::vector<std::string> kSociety{"OZ1QA", "OZ2QEK", "OZ7QHQ", "OZ9QVT", "5P5QM", "OU4QRS"};
    return kSociety;
}

int CountryOf(const std::string& prefix) {
    for (const Prefix& row : Prefixes()) {
        if (prefix != row.text) continue;
        for (std::size_t i = 0; i < Countries().size(); ++i)
            if (std::string(row.country) == Countries()[i].prefix) return static_cast<int>(i);
    }
    return kUnknown;
}

namespace {

const std::vector<std::string> kNowhere{"QA", "QX", "TX", "XZ"};

bool IsEuropean(int country) {
    return std::string(Countries()[static_cast<std::size_t>(country)].continent) == "EU";
}

bool IsDanish(int country) {
    return std::string(Countries()[static_cast<std::size_t>(country)].prefix) == "OZ";
}

/// `listed` is the call to search for in the society's list; `european` means a station in the European part of a country
/// outside Europe.
int Worth(const Call& call, const std::string& listed, bool portable, bool european) {
    if (call.country == kUnknown) return 0;
    if (std::find(Society().begin(), Society().end(), listed) != Society().end()) return 10;
    if (!IsEuropean(call.country) && !european) return 6;
    if (IsDanish(call.country)) return 1;
    return portable ? 5 : 3;
}

bool HasDigit(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos;
}

}  // namespace

Station NewStation(Dice& dice) {
    if (dice.Chance(4)) {
        const std::string& base = dice.OneOf(Society());
        return {base, base.substr(0, 2)};
    }
    Station station;
    station.prefix = dice.Chance(3) ? dice.OneOf(kNowhere) : dice.OneOf(Prefixes()).text;
    do {
        station.base = station.prefix + static_cast<char>('0' + dice.Roll(10));
        for (int letters = dice.Chance(30) ? 2 : 3; letters > 0; --letters) station.base += static_cast<char>('A' + dice.Roll(26));
    } while (std::find(Society().begin(), Society().end(), station.base) != Society().end());
    return station;
}

Call Sign(const Station& station, Dice& dice) {
    Call call{station.base, station.base, CountryOf(station.prefix), 0};
    const std::string area = station.base.substr(0, 3);
    bool european = area == "TA0" || area == "TA1";
    std::string listed = station.base;
    bool portable = false;
    const int how = dice.Roll(100);
    if (how < 10) {
        portable = true;
        call.text += "/P";
    } else if (how < 13) {
        portable = true;
        call.text += "/P/QRP";
    } else if (how < 18) {
        static const std::vector<std::string> kAdditions{"/M", "/QRP", "/MM", "/A"};
        call.text += dice.OneOf(kAdditions);
    } else if (how < 21 && !HasDigit(station.prefix) && station.prefix != "TA") {
        // The number replaces the one in the call, also in the call that the society's list is searched for. A prefix with a
        // digit is left out because it would change too.
        const auto number = static_cast<char>('1' + dice.Roll(9));
        call.text += std::string("/") + number;
        listed[station.prefix.size()] = number;
    } else if (how < 25) {
        const std::string guest = dice.Chance(8) ? dice.OneOf(kNowhere) : dice.OneOf(Prefixes()).text;
        call.text = guest + "/" + call.text;
        call.country = CountryOf(guest);
        european = false;
        if (dice.Chance(30)) {
            portable = true;
            call.text += "/P";
        }
    }
    call.points = Worth(call, listed, portable, european);
    return call;
}

std::string Line::Text(bool phone) const {
    if (IsNote()) return "NOTE: " + note;
    const char* blank = phone ? " " : "";
    char text[120];
    std::snprintf(text, sizeof text, "%s %-15s %s%s-%04d %s%s-%s %2d %-10s %-6s %s %-5s %s", time.c_str(), call.text.c_str(), sent.c_str(),
                  blank, number, received.c_str(), blank, receivedNumber.c_str(), points, multiplier.c_str(), operatorCall.c_str(),
                  qsl ? "QSL" : "   ", mode.c_str(), date.c_str());
    return text;
}

bool Log::Holds(const std::string& base, std::size_t before) const {
    return std::any_of(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(before),
                       [&](const Line& line) { return !line.IsNote() && line.call.base == base; });
}

bool Log::WouldMarkByDuplicate(const Call& call, std::size_t before) const {
    return call.country != kUnknown && worked.count(call.country) == 0 && Holds(call.base, before);
}

int Log::Points() const {
    int points = 0;
    for (const Line& line : lines) points += line.points;
    return points;
}

std::set<int> Log::WorkedByLines() const {
    std::set<int> countries;
    for (const Line& line : lines)
        if (!line.multiplier.empty() && line.multiplier != kDuplicate) countries.insert(CountryOf(line.multiplier));
    return countries;
}

void Log::Load() {
    int number = 0;
    for (const Line& line : lines)
        if (!line.IsNote()) number = line.number;
    if (worked != WorkedByLines() || next != number + 1) throw std::logic_error("the contest would be another one after a load");
    selected = static_cast<int>(lines.size()) - 1;
}

void Log::Score(Line& line, std::size_t place) {
    const bool first = line.call.country != kUnknown && worked.insert(line.call.country).second;
    line.points = line.call.points;
    line.multiplier = first ? Countries()[static_cast<std::size_t>(line.call.country)].prefix : "";
    if (Holds(line.call.base, place)) {
        line.points = 0;
        line.multiplier = kDuplicate;
    }
}

}  // namespace contest
