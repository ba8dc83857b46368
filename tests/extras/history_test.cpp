// SPDX-License-Identifier: MIT
#include "history.h"

#include "disk/temporary_world.h"
#include "extras/log_lines.h"

namespace vatro {
namespace {

namespace fs = std::filesystem;

class HistoryTest : public TemporaryWorld {
protected:
    History history_{root_ / "log", root_ / "state", [] { return DateTime{2026, 9, 5, 14, 5, 30, 0}; }};
};

TEST_F(HistoryTest, StoresAContentThatIsInNoFile) {
    const History::Version version = history_.AddContent("FD80mSSB.txt", LogOf(2), History::Keep::FromCopy);
    EXPECT_EQ(version.path, root_ / "state" / "FD80mSSB-0001 2026-09-05 14.05.30 fra kopi.txt");
    EXPECT_EQ(Content("state/FD80mSSB-0001 2026-09-05 14.05.30 fra kopi.txt"), LogOf(2));
    ASSERT_EQ(history_.Versions("FD80mSSB.txt").size(), 1U);
    EXPECT_EQ(history_.Versions("FD80mSSB.txt")[0].keep, History::Keep::FromCopy);
}

TEST_F(HistoryTest, AMergedContentIsKeptForGood) {
    const History::Version version = history_.AddContent("FD80mSSB.txt", LogOf(2), History::Keep::FromCopy);
    History::MarkMerged(version.path);
    ASSERT_EQ(history_.Versions("FD80mSSB.txt").size(), 1U);
    EXPECT_EQ(history_.Versions("FD80mSSB.txt")[0].keep, History::Keep::Always);
}

}  // namespace
}  // namespace vatro
