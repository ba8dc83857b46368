// SPDX-License-Identifier: MIT
#include "front.h"

#include "running_program.h"

namespace vatro {
namespace {

class Installing : public RunningProgram {};

TEST_F(Installing, BringsTheFrontWithTheServices) {
    EXPECT_EQ(&InstalledFront(), &front);
    EXPECT_EQ(&platform().dialogs, &dialogs);
}

TEST_F(Installing, ReplacesTheFrontInstalledBefore) {
    FakeFront other;
    InstallPlatform(other, platform());
    EXPECT_EQ(&InstalledFront(), &other);
    EXPECT_EQ(&platform().clock, &clock);
    InstallPlatform(front, platform());
}

TEST_F(Installing, LeavesTheFrontWhereOnlyServicesAreReplaced) {
    FakeClock later;
    later.now.hour = 16;
    InstallPlatform({dialogs, settings, files, later, help, instance, sound, printer, {1, 2, 3}});
    EXPECT_EQ(platform().clock.Now().hour, 16);
    EXPECT_EQ(&InstalledFront(), &front);
    InstallPlatform(front, {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
}

}  // namespace
}  // namespace vatro
