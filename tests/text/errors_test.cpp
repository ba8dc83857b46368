// SPDX-License-Identifier: MIT
#include "errors.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "codepage.h"

namespace vatro {
namespace {

const std::vector<Failure> kAll{Failure::InvalidCall,       Failure::Overflow,         Failure::IndexOutOfRange, Failure::DivisionByZero,
                                Failure::TypeMismatch,      Failure::BadFileNumber,    Failure::FileNotFound,    Failure::BadFileMode,
                                Failure::FileAlreadyOpen,   Failure::FileExists,       Failure::DiskFull,        Failure::InputPastEnd,
                                Failure::DeviceUnavailable, Failure::PermissionDenied, Failure::DiskNotReady,    Failure::PathFileAccess,
                                Failure::PathNotFound,      Failure::Cancelled};

TEST(Errors, EachFailureHasItsOwnMeaning) {
    std::set<std::string_view> meanings;
    for (const Failure failure : kAll) {
        EXPECT_FALSE(Meaning(failure).empty()) << static_cast<int>(failure);
        EXPECT_TRUE(meanings.insert(Meaning(failure)).second) << ToUtf8(Meaning(failure));
    }
    EXPECT_EQ(Meaning(static_cast<Failure>(4)), "") << "a number that nothing fails with";
}

TEST(Errors, TheHandbookExplainsEachFailureInTheWordsOfItsBox) {
    std::ifstream file(VATRO_HELP "/fejl.html");
    const std::string page(std::istreambuf_iterator<char>(file), {});
    for (const Failure failure : kAll) {
        // A cancelled dialogue is handled wherever one is opened.
        if (failure == Failure::Cancelled) continue;
        const std::string number = std::to_string(static_cast<int>(failure));
        const std::string words = ToUtf8(Meaning(failure));
        // The two errors that only a bug in the program can cause share a row.
        const bool together = failure == Failure::BadFileNumber || failure == Failure::BadFileMode;
        const std::string row =
            together ? "52, 54</td><td>Forkert filnummer, Forkert filtilstand</td>" : number + "</td><td>" + words + "</td>";
        EXPECT_NE(page.find("<tr><td align=\"right\">" + row), std::string::npos) << number << " " << words;
        EXPECT_NE(row.find(words), std::string::npos) << words;
    }
}

TEST(Errors, AFailureTellsItsNumber) {
    const RunTimeError failure(Failure::DiskFull);
    EXPECT_EQ(failure.Number(), 61);
    EXPECT_EQ(failure.Which(), Failure::DiskFull);
    EXPECT_STREQ(failure.what(), "run-time failure");
}

}  // namespace
}  // namespace vatro
