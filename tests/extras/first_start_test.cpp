// SPDX-License-Identifier: MIT
#include "first_start.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "directory_lock.h"
#include "disk/temporary_world.h"
#include "extras/log_lines.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Kind = DirectoryFinding::Kind;

std::string Utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

TEST(FirstStart, IsOneWithoutLogDirectoryAndCall) {
    EXPECT_TRUE(IsFirstStart("", ""));
    EXPECT_FALSE(IsFirstStart("/home/fd/log", ""));
    EXPECT_FALSE(IsFirstStart("", "OZ7FD/P"));
}

TEST(FirstStart, ProposesADirectoryForEachYear) {
    EXPECT_EQ(PathOfUtf8(ProposedLogDirectory("/home/fd", {.year = 2026})), fs::path("/home/fd/Vatro 2026"));
    EXPECT_EQ(PathOfUtf8(ProposedLogDirectory("/home/fd", {.year = 2031})), fs::path("/home/fd/Vatro 2031"));
}

DateTime At(int day, int hour, int minute, int second = 0) {
    return {2026, 9, day, hour, minute, second, 0};
}

TEST(FirstStart, ProposesTheOffsetOfTheComputer) {
    EXPECT_EQ(ProposedOffset(At(5, 14, 30), At(5, 12, 30)), -2);
    EXPECT_EQ(ProposedOffset(At(5, 14, 30), At(5, 14, 30)), 0);
    EXPECT_EQ(ProposedOffset(At(6, 1, 30), At(5, 23, 30)), -2);
    EXPECT_EQ(ProposedOffset(At(5, 20, 0), At(6, 6, 0)), 10);
    // Read one after the other, with the second turning between them.
    EXPECT_EQ(ProposedOffset(At(5, 15, 29, 59), At(5, 12, 30, 0)), -3);
    EXPECT_EQ(ProposedOffset(At(5, 12, 29, 59), At(5, 14, 30, 0)), 2);
    EXPECT_EQ(ProposedOffset(At(5, 15, 29, 55), At(5, 12, 30, 0)), -3);
    EXPECT_EQ(ProposedOffset(At(5, 15, 29, 54), At(5, 12, 30, 0)), -2) << "too far apart";
}

TEST(FirstStart, ProposesDanishSummerTimeIfTheOffsetCannotBeSet) {
    EXPECT_EQ(ProposedOffset(At(5, 18, 0), At(5, 12, 30)), -2);
    EXPECT_EQ(ProposedOffset(At(5, 13, 0), At(5, 0, 0)), -2);
    EXPECT_EQ(ProposedOffset(At(5, 0, 0), At(5, 13, 0)), -2);
    EXPECT_EQ(ProposedOffset(At(5, 0, 0), At(5, 12, 0)), 12);
    EXPECT_EQ(ProposedOffset(At(5, 12, 0), At(5, 1, 0)), -11);
}

TEST(FirstStart, AsksWhetherTheClockIsRight) {
    EXPECT_EQ(ClockQuestion(At(5, 21, 36), -2), "Klokken er nu 19:36 UTC. Rigtigt?");
    EXPECT_EQ(ClockQuestion(At(5, 1, 5), -2), "Klokken er nu 23:05 UTC. Rigtigt?");
    EXPECT_THAT(ClockAdvice(At(5, 21, 36)), HasSubstr("21:36 den 05-09-26"));
}

class FirstDirectory : public TemporaryWorld {
protected:
    DirectoryFinding Examine(const std::string& name) const { return ExamineDirectory(Utf8(root_ / PathOfUtf8(name)), root_); }
    std::string Text(const std::string& typed) const { return ToUtf8(ExamineDirectory(typed, root_).text); }
    Kind KindOf(const std::string& typed) const { return ExamineDirectory(typed, root_).kind; }
    FirstAnswers Answers(const std::string& name) const {
        FirstAnswers answers;
        answers.call = "OZ7FD/P";
        answers.directory = Utf8(root_ / PathOfUtf8(name));
        return answers;
    }
    std::vector<Complaint> Prepare(const FirstAnswers& answers) const { return PrepareDisk(answers, root_, root_ / "tables"); }
};

TEST_F(FirstDirectory, IsCreatedOrUsed) {
    fs::create_directory(root_ / "here");
    EXPECT_EQ(Examine("here").kind, Kind::Free);
    EXPECT_THAT(Examine("here").text, IsEmpty());
    EXPECT_EQ(Examine("not/there").kind, Kind::Missing);
    EXPECT_EQ(Examine("not/there").text, "Biblioteket bliver oprettet.");
    EXPECT_FALSE(fs::exists(root_ / "not"));
}

TEST_F(FirstDirectory, BeginsAtHomeAfterATilde) {
    EXPECT_EQ(ExamineDirectory("~/FD/2026", root_).path, root_ / "FD" / "2026");
    EXPECT_EQ(ExamineDirectory(" ~/FD/ ", root_).path, root_ / "FD");
    EXPECT_EQ(ExamineDirectory("~", root_).path, root_);
}

TEST_F(FirstDirectory, IsFoundRegardlessOfCaseAsTheProgramFindsIt) {
    fs::create_directory(root_ / "Feltdag");
    EXPECT_EQ(Examine("FELTDAG").kind, Kind::Free);
    EXPECT_EQ(Examine("FELTDAG").path.filename(), "Feltdag");
    EXPECT_EQ(Examine("FELTDAG/2026").path, root_ / "Feltdag" / "2026");
}

TEST_F(FirstDirectory, MustBeNamedWhole) {
    EXPECT_EQ(KindOf(""), Kind::Unusable);
    EXPECT_EQ(KindOf("  "), Kind::Unusable);
    EXPECT_EQ(Text(""), "Skriv, hvor loggene skal ligge.");
    EXPECT_THAT(Text("OZ7FD/P"), HasSubstr("Skriv hele stien"));
    EXPECT_THAT(Text("~bent/log"), HasSubstr("Skriv hele stien"));
    EXPECT_EQ(KindOf(Utf8(root_.root_path())), Kind::Unusable);
}

TEST_F(FirstDirectory, IsNoFileAndNotInOne) {
    Put("file", "x");
    EXPECT_EQ(ToUtf8(Examine("file").text), "Det er en fil. Vælg et bibliotek.");
    EXPECT_EQ(ToUtf8(Examine("file/log").text), "Det er en fil. Vælg et bibliotek.");
}

TEST_F(FirstDirectory, HasOnlyCharactersThatTheProgramKnows) {
    EXPECT_EQ(Examine("Blåbærgrød é").kind, Kind::Missing);
    EXPECT_THAT(ToUtf8(Examine("Łódź").text), HasSubstr("kender ikke alle tegn"));
    // A home directory of such a name.
    EXPECT_THAT(ToUtf8(ExamineDirectory("~/log", root_ / PathOfUtf8("Łódź")).text), HasSubstr("kender ikke alle tegn"));
}

TEST_F(FirstDirectory, TellsHowManyContactsItHolds) {
    fs::create_directory(root_ / "log");
    Put("log/FD80mSSB.txt", LogOf(3));
    Put("log/ukendt.txt", LogOf(5));
    EXPECT_EQ(Examine("log").kind, Kind::HoldsLogs);
    EXPECT_EQ(Examine("log").text, "Her er allerede logget 3 kontakter, den sidste 05-09-26 12:03.");
    Put("log/FD20mCW.txt", ContactLine(1, 59) + "\r\nNote: pause\r\n");
    EXPECT_EQ(Examine("log").text, "Her er allerede logget 4 kontakter, den sidste 05-09-26 12:59.");
    Put("log/FD80mSSB.txt", "");
    EXPECT_EQ(Examine("log").text, "Her er allerede logget 1 kontakt, 05-09-26 12:59.");
    Put("log/FD20mCW.txt", "");
    EXPECT_EQ(Examine("log").kind, Kind::Free);
}

TEST_F(FirstDirectory, TellsTheLatestContactWhateverTheOrderOfTheFiles) {
    fs::create_directory(root_ / "log");
    const std::string early = ContactLine(1, 3) + "\r\n";
    const std::string late = ContactLine(1, 59) + "\r\n";
    Put("log/FD80mSSB.txt", early);
    Put("log/FD20mCW.txt", late);
    EXPECT_THAT(Examine("log").text, HasSubstr("12:59"));
    Put("log/FD80mSSB.txt", late);
    Put("log/FD20mCW.txt", early);
    EXPECT_THAT(Examine("log").text, HasSubstr("12:59"));
}

TEST_F(FirstDirectory, MayHoldADirectoryThatIsNamedLikeALog) {
    fs::create_directories(root_ / "log" / "FD80mSSB.txt");
    EXPECT_EQ(Examine("log").kind, Kind::Free);
}

TEST_F(FirstDirectory, WithLogsIsUsedOnlyIfTheOperatorWantsThem) {
    fs::create_directory(root_ / "log");
    Put("log/FD80mSSB.txt", LogOf(3));
    FirstAnswers answers = Answers("log");
    const std::vector<Complaint> complaints = CheckAnswers(answers, root_);
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].about, FirstQuestion::UseLogs);
    answers.useLogs = true;
    EXPECT_THAT(CheckAnswers(answers, root_), IsEmpty());
    EXPECT_THAT(Prepare(answers), IsEmpty());
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(3));
}

TEST_F(FirstDirectory, EverythingThatIsWrongIsToldAtOnceFromTheTop) {
    const std::vector<Complaint> complaints = CheckAnswers({}, root_);
    ASSERT_THAT(complaints, SizeIs(2));
    EXPECT_EQ(complaints[0].about, FirstQuestion::Call);
    EXPECT_EQ(complaints[0].text, "Skriv jeres kaldesignal.");
    EXPECT_EQ(complaints[1].about, FirstQuestion::Directory);
}

TEST_F(FirstDirectory, GetsItsMarker) {
    EXPECT_THAT(Prepare(Answers("FD/2026")), IsEmpty());
    EXPECT_EQ(Content("FD/2026/setlog.txt"), "");
    EXPECT_EQ(PathOf(LogDirectorySetting(Answers("FD/2026"), root_)), root_ / "FD" / "2026");
    EXPECT_EQ(PathOf(LogDirectorySetting(Answers("FD/2026/"), root_)), root_ / "FD" / "2026");
}

TEST_F(FirstDirectory, KeepsAMarkerThatIsSpelledDifferentlyAndEmptiesIt) {
    fs::create_directory(root_ / "log");
    Put("log/SetLog.TXT", "x");
    EXPECT_THAT(Prepare(Answers("log")), IsEmpty());
    EXPECT_EQ(Content("log/SetLog.TXT"), "");
    EXPECT_THAT(Names("log"), testing::Not(testing::Contains("setlog.txt")));
}

TEST_F(FirstDirectory, ThatCannotBeCreatedIsToldAndNothingIsLeft) {
    // Longer than any file system allows.
    const std::string name(300, 'x');
    const std::vector<Complaint> complaints = Prepare(Answers("new/" + name));
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].about, FirstQuestion::Directory);
    EXPECT_THAT(complaints[0].text, HasSubstr("Biblioteket kan ikke oprettes: "));
    EXPECT_FALSE(fs::exists(root_ / "new"));
}

TEST_F(FirstDirectory, ThatCannotBeWrittenIsTold) {
    fs::create_directories(root_ / "log" / "setlog.txt");
    const std::vector<Complaint> complaints = Prepare(Answers("log"));
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].about, FirstQuestion::Directory);
    EXPECT_THAT(complaints[0].text, HasSubstr("Der kan ikke skrives i biblioteket: "));
}

TEST_F(FirstDirectory, OfAnotherCopyIsRefused) {
    fs::create_directory(root_ / "log");
    DirectoryLock other;
    ASSERT_EQ(other.Acquire(root_ / "log"), DirectoryLock::Result::Won);
    const std::vector<Complaint> complaints = Prepare(Answers("log"));
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].text, "En anden Vatro bruger biblioteket. Vælg et andet."_t);
}

TEST(FirstCall, WithoutPortableSuffixGetsAHintBecauseTheSummaryFindsNoName) {
    const std::string hint = "Uden /P finder sammentællingen ikke jeres navn på EDRs liste.";
    EXPECT_EQ(ToUtf8(CallHint("OZ7FD")), hint);
    EXPECT_EQ(ToUtf8(CallHint("OZ7FD/M")), hint);
    EXPECT_EQ(ToUtf8(CallHint("OZ7FD/P/QRP")), hint);
    EXPECT_EQ(CallHint("OZ7FD/P"), "");
    // An empty call is a complaint.
    EXPECT_EQ(CallHint(""), "");
}

class FirstOperator : public FirstDirectory {
protected:
    void SetUp() override { fs::create_directory(root_ / "tables"); }
    std::string ListAfter(const std::string& before, const std::string& name) {
        Put("tables/operator.txt", before);
        FirstAnswers answers = Answers("log");
        answers.operatorCall = name;
        EXPECT_THAT(Prepare(answers), IsEmpty());
        return Content("tables/operator.txt");
    }
};

TEST_F(FirstOperator, StandsAtTheEndOfTheListOnce) {
    EXPECT_EQ(ListAfter("", "OZ1AB"), "OZ1AB\r\n");
    EXPECT_EQ(ListAfter("OZ7FD\r\n", "OZ1AB"), "OZ7FD\r\nOZ1AB\r\n");
    EXPECT_EQ(ListAfter("OZ7FD", "OZ1AB"), "OZ7FD\r\nOZ1AB\r\n");
    EXPECT_EQ(ListAfter("OZ1AB\r\nOZ7FD\r\n", "OZ1AB"), "OZ1AB\r\nOZ7FD\r\n");
    EXPECT_EQ(ListAfter("OZ1ABC\r\n", "OZ1AB"), "OZ1ABC\r\nOZ1AB\r\n");
    // Only six characters of a line are an operator.
    EXPECT_EQ(ListAfter("OZ1ABCD\n", "OZ1ABC"), "OZ1ABCD\n");
}

TEST_F(FirstOperator, GoesIntoAListThatIsSpelledDifferently) {
    Put("tables/Operator.txt", "OZ7FD\r\n");
    FirstAnswers answers = Answers("log");
    answers.operatorCall = "OZ1AB";
    EXPECT_THAT(Prepare(answers), IsEmpty());
    EXPECT_EQ(Content("tables/Operator.txt"), "OZ7FD\r\nOZ1AB\r\n");
    EXPECT_THAT(Names("tables"), SizeIs(1));
}

TEST_F(FirstOperator, MayBeLeftOut) {
    EXPECT_THAT(Prepare(Answers("log")), IsEmpty());
    EXPECT_THAT(Names("tables"), IsEmpty());
}

TEST_F(FirstOperator, MakesTheListIfItIsMissing) {
    FirstAnswers answers = Answers("log");
    answers.operatorCall = "OZ1AB";
    EXPECT_THAT(Prepare(answers), IsEmpty());
    EXPECT_EQ(Content("tables/operator.txt"), "OZ1AB\r\n");
}

TEST_F(FirstOperator, OfAListThatCannotBeWrittenIsTold) {
    fs::create_directory(root_ / "tables" / "operator.txt");
    FirstAnswers answers = Answers("log");
    answers.operatorCall = "OZ1AB";
    const std::vector<Complaint> complaints = Prepare(answers);
    ASSERT_THAT(complaints, SizeIs(1));
    EXPECT_EQ(complaints[0].about, FirstQuestion::Operator);
    EXPECT_THAT(complaints[0].text, HasSubstr("kan ikke skrives"));
}

}  // namespace
}  // namespace vatro
