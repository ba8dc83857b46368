// SPDX-License-Identifier: MIT
#include "morse/morse_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

/// The elements of a character as dots and dashes.
std::string Elements(std::string_view sign) {
    std::string elements;
    for (const char c : sign) {
        if (!elements.empty()) elements += ' ';
        elements += c == '.' ? "4" : "123";
    }
    return elements;
}

const std::vector<std::pair<std::string_view, std::string_view>> kSigns{
    {"A", ".-"},        {"B", "-..."},    {"C", "-.-."},   {"D", "-.."},    {"E", "."},       {"F", "..-."},    {"G", "--."},
    {"H", "...."},      {"I", ".."},      {"J", ".---"},   {"K", "-.-"},    {"L", ".-.."},    {"M", "--"},      {"N", "-."},
    {"O", "---"},       {"P", ".--."},    {"Q", "--.-"},   {"R", ".-."},    {"S", "..."},     {"T", "-"},       {"U", "..-"},
    {"V", "...-"},      {"W", ".--"},     {"X", "-..-"},   {"Y", "-.--"},   {"Z", "--.."},    {"Æ"_t, ".-.-"},  {"Ø"_t, "---."},
    {"Å"_t, ".--.-"},   {"0", "-----"},   {"1", ".----"},  {"2", "..---"},  {"3", "...--"},   {"4", "....-"},   {"5", "....."},
    {"6", "-...."},     {"7", "--..."},   {"8", "---.."},  {"9", "----."},  {".", ".-.-.-"},  {"/", "-..-."},   {",", "--..--"},
    {"?", "..--.."},    {":", "---..."},  {"=", "-...-"},  {"-", "-....-"}, {"(", "-.--."},   {")", "-.--.-"},  {"+", ".-.-."},
    {"\"", ".-..-."},   {"_", "..--.-"},  {"'", ".----."}, {";", "-.-.-."}, {"$", "...-..-"}, {"É"_t, "..-.."}, {"Ü"_t, "..--"},
    {"!", "-.-.--"},    {"SK", "...-.-"}, {"AR", ".-.-."}, {"KN", "-.--."}, {"KA", "-.-.-"},  {"BT", "-...-"},  {"CH", "----"},
    {"HH", "........"}, {"AS", ".-..."},  {"SN", "...-."},
};

TEST(MorseTable, HasTheSignsOfMorse) {
    for (const auto& [key, sign] : kSigns) EXPECT_EQ(MorseElements(key), Elements(sign)) << ToUtf8(key);
}

TEST(MorseTable, PlaysTheSecondDashOfÑWithItsEndBeforeItsMiddle) {
    EXPECT_EQ(MorseElements("Ñ"_t), "123 132 4 123 123");
}

TEST(MorseTable, GivesABlankOneSilentSlot) {
    EXPECT_EQ(MorseElements(" "), " ");
}

TEST(MorseTable, KnowsNoOtherCharacter) {
    std::set<std::string> known{" ", std::string("Ñ"_t)};
    for (const auto& [key, sign] : kSigns) known.emplace(key);
    for (int code = 0; code < 256; ++code) {
        const std::string key(1, static_cast<char>(code));
        EXPECT_EQ(!MorseElements(key).empty(), known.contains(key)) << code;
    }
}

TEST(MorseTable, KnowsNoOtherPair) {
    std::set<std::string> known;
    for (const auto& [key, sign] : kSigns) known.emplace(key);
    for (char first = ' '; first < 127; ++first)
        for (char second = ' '; second < 127; ++second) {
            const std::string pair{first, second};
            EXPECT_EQ(!MorseElements(pair).empty(), known.contains(pair)) << pair;
        }
    EXPECT_EQ(MorseElements(""), "");
    EXPECT_EQ(MorseElements("SOS"), "");
}

}  // namespace
}  // namespace vatro
