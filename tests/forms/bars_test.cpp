// SPDX-License-Identifier: MIT
#include "bars.h"

#include <gtest/gtest.h>

#include "forms.h"

namespace vatro {
namespace {

class BarForm : public Form {
public:
    BarForm() : Form("frmBar", FormKind::Dialog, "Bar") {}
    StatusBar bar{*this, "bar", {"", "0"}};
};

TEST(PanelsOfAStatusBar, TellTheFrontOfAnotherTextOrAnotherMark) {
    BarForm form;
    int told = 0;
    form.bar.mirror = [&](Aspect aspect, int row) {
        EXPECT_EQ(aspect, Aspect::Panels);
        EXPECT_EQ(row, 1);
        ++told;
    };
    form.bar.SetPanel(1, "DL: er kendt", PanelMark::NewCountry);
    EXPECT_EQ(told, 1);
    form.bar.SetPanel(1, "DL: er kendt", PanelMark::NewCountry);
    EXPECT_EQ(told, 1);
    form.bar.SetPanel(1, "DL: er kendt", PanelMark::WorkedCountry);
    EXPECT_EQ(told, 2);
    EXPECT_EQ(form.bar.Mark(1), PanelMark::WorkedCountry);
}

TEST(PanelsOfAStatusBar, HaveNoMarkUnlessTheyAreGivenOne) {
    BarForm form;
    form.bar.SetPanel(1, "DUPE", PanelMark::Duplicate);
    form.bar.SetPanel(1, "Vatro 80m SSB");
    EXPECT_EQ(form.bar.Mark(1), PanelMark::None);
    EXPECT_EQ(form.bar.Mark(2), PanelMark::None);
}

}  // namespace
}  // namespace vatro
