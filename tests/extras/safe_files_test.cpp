// SPDX-License-Identifier: MIT
#include "safe_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "codepage.h"
#include "disk/temporary_world.h"
#include "extras/log_lines.h"
#include "fault.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class SafeFilesTest : public TemporaryWorld {
protected:
    void SetUp() override { fs::create_directory(root_ / "log"); }

    SafeFiles::Surroundings Surroundings() {
        SafeFiles::Surroundings surroundings;
        surroundings.state = root_ / "state";
        surroundings.now = [this] { return now_; };
        surroundings.tellTaken = [this] { ++taken_; };
        surroundings.directoryChosen = [this](std::string_view directory) { chosen_.emplace_back(directory); };
        surroundings.directoryWon = [this](const fs::path& directory) { won_.push_back(directory.filename().string()); };
        return surroundings;
    }
    /// Does what a correction does: writes the copy, then gives it the log's name.
    void Rewrite(SafeFiles& files, const std::vector<std::string>& lines) const {
        files.Open(1, At("log/FDkopi.txt"), FileMode::Output);
        for (const std::string& line : lines) files.PrintLine(1, line);
        files.Close(1);
        files.Replace(At("log/FDkopi.txt"), At("log/FD80mSSB.txt"));
    }
    std::vector<std::string> Load() { return ReadLines(files_, At("log/FD80mSSB.txt")); }
    /// The file names of the versions of the log, without their times.
    std::vector<std::string> History() const {
        std::vector<std::string> names;
        std::error_code none;
        if (!fs::exists(root_ / "log/historik", none)) return names;
        for (std::string name : Names("log/historik")) {
            if (name.ends_with("MIG.txt")) continue;
            names.push_back(name.erase(name.find(' '), 20));
        }
        return names;
    }
    std::string Version(const std::string& name) const {
        for (const std::string& entry : Names("log/historik")) {
            std::string shortened = entry;
            if (entry.find(' ') != std::string::npos && shortened.erase(entry.find(' '), 20) == name)
                return Content("log/historik/" + entry);
        }
        return "(missing)";
    }

    DateTime now_{2026, 9, 5, 14, 5, 30, 0};
    int taken_ = 0;
    std::vector<std::string> won_;
    std::vector<std::string> chosen_;
    DiskFiles disk_;
    SafeFiles files_{disk_, Surroundings()};
};

TEST_F(SafeFilesTest, ReplacesTheLogAndKeepsTheOldOne) {
    Put("log/FD80mSSB.txt", LogOf(3));
    Load();
    Rewrite(files_, {kOne, kCorrected, kThree});
    EXPECT_EQ(Content("log/FD80mSSB.txt"), kOne + "\r\n" + kCorrected + "\r\n" + kThree + "\r\n");
    EXPECT_EQ(Content("log/FDkopi.txt"), "(missing)");
    EXPECT_THAT(History(), ElementsAre("FD80mSSB-0001.txt"));
    EXPECT_EQ(Version("FD80mSSB-0001.txt"), LogOf(3));
    EXPECT_THAT(files_.TakeNotices(), IsEmpty());
}

TEST_F(SafeFilesTest, AVersionDoesNotGrowWithTheLog) {
    Put("log/FD80mSSB.txt", LogOf(1));
    Load();
    Rewrite(files_, {kOne});
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kTwo);
    EXPECT_EQ(Version("FD80mSSB-0001.txt"), LogOf(1));
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(2));
}

TEST_F(SafeFilesTest, ReportsEveryWriteOfALogAndItsEnd) {
    Put("log/FD80mSSB.txt", LogOf(1));
    std::vector<std::string> calls;
    SafeFiles::Surroundings surroundings = Surroundings();
    surroundings.writeBegins = [&] { calls.emplace_back("begins"); };
    surroundings.writeEnded = [&](const fs::path& log) { calls.push_back(log.filename().string()); };
    FaultyFiles faulty(disk_);
    SafeFiles files(faulty, std::move(surroundings));
    ReadLines(files, At("log/FD80mSSB.txt"));
    EXPECT_THAT(calls, IsEmpty());
    WriteFile(files, At("log/FD80mSSB.txt"), FileMode::Append, kTwo);
    EXPECT_THAT(calls, ElementsAre("begins", "FD80mSSB.txt"));
    calls.clear();
    Rewrite(files, {kOne, kCorrected});
    EXPECT_THAT(calls, ElementsAre("begins", "FD80mSSB.txt"));
    calls.clear();
    faulty.Fail(At("log/FD80mSSB.txt"), 61, FaultyFiles::Step::Close);
    EXPECT_EQ(NumberOf([&] { WriteFile(files, At("log/FD80mSSB.txt"), FileMode::Append, kThree); }), 61);
    EXPECT_THAT(calls, ElementsAre("begins", "FD80mSSB.txt"));
    calls.clear();
    files.Delete(At("log/FD80mSSB.txt"));
    EXPECT_THAT(calls, ElementsAre("begins", "FD80mSSB.txt"));
}

TEST_F(SafeFilesTest, MarksAVersionWithAContactThatItsSuccessorLacks) {
    Put("log/FD80mSSB.txt", LogOf(2));
    Load();
    Rewrite(files_, {kOne, ContactLine(2, 59)});
    EXPECT_THAT(History(), ElementsAre("FD80mSSB-0001 behold.txt"));
    EXPECT_THAT(files_.TakeNotices(), IsEmpty());
}

TEST_F(SafeFilesTest, KeepsWhatTheProgramHadNotSeenAndTellsOnce) {
    // The program's list is shorter than the file, as after a failed read.
    Put("log/FD80mSSB.txt", LogOf(3));
    Rewrite(files_, {kOne});
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(1));
    EXPECT_EQ(Version("FD80mSSB-0001 samles.txt"), LogOf(3));
    const std::vector<std::string> notices = files_.TakeNotices();
    ASSERT_THAT(notices, SizeIs(1));
    EXPECT_THAT(notices[0], HasSubstr("FD80mSSB.txt"));
    EXPECT_THAT(notices[0], HasSubstr("FD80mSSB-0001 2026-09-05 14.05.30 samles.txt"));
    EXPECT_THAT(files_.TakeNotices(), IsEmpty());
}

TEST_F(SafeFilesTest, SeesThatSomebodyElseHasAppended) {
    Put("log/FD80mSSB.txt", LogOf(1));
    Load();
    Put("log/FD80mSSB.txt", LogOf(2));
    Rewrite(files_, {kOne});
    EXPECT_EQ(Version("FD80mSSB-0001 samles.txt"), LogOf(2));
    EXPECT_THAT(files_.TakeNotices(), SizeIs(1));
}

TEST_F(SafeFilesTest, SeesThatSomebodyElseHasChangedALine) {
    Put("log/FD80mSSB.txt", LogOf(2));
    Load();
    Put("log/FD80mSSB.txt", kOne + "\r\n" + kCorrected + "\r\n");
    Rewrite(files_, {kOne, kTwo});
    EXPECT_EQ(Version("FD80mSSB-0001 samles.txt"), kOne + "\r\n" + kCorrected + "\r\n");
    EXPECT_THAT(files_.TakeNotices(), SizeIs(1));
}

TEST_F(SafeFilesTest, KnowsWhatItHasAppendedItself) {
    // The last line has no line end, as some text editors leave it.
    Put("log/FD80mSSB.txt", kOne);
    Load();
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kTwo);
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, "NOTE: pause");
    Rewrite(files_, {kOne, kCorrected, "NOTE: pause"});
    EXPECT_THAT(History(), ElementsAre("FD80mSSB-0001.txt"));
    EXPECT_THAT(files_.TakeNotices(), IsEmpty());
}

TEST_F(SafeFilesTest, KnowsALogThatItHasBegunItself) {
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kOne);
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kTwo);
    Rewrite(files_, {kOne, kCorrected});
    EXPECT_THAT(History(), ElementsAre("FD80mSSB-0001.txt"));
}

TEST_F(SafeFilesTest, PutsAnAbandonedCopyAsideWithANoteOfItsLog) {
    Put("log/FD80mSSB.txt", LogOf(2));
    Put("log/FDkopi.txt", LogOf(3));
    Load();
    Rewrite(files_, {kOne, kCorrected});
    EXPECT_EQ(Version("FDkopi-0001 behold.txt"), LogOf(3));
    EXPECT_THAT(Version("FDkopi-0001 behold note.txt"), HasSubstr("FD80mSSB.txt"));
    EXPECT_EQ(Version("FD80mSSB-0001.txt"), LogOf(2));
}

TEST_F(SafeFilesTest, KeepsTheNewestTwentyAndOneAnHourBeforeThat) {
    Put("log/FD80mSSB.txt", LogOf(1));
    Load();
    for (int i = 0; i < 60; ++i) {
        now_.hour = 10 + i / 20;
        now_.minute = i % 20;
        Rewrite(files_, {kOne});
    }
    std::vector<std::string> expected{"FD80mSSB-0020.txt", "FD80mSSB-0040.txt"};
    for (int i = 41; i <= 60; ++i) expected.push_back("FD80mSSB-00" + std::to_string(i) + ".txt");
    EXPECT_EQ(History(), expected);
}

TEST_F(SafeFilesTest, NeverRemovesAMarkedVersion) {
    Put("log/FD80mSSB.txt", LogOf(2));
    Load();
    Rewrite(files_, {kOne, ContactLine(2, 59)});
    for (int i = 0; i < 40; ++i) Rewrite(files_, {kOne, ContactLine(2, 59)});
    EXPECT_THAT(History(), testing::Contains("FD80mSSB-0001 behold.txt"));
}

TEST_F(SafeFilesTest, ShowsNoDamagedEndAndTellsOfIt) {
    const std::string torn = LogOf(2) + kThree.substr(0, 30);
    Put("log/FD80mSSB.txt", torn);
    EXPECT_THAT(Load(), ElementsAre(kOne, kTwo));
    EXPECT_THAT(Load(), ElementsAre(kOne, kTwo));
    EXPECT_THAT(files_.TakeNotices(), ElementsAre(HasSubstr("30 tegn")));
    EXPECT_EQ(Content("log/FD80mSSB.txt"), torn);
}

TEST_F(SafeFilesTest, PutsTheNextContactInThePlaceOfADamagedEnd) {
    const std::string torn = LogOf(2) + std::string(100, '\0');
    Put("log/FD80mSSB.txt", torn);
    Load();
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kThree);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(3));
    std::vector<std::string> kept;
    for (const auto& entry : fs::recursive_directory_iterator(root_ / "state"))
        if (entry.is_regular_file() && entry.path().filename().string().starts_with("FD80mSSB"))
            kept.push_back(Content(fs::relative(entry.path(), root_).string()));
    EXPECT_THAT(kept, ElementsAre(torn));
    Rewrite(files_, {kOne, kCorrected, kThree});
    EXPECT_THAT(files_.TakeNotices(), SizeIs(1)) << "the damaged end alone";
}

TEST_F(SafeFilesTest, CutsNothingThatSomebodyHasChangedSinceItWasRead) {
    Put("log/FD80mSSB.txt", LogOf(2) + kThree.substr(0, 30));
    Load();
    // The last line is completed in an editor while the program runs.
    Put("log/FD80mSSB.txt", LogOf(4));
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, ContactLine(5, 5));
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(5));
}

TEST_F(SafeFilesTest, CutsNothingOffAFileThatIsNoLog) {
    const std::string other(4000, 'x');
    Put("log/FD80mSSB.txt", other);
    Load();
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kOne);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), other + "\r\n" + kOne + "\r\n");
}

TEST_F(SafeFilesTest, TellsOfLinesThatAreDamagedInside) {
    Put("log/FD80mSSB.txt", kOne + "\r\n" + std::string(200, '\0') + "\r\n" + kThree + "\r\n");
    EXPECT_THAT(Load(), ElementsAre(kOne, kThree));
    EXPECT_THAT(files_.TakeNotices(), ElementsAre(HasSubstr("1 linjer")));
}

TEST_F(SafeFilesTest, SeesAForeignCorrectionAlsoBehindAContactOfItsOwn) {
    Put("log/FD80mSSB.txt", LogOf(2));
    Load();
    Put("log/FD80mSSB.txt", kOne + "\n" + kCorrected + "\n");
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kThree);
    Rewrite(files_, {kOne, kTwo, kThree});
    EXPECT_THAT(History(), ElementsAre("FD80mSSB-0001 samles.txt"));
    // One when the contact was logged, and one at the correction.
    EXPECT_THAT(files_.TakeNotices(), SizeIs(2));
}

TEST_F(SafeFilesTest, TellsAtTheNextContactThatTheLogHasBecomeAnother) {
    const std::vector<std::pair<std::string, std::string>> changes{{LogOf(2), "kortere"}, {LogOf(4), "l\xe6ngere"}, {"", "fjernet"}};
    for (const auto& [content, word] : changes) {
        DiskFiles disk;
        SafeFiles files(disk, Surroundings());
        Put("log/FD80mSSB.txt", LogOf(3));
        ReadLines(files, At("log/FD80mSSB.txt"));
        if (content.empty())
            fs::remove(root_ / "log/FD80mSSB.txt");
        else
            Put("log/FD80mSSB.txt", content);
        WriteFile(files, At("log/FD80mSSB.txt"), FileMode::Append, ContactLine(4, 4));
        const std::vector<std::string> notices = files.TakeNotices();
        ASSERT_THAT(notices, SizeIs(1)) << word;
        EXPECT_THAT(notices[0], HasSubstr(word));
        // It is told once, and a correction then writes what the window shows.
        WriteFile(files, At("log/FD80mSSB.txt"), FileMode::Append, ContactLine(5, 5));
        EXPECT_THAT(files.TakeNotices(), IsEmpty()) << word;
        Rewrite(files, {kOne, kTwo, kThree, ContactLine(4, 4), ContactLine(5, 5)});
        EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(5)) << word;
    }
}

TEST_F(SafeFilesTest, TellsThatALineOfALogIsOnTheDisk) {
    std::vector<std::string> told;
    auto surroundings = Surroundings();
    surroundings.saved = [&](std::string_view line) {
        told.push_back(std::string(line) + " of " + Content("log/FD80mSSB.txt").substr(0, 5));
    };
    DiskFiles disk;
    SafeFiles files(disk, surroundings);
    WriteFile(files, At("log/FD80mSSB.txt"), FileMode::Append, kOne);
    EXPECT_THAT(told, ElementsAre(kOne + " of " + kOne.substr(0, 5)));
    WriteFile(files, At("log/ukendt.txt"), FileMode::Append, kTwo);
    EXPECT_THAT(told, SizeIs(1));
}

TEST_F(SafeFilesTest, TellsThatACorrectedLineIsOnTheDisk) {
    std::vector<std::string> told;
    auto surroundings = Surroundings();
    surroundings.corrected = [&](std::string_view line) {
        told.emplace_back(line);
        EXPECT_THAT(Content("log/FD80mSSB.txt"), HasSubstr(told.back()));
    };
    DiskFiles disk;
    SafeFiles files(disk, surroundings);
    Put("log/FD80mSSB.txt", LogOf(3));
    ReadLines(files, At("log/FD80mSSB.txt"));
    Rewrite(files, {kOne, kCorrected, kThree});
    EXPECT_THAT(told, ElementsAre(kCorrected));
    // Cancelling a correction writes the log again as it was.
    Rewrite(files, {kOne, kCorrected, kThree});
    EXPECT_THAT(told, SizeIs(1));
}

TEST_F(SafeFilesTest, TellsOfAFileThatCannotBeWritten) {
    for (const auto step : {FaultyFiles::Step::Open, FaultyFiles::Step::Write, FaultyFiles::Step::Close}) {
        std::vector<std::string> told;
        auto surroundings = Surroundings();
        surroundings.saved = [&](std::string_view line) { told.emplace_back(line); };
        surroundings.notSaved = [&](const fs::path& file, Failure failure) {
            told.push_back(file.filename().string() + " " + std::to_string(static_cast<int>(failure)));
        };
        DiskFiles disk;
        FaultyFiles faulty(disk);
        SafeFiles files(faulty, surroundings);
        faulty.Fail(At("log/FD80mSSB.txt"), 61, step);
        EXPECT_EQ(NumberOf([&] { WriteFile(files, At("log/FD80mSSB.txt"), FileMode::Append, kTwo); }), 61);
        EXPECT_THAT(told, ElementsAre("FD80mSSB.txt 61"));
        files.CloseLeftovers();
    }
}

TEST_F(SafeFilesTest, WritesNothingInADirectoryThatHasBecomeAnotherOne) {
    Put("log/FD80mSSB.txt", LogOf(1));
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kTwo);
    // The stick is pulled out, and its mount point remains.
    fs::rename(root_ / "log", root_ / "stick");
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Append); }), 76);
    fs::create_directory(root_ / "log");
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Append); }), 76);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FDkopi.txt"), FileMode::Output); }), 76);
    EXPECT_THAT(Names("log"), IsEmpty());
}

TEST_F(SafeFilesTest, KnowsItsDirectoryHoweverItIsSpelled) {
    ASSERT_TRUE(files_.TakeDirectory(At("log/")));
    fs::rename(root_ / "log", root_ / "stick");
    fs::create_directory(root_ / "log");
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log//FD80mSSB.txt"), FileMode::Append); }), 76);
    EXPECT_THAT(Names("log"), IsEmpty());
}

TEST_F(SafeFilesTest, WritesNothingInADirectoryThatHasComeLate) {
    fs::remove(root_ / "log");
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    fs::create_directory(root_ / "log");
    Put("log/FD80mSSB.txt", LogOf(3));
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Append); }), 76);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(3));
}

TEST_F(SafeFilesTest, RefusesADirectoryThatAnotherCopyHas) {
    fs::create_directory(root_ / "other");
    DiskFiles elsewhere;
    SafeFiles another(elsewhere, Surroundings());
    ASSERT_TRUE(another.TakeDirectory(At("other")));
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    EXPECT_FALSE(SafeFiles(disk_, Surroundings()).TakeDirectory(At("log")));
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("other/setlog.txt"), FileMode::Output); }), 70);
    EXPECT_EQ(taken_, 1);
    // The program keeps the old directory and its lock.
    WriteFile(files_, At("log/FD80mSSB.txt"), FileMode::Append, kOne);
    EXPECT_FALSE(another.TakeDirectory(At("log")));
}

TEST_F(SafeFilesTest, MovesToAChosenDirectory) {
    fs::create_directory(root_ / "other");
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    files_.Open(1, At("other/setlog.txt"), FileMode::Output);
    files_.Close(1);
    EXPECT_THAT(won_, ElementsAre("log", "other"));
    WriteFile(files_, At("other/FD80mSSB.txt"), FileMode::Append, kOne);
    DiskFiles elsewhere;
    SafeFiles another(elsewhere, Surroundings());
    EXPECT_FALSE(another.TakeDirectory(At("other")));
    EXPECT_TRUE(another.TakeDirectory(At("log")));
}

TEST_F(SafeFilesTest, ChoosesTheSameDirectoryAgain) {
    ASSERT_TRUE(files_.TakeDirectory(At("log")));
    files_.Open(1, At("log/setlog.txt"), FileMode::Output);
    files_.Close(1);
    EXPECT_THAT(won_, ElementsAre("log"));
    EXPECT_EQ(taken_, 0);
}

TEST_F(SafeFilesTest, TellsWhichDirectoryWasChosenOnceItsMarkerIsOnTheDisk) {
    fs::create_directory(root_ / "Other");
    const std::string marker = At("Other") + files_.Separator() + "setlog.txt";
    files_.Open(1, marker, FileMode::Output);
    EXPECT_THAT(chosen_, IsEmpty());
    files_.Close(1);
    EXPECT_THAT(chosen_, ElementsAre(At("Other")));
    files_.Open(1, At("Other/setBackup.txt"), FileMode::Output);
    files_.Close(1);
    files_.Open(1, marker, FileMode::Input);
    files_.Close(1);
    EXPECT_THAT(chosen_, SizeIs(1));
}

TEST_F(SafeFilesTest, ClosesWhatAHandlerHasLeftOpen) {
    Put("log/FD80mSSB.txt", LogOf(1));
    Put("a.txt", "x\r\n");
    files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Input);
    files_.Open(2, At("a.txt"), FileMode::Input);
    files_.CloseLeftovers();
    EXPECT_THAT(Load(), ElementsAre(kOne));
    files_.Open(2, At("a.txt"), FileMode::Input);
}

TEST_F(SafeFilesTest, ClosesATableThatItsLoadHasLeftOpen) {
    Put("edr.txt", "OZ1ABC Test\r\n");
    Put("log/FD80mSSB.txt", LogOf(1));
    files_.Open(1, At("edr.txt"), FileMode::Input);
    EXPECT_THAT(Load(), ElementsAre(kOne));
}

TEST_F(SafeFilesTest, KeepsTheRulesOfNumbersOtherwise) {
    Put("log/FD80mSSB.txt", LogOf(1));
    files_.Open(1, At("log/FD80mSSB.txt"), FileMode::Input);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD40mSSB.txt"), FileMode::Append); }), 55);
    EXPECT_EQ(NumberOf([&] { files_.Open(2, At("log/FD80mSSB.txt"), FileMode::Append); }), 55);
    EXPECT_EQ(files_.LineInput(1), kOne);
    EXPECT_EQ(NumberOf([&] { files_.LineInput(1); }), 62);
    EXPECT_EQ(NumberOf([&] { files_.PrintLine(1, "x"); }), 54);
    files_.Close(1);
    EXPECT_EQ(NumberOf([&] { files_.LineInput(1); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD40mSSB.txt"), FileMode::Input); }), 53);
    EXPECT_EQ(NumberOf([&] { files_.Open(3, At("log/FD80mSSB.txt"), FileMode::Input); }), 52);
    EXPECT_EQ(NumberOf([&] { files_.Open(1, "", FileMode::Input); }), 52);
}

TEST_F(SafeFilesTest, ADirectoryInPlaceOfAFileIsAFailure) {
    fs::create_directory(root_ / "log/FD80mSSB.txt");
    for (const FileMode mode : {FileMode::Input, FileMode::Append, FileMode::Output})
        EXPECT_EQ(NumberOf([&] { files_.Open(1, At("log/FD80mSSB.txt"), mode); }), 75);
}

TEST_F(SafeFilesTest, KeepsAnOlderBackupOnTheComputer) {
    fs::create_directory(root_ / "backup");
    Put("log/FD80mSSB.txt", LogOf(1));
    Put("backup/FD80mSSB.txt", LogOf(3));
    files_.Copy(At("log/FD80mSSB.txt"), At("backup/FD80mSSB.txt"));
    EXPECT_EQ(Content("backup/FD80mSSB.txt"), LogOf(1));
    EXPECT_THAT(Names("backup"), ElementsAre("FD80mSSB.txt"));
    std::vector<std::string> kept;
    for (const auto& entry : fs::recursive_directory_iterator(root_ / "state"))
        if (entry.is_regular_file() && entry.path().filename().string().starts_with("FD80mSSB"))
            kept.push_back(Content(fs::relative(entry.path(), root_).string()));
    EXPECT_THAT(kept, ElementsAre(LogOf(3)));
}

TEST_F(SafeFilesTest, FailsALogThatIsNotThereToBeReplacedByNothing) {
    Put("log/FD80mSSB.txt", LogOf(1));
    EXPECT_EQ(NumberOf([&] { files_.Replace(At("log/FDkopi.txt"), At("log/FD80mSSB.txt")); }), 53);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(1));
}

TEST_F(SafeFilesTest, MakesTheLogAgainThatSomebodyHasRemoved) {
    Put("log/FD80mSSB.txt", LogOf(1));
    Load();
    fs::remove(root_ / "log/FD80mSSB.txt");
    Rewrite(files_, {kOne});
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(1));
}

}  // namespace
}  // namespace vatro
