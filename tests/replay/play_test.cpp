// SPDX-License-Identifier: MIT
#include "play.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "memory_front.h"
#include "world.h"

namespace vatro {

namespace fs = std::filesystem;

namespace {

/// Scenario files in a temporary directory, played as from the command line.
class PlayTest : public ::testing::Test {
protected:
    std::string File(const std::string& name, const std::string& text) {
        const fs::path file = place.Path("log/" + name);
        std::ofstream(file, std::ios::binary) << text;
        return file.string();
    }
    static std::string TextOf(const std::string& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    int Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "vatro-replay");
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int result = PlayMain(arguments, [] { return std::make_unique<MemoryFront>(); });
        out = testing::internal::GetCapturedStdout();
        err = testing::internal::GetCapturedStderr();
        return result;
    }

    World place;
    std::string out;
    std::string err;
};

}  // namespace

TEST_F(PlayTest, AllThatMatchIsWell) {
    EXPECT_EQ(Run({File("a.scn", "show focus\n> focus -\n"), File("b.scn", "ls log\n")}), 0);
    EXPECT_EQ(out + err, "");
}

TEST_F(PlayTest, FirstFileThatDiffersEndsIt) {
    const std::string a = File("a.scn", "show focus\n");
    EXPECT_EQ(Run({a, File("b.scn", "nonsense\n")}), 1);
    EXPECT_EQ(out, "--- " + a + "\n+++ " + a + " (played)\n@@ -1 +1,2 @@\n show focus\n+> focus -\n");
    EXPECT_EQ(err, "");
}

TEST_F(PlayTest, NothingIsLeftOfTheFileBefore) {
    const std::string tables = "file data/lande.txt\nfile data/refpfx.txt\nfile data/edr.txt\nfile data/operator.txt\n";
    const std::string store = "setting Settings gsLogLib log\nsetting Settings VisInfo2002 False\nsetting Settings MyCall OZ1AB\n";
    const std::string a = File("a.scn", tables + store + "start\nshow gsMyCall\n> gsMyCall \"OZ1AB\"\n");
    EXPECT_EQ(Run({a, File("b.scn", "show gsMyCall\n> gsMyCall \"\"\n")}), 0) << out << err;
}

TEST_F(PlayTest, APictureWithoutAWindowLeavesTheDiskAlone) {
    EXPECT_EQ(Run({File("a.scn", "remove a:\nshot a:/x.png\nls a:\n> missing a:\n")}), 0) << out << err;
}

TEST_F(PlayTest, WhatCannotBePlayedIsToldWithFileAndLine) {
    const std::string a = File("a.scn", "# story\nnonsense\n");
    EXPECT_EQ(Run({a}), 2);
    EXPECT_EQ(err, a + ":2: there is no command nonsense\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(Run({"--print", a}), 2);
    EXPECT_EQ(Run({place.Path("log/none.scn").string()}), 2);
}

TEST_F(PlayTest, PrintShowsTheFileWithWhatCame) {
    EXPECT_EQ(Run({"--print", File("a.scn", "show focus\n> old\n# end\n")}), 0);
    EXPECT_EQ(out, "show focus\n> focus -\n# end\n");
}

TEST_F(PlayTest, UpdateWritesWhatCameIntoTheFile) {
    const std::string a = File("a.scn", "show focus\r\n> old\r\n");
    EXPECT_EQ(Run({"--update", a}), 0);
    EXPECT_EQ(TextOf(a), "show focus\r\n> focus -\r\n");
    const std::string b = File("b.scn", "show focus\nnonsense\n");
    EXPECT_EQ(Run({"--update", b}), 2);
    EXPECT_EQ(TextOf(b), "show focus\nnonsense\n");
}

TEST_F(PlayTest, KeptWorldIsThereBeforeAndAfterwards) {
    const std::string kept = place.Path("kept/world").string();
    fs::create_directories(fs::path(kept) / "data");
    std::ofstream(fs::path(kept) / "data" / "a.txt", std::ios::binary) << "x\r\n";
    EXPECT_EQ(Run({"--keep", kept, File("a.scn", "cat data/a.txt\n> |x|\nfile log/b.txt\n| y\nsetting Settings UTC -1\n")}), 0);
    EXPECT_EQ(TextOf(kept + "/log/b.txt"), "y\r\n");
    EXPECT_EQ(Run({"--keep", kept, File("b.scn", "setting Settings UTC\n> Settings/UTC \"-1\"\n")}), 0);
}

TEST_F(PlayTest, CommandLineWithoutSenseIsAnError) {
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(Run({"--keep"}), 2);
    EXPECT_EQ(Run({"--nonsense", "a.scn"}), 2);
}

}  // namespace vatro
