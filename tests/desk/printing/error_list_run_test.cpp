// SPDX-License-Identifier: MIT
#include "printing/error_list_run.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "frame/log_file.h"
#include "frame/state.h"
#include "paper_program.h"
#include "tables/worked.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

const std::string kFaultless = "       - Der er ikke fundet fejl i denne log.";
const std::string kMissing = "       - Log ikke fundet.";
const std::string kErrorColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";

class ErrorListRun : public PaperProgram {
protected:
    Lines List() {
        Choose(frmMain->mnuFilerDanFejlliste);
        return Paper("Fejllist.txt");
    }
    /// The part of the error list for one log, without its heading.
    Lines SectionOf(const std::string& band, const std::string& mode) {
        std::string padded = mode;
        padded.resize(3, ' ');
        const Lines list = List();
        auto from = std::find(list.begin(), list.end(),
                              "       ================================   " + band + " " + padded + "   ==================================");
        if (from == list.end()) return {"no heading"};
        ++from;
        return {from, std::find_if(from, list.end(), [](const std::string& line) { return line.starts_with("       ===="); })};
    }
    static Told Good() { return {.call = "DL1AA", .points = 3, .mult = "DL"}; }
    static Told GoodSsb() { return {.call = "DL1AA", .points = 3, .mult = "DL", .mode = "SSB", .sent = "59", .received = "57"}; }
};

TEST_F(ErrorListRun, WithoutALogTellsSoTenTimes) {
    Lines wanted{"       Vatro fejlliste for OZ1AB/P. Dannet d. 05.09.2026", " "};
    for (const char* log : {"80m CW ", "80m SSB", "40m CW ", "40m SSB", "20m CW ", "20m SSB", "15m CW ", "15m SSB", "10m CW ", "10m SSB"}) {
        wanted.push_back("       ================================   " + std::string(log) + "   ==================================");
        wanted = wanted + Lines{" ", kMissing, " "};
    }
    EXPECT_EQ(List(), wanted);
    EXPECT_THAT(Progress(), ElementsAre("Dan fejlliste", "80m CW", "80m SSB", "40m CW", "40m SSB", "20m CW", "20m SSB", "15m CW", "15m SSB",
                                        "10m CW", "10m SSB"));
    EXPECT_TRUE(IsFree(1));
    EXPECT_TRUE(IsFree(2));
}

TEST_F(ErrorListRun, TakesAnEmptyLogForAMissingOne) {
    Log("80mCW", {});
    EXPECT_THAT(SectionOf("80m", "CW"), ElementsAre(" ", kMissing, " "));
    EXPECT_TRUE(IsFree(1));
}

TEST_F(ErrorListRun, SaysThatALogIsFaultless) {
    Log("80mCW", {Contact(Good())});
    EXPECT_THAT(SectionOf("80m", "CW"), ElementsAre(" ", kFaultless, " "));
}

TEST_F(ErrorListRun, EndsALogAtALineWithoutACall) {
    Log("80mCW", {Contact(Good()), "13:05", Contact({.call = "bad"})});
    const Lines section = SectionOf("80m", "CW");
    ASSERT_GE(section.size(), 3U);
    EXPECT_EQ(Lines(section.end() - 3, section.end()), Lines({" ", kMissing, " "}));
    EXPECT_EQ(std::count(section.begin(), section.end(), kErrorColumns), 1);
    EXPECT_TRUE(IsFree(1));
}

TEST_F(ErrorListRun, LoadsTheCurrentLogAgainAndResetsTheEntry) {
    // The log in use is that of 80 metres SSB.
    Log("80mSSB", {Contact(GoodSsb())});
    Log("10mCW", {Contact({.call = "VK2AA", .points = 6, .mult = "VK"})});
    Dispatch([] {
        IndlæsLogfil();
        frmMain->fields[kCallField].SetText("DL9XX");
    });
    List();
    EXPECT_EQ(desk().log.glPoint, 3);
    EXPECT_EQ(desk().giMult, 1);
    EXPECT_EQ(desk().log.giQSOnr, 13);
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "");
    EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0013");
    EXPECT_EQ(ShownCountry("VK2AA").text, "VK: Australia (OC), er nyt land.");
    EXPECT_TRUE(frmMain->Enabled());
    EXPECT_FALSE(frmMain->Hourglass());
    EXPECT_EQ(ActiveForm(), &*frmInfo);
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt"), Lines{Contact(GoodSsb())});
}

TEST_F(ErrorListRun, DisablesTheMainFormWhileItRuns) {
    struct Watch : public FakeFront {
        void Refresh(Form&) override { seen.push_back(frmMain->Enabled() || !frmMain->Hourglass()); }
        std::vector<bool> seen;
    } watch;
    InstallPlatform(watch, {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
    List();
    EXPECT_EQ(watch.seen, std::vector<bool>(10, false));
    InstallPlatform(front, {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
}

TEST_F(ErrorListRun, StopsTheProgramIfItCannotBeCreated) {
    files.FailFrom("open", 1, Failure::PathNotFound);
    Choose(frmMain->mnuFilerDanFejlliste);
    EXPECT_EQ(dialogs.failures, std::vector<int>{76});
}

TEST_F(ErrorListRun, StopsTheProgramIfItCannotBeWritten) {
    files.FailFrom("write", 4, Failure::DiskFull);
    Choose(frmMain->mnuFilerDanFejlliste);
    EXPECT_EQ(dialogs.failures, std::vector<int>{61});
}

TEST_F(ErrorListRun, GoesOnWithTheNextLogWhenOneCannotBeRead) {
    Log("80mCW", {Contact(Good()), Contact({.call = "DL2AA"})});
    files.FailFrom("read", 2, Failure::DiskNotReady);
    EXPECT_EQ(SectionOf("80m", "CW"), Lines({" ", kMissing, " "}));
    EXPECT_TRUE(ProgramRuns());
    EXPECT_TRUE(IsFree(1));
    EXPECT_EQ(Paper("Fejllist.txt").size(), 2U + 10 * 4);
}

TEST_F(ErrorListRun, LeavesTheLastContactBehindAlsoWhenItStopsTheProgram) {
    Log("80mCW", {Contact({.call = "VK2AA", .points = 6, .mult = "VK"}), Contact({.call = "DL1AA", .points = 0, .mult = "DL"})});
    // Head, blank line and heading are written, but not the first line with an error.
    files.FailFrom("write", 4, Failure::DiskFull);
    Choose(frmMain->mnuFilerDanFejlliste);
    EXPECT_EQ(dialogs.failures, std::vector<int>{61});
    EXPECT_EQ(desk().gsCall, "DL1AA ");
    EXPECT_EQ(desk().giQSOPoint, 3);
    EXPECT_EQ(desk().giMult, 2);
}

}  // namespace
}  // namespace vatro
