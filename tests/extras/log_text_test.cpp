// SPDX-License-Identifier: MIT
#include "log_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "extras/log_lines.h"

namespace vatro {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesOf(std::string_view content) {
    const LogText text = ReadLogText(content);
    return {text.lines.begin(), text.lines.end()};
}

TEST(LogText, HasTheLinesOfASoundLog) {
    const std::string content = kOne + "\r\nNOTE: pause\r\n" + kTwo + "\n" + kThree + "\r";
    EXPECT_THAT(LinesOf(content), ElementsAre(kOne, "NOTE: pause", kTwo, kThree));
    EXPECT_EQ(ReadLogText(content).damagedFrom, content.size());
}

TEST(LogText, TakesAWholeLastLineWithoutALineEnd) {
    EXPECT_THAT(LinesOf(kOne + "\r\n" + kTwo), ElementsAre(kOne, kTwo));
}

TEST(LogText, LeavesOutHalfALineAtTheEnd) {
    const std::string sound = kOne + "\r\n";
    const std::string content = sound + kTwo.substr(0, 78);
    EXPECT_THAT(LinesOf(content), ElementsAre(kOne));
    EXPECT_EQ(ReadLogText(content).damagedFrom, sound.size());
}

TEST(LogText, LeavesOutZerosAtTheEnd) {
    const std::string sound = kOne + "\r\n";
    for (const std::size_t zeros : {1U, 79U, 500U}) {
        const std::string content = sound + std::string(zeros, '\0');
        EXPECT_THAT(LinesOf(content), ElementsAre(kOne));
        EXPECT_EQ(ReadLogText(content).damagedFrom, sound.size());
    }
    EXPECT_THAT(LinesOf(sound + kTwo.substr(0, 40) + std::string(39, '\0')), ElementsAre(kOne));
}

TEST(LogText, LeavesOutRemainsOfAnotherFileAtTheEnd) {
    std::string garbage =
        "\x7f"
        "ELF\x02\x01\n";
    garbage += std::string(90, 'x') + "\x03\r\n" + std::string(100, 'y');
    EXPECT_THAT(LinesOf(kOne + "\r\n" + garbage), ElementsAre(kOne));
}

TEST(LogText, LeavesOutAnEmptyOrOddLineAtTheEnd) {
    for (const std::string end : {"\r\n", "   \r\n", "\r\n\r\n", "rest af noget\r\n"}) {
        EXPECT_THAT(LinesOf(kOne + "\r\n" + end), ElementsAre(kOne)) << end;
        EXPECT_THAT(LinesOf(kOne + "\r\n" + end + kTwo + "\r\n").back(), kTwo) << end;
    }
}

TEST(LogText, KeepsShortLinesOfEarlierYears) {
    const std::string early = kOne.substr(0, 60);
    EXPECT_THAT(LinesOf(early + "\r\n" + early + "\r\n"), ElementsAre(early, early));
}

TEST(LogText, FindsTheContactBehindZerosFurtherUp) {
    EXPECT_THAT(LinesOf(kOne + "\r\n" + std::string(40, '\0') + kTwo + "\r\n" + std::string(79, '\0') + "\r\n" + kThree + "\r\n"),
                ElementsAre(kOne, kTwo, kThree));
    EXPECT_EQ(ReadLogText(kOne + "\r\n" + std::string(79, '\0') + "\r\n" + kThree + "\r\n").damagedInside, 1U);
}

TEST(MissingContacts, AreNeitherThereNorUnderTheSameTimeAndNumber) {
    const std::string corrected = ContactLine(2, 2, "DL2BB");
    const std::string another = ContactLine(3, 33);
    EXPECT_THAT(MissingContacts({kOne, kTwo, kThree}, {kOne, kTwo, kThree}), IsEmpty());
    EXPECT_THAT(MissingContacts({kOne, kTwo, kThree}, {kThree, corrected, kOne}), IsEmpty());
    EXPECT_THAT(MissingContacts({kOne, kTwo, kThree}, {kOne, kTwo}), ElementsAre(kThree));
    EXPECT_THAT(MissingContacts({kOne, kTwo, kThree}, {kOne, kTwo, another}), ElementsAre(kThree));
    EXPECT_THAT(MissingContacts({kOne, kTwo}, {}), ElementsAre(kOne, kTwo));
}

TEST(MissingContacts, TakeTheLeastChangedOfSeveralUnderOneTimeAndNumberForTheCorrectedOne) {
    const std::string other = ContactLine(2, 2, "OZ9PAPIR");
    EXPECT_THAT(MissingContacts({kOne, other, kTwo}, {kOne, ContactLine(2, 2, "DL1AAX")}), ElementsAre(other));
    EXPECT_THAT(Merged({kOne, other, kTwo}, {kOne, ContactLine(2, 2, "DL1AAX")}), ElementsAre(kOne, other, ContactLine(2, 2, "DL1AAX")));
}

TEST(MissingContacts, CountTheSameLineTwice) {
    EXPECT_THAT(MissingContacts({kOne, kOne, kTwo}, {kTwo, kOne}), ElementsAre(kOne));
}

TEST(MissingContacts, AreNoNotes) {
    EXPECT_THAT(MissingContacts({kOne, "NOTE: pause", ""}, {kOne}), IsEmpty());
}

TEST(Correction, ChangesOneLineAtMost) {
    const std::string other = ContactLine(2, 22);
    EXPECT_TRUE(IsCorrection({kOne, kTwo}, {kOne, kTwo}));
    EXPECT_TRUE(IsCorrection({kOne, kTwo, kThree}, {kOne, other, kThree}));
    EXPECT_FALSE(IsCorrection({kOne, kTwo}, {other, kOne}));
    EXPECT_FALSE(IsCorrection({kOne, kTwo}, {kOne}));
    EXPECT_FALSE(IsCorrection({kOne}, {kOne, kTwo}));
    EXPECT_TRUE(GoesOn({kOne, kTwo}, {kOne, other, kThree}));
    EXPECT_FALSE(GoesOn({kOne, kTwo}, {kThree}));
}

TEST(Merged, PutsTheMissingLinesBehindThoseThatTheyFollowed) {
    // The program had read one line of three and logged another one.
    const std::string logged = ContactLine(2, 30, "DL9ZZ");
    EXPECT_THAT(Merged({kOne, kTwo, "NOTE: pause", kThree}, {kOne, logged}), ElementsAre(kOne, kTwo, "NOTE: pause", kThree, logged));
    EXPECT_THAT(Merged({kOne, kTwo, kThree}, {kTwo}), ElementsAre(kOne, kTwo, kThree));
    EXPECT_THAT(Merged({kOne, kTwo}, {logged}), ElementsAre(kOne, kTwo, logged));
    EXPECT_THAT(Merged({}, {kOne}), ElementsAre(kOne));
}

TEST(Merged, TakesACorrectedContactFromTheNewerSide) {
    const std::string corrected = ContactLine(2, 2, "DL2BB");
    EXPECT_THAT(Merged({kOne, kTwo, kThree}, {kOne, corrected}), ElementsAre(kOne, corrected, kThree));
}

TEST(LogSummary, TellsContactsTimesAndTheHighestNumber) {
    const LogSummary summary = Summarise({"NOTE: start", kThree, kOne, kTwo});
    EXPECT_EQ(summary.contacts, 3U);
    EXPECT_EQ(summary.first, "05-09-26 12:03");
    EXPECT_EQ(summary.last, "05-09-26 12:02");
    EXPECT_EQ(summary.highestNumber, 3);
    EXPECT_EQ(Summarise({kOne.substr(0, 60)}).last, "12:01");
    EXPECT_EQ(Summarise({}).first, "");
}

TEST(ContentHash, IsTheSameInWhateverPartsTheContentComes) {
    const std::string content = kOne + "\r\n" + kTwo + "\r\n" + kThree;
    const std::string_view text = content;
    for (std::size_t at = 1; at < text.size(); ++at)
        EXPECT_EQ(ContentHash(text.substr(at), ContentHash(text.substr(0, at))), ContentHash(text)) << at;
}

TEST(ContentHash, ChangesWithEveryCharacterAndWithTheLength) {
    const std::string content = kOne + "\r\n" + kTwo;
    for (std::size_t at = 0; at < content.size(); ++at) {
        std::string changed = content;
        changed[at] ^= 1;
        EXPECT_NE(ContentHash(changed), ContentHash(content)) << at;
        EXPECT_NE(ContentHash(std::string_view(content).substr(0, at)), ContentHash(content)) << at;
    }
    EXPECT_NE(ContentHash(std::string(8, '\0')), ContentHash(std::string(9, '\0')));
}

TEST(UnreadableLine, HasANumberThatIsTooLarge) {
    std::string damaged = kTwo;
    damaged.replace(26, 4, "9e99");
    EXPECT_EQ(UnreadableLine({kOne, damaged, kThree}), 2U);
    EXPECT_EQ(UnreadableLine({kOne, "NOTE: 9e99", kThree}), 0U);
}

}  // namespace
}  // namespace vatro
