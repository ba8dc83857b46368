// SPDX-License-Identifier: MIT
#include "codepage.h"

#include <gtest/gtest.h>

#include <string>

namespace vatro {
namespace {

TEST(CodePage, LiteralHasOneBytePerCharacter) {
    EXPECT_EQ("Vælg bånd"_t, "V\xE6lg b\xE5nd");
    EXPECT_EQ("ÆØÅ"_t.size(), 3U);
    EXPECT_EQ("€–Ÿ"_t, "\x80\x96\x9F");
    EXPECT_TRUE(""_t.empty());
}

TEST(CodePage, EveryByteSurvivesTheRoundTrip) {
    std::string all;
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage, Utf8OfDanishLettersAndOfTheUpperControls) {
    EXPECT_EQ(ToUtf8("\xE6\xD8\xE5"), "\xC3\xA6\xC3\x98\xC3\xA5");
    EXPECT_EQ(ToUtf8("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(ToUtf8("\x81"), "\xC2\x81");
}

TEST(CodePage, WhatTheCodePageLacksBecomesOneQuestionMark) {
    EXPECT_EQ(FromUtf8("\xC5\x81\xC3\xB3"), "?\xF3");  // U+0141
    EXPECT_EQ(FromUtf8("a\xE2\x98\x83z"), "a?z");      // U+2603
    EXPECT_EQ(FromUtf8("a\xF0\x9F\x98\x80z"), "a?z");  // U+1F600
}

TEST(CodePage, EveryFaultyByteBecomesAQuestionMark) {
    EXPECT_EQ(FromUtf8("a\xFFz"), "a?z");
    EXPECT_EQ(FromUtf8("\xE6lg"), "?lg");
    EXPECT_EQ(FromUtf8("\xC3"), "?");
    EXPECT_EQ(FromUtf8("\xC0\xAF"), "??");  // An overlong slash is no slash.
}

TEST(CodePage, UpperFoldsDanishAndAccentedLetters) {
    EXPECT_EQ(UpperText("oz1æøå/p"_t), "OZ1ÆØÅ/P"_t);
    EXPECT_EQ(UpperText("éüñþšœž"_t), "ÉÜÑÞŠŒŽ"_t);
    EXPECT_EQ(UpperText("ABCÆØÅ123"_t), "ABCÆØÅ123"_t);
}

TEST(CodePage, UpperLeavesWhatHasNoUpperCase) {
    EXPECT_EQ(UpperText("ß÷ÿ@[`{~"_t), "ß÷ÿ@[`{~"_t);
}

TEST(CodePage, ContainsDisregardsCase) {
    EXPECT_TRUE(ContainsNoCase("5P,5Q,OU,OZ", "oz"));
    EXPECT_TRUE(ContainsNoCase("Rødovre"_t, "RØD"_t));
    EXPECT_FALSE(ContainsNoCase("OZ1AB", "OZ1ABC"));
    EXPECT_TRUE(ContainsNoCase("", ""));
    EXPECT_TRUE(ContainsNoCase("OZ", ""));
    EXPECT_FALSE(ContainsNoCase("", "O"));
}

TEST(CodePage, EqualDisregardsCaseButNotLength) {
    EXPECT_TRUE(EqualNoCase("fd80mSSB.txt", "FD80Mssb.TXT"));
    EXPECT_TRUE(EqualNoCase("æøå"_t, "ÆØÅ"_t));
    EXPECT_FALSE(EqualNoCase("OZ1AB", "OZ1A"));
    EXPECT_FALSE(EqualNoCase("a"_t, "å"_t));
}

}  // namespace
}  // namespace vatro
