// SPDX-License-Identifier: MIT
#include "recovery.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "disk/temporary_world.h"
#include "extras/log_lines.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Action = Finding::Action;

class RecoveryTest : public TemporaryWorld {
protected:
    void SetUp() override {
        fs::create_directory(root_ / "log");
        fs::create_directory(root_ / "data");
        Put("data/lande.txt", "DL        Fed. Rep. of Germany     EU -1 \r\n");
        Put("data/refpfx.txt", "DL        DL        14 28\r\n");
        Put("data/edr.txt", "OZ1ABC Test\r\n");
        Put("data/operator.txt", "OZ1DEF\r\n");
    }
    std::vector<Finding> Look() { return LookForDamage({root_ / "log", root_ / "data", "80mSSB", now_}, history_); }
    std::vector<Action> Actions() {
        std::vector<Action> actions;
        for (const Finding& finding : Look()) actions.push_back(finding.action);
        return actions;
    }
    /// Repairs the only finding.
    std::string RepairOne(std::string_view candidate = {}) {
        const std::vector<Finding> findings = Look();
        EXPECT_THAT(findings, SizeIs(1));
        return findings.empty() ? "" : Repair(findings.front(), history_, candidate);
    }
    /// The contents of the kept versions of a file, newest first.
    std::vector<std::string> Kept(std::string_view name) const {
        std::vector<std::string> contents;
        for (const History::Version& version : history_.Versions(name))
            contents.push_back(Content(fs::relative(version.path, root_).string()));
        return contents;
    }
    /// Leaves what a rewrite leaves: the version. The test then writes the log itself.
    void PutVersion(const std::string& content, History::Keep keep) {
        Put("log/FD80mSSB.txt", content);
        history_.Add(root_ / "log/FD80mSSB.txt", keep);
        fs::remove(root_ / "log/FD80mSSB.txt");
    }

    DateTime now_{2026, 9, 6, 9, 0, 0, 0};
    History history_{root_ / "log", root_ / "state", [this] { return now_; }};
};

const std::string kOneEnded = kOne + "\r\n";
const std::string kTwoEnded = kTwo + "\r\n";
const std::string kCorrectedEnded = kCorrected + "\r\n";

TEST_F(RecoveryTest, FindsNothingInASoundDirectory) {
    EXPECT_THAT(Actions(), IsEmpty());
    Put("log/FD80mSSB.txt", LogOf(300));
    Put("log/FD20mCW.txt", LogOf(3));
    Put("log/FDkopi.txt", "");
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, FindsNothingAfterAnOrdinaryCorrection) {
    // A time was corrected, so the contact is found neither by its whole line nor by its time and number; new contacts follow.
    PutVersion(LogOf(3), History::Keep::Always);
    Put("log/FD80mSSB.txt", kOneEnded + ContactLine(2, 59) + "\r\n" + ContactLine(3, 3) + "\r\n" + ContactLine(4, 4) + "\r\n");
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, TheBeginningOfALogIsNoCopyToSpeakOf) {
    Put("log/FD80mSSB.txt", LogOf(30));
    Put("log/FDkopi.txt", LogOf(20) + "12:21 DL1");
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, MakesTheCopyTheMissingLog) {
    Put("log/FDkopi.txt", LogOf(500));
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(findings[0].action, Action::CopyBecomesLog);
    EXPECT_EQ(findings[0].file, "FD80mSSB.txt");
    EXPECT_EQ(findings[0].found.contacts, 500U);
    EXPECT_EQ(findings[0].found.first, "05-09-26 12:01");
    EXPECT_THAT(findings[0].candidates, ElementsAre("FD80mSSB.txt", "FD10mSSB.txt", "FD15mSSB.txt", "FD20mSSB.txt", "FD40mSSB.txt"));
    RepairOne();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(500));
    EXPECT_EQ(Content("log/FDkopi.txt"), "(missing)");
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, LetsTheOperatorSayWhoseTheCopyIs) {
    Put("log/FDkopi.txt", LogOf(500));
    RepairOne("FD20mSSB.txt");
    EXPECT_EQ(Content("log/FD20mSSB.txt"), LogOf(500));
    EXPECT_EQ(Content("log/FD80mSSB.txt"), "(missing)");
}

TEST_F(RecoveryTest, PutsTwoContactsBehindTheCopyThatTheyWereLoggedWithout) {
    const std::string since = ContactLine(1, 40, "OK1AA") + "\r\n" + ContactLine(2, 41, "OK2BB") + "\r\n";
    Put("log/FD80mSSB.txt", since);
    Put("log/FDkopi.txt", LogOf(30));
    EXPECT_THAT(Actions(), ElementsAre(Action::MergeCopy));
    EXPECT_THAT(RepairOne(), HasSubstr("er 30, men den sidste linje har 2"));
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(30) + since);
    EXPECT_THAT(Kept("FD80mSSB.txt"), ElementsAre(since));
    EXPECT_THAT(Kept("FDkopi.txt"), ElementsAre(LogOf(30)));
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, KnowsTheCopyByContactsOfItsLog) {
    Put("log/FD40mSSB.txt", LogOf(2));
    Put("log/FDkopi.txt", LogOf(9));
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(findings[0].action, Action::MergeCopy);
    EXPECT_EQ(findings[0].file, "FD40mSSB.txt");
    EXPECT_THAT(findings[0].candidates, IsEmpty());
    EXPECT_EQ(RepairOne(), "");
    EXPECT_EQ(Content("log/FD40mSSB.txt"), LogOf(9));
}

TEST_F(RecoveryTest, KnowsTheCopyByAnEarlierVersionOfItsLog) {
    Put("log/FD15mSSB.txt", LogOf(4));
    history_.Add(root_ / "log/FD15mSSB.txt", History::Keep::ByAge);
    fs::remove(root_ / "log/FD15mSSB.txt");
    Put("log/FDkopi.txt", LogOf(9));
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(findings[0].file, "FD15mSSB.txt");
    EXPECT_EQ(findings[0].action, Action::CopyBecomesLog);
}

TEST_F(RecoveryTest, LeavesTheLogWhenACorrectionWasInterrupted) {
    Put("log/FD80mSSB.txt", LogOf(2));
    Put("log/FDkopi.txt", kOneEnded + kCorrectedEnded);
    EXPECT_THAT(Actions(), ElementsAre(Action::KeepCopy));
    RepairOne();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(2));
    EXPECT_THAT(Kept("FDkopi.txt"), ElementsAre(kOneEnded + kCorrectedEnded));
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, ProposesNothingForACopyOfAnotherYear) {
    now_.year = 2027;
    Put("log/FD80mSSB.txt", ContactLine(1, 40, "OK1AA") + "\r\n");
    Put("log/FDkopi.txt", LogOf(30));
    EXPECT_THAT(Actions(), ElementsAre(Action::KeepCopy));
    RepairOne();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), ContactLine(1, 40, "OK1AA") + "\r\n");
    EXPECT_THAT(Kept("FDkopi.txt"), ElementsAre(LogOf(30)));
}

TEST_F(RecoveryTest, TellsCwFromSsbByTheReports) {
    std::string cw = kOneEnded;
    cw.replace(22, 4, "599-").replace(31, 4, "599-");
    Put("log/FDkopi.txt", cw);
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    // The damaged log could be any of the five.
    EXPECT_EQ(findings[0].action, Action::KeepCopy);
    EXPECT_THAT(findings[0].candidates, ElementsAre("", "FD10mCW.txt", "FD15mCW.txt", "FD20mCW.txt", "FD40mCW.txt", "FD80mCW.txt"));
}

TEST_F(RecoveryTest, CutsADamagedEndAndKeepsTheWholeFile) {
    const std::string torn = LogOf(5) + "12:06 DL1AA     ";
    Put("log/FD80mSSB.txt", torn);
    EXPECT_THAT(Actions(), ElementsAre(Action::CutEnd));
    RepairOne();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(5));
    EXPECT_THAT(Kept("FD80mSSB.txt"), ElementsAre(torn));
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, MergesWhatTheSecondCopyHasMore) {
    history_.AddContent("FD80mSSB.txt", LogOf(6), History::Keep::FromCopy);
    Put("log/FD80mSSB.txt", LogOf(4));
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_TRUE(findings[0].fromCopy);
    EXPECT_EQ(ToUtf8(findings[0].what), "Den løbende kopi har 2 kontakter, som loggen ikke har.");
    Repair(findings[0], history_);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(6));
    EXPECT_THAT(Look(), IsEmpty());
}

TEST_F(RecoveryTest, FetchesAMissingLogFromTheSecondCopy) {
    history_.AddContent("FD80mSSB.txt", LogOf(6), History::Keep::FromCopy);
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(ToUtf8(findings[0].what), "Loggen mangler. Den løbende kopi har den.");
    Repair(findings[0], history_);
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(6));
    EXPECT_THAT(Look(), IsEmpty());
}

TEST_F(RecoveryTest, PutsBackWhatTheProgramHadNotSeen) {
    PutVersion(LogOf(6), History::Keep::ToMerge);
    // The program had read two lines, corrected one and logged one.
    const std::string logged = ContactLine(3, 50, "OK1AA") + "\r\n";
    Put("log/FD80mSSB.txt", kOneEnded + kCorrectedEnded + logged);
    EXPECT_THAT(Actions(), ElementsAre(Action::MergeVersion));
    EXPECT_THAT(RepairOne(), HasSubstr("er 6, men den sidste linje har 3"));
    std::string rest;
    for (int i = 3; i <= 6; ++i) rest += ContactLine(i, i) + "\r\n";
    EXPECT_EQ(Content("log/FD80mSSB.txt"), kOneEnded + kCorrectedEnded + rest + logged);
    EXPECT_THAT(Kept("FD80mSSB.txt"), ElementsAre(kOneEnded + kCorrectedEnded + logged, LogOf(6)));
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, StillProposesTheMergeAfterMoreCorrections) {
    PutVersion(LogOf(6), History::Keep::ToMerge);
    PutVersion(LogOf(2), History::Keep::ByAge);
    Put("log/FD80mSSB.txt", kOneEnded + kCorrectedEnded);
    EXPECT_THAT(Actions(), ElementsAre(Action::MergeVersion));
    RepairOne();
    EXPECT_EQ(ReadLogText(Content("log/FD80mSSB.txt")).lines.size(), 6U);
    EXPECT_THAT(Actions(), IsEmpty());
    // If the log becomes shorter later, other repairs may be proposed, but not the merge again.
    Put("log/FD80mSSB.txt", LogOf(5));
    EXPECT_THAT(Actions(), testing::Not(testing::Contains(Action::MergeVersion)));
}

TEST_F(RecoveryTest, DoesNotEmptyAFileInAnotherCharacterSet) {
    std::string wide;
    for (const char c : LogOf(5)) wide += {c, '\0'};
    Put("log/FD80mSSB.txt", wide);
    EXPECT_THAT(Actions(), ElementsAre(Action::None));
}

TEST_F(RecoveryTest, LeavesALogThatIsShorterOnPurposeAndAsksOnce) {
    PutVersion(LogOf(6), History::Keep::ByAge);
    Put("log/FD80mSSB.txt", LogOf(4));
    EXPECT_THAT(Actions(), ElementsAre(Action::PutBeside));
    EXPECT_THAT(RepairOne(), HasSubstr("FD80mSSB fra historikken.txt"));
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(4));
    EXPECT_EQ(Content("log/FD80mSSB fra historikken.txt"), LogOf(6));
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, RestoresALogThatHasVanishedDuringTheContest) {
    PutVersion(LogOf(6), History::Keep::ByAge);
    EXPECT_THAT(Actions(), ElementsAre(Action::Restore));
    RepairOne();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), LogOf(6));
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, DoesNotMissTheLogsOfLastYear) {
    PutVersion(LogOf(6), History::Keep::ByAge);
    now_.year = 2027;
    EXPECT_THAT(Actions(), IsEmpty());
}

TEST_F(RecoveryTest, TellsOfANumberThatStopsTheLoad) {
    std::string damaged = LogOf(3);
    damaged.replace(81 + 26, 4, "9e99");
    Put("log/FD80mSSB.txt", damaged);
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(findings[0].action, Action::None);
    EXPECT_THAT(findings[0].what, HasSubstr("Linje 2"));
    RepairOne();
    EXPECT_EQ(Content("log/FD80mSSB.txt"), damaged);
}

TEST_F(RecoveryTest, TellsOfEmptyOrMissingTables) {
    Put("data/lande.txt", "");
    fs::remove(root_ / "data/refpfx.txt");
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(2));
    EXPECT_EQ(findings[0].file, "lande.txt");
    EXPECT_EQ(findings[1].file, "refpfx.txt");
}

TEST_F(RecoveryTest, TellsOfMoreStationsThanThereIsRoomFor) {
    std::string stations;
    for (int i = 0; i < 200; ++i) stations += "OZ1ABC\r\n";
    Put("data/edr.txt", stations);
    EXPECT_THAT(Actions(), IsEmpty());
    Put("data/edr.txt", stations + "OZ2ABC");
    ASSERT_THAT(Look(), SizeIs(1));
    EXPECT_EQ(Look()[0].file, "edr.txt");
}

TEST_F(RecoveryTest, TellsOfADirectoryThatIsNotThere) {
    fs::remove(root_ / "log");
    const std::vector<Finding> findings = Look();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_THAT(findings[0].what, HasSubstr("findes ikke"));
}

TEST_F(RecoveryTest, LookingChangesNothing) {
    Put("log/FD80mSSB.txt", LogOf(5) + "12:06 DL1AA     ");
    Put("log/FDkopi.txt", LogOf(9));
    const std::vector<std::string> before = Names("log");
    Look();
    EXPECT_EQ(Names("log"), before);
    EXPECT_EQ(Content("log/FDkopi.txt"), LogOf(9));
    EXPECT_FALSE(fs::exists(root_ / "state"));
}

}  // namespace
}  // namespace vatro
