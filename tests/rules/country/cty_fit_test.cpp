// SPDX-License-Identifier: MIT
#include "country/cty_fit.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vatro {
namespace {

using Texts = std::vector<std::string>;

std::string Header(const std::string& prefix) {
    return "Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  " + prefix + ":";
}

const Texts kTwo{Header("QA"), "    QA,QA1,QA2(15),=QA5AB,=QB7XY;", Header("QB"), "    QB,=QB1AB;"};

Texts Fitted(const Texts& lines, std::size_t room) {
    return WriteCty(FitCty(ReadCtyFile(lines), room).countries);
}

std::string Refused(const Texts& lines) {
    try {
        ReadCtyFile(lines);
    } catch (const CtyError& fault) {
        return fault.text;
    }
    return {};
}

TEST(CtyFit, LinesEndInAnyWay) {
    EXPECT_EQ(CtyLines("a\r\nb\nc\rd"), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(CtyLines("a\n\nb\n"), (Texts{"a", "", "b"}));
    EXPECT_EQ(CtyLines(""), (Texts{}));
}

TEST(CtyFit, WhatFitsStays) {
    EXPECT_EQ(Fitted(kTwo, 7), kTwo);
}

TEST(CtyFit, WhatAShorterPrefixGivesGoesFirst) {
    // A shorter prefix gives QA1, QA5AB and QB1AB with the same zones. The shortest is left out first, and no more than
    // necessary.
    EXPECT_EQ(Fitted(kTwo, 6), (Texts{Header("QA"), "    QA,QA2(15),=QA5AB,=QB7XY;", Header("QB"), "    QB,=QB1AB;"}));
    EXPECT_EQ(Fitted(kTwo, 4), (Texts{Header("QA"), "    QA,QA2(15),=QB7XY;", Header("QB"), "    QB;"}));
}

TEST(CtyFit, ThenZonesAndThenExactCalls) {
    EXPECT_EQ(Fitted(kTwo, 3), (Texts{Header("QA"), "    QA,=QB7XY;", Header("QB"), "    QB;"}));
    EXPECT_EQ(Fitted(kTwo, 2), (Texts{Header("QA"), "    QA;", Header("QB"), "    QB;"}));
    EXPECT_THROW(Fitted(kTwo, 1), CtyError);
}

TEST(CtyFit, TellsWhatIsLost) {
    const std::vector<CtyCountry> countries = ReadCtyFile(kTwo);
    const auto [fitted, out] = FitCty(countries, 2);
    EXPECT_EQ(out.nothingLost, (Texts{"QA1", "=QA5AB", "=QB1AB"}));
    EXPECT_EQ(out.zones, (Texts{"QA2(15)"}));
    EXPECT_EQ(out.lostCalls, (Texts{"=QB7XY"}));
    EXPECT_EQ(out.duplicates, (Texts{}));
    EXPECT_EQ(out.countries, (Texts{}));
}

TEST(CtyFit, APrefixOfAnotherCountryInBetweenKeepsTheLongerOne) {
    // Without its own row QA12 would count for QB, because QB's QA1 is longer than QA.
    const Texts lines{Header("QA"), "    QA,QA12;", Header("QB"), "    QA1,QB,QB3;"};
    EXPECT_EQ(Fitted(lines, 4), (Texts{Header("QA"), "    QA,QA12;", Header("QB"), "    QA1,QB;"}));
    EXPECT_THROW(Fitted(lines, 3), CtyError);
}

TEST(CtyFit, AnExactCallSupportsNoLongerOne) {
    // QB7XY/P is matched only by QB7XY, and QB7XY itself is left out in the end.
    const Texts lines{Header("QA"), "    QA,=QB7XY,=QB7XY/P;", Header("QB"), "    QB;"};
    const std::vector<CtyCountry> countries = ReadCtyFile(lines);
    EXPECT_EQ(FitCty(countries, 2).omissions.lostCalls, (Texts{"=QB7XY", "=QB7XY/P"}));
}

TEST(CtyFit, ACallWithASlashGoesWithoutLossOnlyIfItsCountryTextGivesTheSame) {
    // The program looks up QA5AB/QB1 as QB1, QA5AB/P as QA5AB, and QA5AB/7 as QA7AB.
    const Texts lines{Header("QA"), "    QA,=QA5AB/QB1,=QA5AB/P,=QA5AB/7;", Header("QB"), "    QB,QA7;"};
    EXPECT_EQ(Fitted(lines, 5), (Texts{Header("QA"), "    QA,=QA5AB/QB1,=QA5AB/7;", Header("QB"), "    QB,QA7;"}));
    const std::vector<CtyCountry> countries = ReadCtyFile(lines);
    const auto [fitted, out] = FitCty(countries, 3);
    EXPECT_EQ(out.nothingLost, (Texts{"=QA5AB/P"}));
    EXPECT_EQ(out.lostCalls, (Texts{"=QA5AB/7", "=QA5AB/QB1"}));
}

TEST(CtyFit, ACallThatIsTooLongToBeFoundGoesBeforeAllOthers) {
    // Calls of eleven characters are never found as a whole. QB1ABCD/QA1 is looked up as QA1, which the row QB1ABCD/QA does not
    // match. QB12345678Z is looked up as it is, and begins with the row QB12345678.
    const Texts lines{Header("QA"), "    QA,QA1,=QB1ABCD/QA1;", Header("QB"), "    QB,=QB12345678Z;"};
    EXPECT_EQ(Fitted(lines, 5), lines);
    EXPECT_EQ(Fitted(lines, 4), (Texts{Header("QA"), "    QA,QA1;", Header("QB"), "    QB,=QB12345678Z;"}));
    const std::vector<CtyCountry> countries = ReadCtyFile(lines);
    const auto [fitted, out] = FitCty(countries, 3);
    EXPECT_EQ(out.unreachable, (Texts{"=QB1ABCD/QA1"}));
    EXPECT_EQ(out.nothingLost, (Texts{"QA1"}));
}

TEST(CtyFit, ACallThatIsNeverFoundInItsCountryAlwaysGoes) {
    // The call has eleven characters. The program looks up QA1 and finds the other country, even if the file has room to spare.
    const Texts lines{Header("QA"), "    QA;", Header("QB"), "    QB,=QB12345/QA1;"};
    const std::vector<CtyCountry> countries = ReadCtyFile(lines);
    EXPECT_EQ(FitCty(countries).omissions.unreachable, (Texts{"=QB12345/QA1"}));
    EXPECT_EQ(WriteCty(FitCty(countries).countries), (Texts{Header("QA"), "    QA;", Header("QB"), "    QB;"}));
}

TEST(CtyFit, StarredCountriesAndItemsOfAnEarlierCountryAlwaysGo) {
    const Texts lines{Header("*QA/x"), "    QA5;", Header("QA"), "    QA,QX;", Header("QB"), "    QB,QX;"};
    const std::vector<CtyCountry> countries = ReadCtyFile(lines);
    const auto [fitted, out] = FitCty(countries);
    EXPECT_EQ(out.countries, (Texts{"*QA/x"}));
    EXPECT_EQ(out.duplicates, (Texts{"QX"}));
    EXPECT_EQ(WriteCty(fitted), (Texts{Header("QA"), "    QA,QX;", Header("QB"), "    QB;"}));
    EXPECT_EQ(CheckCty(fitted).size(), 1U) << "the lists still hold what is not written";
    EXPECT_EQ(CheckCty(ReadCtyFile(WriteCty(fitted))), (Texts{}));
}

TEST(CtyFit, AnItemThatStandsTwiceGoesWhenRoomIsShort) {
    const Texts lines{Header("QA"), "    QA,QB(5),QB(5),QB(6);"};
    EXPECT_EQ(Fitted(lines, 4), lines);
    EXPECT_EQ(Fitted(lines, 3), (Texts{Header("QA"), "    QA,QB(5),QB(6);"}));
    EXPECT_EQ(Fitted(lines, 2), (Texts{Header("QA"), "    QA,QB(5);"}));
}

TEST(CtyFit, LongCallsAreComparedAsTheTableCutsThem) {
    const Texts lines{Header("QA"), "    QA,=QA1/ABCDEFGH;", Header("QB"), "    QB,=QA1/ABCDEFXY;"};
    EXPECT_EQ(Fitted(lines, 5999), (Texts{Header("QA"), "    QA,=QA1/ABCDEFGH;", Header("QB"), "    QB;"}));
}

TEST(CtyFit, ACallOfFullLengthInFrontOfItsLetterGoes) {
    const Texts country{Header("QA"), "    QA,=IB1/ABCDEF,=QA1/ABCDEF;"};
    Texts lines = country;
    lines.insert(lines.end(), {Header("QI"), "    I;"});
    EXPECT_EQ(Fitted(lines, 5999), (Texts{Header("QA"), "    QA,=QA1/ABCDEF;", Header("QI"), "    I;"})) << "QA gives the other one";
    lines.back() = "    I,IA;";
    EXPECT_EQ(Fitted(lines, 5999), lines) << "IA stands before it";

    lines = {Header("QA"), "    QA,=IB1/ABCDEF,=IB1/ABCDEF;", Header("QI"), "    I;"};
    const std::vector<CtyCountry> countries = ReadCtyFile(lines);
    EXPECT_EQ(FitCty(countries).omissions.lostCalls, (Texts{"=IB1/ABCDEF", "=IB1/ABCDEF"})) << "wherever it stands";
    EXPECT_EQ(WriteCty(FitCty(countries).countries), (Texts{Header("QA"), "    QA;", Header("QI"), "    I;"}));
}

TEST(CtyFit, ACountryWithoutItemsKeepsItsHeader) {
    EXPECT_EQ(Fitted({Header("QA"), "    QA;", Header("QB"), "    QA;"}, 5999), (Texts{Header("QA"), "    QA;", Header("QB"), "    ;"}));
}

TEST(CtyFit, LongListsRunOverSeveralLines) {
    Texts lines{Header("QA"), "    "};
    for (int i = 100; i < 150; ++i) lines[1] += "QA" + std::to_string(i) + (i == 149 ? ";" : ",");
    const Texts written = WriteCty(ReadCtyFile(lines));
    // Twelve items per line.
    ASSERT_EQ(written.size(), 6U);
    std::string all;
    for (std::size_t i = 1; i < written.size(); ++i) {
        EXPECT_LE(written[i].size(), 78U);
        all += written[i].substr(4);
    }
    EXPECT_EQ("    " + all, lines[1]);
}

TEST(CtyFit, DamageIsToldByItsLine) {
    EXPECT_EQ(Refused({Header("QA"), "    QA;", "no header"}), "linje 3: kan ikke læses");
    EXPECT_EQ(Refused({Header("QA"), "    QA,", "    QB(1;"}), "linje 3: kan ikke læses");
    EXPECT_EQ(Refused({Header("QA"), "    QA,", "    QB;QC,QD;"}), "linje 3: ';' står inde i en post");
    EXPECT_EQ(Refused({Header("QA"), "    QA,,QB;"}), "linje 2: en post er tom");
    EXPECT_EQ(Refused({Header("QA"), "    QA,"}), "linje 2: filen holder op midt i et land");
    EXPECT_EQ(Refused(kTwo), "");
}

TEST(CtyFit, WhatTheImportWouldGoWrongOnIsTold) {
    const auto told = [](const Texts& lines) { return CheckCty(ReadCtyFile(lines)); };
    EXPECT_EQ(told(kTwo), (Texts{}));
    EXPECT_EQ(told({}), (Texts{"filen har ingen lande"})) << "the import would empty the tables";
    EXPECT_EQ(told({Header("*QA"), "    QA;", Header("QB"), "    QA;"}), (Texts{})) << "a starred country leaves no trace";
    EXPECT_EQ(told({Header("*QA"), "    QA;", Header("*QB"), "    QB;"}), (Texts{"to lande med * efter hinanden: *QB bliver taget med"}));
    EXPECT_EQ(told({Header("QA"), "    QA;", Header("*QB"), "    QB;"}), (Texts{"det sidste land er mærket med *"}));
    EXPECT_EQ(told({Header("*QA"), "    QA;", Header("QB") + " ", "    QB;"}),
              (Texts{"overskriften efter et land med * slutter ikke med ':': " + Header("QB") + " "}));
    EXPECT_EQ(told({Header("QB"), "    QB;", Header("QA"), "    QA;"}), (Texts{"QA står ikke i rækkefølge efter QB"}));
    EXPECT_EQ(told({Header("QA"), "    QA,QX;", Header("QB"), "    QX;"}), (Texts{"QX står under både QA og QB"}));
    Texts many{Header("QA"), "    "};
    for (int i = 0; i < 6000; ++i) many[1] += "QA,";
    many[1].back() = ';';
    EXPECT_EQ(told(many), (Texts{"6000 præfixer, der er plads til 5999"}));
    Texts countries;
    for (int i = 100; i <= 600; ++i) countries.insert(countries.end(), {Header("Q" + std::to_string(i)), "    ;"});
    EXPECT_EQ(told(countries), (Texts{"501 lande, der er plads til 500"}));
}

}  // namespace
}  // namespace vatro
