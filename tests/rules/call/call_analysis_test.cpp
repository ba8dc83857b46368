// SPDX-License-Identifier: MIT
#include "call/call_analysis.h"

#include <gtest/gtest.h>

#include <random>

namespace vatro {
namespace {

std::string Base(std::string_view call) {
    return StripCall(call);
}

std::string Country(std::string_view call) {
    return findPfxCall(call);
}

struct Pair {
    const char* call;
    const char* base;
    const char* country;
};

class MarkedCalls : public ::testing::TestWithParam<Pair> {};

TEST_P(MarkedCalls, BaseCallAndCountryTextPart) {
    EXPECT_EQ(Base(GetParam().call), GetParam().base) << GetParam().call;
    EXPECT_EQ(Country(GetParam().call), GetParam().country) << GetParam().call;
}

INSTANTIATE_TEST_SUITE_P(Calls, MarkedCalls,
                         ::testing::Values(Pair{"OZ/DL1ABC/P", "DL1ABC", "OZ"}, Pair{"SV9/OZ1ABC", "OZ1ABC", "SV9"},
                                           Pair{"OZ1ABC/SV9", "OZ1ABC", "SV9"}, Pair{"DL1ABC/3", "DL1ABC", "DL3ABC"},
                                           Pair{"K1ABC/QRP", "K1ABC", "K1ABC"}, Pair{"K1ABC/MM", "K1ABC", "K1ABC"},
                                           Pair{"K1ABC/AM", "K1ABC", "AM"}, Pair{"DL1ABC/3/P", "DL1ABC", "3"},
                                           Pair{"OZ/DL1ABC/X", "DL1ABC/X", "OZ/X"}));

TEST(StripCall, LeavesACallWithoutSlashAlone) {
    for (const char* call : {"", "1", "OZ1ABC", "OZ1ABCP", "OZ1QRP"}) EXPECT_EQ(Base(call), call);
}

TEST(StripCall, TakesEveryPortableAdditionOff) {
    for (const char* addition :
         {"/", "/1", "/2", "/3", "/4", "/5", "/6", "/7", "/8", "/9", "/0", "/P", "/M", "/A", "/MM", "/AM", "/QRP", "/QRPP"})
        EXPECT_EQ(Base(std::string("DL1ABC") + addition), "DL1ABC") << addition;
}

TEST(StripCall, GoesRoundUntilNothingIsLeftToTakeOff) {
    EXPECT_EQ(Base("DL1ABC/P/QRP"), "DL1ABC");
    EXPECT_EQ(Base("DL1ABC/QRP/M/3/"), "DL1ABC");
    EXPECT_EQ(Base("DL1ABC//P"), "DL1ABC");
    EXPECT_EQ(Base("OZ/DL1ABC/AM"), "DL1ABC");
}

TEST(StripCall, KeepsTheLongerSideAndOfEqualOnesTheSecond) {
    EXPECT_EQ(Base("OZ/DL1ABC"), "DL1ABC");
    EXPECT_EQ(Base("DL1ABC/OZ"), "DL1ABC");
    EXPECT_EQ(Base("OZ1/DL1"), "DL1");
    EXPECT_EQ(Base("DL12/G1A"), "DL12");
    EXPECT_EQ(Base("G1A/DL12"), "DL12");
}

TEST(StripCall, IsExactAboutCase) {
    EXPECT_EQ(Base("DL1ABC/p"), "DL1ABC");  // the longer side, not the addition
    EXPECT_EQ(Base("D1A/qrp"), "qrp");
    EXPECT_EQ(Base("D1A/QRP"), "D1A");
}

TEST(CountryText, TakesAShortTextOrOneWithoutSlashAsItIs) {
    EXPECT_EQ(Country(""), "");
    EXPECT_EQ(Country("/"), "/");
    EXPECT_EQ(Country("D"), "D");
    EXPECT_EQ(Country("DL1ABC"), "DL1ABC");
}

TEST(CountryText, PutsTheNumberInFrontOfEveryLetter) {
    EXPECT_EQ(Country("2E0ABC/3"), "3E3ABC");
    EXPECT_EQ(Country("DL12AB/7"), "DL17AB");
    EXPECT_EQ(Country("TA2ABC/1"), "TA1ABC");
}

TEST(CountryText, LeavesAFigureAtTheEndOfTheCallAlone) {
    EXPECT_EQ(Country("K1A9/4"), "K4A9");
}

TEST(CountryText, TakesASlashBehindAFigureForANumber) {
    // The slash replaces the digit, and the shorter side, which is then the one before it, decides.
    EXPECT_EQ(Country("DL1ABC3/"), "DL");
}

TEST(CountryText, GivesTheShorterSideAndOfEqualOnesTheFirst) {
    EXPECT_EQ(Country("OZ1/DL1"), "OZ1");
    EXPECT_EQ(Country("DL12/G1A"), "G1A");
    EXPECT_EQ(Country("G1A/DL12"), "G1A");
}

TEST(CountryText, KeepsFirstAndThirdPieceOfThree) {
    EXPECT_EQ(Country("OZ/DL1ABC/XY"), "OZ/XY");
    EXPECT_EQ(Country("OZ/DL1ABC/XY/ZZ"), "OZ/XY");
    EXPECT_EQ(Country("OZ/DL1ABC/X/P"), "OZ/X");
}

TEST(CallAnalysis, ComesToAnEndOnEveryTextOfCallCharacters) {
    std::mt19937 random(5);
    const std::string characters = "AMPQR019/";
    std::uniform_int_distribution<std::size_t> length(1, 15);
    std::uniform_int_distribution<std::size_t> which(0, characters.size() - 1);
    for (int round = 0; round < 20000; ++round) {
        std::string call;
        for (std::size_t i = length(random); i > 0; --i) call += characters[which(random)];
        const std::string base = Base(call);
        EXPECT_LE(base.size(), call.size()) << call;
        EXPECT_LE(Country(call).size(), call.size()) << call;
        if (call.find('/') == std::string::npos) {
            EXPECT_EQ(base, call);
        }
    }
}

}  // namespace
}  // namespace vatro
