// SPDX-License-Identifier: MIT
//
// The expected state of a contest, computed without the program: the lines of each log, the value of each contact, and the
// countries worked. It shares no code with the program, so that the two can be compared.
#pragma once

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace contest {

inline constexpr int kUnknown = -1;

struct Country {
    const char* prefix;
    const char* name;
    const char* continent;
};
struct Prefix {
    const char* text;
    const char* country;
};

/// In ascending order, as the country tables require.
const std::vector<Country>& Countries();
const std::vector<Prefix>& Prefixes();
/// Calls of the society's stations.
const std::vector<std::string>& Society();
/// The row of the country that a prefix belongs to, or kUnknown.
int CountryOf(const std::string& prefix);

/// Gives the same numbers from the same seed with every compiler.
class Dice {
public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    /// From 0 to `sides` - 1.
    int Roll(int sides) { return static_cast<int>(engine_() % static_cast<unsigned>(sides)); }
    bool Chance(int percent) { return Roll(100) < percent; }
    template <class List>
    auto& OneOf(List& list) {
        return list[static_cast<std::size_t>(Roll(static_cast<int>(list.size())))];
    }

private:
    std::mt19937 engine_;
};

/// A station at home: the call without any addition.
struct Station {
    std::string base;
    std::string prefix;
};

/// A call as given on the air, and the value of a contact with it.
struct Call {
    std::string text;
    std::string base;
    int country = kUnknown;
    int points = 0;
};

Station NewStation(Dice& dice);
/// The station's call at home, portable, with another number, or in another country.
Call Sign(const Station& station, Dice& dice);

struct Line {
    std::string note;  ///< the text of a note; empty for a contact
    std::string time, date;
    Call call;
    Station station;
    std::string sent, received, receivedNumber;
    int number = 0;
    int points = 0;
    std::string multiplier;
    std::string operatorCall;
    bool qsl = false;
    std::string mode;

    bool IsNote() const { return !note.empty(); }
    /// The line as it must be in the file of a phone log (or of a log in another mode).
    std::string Text(bool phone) const;
};

inline const std::string kDuplicate = "-DUPE-";

/// One log, of one band in phone or Morse.
class Log {
public:
    std::vector<Line> lines;
    std::set<int> worked;
    int next = 1;
    int selected = -1;

    /// Whether one of the first `before` contacts is with this station.
    bool Holds(const std::string& base, std::size_t before) const;
    /// Whether a duplicate would mark the country as worked, although the next load would not mark it.
    bool WouldMarkByDuplicate(const Call& call, std::size_t before) const;
    int Points() const;
    /// Counts again from the lines, as loading does. Throws if that changes anything.
    void Load();
    /// Computes points and multiplier of a line at its place, as for a new contact on which the operator changed nothing.
    void Score(Line& line, std::size_t place);

private:
    std::set<int> WorkedByLines() const;
};

}  // namespace contest
