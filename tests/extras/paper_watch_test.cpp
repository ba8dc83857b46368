// SPDX-License-Identifier: MIT
//
// The papers are made by the program itself, with the watch between it and the files.
#include "paper_watch.h"

#include "printing/error_list_run.h"
#include "printing/exports.h"
#include "printing/sheets.h"
#include "running_program.h"

namespace vatro {
namespace {

using namespace literals;

constexpr const char* kGood = "13:00 DL9XYZ          599-0001 599-0012  3 DL         OZ1DEF     CW    05-09-26";
constexpr const char* kOther = "13:01 OZ1ABC          599-0002 599-0007 10 OZ         OZ1DEF     CW    05-09-26";
/// A report needs three digits here.
constexpr const char* kFaulty = "13:02 DL1AA           59 -0003 599-0008  3            OZ1DEF     CW    05-09-26";

class Papers : public RunningProgram {
protected:
    Papers() {
        InstallPlatform(front, {dialogs, settings, watch, clock, help, instance, sound, printer, {1, 2, 3}});
        files.files["LOG\\FD80MCW.TXT"] = {kGood, "NOTE: a note", kOther};
        files.files["LOG\\FD40MCW.TXT"] = {kGood};
        Start();
        watch.TakeEnd(false);
    }
    std::string End() {
        const auto end = watch.TakeEnd(true);
        made = end->files;
        good = end->made;
        return ToUtf8(end->text);
    }

    PaperWatch watch{files};
    std::vector<std::string> made;
    bool good = false;
};

TEST_F(Papers, OneTellsItsFileAndItsContacts) {
    Danlog({"80m", "CW"});
    EXPECT_EQ(End(), "SM80mCW.txt: 2 kontakter.");
    EXPECT_TRUE(good);
    EXPECT_EQ(made, std::vector<std::string>{"log\\SM80mCW.txt"});
    Danlog({"40m", "CW"});
    EXPECT_EQ(End(), "SM40mCW.txt: 1 kontakt.");
}

TEST_F(Papers, ThatCountEveryLogTwiceTellEachContactOnce) {
    DanSummary();
    EXPECT_EQ(End(), "Summary.txt: 3 kontakter.");
    MakeHtmlPage();
    EXPECT_EQ(End(), "vatro2026.htm: 3 kontakter.");
    ExportAdif();
    EXPECT_EQ(End(), "vatro2026.adi: 3 kontakter.");
}

TEST_F(Papers, TogetherTellHowManyFiles) {
    MakeAllPapers();
    EXPECT_EQ(End(), "4 filer: 3 kontakter.");
    EXPECT_EQ(made, (std::vector<std::string>{"log\\SM80mCW.txt", "log\\SM40mCW.txt", "log\\Mult.txt", "log\\Summary.txt"}));
}

TEST_F(Papers, TheErrorListTellsHowManyContactsItShows) {
    MakeErrorList();
    EXPECT_EQ(End(), "Fejllist.txt: ingen af 3 kontakter står på listen.");
    EXPECT_TRUE(good);
    files.files["LOG\\FD40MCW.TXT"] = {kGood, kFaulty};
    MakeErrorList();
    EXPECT_EQ(End(), "Fejllist.txt: 1 af 4 kontakter står på listen.");
}

TEST_F(Papers, WithoutALogSayWhyThereIsNoFile) {
    Danlog({"10m", "SSB"});
    EXPECT_EQ(End(), "Der er ikke lavet nogen fil: FD10mSSB.txt findes ikke.");
    EXPECT_FALSE(good);
    EXPECT_TRUE(made.empty());
}

TEST_F(Papers, OfALogThatCannotBeOpenedSayThat) {
    files.FailFrom("open", 1, Failure::PermissionDenied);
    Danlog({"80m", "CW"});
    EXPECT_EQ(End(), "Der er ikke lavet nogen fil: FD80mCW.txt kan ikke åbnes.");
    files.FailFrom("open", 1, Failure::PermissionDenied);
    EXPECT_THROW(watch.Open(1, "log\\FD80mCW.txt", FileMode::Input), RunTimeError);
    watch.Printed({PrintJob::State::Done, {}, {}, 0});
    EXPECT_EQ(End(), "Der er ikke udskrevet noget: FD80mCW.txt kan ikke åbnes.");
}

TEST_F(Papers, ThatTheDiskDidNotTakeAreNotFinished) {
    files.FailFrom("write", 5, Failure::DiskFull);
    Danlog({"80m", "CW"});
    EXPECT_EQ(End(), "SM80mCW.txt er ikke færdig: Disken er fuld.");
    EXPECT_TRUE(made.empty());
}

TEST_F(Papers, WhoseLogCannotBeReadToItsEndAreNotFinished) {
    files.FailFrom("read", 2, Failure::DiskNotReady);
    Danlog({"80m", "CW"});
    EXPECT_EQ(End(), "SM80mCW.txt er ikke færdig: Disken er ikke klar.");
}

TEST_F(Papers, AreOnlyThoseOfTheLastCommand) {
    Danlog({"80m", "CW"});
    EXPECT_FALSE(watch.TakeEnd(false));
    DanMultCheck();
    EXPECT_EQ(End(), "Mult.txt: 3 kontakter.");
    EXPECT_EQ(End(), "Der er ikke lavet nogen fil.");
}

TEST_F(Papers, OnPaperTellTheirPagesAndWhereTheyWent) {
    watch.Printed({PrintJob::State::Done, {}, "HP", 3});
    EXPECT_EQ(End(), "Sendt til printeren HP: 3 sider.");
    EXPECT_TRUE(made.empty());
    watch.Printed({PrintJob::State::Done, "/log/Summary 2026.pdf", {}, 1});
    EXPECT_EQ(End(), "Udskrevet til Summary 2026.pdf: 1 side.");
    EXPECT_EQ(made, std::vector<std::string>{"/log/Summary 2026.pdf"});
    watch.Printed({PrintJob::State::Failed, "/log/Summary 2026.pdf", {}, 1});
    EXPECT_EQ(End(), "Udskriften er ikke færdig.");
    EXPECT_TRUE(made.empty());
    watch.Printed({PrintJob::State::Dropped, {}, {}, 1});
    EXPECT_EQ(End(), "Der er ikke udskrevet noget.");
}

}  // namespace
}  // namespace vatro
