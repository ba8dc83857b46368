// SPDX-License-Identifier: MIT
//
// Logs that were not written by any logging program: the program shows what it can, goes on, and changes no byte of them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "frame/start.h"
#include "memory_front.h"
#include "player.h"
#include "scenario.h"
#include "temporary_directory.h"
#include "world.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

const char* const kSetting =
    "file data/lande.txt\n| DL        Fed. Rep. of Germany     EU -1 \n"
    "file data/refpfx.txt\n| DL        DL        14 28\n"
    "file data/edr.txt\n| OZ1ABC Test\n"
    "file data/operator.txt\n| OZ1AB\n"
    "setting Settings gsLogLib log\nsetting Settings LastOP OZ1AB\nsetting Settings VisInfo2002 False\nstart\n";

std::string Content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Plays the events on a log with this content and returns its content afterwards.
std::string LogAfter(const std::string& log, const std::string& events) {
    const TemporaryDirectory temporary;
    const fs::path& directory = temporary.Path();
    fs::create_directory(directory / "log");
    const fs::path file = directory / "log" / "FD80mSSB.txt";
    std::ofstream(file, std::ios::binary) << log;
    {
        const World world(directory);
        MemoryFront front;
        const Scenario scenario(kSetting + events);
        Player player(scenario, world, front, StartProgram);
        player.Play();
        for (const OutputLines& output : player.Outputs()) EXPECT_TRUE(output.empty()) << output.front();
    }
    return Content(file);
}

/// Logs a contact after the existing content and runs the searches of a normal entry.
const char* const kOneContact = "type dl1abc\nkey Space\ntype 7\nkey Enter\n";

void ExpectOneLineMore(const std::string& log) {
    const std::string after = LogAfter(log, kOneContact);
    ASSERT_GE(after.size(), log.size());
    EXPECT_TRUE(after.starts_with(log)) << "a byte of the old log has changed";
    const std::string line = after.substr(log.size());
    EXPECT_EQ(line.substr(0, 13), "13:00 DL1ABC ");
    EXPECT_EQ(line.find("\r\n"), line.size() - 2);
}

std::string RandomBytes(std::size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() & 0xFFU);
    return bytes;
}

TEST(HostileLog, OfAMegabyteOfRandomBytesIsLoadedAndLeftAsItIs) {
    const std::string log = RandomBytes(1U << 20U, 1);
    EXPECT_TRUE(LogAfter(log, "key F2\ntype zz\nkey Esc\nfocus frmMain.List1\nkey Home\nkey End\nkill\n") == log);
}

TEST(HostileLog, OfRandomBytesTakesTheNextContact) {
    for (unsigned seed = 0; seed < 25; ++seed) ExpectOneLineMore(RandomBytes(20000, seed) + "\r\n");
}

TEST(HostileLog, OfRandomContactLinesTakesTheNextContact) {
    std::mt19937 random(3);
    const std::string characters = " 0123456789-/:ABCDLNOPTEZ.";
    for (int round = 0; round < 25; ++round) {
        std::string log;
        for (int line = 0; line < 200; ++line) {
            for (std::size_t column = random() % 120; column > 0; --column) log += characters[random() % characters.size()];
            log += "\r\n";
        }
        ExpectOneLineMore(log);
    }
}

TEST(HostileLog, WithLinesOfAnyLengthTakesTheNextContact) {
    std::string log;
    for (const std::size_t length : {0U, 1U, 5U, 6U, 7U, 43U, 44U, 79U, 80U, 1000U, 100000U}) log += std::string(length, 'X') + "\r\n";
    ExpectOneLineMore(log);
}

}  // namespace
}  // namespace vatro
