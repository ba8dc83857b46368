// SPDX-License-Identifier: MIT
#include "country/cty_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "errors.h"

namespace vatro {
namespace {

constexpr std::string_view kHeader = "Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  QQ:";

/// Each item of the line as "TEXT CQ ITU", an exact call with "=" in front.
std::vector<std::string> Items(std::string_view line) {
    const CtyHeader header = ReadCtyHeader(kHeader);
    std::vector<std::string> items;
    CtyEntryReader rest(line, header);
    while (rest.HasMore()) {
        const CtyEntry item = rest.Next();
        items.push_back((item.isExactCall ? "=" : "") + std::string(item.text) + " " + std::string(item.cqZone.Padded()) + " " +
                        std::string(item.ituZone.Padded()));
    }
    return items;
}

int FailureOfLine(std::string_view line) {
    try {
        Items(line);
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

int FailureOfHeader(std::string_view line) {
    try {
        ReadCtyHeader(line);
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

using Texts = std::vector<std::string>;

TEST(CtyFile, AHeaderIsReadInItsColumns) {
    const CtyHeader header = ReadCtyHeader(kHeader);
    EXPECT_EQ(header.name, "Fantasia");
    EXPECT_EQ(header.cqZone, "14");
    EXPECT_EQ(header.ituZone, "27");
    EXPECT_EQ(header.continent, "EU");
    EXPECT_EQ(header.latitude, "  56.00");
    EXPECT_EQ(header.longitude, " -10.00");
    EXPECT_EQ(header.utcOffset, " -1.0");
    EXPECT_EQ(header.prefix, "QQ");
    EXPECT_FALSE(header.IsOmitted());
}

TEST(CtyFile, ContinentAndPrefixHoldAtLeastOneCharacter) {
    // The ":" is searched for from the second column of the field on.
    std::string line(80, ' ');
    line[5] = line[36] = line[38] = line[69] = line[72] = ':';
    const CtyHeader header = ReadCtyHeader(line);
    EXPECT_EQ(header.continent, ": ");
    EXPECT_EQ(header.prefix, ":  ");
}

TEST(CtyFile, AHeaderCutAnywhereBeforeItsLastColonFails) {
    for (std::size_t length = 0; length < kHeader.size(); ++length) EXPECT_EQ(FailureOfHeader(kHeader.substr(0, length)), 5) << length;
    EXPECT_EQ(FailureOfHeader(kHeader), 0);
}

TEST(CtyFile, ANumberIsReadUnlessItIsTooLarge) {
    EXPECT_FLOAT_EQ(ReadCtyNumber(" -10.25"), -10.25F);
    EXPECT_FLOAT_EQ(ReadCtyNumber("   x"), 0.0F);
    EXPECT_FLOAT_EQ(ReadCtyNumber("-3e38"), -3e38F);
    for (const std::string_view text : {"4e38", "-4e38", "1e99"}) {
        int number = 0;
        try {
            ReadCtyNumber(text);
        } catch (const RunTimeError& failure) {
            number = failure.Number();
        }
        EXPECT_EQ(number, 6) << text;
    }
}

TEST(CtyFile, ItemsBeginInTheFifthColumn) {
    EXPECT_EQ(Items("    QQ,QR;"), (Texts{"QQ 14 27", "QR 14 27"}));
    EXPECT_EQ(Items("A,B;QQ;"), (Texts{"QQ 14 27"}));
}

TEST(CtyFile, ShortLinesHoldNoItem) {
    EXPECT_EQ(Items(""), (Texts{}));
    EXPECT_EQ(Items("    "), (Texts{}));
    EXPECT_EQ(Items("    ;"), (Texts{})) << "the position is that of the last character";
    EXPECT_EQ(Items("    Q;"), (Texts{"Q 14 27"}));
}

TEST(CtyFile, ACommaIsLookedForBeforeASemicolon) {
    EXPECT_EQ(Items("    QQ;QR,"), (Texts{"QQ;QR 14 27"}));
    EXPECT_EQ(Items("    QQ,QR;QS;"), (Texts{"QQ 14 27", "QR 14 27", "QS 14 27"}));
}

TEST(CtyFile, AnEmptyItemIsAnItem) {
    EXPECT_EQ(Items("    ,,QQ;"), (Texts{" 14 27", " 14 27", "QQ 14 27"}));
}

TEST(CtyFile, ZonesStandInEitherOrderWithTwoFigures) {
    EXPECT_EQ(Items("    QQ(15)[28],QQ[28](15),QQ(5),QQ(123),QQ[]();"),
              (Texts{"QQ 15 28", "QQ 15 28", "QQ 05 27", "QQ 23 27", "QQ 00 00"}));
}

TEST(CtyFile, AnExactCallLosesOneMark) {
    EXPECT_EQ(Items("    =QQ8ABC,==QQ,=3A/4Z5KJ/LH(14);"), (Texts{"=QQ8ABC 14 27", "==QQ 14 27", "=3A/4Z5KJ/LH 14 27"}));
}

TEST(CtyFile, OtherMarksStayInTheItem) {
    EXPECT_EQ(Items("    QQ<1.0/2.0>,QQ{EU},QQ~3~,QQ(5)<1/2>;"),
              (Texts{"QQ<1.0/2.0> 14 27", "QQ{EU} 14 27", "QQ~3~ 14 27", "QQ(5)<1/2> 05 27"}));
}

TEST(CtyFile, ThreeZonesBehindAnItemLoseTwo) {
    // There are two passes; each cuts at the first bracket of its kind.
    EXPECT_EQ(Items("    QQ(1)(2),QQ[1](2)[3];"), (Texts{"QQ 01 27", "QQ 02 01"}));
}

TEST(CtyFile, AnItemWithoutAnEndFails) {
    EXPECT_EQ(FailureOfLine("    QQ,QR"), 5);
    EXPECT_EQ(FailureOfLine("    QQ"), 5);
    EXPECT_EQ(FailureOfLine("    QQ,R"), 0) << "the position is that of the last character";
}

TEST(CtyFile, ABracketWithoutItsPartnerFails) {
    for (const char* line : {"    QQ(15;", "    QQ[28;", "    QQ)15(;", "    QQ);", "    QQ];", "    QQ(15],QR[28);"})
        EXPECT_EQ(FailureOfLine(line), 5) << line;
}

TEST(CtyFile, OnlyAStarInFrontLeavesACountryOut) {
    std::string line(kHeader);
    line.replace(69, 2, "*Q");
    EXPECT_TRUE(ReadCtyHeader(line).IsOmitted());
    line.replace(69, 2, "Q*");
    EXPECT_FALSE(ReadCtyHeader(line).IsOmitted());
}

}  // namespace
}  // namespace vatro
