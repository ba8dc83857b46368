// SPDX-License-Identifier: MIT
#include "tables/import_country_file.h"

#include <numeric>

#include "codepage.h"
#include "frame/state.h"
#include "program.h"
#include "rules/country/country_file.h"
#include "running_program.h"
#include "tables/frmCtyDat.h"

namespace vatro {
namespace {

using namespace literals;

class ImportingCountries : public RunningProgram {
protected:
    void SetUp() override {
        BeginProgram();
        ResetDesk();
        desk().gsFDLib = "data";
    }
    void TearDown() override { ResetDesk(); }
    static const LandRec& Country(int row) { return desk().tables.Rows().Lande[static_cast<std::size_t>(row)]; }
    void Run(std::vector<std::string> lines) {
        files.files["DATA\\CTY.DAT"] = std::move(lines);
        ImporterCty();
        frmCtyDat.Unload();
    }
    /// The number of the failure that ends the importer.
    int Failing(std::vector<std::string> lines) {
        try {
            Run(std::move(lines));
        } catch (const RunTimeError& failure) {
            // The end of the program does the same.
            files.Close(1);
            return failure.Number();
        }
        return 0;
    }
    std::vector<std::string> OldFiles() { return {LinesOf("DATA\\LANDE.TXT").at(0), LinesOf("DATA\\REFPFX.TXT").at(0)}; }
    const std::vector<std::string> untouched{"DL        Fed. Rep. of Germany     EU -1 ", "DL        DL        14 28"};
};

TEST_F(ImportingCountries, FillsARowForEachCountry) {
    Run({kSampleHeader, "    QQ;", "A Country With A Long Name05:  06:  OC:  -56.25:   110.50:    +5.5:  QS:", "    QS;"});
    ASSERT_EQ(desk().tables.Rows().giLande, 2);
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

TEST_F(ImportingCountries, NoNumberIsNoughtAndATooLargeOneFails) {
    Run({"Fantasia:                 14:  27:  EU:       x:         :     -0 :  QQ:", "    QQ;"});
    EXPECT_FLOAT_EQ(Country(1).Bredde, 0.0F);
    EXPECT_EQ(LinesOf("DATA\\LANDE.TXT").at(0), "QQ        Fantasia                 EU  0 ");
    EXPECT_EQ(Failing({"Fantasia:                 14:  27:  EU:    1e99:         :     -0 :  QQ:", "    QQ;"}), 6);
}

TEST_F(ImportingCountries, ThePrefixesAreFoundAtOnce) {
    Run({kSampleHeader, "    QQ,QQ1;"});
    EXPECT_EQ(desk().tables.FindPrefix("QQ1AB", 1), 1);
    EXPECT_EQ(desk().tables.FindWholeCall("QQ", 1), 2);
    EXPECT_EQ(desk().tables.FindWholeCall("DL", 1), std::nullopt);
}

TEST_F(ImportingCountries, AnEmptyFileGivesEmptyTables) {
    Run({});
    EXPECT_EQ(desk().tables.Rows().giLande, 0);
    EXPECT_EQ(desk().tables.Rows().giRefPfx, 0);
    EXPECT_EQ(LinesOf("DATA\\LANDE.TXT").size(), 0U);
    EXPECT_EQ(LinesOf("DATA\\REFPFX.TXT").size(), 0U);
}

TEST_F(ImportingCountries, FewerRowsLeaveNoneOfTheOldOnesInUse) {
    Run({kSampleHeader, "    QQ,QR,QS;"});
    Run({kSampleHeader, "    QT;"});
    EXPECT_EQ(LinesOf("DATA\\REFPFX.TXT"), (std::vector<std::string>{"QT        QQ        14 27"}));
    EXPECT_EQ(desk().tables.FindWholeCall("QS", 1), std::nullopt);
}

TEST_F(ImportingCountries, FiveHundredCountriesFitAndOneMoreFails) {
    std::vector<std::string> lines;
    for (int i = 0; i < 500; ++i) lines.insert(lines.end(), {kSampleHeader, "    QQ;"});
    Run(lines);
    EXPECT_EQ(desk().tables.Rows().giLande, 500);

    files.files["DATA\\LANDE.TXT"] = {untouched[0]};
    files.files["DATA\\REFPFX.TXT"] = {untouched[1]};
    lines.insert(lines.end(), {kSampleHeader, "    QQ;"});
    EXPECT_EQ(Failing(lines), 9);
    EXPECT_EQ(OldFiles(), untouched);
}

TEST_F(ImportingCountries, OnePrefixTooManyIsToldAndFails) {
    dialogs.Expect(
        "Der er 6001 præfixer, men der er kun plads til 6000 i tabellen. \r\n"
        "Kontakt programleverandøren om fejlen. \r\n"
        "I kan køre videre, men der vil være fejl i jeres præfixberegning. \r\n"
        "Det kan rettes op senere med en korrekt fil.");
    EXPECT_EQ(Failing(EntryOf(6001)), 9);
    EXPECT_EQ(dialogs.boxes.at(0).title, "Tabeloverløb"_t);
    EXPECT_EQ(dialogs.boxes.at(0).icon, Icon::Information);
    EXPECT_EQ(OldFiles(), untouched);
}

TEST_F(ImportingCountries, ADamagedFileFailsBeforeAnythingIsWritten) {
    EXPECT_EQ(Failing({""}), 5);
    EXPECT_EQ(Failing({std::string("\0\x01\xFF:\0", 5)}), 5);
    EXPECT_EQ(Failing({kSampleHeader}), 62);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ,"}), 62);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ(15;"}), 5);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ,QR"}), 5);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ;", "no header"}), 5);
    EXPECT_EQ(OldFiles(), untouched);
    EXPECT_EQ(desk().tables.Rows().giLande, 0) << "nothing is in use before the whole file is read";
}

TEST_F(ImportingCountries, AFileThatCannotBeReadFails) {
    files.FailFrom("read", 2, Failure::DiskNotReady);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ;"}), 71);
    EXPECT_EQ(OldFiles(), untouched);
}

TEST_F(ImportingCountries, TheBarPassesEveryRowOfEveryStep) {
    files.files["DATA\\CTY.DAT"] = {kSampleHeader, "    QQ,QR,QS;"};
    std::vector<std::string> seen;
    frmCtyDat->progress.mirror = [&](Aspect, int) {
        const ProgressBar& bar = frmCtyDat->progress;
        seen.push_back(std::string(frmCtyDat->statusBar.Panel(1)).substr(0, 9) + " " + std::to_string(bar.Value()) + "/" +
                       std::to_string(bar.Max()));
    };
    ImporterCty();
    EXPECT_EQ(seen, (std::vector<std::string>{"Sorterer  0/3", "Sorterer  1/3", "Sorterer  2/3", "Sorterer  3/3", "Rydder op 0/3",
                                              "Rydder op 1/3", "Rydder op 2/3", "Rydder op 3/3", "Skriver L 1/1", "Skriver L 0/1",
                                              "Skriver L 1/1", "Skriver R 1/3", "Skriver R 0/3", "Skriver R 1/3", "Skriver R 2/3",
                                              "Skriver R 3/3"}));
    frmCtyDat.Unload();
}

TEST_F(ImportingCountries, TheBarPassesEveryRowOfALongTableToo) {
    // The table has more rows than the number of times that the bar is painted.
    constexpr int kRows = 350;
    files.files["DATA\\CTY.DAT"] = EntryOf(kRows);
    std::vector<int> seen;
    frmCtyDat->progress.mirror = [&](Aspect, int) {
        if (frmCtyDat->statusBar.Panel(1).starts_with("Sorterer")) seen.push_back(frmCtyDat->progress.Value());
    };
    ImporterCty();
    std::vector<int> every(kRows + 1);
    std::iota(every.begin(), every.end(), 0);
    EXPECT_EQ(seen, every);
    frmCtyDat.Unload();
}

TEST_F(ImportingCountries, TheFormShowsADayBeforeAllTimeAndTicksByTheMinute) {
    clock.now.second = 20;
    frmCtyDat.Load();
    EXPECT_EQ(frmCtyDat->Caption(), "Importerer cty.dat");
    EXPECT_EQ(frmCtyDat->statusBar.Panels(), (std::vector<std::string>{"", "30.12.1899", ""}));
    EXPECT_TRUE(frmCtyDat->minuteTimer.Running());
    EXPECT_EQ(frmCtyDat->minuteTimer.Interval(), 60000) << "the first tick, at once, takes a minute for the next";
    frmCtyDat.Unload();
}

}  // namespace
}  // namespace vatro
