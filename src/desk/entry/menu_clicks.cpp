// SPDX-License-Identifier: MIT
//
// The click handlers of the menu bar.
#include "entry/menu_clicks.h"
#include "frame/state.h"

#include <array>

#include "correction/frmNote.h"
#include "entry/clock.h"
#include "entry/frmB4.h"
#include "entry/frmCall.h"
#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/frmNytQSOnr.h"
#include "entry/frmQSOnr.h"
#include "entry/frmUTC.h"
#include "entry/next_contact.h"
#include "exchange/FormQuickInfo.h"
#include "exchange/backup.h"
#include "exchange/ct_import.h"
#include "exchange/equipment.h"
#include "exchange/frmAbout.h"
#include "exchange/frmStregP.h"
#include "exchange/frmVisTekst.h"
#include "exchange/help.h"
#include "frame/band_mode.h"
#include "frame/log_directory.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "keyer/frmCW.h"
#include "keyer/texts.h"
#include "printing/error_list_run.h"
#include "printing/exports.h"
#include "printing/printer.h"
#include "printing/sheets.h"
#include "stations/frmEDR.h"
#include "tables/import_country_file.h"
#include "tables/unknown.h"

namespace vatro {

namespace {

void SetContestClass(FrmMain& main, std::string_view contestClass) {
    desk().gsKlasse = contestClass;
    ShowContestClass(main);
    StoreSetting(setting::kContestClass, desk().gsKlasse);
}

void ToggleWindow(FrmMain& main, MenuItem& entry, FormSlotBase& window) {
    entry.SetTicked(!entry.Ticked());
    // If the user closed the window by its frame, it is not loaded any more, but its menu entry is still ticked.
    window.Load();
    if (!entry.Ticked()) return window.Peek()->Hide();
    window.Peek()->Show();
    main.SetFocus();
}

void BindPapers(FrmMain& main) {
    // The entries, in the order of kTenLogs.
    const std::array<MenuItem*, kTenLogs.size()> sheets{
        &main.mnuEfter10mCW,  &main.mnuEfter10mSSB, &main.mnuEfter15mCW,  &main.mnuEfter15mSSB, &main.mnuEfter20mCW,
        &main.mnuEfter20mSSB, &main.mnuEfter40mCW,  &main.mnuEfter40mSSB, &main.mnuEfter80mCW,  &main.mnuEfter80mSSB};
    const std::array<MenuItem*, kTenLogs.size()> print{
        &main.mnuUdskriv10mCW,  &main.mnuUdskriv10mSSB, &main.mnuUdskriv15mCW,  &main.mnuUdskriv15mSSB, &main.mnuUdskriv20mCW,
        &main.mnuUdskriv20mSSB, &main.mnuUdskriv40mCW,  &main.mnuUdskriv40mSSB, &main.mnuUdskriv80mCW,  &main.mnuUdskriv80mSSB};
    for (std::size_t i = 0; i < kTenLogs.size(); ++i) {
        sheets[i]->Click = [log = kTenLogs[i]] { Danlog(log); };
        print[i]->Click = [log = kTenLogs[i]] { RunPrintJob(LogJobName(log), [&log](PageSurface& surface) { PrintLog(surface, log); }); };
    }
    main.mnuFilerDanMult.Click = DanMultCheck;
    main.mnuEfterSummary.Click = DanSummary;
    main.mnuEfterAlt.Click = MakeAllPapers;
    main.mnuFilerDanFejlliste.Click = MakeErrorList;
    main.mnuFilerDanHtml.Click = MakeHtmlPage;
    main.mnuFilerEksportAdif.Click = ExportAdif;

    main.mnuFilePageSetup.Click = ChoosePrinter;
    main.mnuUdskrivUkendt.Click = [] { RunPrintJob("Ukendte", PrintUkendt); };
    main.mnuFilerUdskrivMult.Click = [] { RunPrintJob("Mult Check", PrintMultCheck); };
    main.mnuUdskrivSummary.Click = [] { RunPrintJob("Summary", PrintSummary); };
    main.mnuUdskrivAlt.Click = [] { RunPrintJob("Alle papirer", PrintAll); };
}

}  // namespace

void BindMenu(FrmMain& main) {
    main.mnuFilerSætLogbibliotek.Click = [] {
        SetLogLib();
        IndlæsLogfil();
        ResetQSO();
    };
    main.mnuFilerBackupUdfor.Click = BackUpLogs;
    main.mnuFilerBackupSetBibliotek.Click = SetBackupLib;
    main.mnuFilerDiskettekopi.Click = CopyToDiskette;
    main.mnuFileExit.Click = [&main] { main.Unload(); };

    main.mnuVisQSOnr.Click = [&main] { ToggleWindow(main, main.mnuVisQSOnr, frmQSOnr); };
    main.mnuVisB4.Click = [&main] { ToggleWindow(main, main.mnuVisB4, frmB4); };
    main.mnuViewContestCall.Click = [&main] { ToggleWindow(main, main.mnuViewContestCall, frmContestCall); };
    main.mnuVisLand.Click = [&main] {
        main.mnuVisLand.SetTicked(!main.mnuVisLand.Ticked());
        desk().gbVisLand = main.mnuVisLand.Ticked();
    };
    main.mnuFunktionerKørteEDRstns.Click = [] { VisEDRstns(true); };
    main.mnuFunktionerIkkeKørteEDRstns.Click = [] { VisEDRstns(false); };

    for (MenuItem* entry : main.BandEntries()) entry->Click = [entry] { ChangeBandMode(entry->Index()); };

    main.mnuFunktionerNytQSOnr.Click = ChangeNextNumber;
    main.mnuFunktionerCall.Click = ChangeContestCall;
    main.menuIndstillingerUdstyr.Click = [] { formRigAnt->ShowModal(); };
    main.mnuFunktionerRetUTC.Click = ChangeUtcOffset;
    main.mnuIndstillingerKlasseA.Click = [&main] { SetContestClass(main, "A"); };
    main.mnuIndstillingerKlasseB.Click = [&main] { SetContestClass(main, "B"); };
    main.mnuIndstillingerKlokken.Click = ToggleAutoTime;
    main.mnuFunktionerNote.Click = InsertNote;
    main.mnuFunktionerVisLand.Click = ShowCountryNow;
    main.mnuFunktionerStregP.Click = [] { frmStregP->Show(); };
    main.mnuFunktionerImporterCTY.Click = ImportCtyFromMenu;
    main.mnuFunktionerImporterCtAll.Click = ImportCtFromMenu;

    for (MenuItem& entry : main.mnuCWTXT) entry.Click = [&entry] { SendCW(desk().cw.CWTekster[static_cast<std::size_t>(entry.Index())]); };
    main.mnuCWInstillinger.Click = [] { frmCW->ShowModal(); };

    main.mnuHjælpIndhold.Click = ShowHelpContents;
    main.mnuHjælpQuickInfo.Click = [] { formQuickInfo->ShowModal(); };
    main.mnuHelpStartInfo.Click = VisStartInfo;
    main.mnuHelpAbout.Click = [] { frmAbout->ShowModal(); };
    BindPapers(main);
}

void ShowContestClass(FrmMain& main) {
    if (desk().gsKlasse != "A" && desk().gsKlasse != "B") return;
    main.mnuIndstillingerKlasseA.SetTicked(desk().gsKlasse == "A");
    main.mnuIndstillingerKlasseB.SetTicked(desk().gsKlasse == "B");
}

}  // namespace vatro
