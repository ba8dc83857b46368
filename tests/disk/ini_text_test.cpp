// SPDX-License-Identifier: MIT
#include "ini_text.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

TEST(IniText, ReadsAValueOfItsSection) {
    const IniText text("[Settings]\nBand=80m\n\n[CW]\nBand=none\nWPM = 25 \n");
    EXPECT_EQ(text.Value("Settings", "Band"), "80m");
    EXPECT_EQ(text.Value("cw", "wpm"), "25");
    EXPECT_EQ(text.Value("Settings", "WPM"), std::nullopt);
}

TEST(IniText, TakesLineEndsOfEverySystem) {
    const IniText text("[Settings]\r\nBand=80m\rMode=CW\r\n");
    EXPECT_EQ(text.Value("Settings", "Band"), "80m");
    EXPECT_EQ(text.Value("Settings", "Mode"), "CW");
}

TEST(IniText, TellsAnEmptyValueFromAMissingOne) {
    const IniText text("[Settings]\nMyCall=\n");
    EXPECT_EQ(text.Value("Settings", "MyCall"), "");
    EXPECT_EQ(text.Value("Settings", "Call"), std::nullopt);
}

TEST(IniText, ReadsQuotesAndEscapes) {
    const IniText text(
        "[S]\n"
        "quoted=\" a, b;c \"\n"
        "path=C:\\\\LOG\\\\x\n"
        "marks=say \\\"73\\\"\n"
        "lines=one\\ntwo\\tthree\n"
        "hex=\\x41\\xe6\\x20ac\n"
        "octal=\\101\n"
        "at=@@home\n"
        "letters=\xC3\xA6\xC3\xB8\xC3\xA5\n");
    EXPECT_EQ(text.Value("S", "quoted"), " a, b;c ");
    EXPECT_EQ(text.Value("S", "path"), "C:\\LOG\\x");
    EXPECT_EQ(text.Value("S", "marks"), "say \"73\"");
    EXPECT_EQ(text.Value("S", "lines"), "one\ntwo\tthree");
    EXPECT_EQ(text.Value("S", "hex"), "Aæ€"_t);
    EXPECT_EQ(text.Value("S", "octal"), "A");
    EXPECT_EQ(text.Value("S", "at"), "@home");
    EXPECT_EQ(text.Value("S", "letters"), "æøå"_t);
}

TEST(IniText, TakesWhatAHandHasWritten) {
    const IniText text("; of the club\nBand=10m\n[Equipment]\nRig80=FT-1000 ,  100 W ; borrowed\nnot a key\n[Equipment\nRig40=x\n");
    EXPECT_EQ(text.Value("Equipment", "Rig80"), "FT-1000, 100 W");
    EXPECT_EQ(text.Value("", "Band"), "10m");
    EXPECT_EQ(text.Value("Equipment", "Rig40"), "x");
}

TEST(IniText, TakesTheLastOfTwoValues) {
    IniText text("[S]\nBand=80m\nBAND=40m\n");
    EXPECT_EQ(text.Value("S", "Band"), "40m");
    text.SetValue("S", "Band", "20m");
    EXPECT_EQ(text.Value("S", "Band"), "20m");
}

TEST(IniText, ReadsBackEveryTextThatItHasWritten) {
    std::string all;
    for (int code = 1; code < 256; ++code) all.push_back(static_cast<char>(code));
    for (const std::string& value : {all, std::string("OZ1A  "), std::string("  x"), std::string(), std::string("a,b;c=\"d\""),
                                     std::string("\x01"
                                                 "f"),
                                     std::string("@at"), std::string("@@"), std::string("\\"), std::string("\"")}) {
        IniText text;
        text.SetValue("CW", "Tekst1", value);
        EXPECT_EQ(IniText(text.Text()).Value("CW", "Tekst1"), value) << text.Text();
    }
}

TEST(IniText, ChangesOneLineAndNoOther) {
    IniText text("; mine\n[Settings]\nBand = 80m\nodd, line = \\q\n\n[CW]\nWPM=20\n");
    text.SetValue("settings", "BAND", "40m");
    text.SetValue("Settings", "Mode", "CW");
    text.SetValue("Equipment", "Rig80", "FT-1000");
    EXPECT_EQ(text.Text(), "; mine\n[Settings]\nBand =40m\nodd, line = \\q\nMode=CW\n\n[CW]\nWPM=20\n\n[Equipment]\nRig80=FT-1000\n");
}

}  // namespace
}  // namespace vatro
