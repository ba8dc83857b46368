// SPDX-License-Identifier: MIT
#include "frame/log_file.h"

#include "frame/state.h"
#include "tables/worked.h"

#include "country/lookup.h"
#include "frame/band_mode.h"
#include "running_program.h"
#include "tables/unknown.h"

namespace vatro {
namespace {

using namespace literals;
using Lines = std::vector<std::string>;

const std::string kFirst = "10:10 DL1AA           59 -0007 59 -0003  3 DL         OZ1DEF     SSB   05-09-26";
const std::string kSecond = "10:12 OZ1ABC          59 -0009 59 -0004 10 OZ         OZ1DEF     SSB   05-09-26";
const std::string kDuplicate = "10:15 DL1AA           59 -0008 59 -0005  0 -DUPE-     OZ1DEF     SSB   05-09-26";

class LogFile : public RunningProgram {
protected:
    void StartWith(const Lines& lines) {
        files.files["LOG\\FD80MSSB.TXT"] = lines;
        Start();
        files.steps.clear();
    }
};

TEST_F(LogFile, IsNamedAfterBandAndMode) {
    Start();
    EXPECT_EQ(LogPath("10m", "CW"), "log\\FD10mCW.txt");
    EXPECT_EQ(CurrentLogPath(), "log\\FD80mSSB.txt");
}

TEST_F(LogFile, LoadCountsPointsCountriesAndTakesTheLastSerialNumber) {
    StartWith({kFirst, kSecond, kDuplicate});
    IndlæsLogfil();
    EXPECT_EQ(desk().log.giQSOnr, 8);
    EXPECT_EQ(desk().log.glPoint, 13);
    EXPECT_EQ(desk().giMult, 2);
    EXPECT_EQ(frmMain->log.Items(), (Lines{kFirst, kSecond, kDuplicate}));
    EXPECT_EQ(frmMain->log.ListIndex(), 2);
    EXPECT_EQ(frmMain->statusBar.Panel(1), "Vatro 80m SSB");
    EXPECT_EQ(frmMain->statusBar.Panel(6), "26");
}

TEST_F(LogFile, LoadListsANoteAndCountsNothingOfIt) {
    StartWith({kFirst, "note: x                                 99 OZ"});
    IndlæsLogfil();
    EXPECT_EQ(frmMain->log.ListCount(), 2);
    EXPECT_EQ(desk().log.giQSOnr, 7);
    EXPECT_EQ(desk().log.glPoint, 3);
    EXPECT_EQ(desk().giMult, 1);
}

TEST_F(LogFile, LoadOfALogWithoutContactsSelectsNothing) {
    StartWith({});
    IndlæsLogfil();
    EXPECT_EQ(frmMain->log.ListIndex(), -1);
    EXPECT_EQ(desk().log.giQSOnr, 0);
}

TEST_F(LogFile, LoadThatFailsOnTheWayKeepsWhatWasRead) {
    StartWith({kFirst, kSecond});
    files.FailFrom("read", 2, Failure::DiskNotReady);
    IndlæsLogfil();
    EXPECT_EQ(frmMain->log.Items(), Lines{kFirst});
    EXPECT_EQ(desk().log.glPoint, 3);
    EXPECT_EQ(desk().log.giQSOnr, 7);
    // The panels still show the zeros that were set before the file was opened.
    EXPECT_EQ(frmMain->statusBar.Panel(2), "0");
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(LogFile, LoadBelievesTheMultiplierColumnAndNotTheCall) {
    StartWith({"10:10 DL1AA           59 -0007 59 -0003  3 OZ         OZ1DEF     SSB   05-09-26"});
    EXPECT_EQ(ToUtf8(ShownCountry("OZ7XYZ").text), "OZ: Denmark (EU), er kørt.");
    EXPECT_EQ(ShownCountry("DL1AA").text, "DL: Fed. Rep. of Germany (EU), er nyt land.");
}

TEST_F(LogFile, LoadTakesALineThatEndsBeforeItsPoints) {
    StartWith({"10:10 DL1AA           59 -0007"});
    IndlæsLogfil();
    EXPECT_EQ(desk().log.giQSOnr, 7);
    EXPECT_EQ(desk().log.glPoint, 0);
    EXPECT_EQ(desk().giMult, 0);
}

TEST_F(LogFile, AppendOpensWritesAndClosesForEachLine) {
    StartWith({kFirst});
    AppendLog(kSecond);
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt"), (Lines{kFirst, kSecond}));
    EXPECT_EQ(files.steps, (Lines{"open LOG\\FD80MSSB.TXT", "write LOG\\FD80MSSB.TXT", "close"}));
}

TEST_F(LogFile, AppendThatFailsEndsTheProgramAfterOneMessage) {
    StartWith({kFirst});
    files.FailFrom("write", 1, Failure::DiskFull);
    dialogs.Expect(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\nDet er enten ikke defineret endnu eller også er det blevet fjernet, døbt om "
        "eller flyttet. Vatro standses.\r\n\r\nStart Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' "
        "og log så qso'en igen.");
    settings.written.clear();
    bool wentOn = false;
    Dispatch([&] {
        AppendLog(kSecond);
        wentOn = true;
    });
    EXPECT_FALSE(wentOn);
    EXPECT_TRUE(front.ended);
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt"), Lines{kFirst});
    // The closing procedure did not run, so nothing was stored.
    EXPECT_EQ(settings.written, Lines{});
}

TEST_F(LogFile, RewriteGoesByWayOfACopy) {
    StartWith({kFirst, kSecond});
    desk().log.Replace(0, "NOTE: x");
    SkrivLog();
    EXPECT_EQ(files.steps, (Lines{"open LOG\\FDKOPI.TXT", "write LOG\\FDKOPI.TXT", "write LOG\\FDKOPI.TXT", "close",
                                  "delete LOG\\FD80MSSB.TXT", "rename LOG\\FDKOPI.TXT"}));
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt"), (Lines{"NOTE: x", kSecond}));
    EXPECT_FALSE(files.files.contains("LOG\\FDKOPI.TXT"));
}

TEST_F(LogFile, RewriteThatFailsLeavesTheOldLogOrTheCopyWhole) {
    for (const auto& [step, times] : {std::pair{"open", 1}, {"write", 1}, {"write", 2}, {"delete", 1}, {"rename", 1}}) {
        SCOPED_TRACE(step);
        StartWith({kFirst, kSecond});
        files.FailFrom(step, times, Failure::PermissionDenied);
        EXPECT_THROW(SkrivLog(), RunTimeError);
        const bool log = LinesOf("log\\FD80mSSB.txt") == Lines{kFirst, kSecond};
        const bool copy = LinesOf("log\\FDkopi.txt") == Lines{kFirst, kSecond};
        EXPECT_TRUE(log || copy);
        files.FailFrom("", 0, Failure::PermissionDenied);
        EndProgram();
        files.Close(1);
    }
}

}  // namespace
}  // namespace vatro
