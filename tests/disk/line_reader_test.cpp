// SPDX-License-Identifier: MIT
#include "line_reader.h"

#include <gmock/gmock.h>

#include <random>

#include "disk/temporary_world.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The lines of a text, found by looking at one byte at a time.
std::vector<std::string> SplitByHand(std::string_view text) {
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            line += text[i];
            if (i + 1 == text.size()) lines.push_back(line);
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        lines.push_back(line);
        line.clear();
    }
    return lines;
}

class LineReaderTest : public TemporaryWorld {
protected:
    std::vector<std::string> Read(std::string_view content) {
        Put("file.txt", content);
        DiskFiles files;
        return ReadLines(files, At("file.txt"));
    }
};

TEST_F(LineReaderTest, EveryKindOfLineEndEndsALine) {
    EXPECT_THAT(Read("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(Read("a\r\n"), ElementsAre("a"));
    EXPECT_THAT(Read("a\n\rb"), ElementsAre("a", "", "b"));
    EXPECT_THAT(Read("\r\r\n\n"), ElementsAre("", "", ""));
    EXPECT_THAT(Read("a\r"), ElementsAre("a"));
}

TEST_F(LineReaderTest, AnEmptyFileHasNoLine) {
    EXPECT_THAT(Read(""), IsEmpty());
}

TEST_F(LineReaderTest, OtherControlCharactersBelongToTheLine) {
    using namespace std::string_literals;
    EXPECT_THAT(Read("a\0b\x1A\f\tc\r\nd"s), ElementsAre("a\0b\x1A\f\tc"s, "d"));
}

TEST_F(LineReaderTest, ALineEndMayFallOnAnyPlaceOfTheBuffer) {
    for (std::size_t length = 65533; length <= 65538; ++length) {
        const std::string longLine(length, 'x');
        EXPECT_THAT(Read(longLine + "\r\nnext\r\n"), ElementsAre(longLine, "next")) << length;
        EXPECT_THAT(Read(longLine + "\r\rnext"), ElementsAre(longLine, "", "next")) << length;
        EXPECT_THAT(Read(longLine + "\r\n"), ElementsAre(longLine)) << length;
        EXPECT_THAT(Read(longLine + "\r"), ElementsAre(longLine)) << length;
    }
}

TEST_F(LineReaderTest, ALineMayBeLongerThanTheBuffer) {
    const std::string longLine(1'000'000, 'x');
    EXPECT_THAT(Read("a\r\n" + longLine + "\r\nb"), ElementsAre("a", longLine, "b"));
}

TEST_F(LineReaderTest, RandomBytesAreReadAsTheyStand) {
    std::mt19937 random(20020907);
    std::string content(1'000'000, '\0');
    for (char& c : content) c = static_cast<char>(random());
    const auto expected = SplitByHand(content);
    EXPECT_EQ(Read(content), expected);
    EXPECT_NE(content.find('\0'), std::string::npos);

    // The same with a line end in every third place, in all combinations.
    for (char& c : content) {
        const auto die = random() % 6;
        if (die < 2) c = die == 0 ? '\r' : '\n';
    }
    EXPECT_EQ(Read(content), SplitByHand(content));
}

TEST_F(LineReaderTest, AskingForTheEndTakesNothing) {
    Put("file.txt", "a\r\nb");
    DiskFiles files;
    files.Open(2, At("file.txt"), FileMode::Input);
    EXPECT_FALSE(files.EndOfFile(2));
    EXPECT_FALSE(files.EndOfFile(2));
    EXPECT_EQ(files.LineInput(2), "a");
    EXPECT_FALSE(files.EndOfFile(2));
    EXPECT_EQ(files.LineInput(2), "b");
    EXPECT_TRUE(files.EndOfFile(2));
    EXPECT_EQ(NumberOf([&] { files.LineInput(2); }), 62);
}

TEST_F(LineReaderTest, ANumberBeginsAfreshWithEveryFile) {
    Put("one.txt", "first\r");
    Put("two.txt", "\nsecond");
    DiskFiles files;
    EXPECT_THAT(ReadLines(files, At("one.txt")), ElementsAre("first"));
    EXPECT_THAT(ReadLines(files, At("two.txt")), ElementsAre("", "second"));
    files.Open(1, At("two.txt"), FileMode::Input);
    files.Close(1);
    EXPECT_THAT(ReadLines(files, At("one.txt")), ElementsAre("first"));
}

#ifdef __linux__
TEST_F(LineReaderTest, AFailureOfTheDiskIsToldWhileReading) {
    // Reading the first page of a process's memory always fails.
    DiskFiles files;
    files.Open(1, "/proc/self/mem", FileMode::Input);
    EXPECT_EQ(NumberOf([&] { files.LineInput(1); }), 71);
    EXPECT_EQ(NumberOf([&] { files.EndOfFile(1); }), 71);
    files.Close(1);
}
#endif

}  // namespace
}  // namespace vatro
