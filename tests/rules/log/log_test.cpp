// SPDX-License-Identifier: MIT
#include "log/log.h"

#include <gtest/gtest.h>

#include <memory>

#include "errors.h"

namespace vatro {
namespace {

class Notes : public LogObserver {
public:
    explicit Notes(const Log& log) : log_(log) {}
    void Cleared() override { told.push_back("cleared, " + std::to_string(log_.Lines().size()) + " left"); }
    void Appended() override { told.push_back("appended " + log_.Lines().back()); }
    void Replaced(std::size_t row) override { told.push_back("row " + std::to_string(row) + " is " + log_.Lines()[row]); }
    std::vector<std::string> told;

private:
    const Log& log_;
};

TEST(Log, TellsEveryChangeOfItsLines) {
    Log log;
    Notes notes(log);
    log.Observe(&notes);
    log.Append("a");
    log.Append("b");
    log.Replace(1, "c");
    EXPECT_EQ(log.Lines(), (std::vector<std::string>{"a", "c"}));
    log.Clear();
    EXPECT_TRUE(log.Lines().empty());
    EXPECT_EQ(notes.told, (std::vector<std::string>{"appended a", "appended b", "row 1 is c", "cleared, 0 left"}));
}

TEST(Log, SharesItsLinesWithAViewThatOutlivesIt) {
    auto log = std::make_unique<Log>();
    const auto seen = log->SharedLines();
    log->Append("a");
    EXPECT_EQ(*seen, std::vector<std::string>{"a"});
    log.reset();
    EXPECT_EQ(*seen, std::vector<std::string>{"a"});
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
