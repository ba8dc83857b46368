// SPDX-License-Identifier: MIT
//
// Cuts the power at every disk call of the program, one after the other. Of the data not synced by then the disk has written
// all, a part or nothing. The tests state in which states each file may then be found.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "codepage.h"
#include "frame/start.h"
#include "memory_front.h"
#include "player.h"
#include "power/disk_model.h"
#include "power/disk_record.h"
#include "scenario.h"
#include "temporary_directory.h"
#include "world.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

/// The in-memory front. At each "shot" it tells its test that the command before it has returned.
class TellsShot : public MemoryFront {
public:
    explicit TellsShot(Teller teller) : teller_(teller) {}
    void Shot(const std::string&) override { teller_.Tell(); }

private:
    Teller teller_;
};

const std::string kLog = "log/FD80mSSB.txt";
const std::string kCopy = "log/FDkopi.txt";
const std::string kUnknown = "log/ukendt.txt";
const std::string kOperators = "data/operator.txt";

const std::string kFirst = "12:01 DL1AA           59 -0001 59 -0003  3 DL         OZ1DEF     SSB   05-09-26\r\n";
const std::string kSecond = "12:02 DL2BB           59 -0002 59 -0004  3            OZ1DEF     SSB   05-09-26\r\n";
/// The log line of the contact that the test logs.
const std::string kThird = "13:00 DL3CC           59 -0003 59 -0005  3            OZ1DEF     SSB   05-09-26\r\n";
const std::string kStranger = "13:00 QX3CC           59 -0003 59 -0005  0            OZ1DEF     SSB   05-09-26\r\n";

DiskState World80m() {
    return {{"data/lande.txt", "DL        Fed. Rep. of Germany     EU -1 \r\nOZ        Denmark                  EU -1 \r\n"},
            {"data/refpfx.txt", "DL        DL        14 28\r\nOZ        OZ        14 18\r\n"},
            {"data/edr.txt", "OZ1ABC Test\r\n"},
            {kOperators, "OZ1DEF\r\nOZ2GHI\r\n"},
            {kLog, kFirst + kSecond}};
}

const std::string kStart =
    "setting Settings gsLogLib log\nsetting Settings gsBackupLib backup\nsetting Settings LastOP OZ1DEF\n"
    "setting Settings VisInfo2002 False\nstart\n";

/// Which states of one file are allowed after a cut. `told` is true once the program has reported that it is done.
using Allowed = std::function<bool(const DiskState& found, bool told)>;

bool Holds(const DiskState& state, const std::string& path, const std::string& content) {
    const auto file = state.find(path);
    return file != state.end() && file->second == content;
}

/// The file grows by whole lines. Once the program has reported it, the new lines must be there; before that, the new end may
/// be partial or damaged. `before` always stays.
Allowed Appended(const std::string& path, const std::string& before, const std::string& after) {
    return [=](const DiskState& found, bool told) {
        if (told) return Holds(found, path, after);
        const auto file = found.find(path);
        if (file == found.end()) return before.empty();
        return file->second.starts_with(before) && file->second.size() <= after.size();
    };
}

/// The old log, the new log, or no log and the whole new one under the name of the copy.
Allowed Rewritten(const std::string& before, const std::string& after) {
    return [=](const DiskState& found, bool told) {
        if (told) return Holds(found, kLog, after);
        if (!found.contains(kLog)) return Holds(found, kCopy, after);
        return Holds(found, kLog, before) || Holds(found, kLog, after);
    };
}

/// A file rewritten in place from data that exist elsewhere. Until the program has reported it, the file may have its old
/// content, or up to the new length of possibly damaged bytes.
Allowed WrittenInPlace(const std::string& path, const DiskState& before, const DiskState& after) {
    const auto old = before.find(path);
    const bool missing = old == before.end();
    return [=, was = missing ? std::string() : old->second, is = after.at(path)](const DiskState& found, bool told) {
        if (told) return Holds(found, path, is);
        const auto file = found.find(path);
        if (file == found.end()) return missing;
        return (!missing && file->second == was) || file->second.size() <= is.size();
    };
}

class EveryCall : public testing::Test {
protected:
    void SetUp() override {
        if (!CanRecord()) GTEST_SKIP() << "no process may be looked at here";
    }

    /// Plays the events in the world `before`, followed by the "shot", and records the calls.
    void Play(const DiskState& before, const std::string& events) {
        before_ = before;
        const TemporaryDirectory directory;
        WriteDisk(directory.Path(), before);
        const Scenario scenario(kStart + events + "shot data/told.png\n");
        calls_ = RecordCalls(directory.Path(), [&](const Teller& teller) {
            const World world(directory.Path());
            TellsShot front(teller);
            Player player(scenario, world, front, StartProgram);
            player.Play();
            if (!scenario.Matches(player.Outputs())) _exit(1);
        });
        after_ = ReadDisk(directory.Path());
        before_.erase(kSettings);
        after_.erase(kSettings);
    }

    /// Checks each file named against its allowed states, and that every other file is unchanged. Returns the states found at
    /// all cuts.
    std::set<DiskState> CutEverywhere(const std::map<std::string, Allowed>& allowed) {
        DiskModel disk(before_);
        std::set<DiskState> all;
        bool told = false;
        std::size_t changes = 0;
        for (std::size_t cut = 0; cut <= calls_.size(); ++cut) {
            std::set<DiskState> found = disk.AfterPowerCut();
            for (const DiskState& state : found) Judge(state, allowed, told, cut);
            all.merge(found);
            if (cut == calls_.size()) break;
            // The scenario player stores the settings in a file of its own.
            if (calls_[cut].path == kSettings) continue;
            told = told || calls_[cut].kind == DiskCall::Kind::Told;
            if (!told) ++changes;
            disk.Do(calls_[cut]);
        }
        EXPECT_TRUE(told) << "the story has not come to its end";
        EXPECT_GT(changes, 0U) << "the story has written nothing";
        EXPECT_EQ(disk.Shown(), after_) << "the disk was not followed";
        RecordProperty("cuts", static_cast<int>(calls_.size() + 1));
        RecordProperty("states", static_cast<int>(all.size()));
        return all;
    }

    std::map<std::string, Allowed> InPlace(const std::vector<std::string>& paths) const {
        std::map<std::string, Allowed> allowed;
        for (const std::string& path : paths) {
            if (after_.contains(path))
                allowed[path] = WrittenInPlace(path, before_, after_);
            else
                ADD_FAILURE() << "nothing has been written to " << path;
        }
        return allowed;
    }

    DiskState before_;
    DiskState after_;

private:
    static constexpr const char* kSettings = "settings.txt";

    void Judge(const DiskState& state, const std::map<std::string, Allowed>& allowed, bool told, std::size_t cut) const {
        for (const auto& [path, rule] : allowed) ASSERT_TRUE(rule(state, told)) << path << Where(cut, told) << Text(state, path);
        for (const auto& [path, content] : before_) {
            if (allowed.contains(path)) continue;
            ASSERT_TRUE(Holds(state, path, content)) << path << Where(cut, told) << Text(state, path);
        }
        for (const auto& [path, content] : state) ASSERT_TRUE(allowed.contains(path) || before_.contains(path)) << path << Where(cut, told);
    }
    static std::string Where(std::size_t cut, bool told) {
        return " before call " + std::to_string(cut) + (told ? ", told of" : ", not told of");
    }
    static std::string Text(const DiskState& state, const std::string& path) {
        const auto file = state.find(path);
        return file == state.end() ? ": missing" : ":\n" + ToUtf8(file->second);
    }

    std::vector<DiskCall> calls_;
};

const std::string kContact = "type dl3cc\nkey Space\ntype 5\nkey Enter\n";

TEST_F(EveryCall, OfAContactLosesNoneThatWasLogged) {
    Play(World80m(), kContact);
    ASSERT_EQ(after_.at(kLog), kFirst + kSecond + kThird);
    CutEverywhere({{kLog, Appended(kLog, kFirst + kSecond, kFirst + kSecond + kThird)}});
}

TEST_F(EveryCall, OfTheFirstContactOfALogLeavesItOrNoLog) {
    DiskState before = World80m();
    before.erase(kLog);
    Play(before, "type dl1aa\nkey Space\ntype 5\nkey Enter\n");
    const std::string line = "13:00 DL1AA           59 -0001 59 -0005  3 DL         OZ1DEF     SSB   05-09-26\r\n";
    ASSERT_EQ(after_.at(kLog), line);
    CutEverywhere({{kLog, Appended(kLog, {}, line)}});
}

TEST_F(EveryCall, OfANoteLosesNoLineThatWasThere) {
    Play(World80m(), "key Ctrl+N\ntype vagtskifte\nkey Enter\n");
    CutEverywhere({{kLog, Appended(kLog, kFirst + kSecond, kFirst + kSecond + "NOTE: vagtskifte\r\n")}});
}

TEST_F(EveryCall, OfAnUnknownPrefixKeepsTheContactOnceItIsLogged) {
    Play(World80m(), "type qx3cc\nkey Space\ntype 5\nkey Enter\n");
    CutEverywhere({{kLog, Appended(kLog, kFirst + kSecond, kFirst + kSecond + kStranger)},
                   {kUnknown, Appended(kUnknown, {}, "80m SSB " + kStranger)}});
}

TEST_F(EveryCall, OfACorrectionLeavesTheOldLogOrTheNewOneOrTheWholeCopy) {
    Play(World80m(), "dblclick frmMain.List1 1\nfocus frmRetQSO.Text1(5)\nkey Backspace\ntype 7\nkey Enter\n");
    std::string corrected = kSecond;
    corrected.replace(corrected.find("0004"), 4, "0007");
    std::map<std::string, Allowed> allowed = InPlace({kOperators});
    allowed[kLog] = Rewritten(kFirst + kSecond, kFirst + corrected);
    // The copy may have any content, because it counts only if the log is gone.
    allowed[kCopy] = [](const DiskState&, bool) { return true; };
    const std::set<DiskState> found = CutEverywhere(allowed);
    EXPECT_TRUE(std::any_of(found.begin(), found.end(), [](const DiskState& state) { return !state.contains(kLog); }))
        << "no cut fell between the old log and the new one";
    EXPECT_FALSE(after_.contains(kCopy));
}

TEST_F(EveryCall, OfARewordedNoteLeavesTheOldLogOrTheNewOneOrTheWholeCopy) {
    DiskState before = World80m();
    before[kLog] = kFirst + "NOTE: pause\r\n";
    Play(before, "dblclick frmMain.List1 1\nkey End\ntype !\nkey Enter\n");
    std::map<std::string, Allowed> allowed;
    allowed[kLog] = Rewritten(kFirst + "NOTE: pause\r\n", kFirst + "NOTE: pause!\r\n");
    allowed[kCopy] = [](const DiskState&, bool) { return true; };
    CutEverywhere(allowed);
}

TEST_F(EveryCall, OfANewOperatorSparesEverythingButTheListOfOperators) {
    Play(World80m(),
         "focus frmMain.Combo1\nkey Backspace\nkey Backspace\nkey Backspace\nkey Backspace\nkey Backspace\nkey Backspace\ntype oz7f\n"
         "focus frmMain.Text1(1)\n");
    EXPECT_NE(after_.at(kOperators).find("OZ7F"), std::string::npos);
    CutEverywhere(InPlace({kOperators}));
}

TEST_F(EveryCall, OfTheImportOfCountriesSparesEverythingButTheTwoTables) {
    DiskState before = World80m();
    before["data/cty.dat"] = "Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  QQ:\r\n    QQ,QQ1,QR;\r\n";
    Play(before,
         "menu mnuFunktionerImporterCTY\n"
         "> box \"Import af CTY.DAT\" \"Det tager nogle minutter. Er du sikker?\" Ja*|Nej -\nanswer Ja\n");
    CutEverywhere(InPlace({"data/lande.txt", "data/refpfx.txt"}));
}

/// Papers of an earlier hour already exist.
DiskState WithOldPapers(const std::vector<std::string>& papers) {
    DiskState world = World80m();
    for (const std::string& paper : papers) world[paper] = "An earlier paper, which is longer than nothing.\r\n";
    return world;
}

TEST_F(EveryCall, OfTheSheetsAndSumsTouchesNoLog) {
    Play(WithOldPapers({"log/SM80mSSB.txt", "log/Summary.txt"}), "menu mnuEfterAlt\n");
    CutEverywhere(InPlace({"log/SM80mSSB.txt", "log/Mult.txt", "log/Summary.txt"}));
}

TEST_F(EveryCall, OfTheErrorListTouchesNoLog) {
    Play(WithOldPapers({"log/Fejllist.txt"}), "menu mnuFilerDanFejlliste\n");
    CutEverywhere(InPlace({"log/Fejllist.txt"}));
}

TEST_F(EveryCall, OfTheWebPageTouchesNoLog) {
    Play(WithOldPapers({}), "menu mnuFilerDanHtml\n");
    CutEverywhere(InPlace({"log/vatro2026.htm"}));
}

TEST_F(EveryCall, OfTheExportTouchesNoLog) {
    Play(WithOldPapers({"log/vatro2026.adi"}), "menu mnuFilerEksportAdif\n");
    CutEverywhere(InPlace({"log/vatro2026.adi"}));
}

TEST_F(EveryCall, OfABackupTouchesNoLog) {
    DiskState before = World80m();
    before[kUnknown] = "80m SSB " + kStranger;
    before["backup/FD80mSSB.txt"] = kFirst;
    Play(before, "menu mnuFilerBackupUdfor\n");
    CutEverywhere(InPlace({"backup/Ukendt.txt", "backup/FD80mSSB.txt"}));
}

TEST_F(EveryCall, OfACopyToDisketteTouchesNoLog) {
    Play(World80m(), "menu mnuFilerDiskettekopi\n");
    CutEverywhere(InPlace({"floppy/FD80mSSB.txt"}));
}

TEST_F(EveryCall, OfTheChoiceOfDirectoriesTouchesNoLog) {
    Play(World80m(),
         "menu mnuFilerBackupSetBibliotek\n> dialog save \"Vælg eller opret Backupbibliotek\" \"setBackup.txt\"\ndialog "
         "backup/setBackup.txt\n"
         "> box \"vatro\" \"Backupbibliotek sat til: backup\\\\\" OK -\nanswer OK\n"
         "menu mnuFilerSætLogbibliotek\n> dialog save \"Vælg eller opret logbibliotek\" \"setlog.txt\"\ndialog log/setlog.txt\n"
         "> box \"vatro\" \"Logbibliotek sat til: log\\\\\" OK -\nanswer OK\n");
    CutEverywhere(InPlace({"backup/setBackup.txt", "log/setlog.txt"}));
}

TEST_F(EveryCall, OfAnImportedLogLeavesItsBeginning) {
    DiskState before = World80m();
    before["data/felt.40"] =
        "CT log\r\n\r\nStation OZ2DEF/P                           CW    Power: 100\r\n\r\n"
        "1   05-Sep-26   1207    12         DL9XYZ       599  345\r\n1   05-Sep-26   1214    13         DL8ABC       579    7\r\n";
    Play(before,
         "menu mnuFunktionerImporterCtAll\n"
         "> dialog open \"\" \"CT-logfil (*.10;*.15;*.20;*.40;*.80)|*.10;*.15;*.20;*.40;*.80|\"\ndialog data/felt.40\n");
    const std::string imported =
        "12:07 DL9XYZ          599-0012 599-0345  3 DL         CT-IMP     CW    05-09-26\r\n"
        "12:14 DL8ABC          599-0013 579-0007  3            CT-IMP     CW    05-09-26\r\n";
    const std::string log = "log/FD40mCW.txt";
    CutEverywhere({{log, Appended(log, {}, imported)}});
}

TEST_F(EveryCall, OfTheEndOfTheProgramSparesEverythingButTheListOfOperators) {
    Play(World80m(), "menu mnuFileExit\n> ended\n");
    CutEverywhere(InPlace({kOperators}));
}

TEST_F(EveryCall, LetsTheNextContactBeginItsOwnLine) {
    Play(World80m(), kContact);
    std::set<DiskState> found = CutEverywhere({{kLog, Appended(kLog, kFirst + kSecond, kFirst + kSecond + kThird)}});
    std::size_t torn = 0;
    for (const DiskState& state : found) {
        const TemporaryDirectory directory;
        WriteDisk(directory.Path(), state);
        const World world(directory.Path());
        MemoryFront front;
        const Scenario scenario(kStart + "type dl4dd\nkey Space\ntype 6\nkey Enter\n");
        Player player(scenario, world, front, StartProgram);
        player.Play();
        ASSERT_TRUE(scenario.Matches(player.Outputs()));
        const std::string log = ReadDisk(directory.Path()).at(kLog);
        const std::size_t line = log.rfind("13:00 DL4DD");
        ASSERT_NE(line, std::string::npos);
        EXPECT_EQ(log.substr(line - 2, 2), "\r\n") << log;
        if (!state.at(kLog).ends_with("\r\n")) ++torn;
    }
    EXPECT_GT(torn, 0U) << "no cut has torn a line";
}

}  // namespace
}  // namespace vatro
