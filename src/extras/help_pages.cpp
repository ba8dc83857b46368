// SPDX-License-Identifier: MIT
#include "help_pages.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vatro {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 20> kPages{{{"frmMain", "operatoer.html"},
                                                                                {"frmB4", "vinduer.html#smaa"},
                                                                                {"frmQSOnr", "vinduer.html#smaa"},
                                                                                {"frmContestCall", "vinduer.html#smaa"},
                                                                                {"frmRetQSO", "vinduer.html#ret"},
                                                                                {"frmNote", "vinduer.html#note"},
                                                                                {"frmNytQSOnr", "vinduer.html#nummer"},
                                                                                {"frmCall", "vinduer.html#call"},
                                                                                {"frmUTC", "vinduer.html#utc"},
                                                                                {"FormRigAnt", "vinduer.html#udstyr"},
                                                                                {"frmCW", "morse.html"},
                                                                                {"frmCWTX", "morse.html"},
                                                                                {"frmEDR", "vinduer.html#edr"},
                                                                                {"frmStregP", "vinduer.html#stregp"},
                                                                                {"frmCtyDat", "vinduer.html#cty"},
                                                                                {"frmInfo", "vinduer.html#papirer"},
                                                                                {"frmTilFloppy", "vinduer.html#kopier"},
                                                                                {"frmVisTekst", "vinduer.html#information"},
                                                                                {"FormQuickInfo", "vinduer.html#information"},
                                                                                {"FirstPage", "fdmanager.html#start"}}};

}  // namespace

std::string_view HelpPageOf(std::string_view form) {
    const auto page = std::find_if(kPages.begin(), kPages.end(), [form](const auto& entry) { return entry.first == form; });
    return page == kPages.end() ? "fejl.html" : page->second;
}

}  // namespace vatro
