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
#include "keyer/keyer_settings.h"
#include "keyer/texts.h"
#include "printing/error_list_run.h"
#include "printing/exports.h"
#include "printing/printer.h"
#include "printing/sheets.h"
#include "stations/frmEDR.h"
#include "tables/unknown.h"

namespace vatro {

std::vector<MenuItem*> MainMenu::BandEntries() {
    std::vector<MenuItem*> entries;
    for (MenuItem& entry : mnuIndstillingerBånd)
        if (!entry.Separator()) entries.push_back(&entry);
    return entries;
}

void FrmMain::BindMenu() {
    mnuFilerSætLogbibliotek.Click = [] {
        SetLogLib();
        IndlæsLogfil();
        ResetQSO();
    };
    mnuFilerBackupUdfor.Click = BackUpLogs;
    mnuFilerBackupSetBibliotek.Click = SetBackupLib;
    mnuFilerDiskettekopi.Click = CopyToDiskette;
    mnuFileExit.Click = [this] { Unload(); };

    mnuVisQSOnr.Click = [this] { ToggleWindow(mnuVisQSOnr, frmQSOnr); };
    mnuVisB4.Click = [this] { ToggleWindow(mnuVisB4, frmB4); };
    mnuViewContestCall.Click = [this] { ToggleWindow(mnuViewContestCall, frmContestCall); };
    mnuVisLand.Click = [this] {
        mnuVisLand.SetTicked(!mnuVisLand.Ticked());
        gbVisLand = mnuVisLand.Ticked();
    };
    mnuFunktionerKørteEDRstns.Click = [] { VisEDRstns(true); };
    mnuFunktionerIkkeKørteEDRstns.Click = [] { VisEDRstns(false); };

    for (MenuItem* entry : BandEntries()) entry->Click = [entry] { ChangeBandMode(entry->Index()); };

    mnuFunktionerNytQSOnr.Click = ChangeNextNumber;
    mnuFunktionerCall.Click = ChangeContestCall;
    menuIndstillingerUdstyr.Click = [] { formRigAnt->ShowModal(); };
    mnuFunktionerRetUTC.Click = ChangeUtcOffset;
    mnuIndstillingerKlasseA.Click = [this] { SetContestClass("A"); };
    mnuIndstillingerKlasseB.Click = [this] { SetContestClass("B"); };
    mnuIndstillingerKlokken.Click = ToggleAutoTime;
    mnuFunktionerNote.Click = InsertNote;
    mnuFunktionerVisLand.Click = ShowCountryNow;
    mnuFunktionerStregP.Click = [] { frmStregP->Show(); };
    mnuFunktionerImporterCTY.Click = ImportCtyFromMenu;
    mnuFunktionerImporterCtAll.Click = ImporterCtMenu;

    for (MenuItem& entry : mnuCWTXT) entry.Click = [&entry] { SendCW(CWTekster[static_cast<std::size_t>(entry.Index())]); };
    mnuCWInstillinger.Click = [] { frmCW->ShowModal(); };

    mnuHjælpIndhold.Click = ShowHelpContents;
    mnuHjælpQuickInfo.Click = [] { formQuickInfo->ShowModal(); };
    mnuHelpStartInfo.Click = VisStartInfo;
    mnuHelpAbout.Click = [] { frmAbout->ShowModal(); };
    BindPapers();
}

void FrmMain::BindPapers() {
    // In the order of kTenLogs.
    const std::array<MenuItem*, kTenLogs.size()> sheets{&mnuEfter10mCW, &mnuEfter10mSSB, &mnuEfter15mCW, &mnuEfter15mSSB,
                                                        &mnuEfter20mCW, &mnuEfter20mSSB, &mnuEfter40mCW, &mnuEfter40mSSB,
                                                        &mnuEfter80mCW, &mnuEfter80mSSB};
    const std::array<MenuItem*, kTenLogs.size()> print{&mnuUdskriv10mCW, &mnuUdskriv10mSSB, &mnuUdskriv15mCW, &mnuUdskriv15mSSB,
                                                       &mnuUdskriv20mCW, &mnuUdskriv20mSSB, &mnuUdskriv40mCW, &mnuUdskriv40mSSB,
                                                       &mnuUdskriv80mCW, &mnuUdskriv80mSSB};
    for (std::size_t i = 0; i < kTenLogs.size(); ++i) {
        sheets[i]->Click = [log = kTenLogs[i]] { Danlog(log); };
        print[i]->Click = [log = kTenLogs[i]] { RunPrintJob([&log](PageSurface& surface) { PrintLog(surface, log); }); };
    }
    mnuFilerDanMult.Click = DanMultCheck;
    mnuEfterSummary.Click = DanSummary;
    mnuEfterAlt.Click = MakeAllPapers;
    mnuFilerDanFejlliste.Click = MakeErrorList;
    mnuFilerDanHtml.Click = MakeHtmlPage;
    mnuFilerEksportAdif.Click = ExportAdif;

    mnuFilePageSetup.Click = ChoosePrinter;
    mnuUdskrivUkendt.Click = [] { RunPrintJob(PrintUkendt); };
    mnuFilerUdskrivMult.Click = [] { RunPrintJob(PrintMultCheck); };
    mnuUdskrivSummary.Click = [] { RunPrintJob(PrintSummary); };
    mnuUdskrivAlt.Click = [] { RunPrintJob(PrintAll); };
}

void FrmMain::SetContestClass(std::string_view contestClass) {
    gsKlasse = contestClass;
    ShowContestClass();
    StoreText(kSettings, "gsKlasse", gsKlasse);
}

void FrmMain::ShowContestClass() {
    if (gsKlasse != "A" && gsKlasse != "B") return;
    mnuIndstillingerKlasseA.SetTicked(gsKlasse == "A");
    mnuIndstillingerKlasseB.SetTicked(gsKlasse == "B");
}

void FrmMain::ToggleWindow(MenuItem& entry, FormSlotBase& window) {
    entry.SetTicked(!entry.Ticked());
    // A window that was closed by its frame is not loaded, and its tick has stayed.
    window.Load();
    if (!entry.Ticked()) return window.Peek()->Hide();
    window.Peek()->Show();
    SetFocus();
}

}  // namespace vatro
