// SPDX-License-Identifier: MIT
#include "layouts.h"

#include <map>
#include <string>

#include "ui_FormQuickInfo.h"
#include "ui_FormRigAnt.h"
#include "ui_frmAbout.h"
#include "ui_frmAfslut.h"
#include "ui_frmB4.h"
#include "ui_frmCW.h"
#include "ui_frmCWTX.h"
#include "ui_frmCall.h"
#include "ui_frmContestCall.h"
#include "ui_frmCtyDat.h"
#include "ui_frmEDR.h"
#include "ui_frmInfo.h"
#include "ui_frmMain.h"
#include "ui_frmNote.h"
#include "ui_frmNytQSOnr.h"
#include "ui_frmQSOnr.h"
#include "ui_frmRetQSO.h"
#include "ui_frmSplash.h"
#include "ui_frmStregP.h"
#include "ui_frmTilFloppy.h"
#include "ui_frmUTC.h"
#include "ui_frmVisTekst.h"

namespace vatro {

namespace {

template <class Ui>
void Make(QWidget* widget) {
    Ui().setupUi(widget);
}

std::map<std::string, LayoutMaker, std::less<>>& Layouts() {
    static std::map<std::string, LayoutMaker, std::less<>> layouts{
        {"FormQuickInfo", Make<Ui::FormQuickInfo>},
        {"FormRigAnt", Make<Ui::FormRigAnt>},
        {"frmAbout", Make<Ui::frmAbout>},
        {"frmAfslut", Make<Ui::frmAfslut>},
        {"frmB4", Make<Ui::frmB4>},
        {"frmCW", Make<Ui::frmCW>},
        {"frmCWTX", Make<Ui::frmCWTX>},
        {"frmCall", Make<Ui::frmCall>},
        {"frmContestCall", Make<Ui::frmContestCall>},
        {"frmCtyDat", Make<Ui::frmCtyDat>},
        {"frmEDR", Make<Ui::frmEDR>},
        {"frmInfo", Make<Ui::frmInfo>},
        {"frmMain", Make<Ui::frmMain>},
        {"frmNote", Make<Ui::frmNote>},
        {"frmNytQSOnr", Make<Ui::frmNytQSOnr>},
        {"frmQSOnr", Make<Ui::frmQSOnr>},
        {"frmRetQSO", Make<Ui::frmRetQSO>},
        {"frmSplash", Make<Ui::frmSplash>},
        {"frmStregP", Make<Ui::frmStregP>},
        {"frmTilFloppy", Make<Ui::frmTilFloppy>},
        {"frmUTC", Make<Ui::frmUTC>},
        {"frmVisTekst", Make<Ui::frmVisTekst>},
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
