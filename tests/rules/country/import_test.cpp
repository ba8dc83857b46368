// SPDX-License-Identifier: MIT
#include "country/import.h"
#include "frame/state.h"

#include <numeric>

#include "codepage.h"
#include "country/tables.h"
#include "rules/country/country_program.h"
#include "tables/frmCtyDat.h"

namespace vatro {
namespace {

using namespace literals;

constexpr const char* kHeader = "Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  QQ:";

class Import : public CountryProgram {
protected:
    void Run(std::vector<std::string> lines) {
        files.files["DATA\\CTY.DAT"] = std::move(lines);
        ImporterCty();
        frmCtyDat.Unload();
    }
    /// The number of the failure that ends the import.
    int Failing(std::vector<std::string> lines) {
        try {
            Run(std::move(lines));
        } catch (const RunTimeError& failure) {
            // As the end of the program does.
            files.Close(1);
            return failure.Number();
        }
        return 0;
    }
    static std::string Number(int number) {
        const std::string digits = std::to_string(number);
        return std::string(4 - digits.size(), '0') + digits;
    }
    /// An entry with the prefixes C0001 and so on, ten to a line.
    static std::vector<std::string> Entry(int prefixes) {
        std::vector<std::string> lines{kHeader};
        for (int i = 1; i <= prefixes; ++i) {
            if (i % 10 == 1) lines.emplace_back("    ");
            lines.back() += "C" + Number(i) + (i == prefixes ? ";" : ",");
        }
        return lines;
    }
    static std::string Prefix(int row) { return std::string(desk().tables.RefPfx[static_cast<std::size_t>(row)].Pfx.Trimmed()); }
    static int Start(char c) { return desk().tables.gaPfxStart[static_cast<unsigned char>(c)]; }
    std::vector<std::string> OldFiles() { return {LinesOf("DATA\\LANDE.TXT").at(0), LinesOf("DATA\\REFPFX.TXT").at(0)}; }
    const std::vector<std::string> untouched{"DL        Fed. Rep. of Germany     EU -1 ", "DL        DL        14 28"};
};

TEST_F(Import, FillsARowForEachCountry) {
    Run({kHeader, "    QQ;", "A Country With A Long Name05:  06:  OC:  -56.25:   110.50:    +5.5:  QS:", "    QS;"});
    ASSERT_EQ(desk().tables.giLande, 2);
    EXPECT_EQ(Country(1).Pfx.Padded(), "QQ        ");
    EXPECT_EQ(Country(1).Navn.Trimmed(), "Fantasia");
    EXPECT_FLOAT_EQ(Country(1).Bredde, 56.0F);
    EXPECT_FLOAT_EQ(Country(1).Laengde, -10.0F);
    EXPECT_FLOAT_EQ(Country(1).TidsZone, -1.0F);
    EXPECT_EQ(Country(2).Navn.Padded(), "A Country With A Long Nam") << "cut at 25";
    EXPECT_FLOAT_EQ(Country(2).Bredde, -56.25F);
    EXPECT_FLOAT_EQ(Country(2).Laengde, 110.5F);
    EXPECT_FLOAT_EQ(Country(2).TidsZone, 5.5F);
    EXPECT_EQ(LinesOf("DATA\\LANDE.TXT").at(1), "QS        A Country With A Long NamOC  5.5 ");
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(Import, NoNumberIsNoughtAndATooLargeOneFails) {
    Run({"Fantasia:                 14:  27:  EU:       x:         :     -0 :  QQ:", "    QQ;"});
    EXPECT_FLOAT_EQ(Country(1).Bredde, 0.0F);
    EXPECT_EQ(LinesOf("DATA\\LANDE.TXT").at(0), "QQ        Fantasia                 EU  0 ");
    EXPECT_EQ(Failing({"Fantasia:                 14:  27:  EU:    1e99:         :     -0 :  QQ:", "    QQ;"}), 6);
}

TEST_F(Import, LeavesTheWorkedMarksInTheirRows) {
    desk().tables.Lande[2].Wkd = true;
    Run({kHeader, "    QQ;", kHeader, "    QR;"});
    EXPECT_FALSE(Country(1).Wkd);
    EXPECT_TRUE(Country(2).Wkd);
}

TEST_F(Import, IndexesTheFirstCharactersOfPrefixesThatAreNotOfFullLength) {
    desk().tables.gaPfxStart[static_cast<unsigned char>('Z')] = 77;
    // Sorted: A123456789, A1, B123456789, C, nothing.
    Run({kHeader, "    C,B123456789,A1,A123456789,,;"});
    ASSERT_EQ(desk().tables.giRefPfx, 5);
    EXPECT_EQ(Prefix(1), "A123456789");
    EXPECT_EQ(Start('A'), 2) << "row 1 is passed over";
    EXPECT_EQ(Start('B'), 0);
    EXPECT_EQ(Start('C'), 4);
    EXPECT_EQ(Start(' '), 5);
    EXPECT_EQ(Start('Z'), 77) << "what no longer begins a row keeps its value";
}

TEST_F(Import, ThePrefixesAreFoundAtOnce) {
    Run({kHeader, "    QQ,QQ1;"});
    EXPECT_EQ(FindPrefix("QQ1AB", 1), 1);
    EXPECT_EQ(FindWholeCall("QQ", 1), 2);
    EXPECT_EQ(FindWholeCall("DL", 1), 0);
}

TEST_F(Import, ACharacterOfTheFillerEndsAPrefix) {
    // The longer one is not cut, because its last character is none.
    Run({kHeader, std::string("    Q\xE5X,QRSTUV\xE5XYZ;")});
    EXPECT_EQ(Prefix(1), "QRSTUV\xE5XYZ");
    EXPECT_EQ(Prefix(2), "Q");
}

TEST_F(Import, AnEmptyFileGivesEmptyTables) {
    Run({});
    EXPECT_EQ(desk().tables.giLande, 0);
    EXPECT_EQ(desk().tables.giRefPfx, 0);
    EXPECT_EQ(LinesOf("DATA\\LANDE.TXT").size(), 0U);
    EXPECT_EQ(LinesOf("DATA\\REFPFX.TXT").size(), 0U);
}

TEST_F(Import, FewerRowsLeaveNoneOfTheOldOnesInUse) {
    Run({kHeader, "    QQ,QR,QS;"});
    Run({kHeader, "    QT;"});
    EXPECT_EQ(LinesOf("DATA\\REFPFX.TXT"), (std::vector<std::string>{"QT        QQ        14 27"}));
    EXPECT_EQ(FindWholeCall("QS", 1), 0);
}

TEST_F(Import, FiveHundredCountriesFitAndOneMoreFails) {
    std::vector<std::string> lines;
    for (int i = 0; i < 500; ++i) lines.insert(lines.end(), {kHeader, "    QQ;"});
    Run(lines);
    EXPECT_EQ(desk().tables.giLande, 500);

    files.files["DATA\\LANDE.TXT"] = {untouched[0]};
    files.files["DATA\\REFPFX.TXT"] = {untouched[1]};
    lines.insert(lines.end(), {kHeader, "    QQ;"});
    EXPECT_EQ(Failing(lines), 9);
    EXPECT_EQ(OldFiles(), untouched);
}

TEST_F(Import, FiveThousandNineHundredAndNinetyNinePrefixesSurviveWhole) {
    std::vector<std::string> lines = Entry(5999);
    // The last line to the front, so that there is something to sort.
    std::swap(lines[1], lines[599]);
    Run(lines);
    ASSERT_EQ(desk().tables.giRefPfx, 5999);
    for (int i = 1; i <= 5999; ++i) ASSERT_EQ(Prefix(i), "C" + Number(i));
}

TEST_F(Import, TheSixThousandthPrefixIsLostInTheSort) {
    // The first swap puts C0002 over C6000 on its way; after that the last row is the smallest one left at each step and is
    // overwritten by the row that it should have taken the place of.
    std::vector<std::string> lines = Entry(6000);
    lines[1].replace(4, 11, "C0002,C0001");
    Run(lines);
    ASSERT_EQ(desk().tables.giRefPfx, 6000);
    for (int i = 1; i <= 5999; ++i) ASSERT_EQ(Prefix(i), "C" + Number(i));
    EXPECT_EQ(Prefix(6000), "C5999");
}

TEST_F(Import, SixThousandPrefixesInOrderNeedNoSwapAndStayWhole) {
    Run(Entry(6000));
    EXPECT_EQ(Prefix(6000), "C6000");
}

TEST_F(Import, OnePrefixTooManyIsToldAndFails) {
    dialogs.Expect(
        "Der er 6001 præfixer, men der er kun plads til 6000 i tabellen. \r\n"
        "Kontakt programleverandøren om fejlen. \r\n"
        "I kan køre videre, men der vil være fejl i jeres præfixberegning. \r\n"
        "Det kan rettes op senere med en korrekt fil.");
    EXPECT_EQ(Failing(Entry(6001)), 9);
    EXPECT_EQ(dialogs.boxes.at(0).title, "Tabeloverløb"_t);
    EXPECT_EQ(dialogs.boxes.at(0).icon, Icon::Information);
    EXPECT_EQ(OldFiles(), untouched);
}

TEST_F(Import, ADamagedFileFailsBeforeAnythingIsWritten) {
    EXPECT_EQ(Failing({""}), 5);
    EXPECT_EQ(Failing({std::string("\0\x01\xFF:\0", 5)}), 5);
    EXPECT_EQ(Failing({kHeader}), 62);
    EXPECT_EQ(Failing({kHeader, "    QQ,"}), 62);
    EXPECT_EQ(Failing({kHeader, "    QQ(15;"}), 5);
    EXPECT_EQ(Failing({kHeader, "    QQ,QR"}), 5);
    EXPECT_EQ(Failing({kHeader, "    QQ;", "no header"}), 5);
    EXPECT_EQ(OldFiles(), untouched);
    EXPECT_EQ(desk().tables.giLande, 0) << "nothing is in use before the whole file is read";
}

TEST_F(Import, AFileThatCannotBeReadFails) {
    files.FailFrom("read", 2, Failure::DiskNotReady);
    EXPECT_EQ(Failing({kHeader, "    QQ;"}), 71);
    EXPECT_EQ(OldFiles(), untouched);
}

TEST_F(Import, TheBarPassesEveryRowOfEveryStep) {
    files.files["DATA\\CTY.DAT"] = {kHeader, "    QQ,QR,QS;"};
    std::vector<std::string> seen;
    frmCtyDat->ProgressBar1.mirror = [&](Aspect, int) {
        const ProgressBar& bar = frmCtyDat->ProgressBar1;
        seen.push_back(std::string(frmCtyDat->sbStatusBar.Panel(1)).substr(0, 9) + " " + std::to_string(bar.Value()) + "/" +
                       std::to_string(bar.Max()));
    };
    ImporterCty();
    EXPECT_EQ(seen, (std::vector<std::string>{"Sorterer  0/3", "Sorterer  1/3", "Sorterer  2/3", "Sorterer  3/3", "Rydder op 0/3",
                                              "Rydder op 1/3", "Rydder op 2/3", "Rydder op 3/3", "Skriver L 1/1", "Skriver L 0/1",
                                              "Skriver L 1/1", "Skriver R 1/3", "Skriver R 0/3", "Skriver R 1/3", "Skriver R 2/3",
                                              "Skriver R 3/3"}));
    frmCtyDat.Unload();
}

TEST_F(Import, TheBarPassesEveryRowOfALongTableToo) {
    // More rows than the bar is painted times.
    constexpr int kRows = 350;
    files.files["DATA\\CTY.DAT"] = Entry(kRows);
    std::vector<int> seen;
    frmCtyDat->ProgressBar1.mirror = [&](Aspect, int) {
        if (frmCtyDat->sbStatusBar.Panel(1).starts_with("Sorterer")) seen.push_back(frmCtyDat->ProgressBar1.Value());
    };
    ImporterCty();
    std::vector<int> every(kRows + 1);
    std::iota(every.begin(), every.end(), 0);
    EXPECT_EQ(seen, every);
    frmCtyDat.Unload();
}

TEST_F(Import, TheFormShowsADayBeforeAllTimeAndTicksByTheMinute) {
    clock.now.second = 20;
    frmCtyDat.Load();
    EXPECT_EQ(frmCtyDat->Caption(), "Importerer cty.dat");
    EXPECT_EQ(frmCtyDat->sbStatusBar.Panels(), (std::vector<std::string>{"", "30.12.1899", ""}));
    EXPECT_TRUE(frmCtyDat->Timer1.Running());
    EXPECT_EQ(frmCtyDat->Timer1.Interval(), 60000) << "the first tick, at once, takes a minute for the next";
    frmCtyDat.Unload();
}

}  // namespace
}  // namespace vatro
