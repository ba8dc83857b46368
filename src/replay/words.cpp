// SPDX-License-Identifier: MIT
#include "words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>

#include "codepage.h"
#include "numbers.h"

namespace vatro {

namespace {

constexpr std::array<std::string_view, 14> kKeyNames{"Enter", "Esc", "Space", "Tab",   "Backspace", "Delete", "Insert",
                                                     "Home",  "End", "Left",  "Right", "Up",        "Down",   "PageUp"};

bool IsKeyName(std::string_view name) {
    if (name == "PageDown" || std::find(kKeyNames.begin(), kKeyNames.end(), name) != kKeyNames.end()) return true;
    if (name.size() < 2 || name.size() > 3 || name[0] != 'F' || name[1] == '0') return false;
    int number = 0;
    const auto [end, error] = std::from_chars(name.data() + 1, name.data() + name.size(), number);
    return error == std::errc() && end == name.data() + name.size() && number <= 12;
}

bool TakePrefix(std::string_view& text, std::string_view prefix) {
    // The plus sign is itself a key.
    if (text.size() <= prefix.size() || !text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// Parses a text that consists of digits only.
bool ReadDigits(std::string_view text, int& number) {
    if (text.empty() || !std::all_of(text.begin(), text.end(), IsDigit)) return false;
    return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
}

}  // namespace

KeyStroke ReadKey(std::string_view text) {
    KeyStroke key;
    std::string_view rest = text;
    while (true) {
        if (TakePrefix(rest, "Shift+"))
            key.shift = true;
        else if (TakePrefix(rest, "Ctrl+"))
            key.ctrl = true;
        else if (TakePrefix(rest, "Alt+"))
            key.alt = true;
        else
            break;
    }
    if (rest == " ")
        key.name = "Space";
    else if (rest.size() == 1)
        key.character = rest[0];
    else if (IsKeyName(rest))
        key.name = rest;
    else
        throw CannotDeliver("there is no key " + ToUtf8(text));
    return key;
}

KeyStroke KeyOf(char character) {
    KeyStroke key;
    switch (character) {
        case ' ':
            key.name = "Space";
            break;
        case '\r':
            key.name = "Enter";
            break;
        case '\t':
            key.name = "Tab";
            break;
        default:
            key.character = character;
    }
    return key;
}

std::string ShortcutOf(const KeyStroke& key) {
    std::string text;
    if (key.ctrl) text += "Ctrl+";
    if (key.alt) text += "Alt+";
    if (key.shift) text += "Shift+";
    if (key.name.empty()) return text + Upper(key.character);
    return text + key.name;
}

int ReadInteger(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) throw CannotDeliver(ToUtf8(text) + " is no whole number");
    return number;
}

long long ReadSeconds(std::string_view text) {
    double seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds, std::chars_format::fixed);
    constexpr double kLongest = 1e9;
    if (error != std::errc() || end != text.data() + text.size() || !(seconds >= 0) || seconds > kLongest)
        throw CannotDeliver(ToUtf8(text) + " is no number of seconds");
    return std::llround(seconds * 1000);
}

DateTime ReadDateTime(std::string_view date, std::string_view time) {
    DateTime moment;
    bool valid = date.size() == 10 && date[4] == '-' && date[7] == '-' && time.size() >= 8 && time[2] == ':' && time[5] == ':' &&
                 ReadDigits(date.substr(0, 4), moment.year) && ReadDigits(date.substr(5, 2), moment.month) &&
                 ReadDigits(date.substr(8, 2), moment.day) && ReadDigits(time.substr(0, 2), moment.hour) &&
                 ReadDigits(time.substr(3, 2), moment.minute) && ReadDigits(time.substr(6, 2), moment.second);
    if (valid && time.size() > 8) {
        std::string milliseconds(time.substr(9));
        valid = time[8] == '.' && !milliseconds.empty() && milliseconds.size() <= 3;
        milliseconds.resize(3, '0');
        valid = valid && ReadDigits(milliseconds, moment.millisecond);
    }
    valid = valid && moment.hour < 24 && moment.minute < 60 && moment.second < 60 &&
            std::chrono::year_month_day(std::chrono::year(moment.year), std::chrono::month(static_cast<unsigned>(moment.month)),
                                        std::chrono::day(static_cast<unsigned>(moment.day)))
                .ok();
    if (!valid) throw CannotDeliver(ToUtf8(date) + " " + ToUtf8(time) + " is no time");
    return moment;
}

bool ReadSwitch(std::string_view text) {
    if (text != "on" && text != "off") throw CannotDeliver(ToUtf8(text) + " is neither on nor off");
    return text == "on";
}

}  // namespace vatro
