// SPDX-License-Identifier: MIT
//
// What the entries of the menu bar do.
#include <array>

#include "correction/frmNote.h"
#include "country/import.h"
#include "country/lookup.h"
#include "entry/frmB4.h"
#include "entry/frmCall.h"
#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmNytQSOnr.h"
#include "entry/frmQSOnr.h"
#include "entry/frmUTC.h"
#include "entry/validation.h"
#include "exchange/FormQuickInfo.h"
#include "exchange/backup.h"
#include "exchange/ct_import.h"
#include "exchange/equipment.h"
#include "exchange/frmAbout.h"
#include "exchange/frmStregP.h"
#include "exchange/frmVisTekst.h"
#include "exchange/help.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "keyer/frmCW.h"
#include "keyer/keyer_state.h"
#include "keyer/texts.h"
#include "papers/adif.h"
#include "papers/error_list.h"
#include "papers/html_page.h"
#include "papers/log_sheets.h"
#include "papers/mult_check.h"
#include "papers/printing.h"
#include "papers/summary.h"
#include "stations/frmEDR.h"
#include "tables/unknown.h"

namespace vatro {

std::vector<MenuItem*> MainMenu::BåndPunkter() {
    std::vector<MenuItem*> punkter;
    for (MenuItem& punkt : mnuIndstillingerBånd)
        if (!punkt.Separator()) punkter.push_back(&punkt);
    return punkter;
}

void FrmMain::BindMenu() {
    mnuFilerSætLogbibliotek.Click = [] {
        SetLogLib();
        IndlæsLogfil();
        ResetQSO();
    };
    mnuFilerBackupUdfor.Click = BackupUdfør;
    mnuFilerBackupSetBibliotek.Click = SetBackupLib;
    mnuFilerDiskettekopi.Click = Diskettekopi;
    mnuFileExit.Click = [this] { Unload(); };

    mnuVisQSOnr.Click = [this] { SkiftVindue(mnuVisQSOnr, frmQSOnr); };
    mnuVisB4.Click = [this] { SkiftVindue(mnuVisB4, frmB4); };
    mnuViewContestCall.Click = [this] { SkiftVindue(mnuViewContestCall, frmContestCall); };
    mnuVisLand.Click = [this] {
        mnuVisLand.SetTicked(!mnuVisLand.Ticked());
        gbVisLand = mnuVisLand.Ticked();
    };
    mnuFunktionerKørteEDRstns.Click = [] { VisEDRstns(true); };
    mnuFunktionerIkkeKørteEDRstns.Click = [] { VisEDRstns(false); };

    for (MenuItem* punkt : BåndPunkter()) punkt->Click = [punkt] { SkiftBåndMode(punkt->Index()); };

    mnuFunktionerNytQSOnr.Click = NytQSOnr;
    mnuFunktionerCall.Click = RetContestCall;
    menuIndstillingerUdstyr.Click = [] { formRigAnt->ShowModal(); };
    mnuFunktionerRetUTC.Click = RetUTC;
    mnuIndstillingerKlasseA.Click = [this] { SætKlasse("A"); };
    mnuIndstillingerKlasseB.Click = [this] { SætKlasse("B"); };
    mnuIndstillingerKlokken.Click = SkiftAutoTid;
    mnuFunktionerNote.Click = IndsætNote;
    mnuFunktionerVisLand.Click = VisLandNu;
    mnuFunktionerStregP.Click = [] { frmStregP->Show(); };
    mnuFunktionerImporterCTY.Click = ImporterCtyMenu;
    mnuFunktionerImporterCtAll.Click = ImporterCtMenu;

    for (MenuItem& punkt : mnuCWTXT) punkt.Click = [&punkt] { SendCW(keyerState().CWTekster[static_cast<std::size_t>(punkt.Index())]); };
    mnuCWInstillinger.Click = [] { frmCW->ShowModal(); };

    mnuHjælpIndhold.Click = VisHjælpIndhold;
    mnuHjælpQuickInfo.Click = [] { formQuickInfo->ShowModal(); };
    mnuHelpStartInfo.Click = VisStartInfo;
    mnuHelpAbout.Click = [] { frmAbout->ShowModal(); };
    BindPapirer();
}

void FrmMain::BindPapirer() {
    // In the order of kTiLogge.
    const std::array<MenuItem*, kTiLogge.size()> ark{&mnuEfter10mCW,  &mnuEfter10mSSB, &mnuEfter15mCW,  &mnuEfter15mSSB, &mnuEfter20mCW,
                                                     &mnuEfter20mSSB, &mnuEfter40mCW,  &mnuEfter40mSSB, &mnuEfter80mCW,  &mnuEfter80mSSB};
    const std::array<MenuItem*, kTiLogge.size()> print{&mnuUdskriv10mCW, &mnuUdskriv10mSSB, &mnuUdskriv15mCW, &mnuUdskriv15mSSB,
                                                       &mnuUdskriv20mCW, &mnuUdskriv20mSSB, &mnuUdskriv40mCW, &mnuUdskriv40mSSB,
                                                       &mnuUdskriv80mCW, &mnuUdskriv80mSSB};
    for (std::size_t i = 0; i < kTiLogge.size(); ++i) {
        ark[i]->Click = [log = kTiLogge[i]] { Danlog(log); };
        print[i]->Click = [log = kTiLogge[i]] { Udskriv([&log](PageSurface& surface) { PrintLog(surface, log); }); };
    }
    mnuFilerDanMult.Click = DanMultCheck;
    mnuEfterSummary.Click = DanSummary;
    mnuEfterAlt.Click = DanAlt;
    mnuFilerDanFejlliste.Click = DanFejlliste;
    mnuFilerDanHtml.Click = DanHtml;
    mnuFilerEksportAdif.Click = EksporterAdif;

    mnuFilePageSetup.Click = VælgPrinter;
    mnuUdskrivUkendt.Click = [] { Udskriv(PrintUkendt); };
    mnuFilerUdskrivMult.Click = [] { Udskriv(PrintMultCheck); };
    mnuUdskrivSummary.Click = [] { Udskriv(PrintSummary); };
    mnuUdskrivAlt.Click = [] { Udskriv(PrintAlt); };
}

void FrmMain::SætKlasse(std::string_view klasse) {
    gsKlasse = klasse;
    VisKlasse();
    GemTekst(kSettings, "gsKlasse", gsKlasse);
}

void FrmMain::VisKlasse() {
    if (gsKlasse != "A" && gsKlasse != "B") return;
    mnuIndstillingerKlasseA.SetTicked(gsKlasse == "A");
    mnuIndstillingerKlasseB.SetTicked(gsKlasse == "B");
}

void FrmMain::SkiftVindue(MenuItem& punkt, FormSlotBase& vindue) {
    punkt.SetTicked(!punkt.Ticked());
    // A window that was closed by its frame is not loaded, and its tick has stayed.
    vindue.Load();
    if (!punkt.Ticked()) return vindue.Peek()->Hide();
    vindue.Peek()->Show();
    SetFocus();
}

}  // namespace vatro
