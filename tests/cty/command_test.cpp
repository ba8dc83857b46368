// SPDX-License-Identifier: MIT
#include "cty/command.h"

namespace vatro {
namespace {

using Texts = std::vector<std::string>;

const Texts kTwo{CtyHeader("QA"), "    QA,QA1,QA2(15),=QA5AB;", CtyHeader("QB"), "    QB;"};
const std::string kGood = "2 lande, filen kan importeres\n";

TEST_F(CtyCommand, TellsHowItIsUsed) {
    const std::string usage = "brug: vatro-cty CTY.DAT [NY.DAT]\n";
    for (const Texts& arguments : {Texts{}, Texts{"a", "b", "c"}}) {
        const Result result = Run(arguments);
        EXPECT_EQ(result.exit, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, usage);
    }
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(CtyCommand, AGoodFileIsCountedAndLeftAlone) {
    PutLines("a.dat", kTwo);
    const Result result = Run({"a.dat"});
    EXPECT_EQ(result.exit, 0);
    EXPECT_EQ(result.out, kGood);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(Names(), Texts{"a.dat"});
    EXPECT_EQ(Content("a.dat"), Joined(kTwo, "\r\n"));
}

TEST_F(CtyCommand, LinesMayEndInAnyWayAndEndWithCrLfInTheNewFile) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        Put("a.dat", Joined(kTwo, end));
        EXPECT_EQ(Run({"a.dat"}).out, kGood);
        const Result result = Run({"a.dat", "b.dat"});
        EXPECT_EQ(result.exit, 0);
        EXPECT_EQ(result.out, "") << "nothing is left out";
        EXPECT_EQ(Content("b.dat"), Joined(kTwo, "\r\n"));
        EXPECT_EQ(Import("a.dat"), 0);
        EXPECT_EQ(desk().tables.Rows().giRefPfx, 5) << "the import takes the same line ends";
        EXPECT_EQ(CountryOf("QB1"), "QB");
        EndProgram();
    }
}

TEST_F(CtyCommand, WithoutALineEndAtTheEndTheFileIsWhole) {
    std::string content = Joined(kTwo, "\n");
    content.pop_back();
    Put("a.dat", content);
    EXPECT_EQ(Run({"a.dat", "b.dat"}).exit, 0);
    EXPECT_EQ(Content("b.dat"), Joined(kTwo, "\r\n"));
}

TEST_F(CtyCommand, AFileThatCannotBeReadIsTold) {
    std::filesystem::create_directory(root_ / "dir");
    for (const std::string name : {"missing.dat", "dir"})
        for (const Texts& arguments : {Texts{name}, Texts{name, "b.dat"}}) {
            const Result result = Run(arguments);
            EXPECT_EQ(result.exit, 1);
            EXPECT_EQ(result.out, "");
            EXPECT_EQ(result.err, "vatro-cty: " + name + " kan ikke læses\n");
        }
    EXPECT_EQ(Names(), Texts{"dir"});
}

TEST_F(CtyCommand, AFileThatCannotBeWrittenIsToldAndLeavesNothingBehind) {
    PutLines("a.dat", kTwo);
    std::filesystem::create_directory(root_ / "dir");
    for (const std::string name : {"missing/b.dat", "dir"}) {
        const Result result = Run({"a.dat", name});
        EXPECT_EQ(result.exit, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "vatro-cty: " + name + " kan ikke skrives\n");
    }
    EXPECT_EQ(Names(), (Texts{"a.dat", "dir"}));
    EXPECT_EQ(Names("dir"), Texts{});
}

TEST_F(CtyCommand, TheNewFileMayBeTheOldOne) {
    PutLines("a.dat", {CtyHeader("*QC"), "    QC;", CtyHeader("QD"), "    QD;"});
    EXPECT_EQ(Run({"a.dat", "a.dat"}).exit, 0);
    EXPECT_EQ(Content("a.dat"), Joined({CtyHeader("QD"), "    QD;"}, "\r\n"));
    EXPECT_EQ(Names(), Texts{"a.dat"});
}

struct Damage {
    Texts lines;
    std::string told;
    /// The failure of the import; 0 if the import succeeds, but with a wrong result.
    int failure;
};

// Check and fitting report a damaged file in the same words, and leave an existing output file alone. The import stops with the
// given failure.
TEST_F(CtyCommand, DamageIsToldAndNothingIsWritten) {
    const std::vector<Damage> damages{
        {{}, "filen har ingen lande\n", 0},
        {{"no header", "    QA;"}, "vatro-cty: linje 1: kan ikke læses\n", 5},
        {{CtyHeader("QA"), "    QA;", ""}, "vatro-cty: linje 3: kan ikke læses\n", 5},
        {{CtyHeader("QA"), "    QA(1,QB;"}, "vatro-cty: linje 2: kan ikke læses\n", 5},
        {{CtyHeader("QA"), "    QA[1;"}, "vatro-cty: linje 2: kan ikke læses\n", 5},
        {{CtyHeader("QA"), "    QA"}, "vatro-cty: linje 2: kan ikke læses\n", 5},
        {{CtyHeader("QA"), "    QA,"}, "vatro-cty: linje 2: filen holder op midt i et land\n", 62},
        {{"Fantasia:                 14:  27:  EU:    1e99:   -10.00:    -1.0:  QA:", "    QA;"},
         "vatro-cty: linje 1: kan ikke læses\n",
         6},
        {{CtyHeader("QB"), "    QB;", CtyHeader("QA"), "    QA;"}, "QA står ikke i rækkefølge efter QB\n", 0},
        {{CtyHeader("\xC6"), "    QB;", CtyHeader("QA"), "    QA;"}, "QA står ikke i rækkefølge efter Æ\n", 0},
    };
    for (const Damage& damage : damages) {
        PutLines("a.dat", damage.lines);
        Put("b.dat", "old");
        for (const Texts& arguments : {Texts{"a.dat"}, Texts{"a.dat", "b.dat"}}) {
            const Result result = Run(arguments);
            EXPECT_EQ(result.exit, 1) << damage.told;
            EXPECT_EQ(result.out, "");
            EXPECT_EQ(result.err, damage.told);
        }
        EXPECT_EQ(Content("b.dat"), "old");
        EXPECT_EQ(Import("a.dat"), damage.failure) << damage.told;
        EndProgram();
    }
}

TEST_F(CtyCommand, WhatTheImportWouldGoWrongOnIsToldAndPutRight) {
    PutLines("a.dat", {CtyHeader("*QA/x"), "    QA5;", CtyHeader("*QA/y"), "    QA6;", CtyHeader("QA"), "    QA,QX;", CtyHeader("QB"),
                       "    QB,QX;", CtyHeader("*QC"), "    QC;"});
    Result result = Run({"a.dat"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "to lande med * efter hinanden: *QA/y bliver taget med\n"
              "QX står under både QA og QB\n"
              "det sidste land er mærket med *\n");
    result = Run({"a.dat", "b.dat"});
    EXPECT_EQ(result.exit, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
              "3 lande med * er udeladt:\n  *QA/x *QA/y *QC\n"
              "1 poster står allerede under et andet land og er udeladt:\n  QX\n");
    EXPECT_EQ(Content("b.dat"), Joined({CtyHeader("QA"), "    QA,QX;", CtyHeader("QB"), "    QB;"}, "\r\n"));
    EXPECT_EQ(Run({"b.dat"}).out, kGood);
    EXPECT_EQ(Import("b.dat"), 0);
    EXPECT_EQ(CountryOf("QX1AB"), "QA");
    EXPECT_EQ(CountryOf("QC1AB"), "");
}

}  // namespace
}  // namespace vatro
