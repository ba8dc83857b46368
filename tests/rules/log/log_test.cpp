// SPDX-License-Identifier: MIT
#include "log/log.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "errors.h"

namespace vatro {
namespace {

class Notes : public LogObserver {
public:
    void Cleared() override { told.emplace_back("cleared"); }
    void Appended(const std::string& line) override { told.push_back("appended " + line); }
    void Replaced(std::size_t row, const std::string& line) override { told.push_back("row " + std::to_string(row) + " is " + line); }
    std::vector<std::string> told;
};

TEST(Log, TellsEveryChangeOfItsLines) {
    Log log;
    Notes notes;
    log.Observe(&notes);
    log.Append("a");
    log.Append("b");
    log.Replace(1, "c");
    EXPECT_EQ(log.Lines(), (std::vector<std::string>{"a", "c"}));
    log.Clear();
    EXPECT_TRUE(log.Lines().empty());
    EXPECT_EQ(notes.told, (std::vector<std::string>{"appended a", "appended b", "row 1 is c", "cleared"}));
}

TEST(Log, HasAnotherRevisionAfterEveryChange) {
    Log log;
    std::vector<unsigned> seen{log.Revision()};
    const auto differs = [&] {
        const bool fresh = std::find(seen.begin(), seen.end(), log.Revision()) == seen.end();
        seen.push_back(log.Revision());
        return fresh;
    };
    log.Append("a");
    EXPECT_TRUE(differs());
    log.Replace(0, "a");
    EXPECT_TRUE(differs());
    log.Clear();
    EXPECT_TRUE(differs());
}

TEST(Log, HasNoRowBeyondItsLines) {
    Log log;
    log.Append("a");
    EXPECT_THROW(log.Replace(1, "b"), RunTimeError);
    EXPECT_THROW(log.Replace(static_cast<std::size_t>(-1), "b"), RunTimeError);
    EXPECT_EQ(log.Lines(), std::vector<std::string>{"a"});
}

TEST(Log, AddsPointsUpToThirtyTwoBits) {
    Log log;
    log.AddPoints(10);
    log.AddPoints(-3);
    EXPECT_EQ(log.glPoint, 7);
    EXPECT_THROW(log.AddPoints(2147483647.0), RunTimeError);
    EXPECT_EQ(log.glPoint, 7);
}

}  // namespace
}  // namespace vatro
