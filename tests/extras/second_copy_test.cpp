// SPDX-License-Identifier: MIT
#include "second_copy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "codepage.h"
#include "disk/temporary_world.h"
#include "extras/log_lines.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kName = "FD80mSSB.txt";

class SecondCopyTest : public TemporaryWorld {
protected:
    void SetUp() override {
        for (const char* folder : {"log", "kopi", "backup"}) fs::create_directory(root_ / folder);
    }
    CopyPlaces Places() const { return {root_ / "log", root_ / "kopi", root_ / "backup", "id-1"}; }
    SecondCopy Make(CopyPlaces places) {
        SecondCopy::Surroundings surroundings;
        surroundings.now = [this] { return now_; };
        surroundings.writes = [this] { return writes_(); };
        surroundings.state = root_ / "state";
        return {std::move(places), std::move(surroundings)};
    }
    SecondCopy Make() { return Make(Places()); }
    void Log(std::string_view content) const { Put("log/" + kName, content); }
    std::string Copy() const { return Content("kopi/" + kName); }
    /// The names in a folder that may be missing.
    std::vector<std::string> NamesIn(const std::string& folder) const {
        return fs::exists(root_ / folder) ? Names(folder) : std::vector<std::string>();
    }
    /// The versions of the log that recovery would propose to merge.
    std::vector<std::string> FromCopy() const {
        std::vector<std::string> contents;
        for (const auto& version :
             History(root_ / "log", HistoryElsewhere(root_ / "state", root_ / "log"), [] { return DateTime(); }).Versions(kName)) {
            if (version.keep != History::Keep::FromCopy) continue;
            std::ifstream file(version.path, std::ios::binary);
            contents.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        }
        return contents;
    }

    /// The day of the contacts of LogOf.
    DateTime now_{2026, 9, 5, 14, 0, 0, 0};
    std::function<unsigned()> writes_ = [] { return 0U; };
};

TEST_F(SecondCopyTest, CopiesEveryLogWhenTheDirectoryIsTakenInUse) {
    Log(LogOf(3));
    Put("log/FD20mCW.txt", LogOf(1));
    Put("log/Summary.txt", "paper");
    SecondCopy copy = Make();
    EXPECT_TRUE(copy.Adopt().done);
    EXPECT_EQ(Copy(), LogOf(3));
    EXPECT_EQ(Content("kopi/FD20mCW.txt"), LogOf(1));
    EXPECT_THAT(Names("kopi"), ElementsAre("FD20mCW.txt", kName, "vatro.kopi"));
}

TEST_F(SecondCopyTest, AppendsAContactToTheSameFile) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    copy.Adopt();
    const auto before = IdentityOf(root_ / "kopi" / kName);
    Log(LogOf(4));
    EXPECT_TRUE(copy.Update({kName}).done);
    EXPECT_EQ(Copy(), LogOf(4));
    EXPECT_EQ(IdentityOf(root_ / "kopi" / kName), before);
}

TEST_F(SecondCopyTest, KeepsUpWithALongLogContactByContact) {
    SecondCopy copy = Make();
    copy.Adopt();
    for (int contacts = 1; contacts <= 120; ++contacts) {
        Log(LogOf(contacts));
        ASSERT_TRUE(copy.Update({kName}).done);
        ASSERT_EQ(Copy(), LogOf(contacts));
    }
    EXPECT_THAT(Names("kopi"), ElementsAre(kName, "vatro.kopi"));
}

TEST_F(SecondCopyTest, NoticesWhatSomethingElseHasDoneToALogOrACopy) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    copy.Adopt();
    Log(LogOf(4));
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(4));
    fs::remove(root_ / "kopi" / kName);
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(4));
    Put("kopi/" + kName, "");
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(4));
}

TEST_F(SecondCopyTest, TakesOverACorrection) {
    const std::string corrected = ContactLine(1, 1) + "\r\n" + ContactLine(2, 2, "SM7AA") + "\r\n";
    Log(LogOf(2));
    SecondCopy copy = Make();
    copy.Adopt();
    // The program puts the log into its history before it writes it anew.
    History(root_ / "log", root_ / "elsewhere", [this] { return now_; }).Add(root_ / "log" / kName, History::Keep::ByAge);
    fs::remove(root_ / "log" / kName);
    Log(corrected);
    const CopyOutcome outcome = copy.Update({kName});
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.found, 0U);
    EXPECT_EQ(Copy(), corrected);
    EXPECT_THAT(NamesIn("kopi/tidligere"), IsEmpty());
}

TEST_F(SecondCopyTest, NeverWritesIntoADirectoryWithoutTheMarker) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    const CopyOutcome outcome = copy.Update({kName});
    EXPECT_FALSE(outcome.done);
    EXPECT_THAT(outcome.reason, HasSubstr("vatro.kopi mangler"));
    EXPECT_THAT(Names("kopi"), IsEmpty());
}

TEST_F(SecondCopyTest, StopsWhenTheStickIsPulledAndGoesOnWhenItIsBack) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    copy.Adopt();
    fs::rename(root_ / "kopi", root_ / "pulled");
    Log(LogOf(4));
    EXPECT_THAT(copy.Update({kName}).reason, HasSubstr("findes ikke"));
    // An empty mount point stays behind.
    fs::create_directory(root_ / "kopi");
    EXPECT_FALSE(copy.Update({}).done);
    EXPECT_THAT(Names("kopi"), IsEmpty());
    fs::remove(root_ / "kopi");
    fs::rename(root_ / "pulled", root_ / "kopi");
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(4));
}

TEST_F(SecondCopyTest, LeavesTheCopyOfAnotherProgramAlone) {
    Log(LogOf(3));
    Make().Adopt();
    Log(LogOf(4));
    CopyPlaces places = Places();
    places.id = "id-2";
    SecondCopy other = Make(places);
    EXPECT_THAT(other.Update({kName}).reason, HasSubstr("en anden Vatro"));
    EXPECT_EQ(Copy(), LogOf(3));
    // Chosen by the operator, it changes hands.
    EXPECT_TRUE(other.Adopt().done);
    EXPECT_EQ(Copy(), LogOf(4));
    EXPECT_FALSE(Make().Update({}).done);
}

TEST_F(SecondCopyTest, RefusesTheLogDirectoryAndThatOfTheBackups) {
    Log(LogOf(3));
    for (const char* folder : {"log", "backup"}) {
        CopyPlaces places = Places();
        places.copies = root_ / "kopi" / ".." / folder;
        SecondCopy copy = Make(places);
        EXPECT_FALSE(copy.Adopt().done);
    }
    EXPECT_THAT(Names("log"), ElementsAre(kName));
    EXPECT_THAT(Names("backup"), IsEmpty());
}

TEST_F(SecondCopyTest, FindsContactsThatTheLogLacks) {
    Log(LogOf(2));
    Put("kopi/" + kName, LogOf(5));
    SecondCopy copy = Make();
    const CopyOutcome outcome = copy.Adopt();
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.found, 3U);
    EXPECT_THAT(FromCopy(), ElementsAre(LogOf(5)));
    EXPECT_EQ(Copy(), LogOf(2));
    EXPECT_THAT(Names("kopi/tidligere"), ElementsAre("FD80mSSB 2026-09-05 14.00.00.txt"));
    EXPECT_EQ(Content("kopi/tidligere/FD80mSSB 2026-09-05 14.00.00.txt"), LogOf(5));
}

TEST_F(SecondCopyTest, KeepsTheCopyOfALogThatIsGoneAndTellsOfItOnce) {
    Log(LogOf(4));
    SecondCopy copy = Make();
    copy.Adopt();
    fs::remove(root_ / "log" / kName);
    EXPECT_EQ(copy.Update({kName}).found, 4U);
    EXPECT_EQ(copy.Update({kName}).found, 0U);
    EXPECT_EQ(Copy(), LogOf(4));
    EXPECT_THAT(FromCopy(), ElementsAre(LogOf(4)));
}

TEST_F(SecondCopyTest, ComparesTheCopyOfALogThatIsGoneOnceAndCopiesTheLogWhenItIsBack) {
    Log(LogOf(4));
    SecondCopy copy = Make();
    copy.Adopt();
    fs::remove(root_ / "log" / kName);
    copy.Update({kName});
    int reads = 0;
    writes_ = [&reads] {
        ++reads;
        return 0U;
    };
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(reads, 0);
    Log(LogOf(5));
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(5));
}

TEST_F(SecondCopyTest, DoesNotProposeTheContactsOfLastYear) {
    now_.year = 2027;
    Log("");
    Put("kopi/" + kName, LogOf(5));
    SecondCopy copy = Make();
    EXPECT_EQ(copy.Adopt().found, 0U);
    EXPECT_THAT(FromCopy(), IsEmpty());
    EXPECT_EQ(Content("kopi/tidligere/FD80mSSB 2027-09-05 14.00.00.txt"), LogOf(5));
}

TEST_F(SecondCopyTest, DoesNotMixTheLogsOfTwoDirectories) {
    Log(LogOf(5));
    Make().Adopt();
    fs::create_directory(root_ / "contest");
    Put("contest/FD20mCW.txt", LogOf(1));
    CopyPlaces places = Places();
    places.logs = root_ / "contest";
    SecondCopy copy = Make(places);
    const CopyOutcome outcome = copy.Update({});
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.found, 0U);
    EXPECT_THAT(Names("kopi"), ElementsAre("FD20mCW.txt", "tidligere", "vatro.kopi"));
    EXPECT_EQ(Content("kopi/tidligere/FD80mSSB 2026-09-05 14.00.00.txt"), LogOf(5));
    // The copies are those of the new directory from now on.
    Put("contest/" + kName, LogOf(1));
    EXPECT_EQ(copy.Update({kName}).found, 0U);
    EXPECT_EQ(Copy(), LogOf(1));
}

TEST_F(SecondCopyTest, OffersTheLogsOfADirectoryThatIsGone) {
    Log(LogOf(5));
    Make().Adopt();
    fs::rename(root_ / "log", root_ / "lost");
    fs::create_directory(root_ / "new");
    CopyPlaces places = Places();
    places.logs = root_ / "new";
    SecondCopy copy = Make(places);
    EXPECT_EQ(copy.Update({}).found, 5U);
    const History history(root_ / "new", HistoryElsewhere(root_ / "state", root_ / "new"), [] { return DateTime(); });
    ASSERT_EQ(history.Versions(kName).size(), 1U);
    EXPECT_EQ(history.Versions(kName)[0].keep, History::Keep::FromCopy);
}

TEST_F(SecondCopyTest, DoesNotRelyOnVersionsThatWillBeRemoved) {
    Log(LogOf(5));
    SecondCopy copy = Make();
    copy.Adopt();
    History history(root_ / "log", HistoryElsewhere(root_ / "state", root_ / "log"), [this] { return now_; });
    history.AddContent(kName, LogOf(5), History::Keep::ByAge);
    // An older state comes back, as from a backup.
    Log(LogOf(2));
    EXPECT_EQ(copy.Update({kName}).found, 3U);
    EXPECT_THAT(FromCopy(), ElementsAre(LogOf(5)));
    EXPECT_EQ(Content("kopi/tidligere/FD80mSSB 2026-09-05 14.00.00.txt"), LogOf(5));
}

TEST_F(SecondCopyTest, NeverReplacesWhatItCouldNotSetAside) {
    Log(LogOf(2));
    Put("kopi/" + kName, LogOf(5));
    Put("kopi/tidligere", "a file in the way");
    SecondCopy copy = Make();
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(i == 0 ? copy.Adopt().done : copy.Update({}).done);
        EXPECT_EQ(Copy(), LogOf(5));
    }
    EXPECT_THAT(FromCopy(), ElementsAre(LogOf(5)));
    fs::remove(root_ / "kopi/tidligere");
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Content("kopi/tidligere/FD80mSSB 2026-09-05 14.00.00.txt"), LogOf(5));
    EXPECT_EQ(Copy(), LogOf(2));
}

TEST_F(SecondCopyTest, CopiesTheOtherLogsIfOneCannotBe) {
    Put("log/FD10mCW.txt", LogOf(1));
    Log(LogOf(3));
    fs::create_directory(root_ / "kopi/FD10mCW.txt");
    SecondCopy copy = Make();
    EXPECT_THAT(copy.Adopt().reason, HasSubstr("FD10mCW.txt i "));
    EXPECT_EQ(Copy(), LogOf(3));
}

TEST_F(SecondCopyTest, TakesNoLinkToTheLogForACopy) {
    Log(LogOf(3));
    fs::create_hard_link(root_ / "log" / kName, root_ / "kopi" / kName);
    SecondCopy copy = Make();
    EXPECT_TRUE(copy.Adopt().done);
    EXPECT_NE(IdentityOf(root_ / "log" / kName), IdentityOf(root_ / "kopi" / kName));
    EXPECT_EQ(Copy(), LogOf(3));
}

TEST_F(SecondCopyTest, AMarkerWithoutAnIdBelongsToNobody) {
    Log(LogOf(3));
    Put("kopi/vatro.kopi", "");
    CopyPlaces places = Places();
    places.id.clear();
    EXPECT_FALSE(Make(places).Update({}).done);
    EXPECT_THAT(Names("kopi"), ElementsAre("vatro.kopi"));
}

TEST_F(SecondCopyTest, KeepsAFileThatIsNoLog) {
    Log(LogOf(1));
    Put("kopi/" + kName, "something else entirely\r\n");
    SecondCopy copy = Make();
    EXPECT_EQ(copy.Adopt().found, 0U);
    EXPECT_EQ(Content("kopi/tidligere/FD80mSSB 2026-09-05 14.00.00.txt"), "something else entirely\r\n");
    EXPECT_EQ(Copy(), LogOf(1));
}

TEST_F(SecondCopyTest, NeverReplacesAFileThatWasSetAside) {
    for (const int contacts : {1, 2, 3}) {
        Log(ContactLine(contacts, contacts, "SM7AA") + "\r\n");
        Put("kopi/" + kName, ContactLine(50 + contacts, 50 + contacts) + "\r\n");
        SecondCopy copy = Make();
        copy.Adopt();
    }
    EXPECT_THAT(Names("kopi/tidligere"), ElementsAre("FD80mSSB 2026-09-05 14.00.00 2.txt", "FD80mSSB 2026-09-05 14.00.00 3.txt",
                                                     "FD80mSSB 2026-09-05 14.00.00.txt"));
}

TEST_F(SecondCopyTest, CopiesByteByByteWhateverTheLogHolds) {
    const std::string odd = ContactLine(1, 1) + "\n\n\x01 half a li";
    Log(odd);
    SecondCopy copy = Make();
    EXPECT_TRUE(copy.Adopt().done);
    EXPECT_EQ(Copy(), odd);
    // The program cuts the damaged end off before it logs the next contact.
    Log(LogOf(2));
    EXPECT_TRUE(copy.Update({kName}).done);
    EXPECT_EQ(Copy(), LogOf(2));
}

TEST_F(SecondCopyTest, WaitsWhileALogIsBeingWritten) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    copy.Adopt();
    Log(LogOf(3) + "12:04 half");
    unsigned calls = 0;
    writes_ = [&] {
        if (++calls == 3) Log(LogOf(4));
        return calls < 3 ? 1U : 2U;
    };
    EXPECT_TRUE(copy.Update({kName}).done);
    EXPECT_EQ(Copy(), LogOf(4));
}

TEST_F(SecondCopyTest, ReadsAgainWhatWasWrittenWhileItWasRead) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    copy.Adopt();
    Log(LogOf(3) + "12:04 half");
    unsigned calls = 0;
    writes_ = [&] {
        if (++calls == 2) Log(LogOf(4));
        return calls == 1 ? 0U : 2U;
    };
    EXPECT_TRUE(copy.Update({kName}).done);
    EXPECT_EQ(Copy(), LogOf(4));
}

TEST_F(SecondCopyTest, GivesUpForNowOnALogThatIsBeingWrittenAllTheTime) {
    Log(LogOf(3));
    SecondCopy copy = Make();
    copy.Adopt();
    Log(LogOf(4));
    writes_ = [] { return 1U; };
    const CopyOutcome outcome = copy.Update({kName});
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(outcome.reason, "");
    writes_ = [] { return 2U; };
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(4));
}

TEST_F(SecondCopyTest, TellsIfLogAndCopyAreOnOneDisk) {
    EXPECT_TRUE(Make().Adopt().sameDisk);
}

TEST_F(SecondCopyTest, TellsWhatTheDiskSaid) {
    Log(LogOf(1));
    SecondCopy copy = Make();
    copy.Adopt();
    fs::create_directory(root_ / "kopi" / (kName + ".ny"));
    fs::remove(root_ / "kopi" / kName);
    EXPECT_THAT(copy.Update({kName}).reason, HasSubstr("kopi: "));
    fs::remove(root_ / "kopi" / (kName + ".ny"));
    EXPECT_TRUE(copy.Update({}).done);
    EXPECT_EQ(Copy(), LogOf(1));
}

}  // namespace
}  // namespace vatro
