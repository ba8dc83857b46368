// SPDX-License-Identifier: MIT
#include "qt/layouts.h"

#include <map>
#include <string>

#include "ui_frmB4.h"
#include "ui_frmContestCall.h"
#include "ui_frmEDR.h"
#include "ui_frmMain.h"
#include "ui_frmQSOnr.h"
#include "ui_frmSplash.h"

namespace vatro {

namespace {

template <class Ui>
void Make(QWidget* widget) {
    Ui().setupUi(widget);
}

std::map<std::string, LayoutMaker, std::less<>>& Layouts() {
    static std::map<std::string, LayoutMaker, std::less<>> layouts{
        {"frmB4", Make<Ui::frmB4>},       {"frmContestCall", Make<Ui::frmContestCall>},
        {"frmEDR", Make<Ui::frmEDR>},     {"frmMain", Make<Ui::frmMain>},
        {"frmQSOnr", Make<Ui::frmQSOnr>}, {"frmSplash", Make<Ui::frmSplash>},
    };
    return layouts;
}

}  // namespace

LayoutMaker FindLayout(std::string_view form) {
    const auto found = Layouts().find(form);
    return found == Layouts().end() ? nullptr : found->second;
}

void AddLayout(std::string_view form, LayoutMaker make) {
    Layouts()[std::string(form)] = make;
}

}  // namespace vatro
