// SPDX-License-Identifier: MIT
#include "help_pages.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace vatro {
namespace {

/// The forms that can have the focus, and the page of a first start.
constexpr const char* kForms[]{"frmMain",   "frmB4",   "frmQSOnr",     "frmContestCall", "frmRetQSO",     "frmNote",  "frmNytQSOnr",
                               "frmCall",   "frmUTC",  "FormRigAnt",   "frmCW",          "frmCWTX",       "frmEDR",   "frmStregP",
                               "frmCtyDat", "frmInfo", "frmTilFloppy", "frmVisTekst",    "FormQuickInfo", "FirstPage"};

TEST(HelpPages, ExistForEveryForm) {
    for (const char* form : kForms) {
        const std::string page(HelpPageOf(form));
        EXPECT_NE(page, "fejl.html") << form;
        const std::size_t hash = page.find('#');
        std::ifstream file(VATRO_HELP "/" + page.substr(0, hash));
        const std::string content{std::istreambuf_iterator<char>(file), {}};
        EXPECT_FALSE(content.empty()) << page;
        if (hash == std::string::npos) continue;
        std::string anchor = "<a name=\"";
        anchor.append(page.substr(hash + 1)).append("\"");
        EXPECT_NE(content.find(anchor), std::string::npos) << page;
    }
}

TEST(HelpPages, OfAMessageIsThatOfTheMessages) {
    EXPECT_EQ(HelpPageOf(""), "fejl.html");
}

}  // namespace
}  // namespace vatro
