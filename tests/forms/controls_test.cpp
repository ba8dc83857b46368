// SPDX-License-Identifier: MIT
#include "controls.h"

#include <gtest/gtest.h>

namespace vatro {
namespace {

TEST(AccessKeyOfACaption, IsTheLetterBehindASingleSign) {
    EXPECT_EQ(AccessKey("&Log"), 'L');
    EXPECT_EQ(AccessKey("Q&sl"), 'S');
    EXPECT_EQ(AccessKey("&1"), '1');
    EXPECT_EQ(AccessKey("Log"), '\0');
    EXPECT_EQ(AccessKey(""), '\0');
}

TEST(AccessKeyOfACaption, IsNoSignThatStandsTwiceOrAlone) {
    EXPECT_EQ(AccessKey("Log && tid"), '\0');
    EXPECT_EQ(AccessKey("Log && &tid"), 'T');
    EXPECT_EQ(AccessKey("Log&"), '\0');
}

}  // namespace
}  // namespace vatro
