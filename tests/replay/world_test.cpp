// SPDX-License-Identifier: MIT
#include "world.h"

#include <gtest/gtest.h>

#include "codepage.h"
#include "settings_store.h"

namespace vatro {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

TEST(World, BeginsWithFourEmptyDirectories) {
    const World world;
    for (const char* name : {"data", "log", "backup", "a:"}) EXPECT_EQ(world.List(name), Lines{}) << name;
    EXPECT_EQ(world.List("other"), std::nullopt);
}

TEST(World, IsFoundWithEitherSlashAndInAnyCase) {
    const World world;
    ASSERT_TRUE(world.Write("log/FD80mSSB.txt", "x\r\n"));
    EXPECT_EQ(world.Read("LOG\\fd80MSSB.TXT"), "x\r\n");
    EXPECT_EQ(world.List("Log"), (Lines{"FD80mSSB.txt"}));
}

TEST(World, WritingInAnotherCaseReplacesTheFile) {
    const World world;
    world.Write("data/edr.txt", "old");
    world.Write("data/EDR.TXT", "new");
    EXPECT_EQ(world.Read("data/edr.txt"), "new");
    EXPECT_EQ(world.List("data"), (Lines{"edr.txt"}));
}

TEST(World, BareNameLiesInTheCurrentDirectory) {
    const World world;
    world.Write("cty.dat", "x");
    EXPECT_EQ(world.Read("data/cty.dat"), "x");
}

TEST(World, OtherDirectoriesAreCreatedWithTheirFiles) {
    const World world;
    world.Write("gamle logs/2025/FD10mCW.txt", "x");
    EXPECT_EQ(world.List("gamle logs"), (Lines{"2025"}));
    EXPECT_EQ(world.Read("gamle logs\\2025\\fd10mcw.txt"), "x");
}

TEST(World, DriveLettersAreDirectoriesOfTheirOwn) {
    const World world;
    EXPECT_EQ(world.List("C:"), Lines{});
    world.Write("C:\\setlog.txt", "");
    EXPECT_EQ(world.List("c:"), (Lines{"setlog.txt"}));
    EXPECT_EQ(world.List("D:\\"), Lines{});
    EXPECT_EQ(world.List("data"), Lines{});
}

TEST(World, DriveAIsTheFloppyUntilItIsTakenAway) {
    const World world;
    world.Write("a:\\Ukendt.txt", "x");
    EXPECT_EQ(world.Read("A:/ukendt.txt"), "x");
    EXPECT_EQ(world.List("floppy"), (Lines{"Ukendt.txt"}));
    world.Remove("a:");
    EXPECT_EQ(world.List("a:"), std::nullopt);
    EXPECT_EQ(world.Read("a:\\Ukendt.txt"), std::nullopt);
}

TEST(World, NoPathLeadsOutOfIt) {
    const World world;
    const std::string root = world.Path("data").parent_path().generic_string();
    for (const char* path : {"../../x/y", "/etc/passwd", "data/../../../x/y", "C:\\..\\..\\x", "\\\\server\\x"})
        EXPECT_TRUE(world.Path(path).generic_string().starts_with(root + "/")) << path;
}

TEST(World, NamesAreInTheCodePageAndSortedByCharacterCode) {
    const World world;
    for (const std::string_view name : {"ø.txt"_t, "Z.txt"_t, "a.txt"_t, "B.txt"_t}) world.Write("log/" + std::string(name), "");
    EXPECT_EQ(world.List("log"), (Lines{"B.txt", "Z.txt", "a.txt", std::string("ø.txt"_t)}));
}

TEST(World, MissingFileAndDirectoryHaveNoContent) {
    const World world;
    EXPECT_EQ(world.Read("data/none.txt"), std::nullopt);
    EXPECT_EQ(world.Read("data"), std::nullopt);
    world.Write("data/a.txt", "");
    EXPECT_EQ(world.List("data/a.txt"), std::nullopt);
}

TEST(World, TemporaryOneGoesAndKeptOneStays) {
    fs::path temporary;
    fs::path kept;
    {
        const World world;
        temporary = world.Path("data").parent_path();
        kept = temporary.string() + "-kept";
        world.Write("log/a.txt", "x");
    }
    EXPECT_FALSE(fs::exists(temporary));
    {
        const World world(kept);
        world.Write("log/a.txt", "x");
        SettingsStore settings(world.SettingsFile());
        settings.Write("Settings", "Text", "line\r\nline \\ end");
    }
    const World again(kept);
    EXPECT_EQ(again.Read("log/a.txt"), "x");
    EXPECT_EQ(SettingsStore(again.SettingsFile()).Read("SETTINGS", "text"), "line\r\nline \\ end");
    fs::remove_all(kept);
}

TEST(SettingsStore, KnowsNoCaseInSectionAndKey) {
    SettingsStore settings;
    EXPECT_EQ(settings.Read("Settings", "gsFDLib"), std::nullopt);
    settings.Write("Settings", "gsFDLib", "data");
    EXPECT_EQ(settings.Read("settings", "GSFDLIB"), "data");
    EXPECT_EQ(settings.Read("Settings", "FDLib"), std::nullopt);
    EXPECT_EQ(settings.Read("CW", "gsFDLib"), std::nullopt);
}

}  // namespace vatro
