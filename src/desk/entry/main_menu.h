// SPDX-License-Identifier: MIT
//
// The menu bar of the entry form. The click handlers are in menu_clicks.cpp.
//
// Many names mislead, because they contain the name of another menu than the one the entry is in. Some entries of "&Indstillinger" and
// "&Vis" are called mnuFunktioner..., since the first version of the program had them in "Fun&ktioner". mnuFilePageSetup asks for the
// printer and its paper, mnuFilePrint is only the submenu of printing, mnuIndstillingerBånd has modes as well as bands, and
// mnuFunktionerImporterCtAll imports a single log.
#pragma once

#include <vector>

#include "codepage.h"
#include "forms.h"

namespace vatro {

using namespace literals;

/// The menu bar, entry by entry. Captions have "&" before the access letter.
struct MainMenu : Form {
    using Form::Form;

    MenuItem mnuFiler{*this, nullptr, "mnuFiler", "&Filer"};
    MenuItem mnuFilerSætLogbibliotek{*this, &mnuFiler, "mnuFilerSætLogbibliotek"_t, "&Sæt Logbibliotek..."_t};
    MenuItem mnuFilerBackup{*this, &mnuFiler, "mnuFilerBackup", "&Backup"};
    MenuItem mnuFilerBackupUdfor{*this, &mnuFilerBackup, "mnuFilerBackupUdfor", "&Kopi af log"};
    MenuItem mnuFilerBackupSetBibliotek{*this, &mnuFilerBackup, "mnuFilerBackupSetBibliotek", "&Sæt bibliotek..."_t};
    MenuItem mnuFilerDiskettekopi{*this, &mnuFiler, "mnuFilerDiskettekopi", "&Diskettekopi"};
    MenuItem mnuFilerBar1{*this, &mnuFiler, "mnuFilerBar1", "-", -1, {.separator = true}};
    MenuItem mnuFilerDanFejlliste{*this, &mnuFiler, "mnuFilerDanFejlliste", "Dan &fejlliste"};
    MenuItem mnuEfterDanLog{*this, &mnuFiler, "mnuEfterDanLog", "Dan &log"};
    MenuItem mnuEfter10mCW{*this, &mnuEfterDanLog, "mnuEfter10mCW", "&10m CW"};
    MenuItem mnuEfter10mSSB{*this, &mnuEfterDanLog, "mnuEfter10mSSB", "&10m SSB"};
    MenuItem mnuEfter15mCW{*this, &mnuEfterDanLog, "mnuEfter15mCW", "1&5m CW"};
    MenuItem mnuEfter15mSSB{*this, &mnuEfterDanLog, "mnuEfter15mSSB", "1&5m SSB"};
    MenuItem mnuEfter20mCW{*this, &mnuEfterDanLog, "mnuEfter20mCW", "&20m CW"};
    MenuItem mnuEfter20mSSB{*this, &mnuEfterDanLog, "mnuEfter20mSSB", "&20m SSB"};
    MenuItem mnuEfter40mCW{*this, &mnuEfterDanLog, "mnuEfter40mCW", "&40m CW"};
    MenuItem mnuEfter40mSSB{*this, &mnuEfterDanLog, "mnuEfter40mSSB", "&40m SSB"};
    MenuItem mnuEfter80mCW{*this, &mnuEfterDanLog, "mnuEfter80mCW", "&80m CW"};
    MenuItem mnuEfter80mSSB{*this, &mnuEfterDanLog, "mnuEfter80mSSB", "&80m SSB"};
    MenuItem mnuFilerDanMult{*this, &mnuEfterDanLog, "mnuFilerDanMult", "&Mult Check"};
    MenuItem mnuEfterSummary{*this, &mnuEfterDanLog, "mnuEfterSummary", "&Summary"};
    MenuItem mnuEfterAlt{*this, &mnuEfterDanLog, "mnuEfterAlt", "&Alt"};
    MenuItem mnuFilerDanHtml{*this, &mnuFiler, "mnuFilerDanHtml", "Dan &html"};
    MenuItem mnuFilerEksportAdif{*this, &mnuFiler, "mnuFilerEksportAdif", "Dan AD&IF"};
    MenuItem mnuFilerBar2{*this, &mnuFiler, "mnuFilerBar2", "-", -1, {.separator = true}};
    MenuItem mnuFilePageSetup{*this, &mnuFiler, "mnuFilePageSetup", "&Printer..."};
    MenuItem mnuFilePrint{*this, &mnuFiler, "mnuFilePrint", "&Udskriv log..."};
    MenuItem mnuUdskrivUkendt{*this, &mnuFilePrint, "mnuUdskrivUkendt", "&Ukendte"};
    MenuItem mnuUdskriv10mCW{*this, &mnuFilePrint, "mnuUdskriv10mCW", "&10m CW"};
    MenuItem mnuUdskriv10mSSB{*this, &mnuFilePrint, "mnuUdskriv10mSSB", "&10m SSB"};
    MenuItem mnuUdskriv15mCW{*this, &mnuFilePrint, "mnuUdskriv15mCW", "1&5m CW"};
    MenuItem mnuUdskriv15mSSB{*this, &mnuFilePrint, "mnuUdskriv15mSSB", "1&5m SSB"};
    MenuItem mnuUdskriv20mCW{*this, &mnuFilePrint, "mnuUdskriv20mCW", "&20m CW"};
    MenuItem mnuUdskriv20mSSB{*this, &mnuFilePrint, "mnuUdskriv20mSSB", "&20m SSB"};
    MenuItem mnuUdskriv40mCW{*this, &mnuFilePrint, "mnuUdskriv40mCW", "&40m CW"};
    MenuItem mnuUdskriv40mSSB{*this, &mnuFilePrint, "mnuUdskriv40mSSB", "&40m SSB"};
    MenuItem mnuUdskriv80mCW{*this, &mnuFilePrint, "mnuUdskriv80mCW", "&80m CW"};
    MenuItem mnuUdskriv80mSSB{*this, &mnuFilePrint, "mnuUdskriv80mSSB", "&80m SSB"};
    MenuItem mnuFilerUdskrivMult{*this, &mnuFilePrint, "mnuFilerUdskrivMult", "&Mult Check"};
    MenuItem mnuUdskrivSummary{*this, &mnuFilePrint, "mnuUdskrivSummary", "&Summary"};
    MenuItem mnuUdskrivAlt{*this, &mnuFilePrint, "mnuUdskrivAlt", "&Alt"};
    MenuItem mnuFilerBar3{*this, &mnuFiler, "mnuFilerBar3", "-", -1, {.separator = true}};
    MenuItem mnuFileExit{*this, &mnuFiler, "mnuFileExit", "&Afslut"};

    MenuItem mnuVis{*this, nullptr, "mnuVis", "&Vis"};
    MenuItem mnuVisQSOnr{*this, &mnuVis, "mnuVisQSOnr", "Næste QSO&nr"_t};
    MenuItem mnuVisB4{*this, &mnuVis, "mnuVisB4", "&Call check"};
    MenuItem mnuViewContestCall{*this, &mnuVis, "mnuViewContestCall", "Con&test Call"};
    MenuItem mnuVisLand{*this, &mnuVis, "mnuVisLand", "&Vis lands navn i statusbar"};
    MenuItem mnuFunktionerKørteEDRstns{*this, &mnuVis, "mnuFunktionerKørteEDRstns"_t, "Kørte &EDR stationer..."_t, -1, {.shortcut = "F3"}};
    MenuItem mnuFunktionerIkkeKørteEDRstns{*this, &mnuVis,           "mnuFunktionerIkkeKørteEDRstns"_t, "&Ikke kørte EDR stationer..."_t,
                                           -1,    {.shortcut = "F4"}};

    MenuItem mnuBåndMode{*this, nullptr, "mnuBåndMode"_t, "&Bånd/mode"_t};
    MenuItem mnuIndstillingerBånd[12]{
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&10m", 1, {.shortcut = "Ctrl+F1"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "1&5m", 2, {.shortcut = "Ctrl+F2"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&20m", 3, {.shortcut = "Ctrl+F3"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&40m", 4, {.shortcut = "Ctrl+F4"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&80m", 5, {.shortcut = "Ctrl+F5"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "XXm", 6, {.hidden = true}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "-", 7, {.separator = true}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&SSB", 8, {.shortcut = "Shift+F1"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&CW", 9, {.shortcut = "Shift+F2"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&PSK31", 10, {.shortcut = "Shift+F3"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&RTTY", 11, {.shortcut = "Shift+F4"}},
        {*this, &mnuBåndMode, "mnuIndstillingerBånd"_t, "&HELL", 12, {.shortcut = "Shift+F9"}},
    };

    MenuItem mnuIndstillinger{*this, nullptr, "mnuIndstillinger", "&Indstillinger"};
    MenuItem mnuFunktionerNytQSOnr{*this, &mnuIndstillinger, "mnuFunktionerNytQSOnr", "Nyt &QSO nummer..."};
    MenuItem mnuFunktionerCall{*this, &mnuIndstillinger, "mnuFunktionerCall", "&Contest Call..."};
    MenuItem mnuIndstillingerKlasse{*this, &mnuIndstillinger, "mnuIndstillingerKlasse", "&Klasse"};
    MenuItem mnuIndstillingerKlasseA{*this, &mnuIndstillingerKlasse, "mnuIndstillingerKlasseA", "Klasse &A"};
    MenuItem mnuIndstillingerKlasseB{*this, &mnuIndstillingerKlasse, "mnuIndstillingerKlasseB", "Klasse &B"};
    MenuItem menuIndstillingerUdstyr{*this, &mnuIndstillinger, "menuIndstillingerUdstyr", "Udst&yr..."};
    MenuItem mnuFunktionerRetUTC{*this, &mnuIndstillinger, "mnuFunktionerRetUTC", "&UTC offset..."};
    MenuItem mnuIndstillingerKlokken{*this, &mnuIndstillinger, "mnuIndstillingerKlokken", "&Automatisk klokkeslæt"_t};

    MenuItem mnuFunktioner{*this, nullptr, "mnuFunktioner", "Fun&ktioner"};
    MenuItem mnuFunktionerNote{*this, &mnuFunktioner, "mnuFunktionerNote", "Indsæt &Note..."_t, -1, {.shortcut = "Ctrl+N"}};
    MenuItem mnuFunktionerVisLand{*this, &mnuFunktioner, "mnuFunktionerVisLand", "&Vis land", -1, {.shortcut = "F2"}};
    MenuItem mnuFunktionerStregP{*this, &mnuFunktioner, "mnuFunktionerStregP", "&Streg-P calls..."};
    MenuItem mnuFunktionerImporterCTY{*this, &mnuFunktioner, "mnuFunktionerImporterCTY", "Importer C&TY.DAT..."};
    MenuItem mnuFunktionerImporterCtAll{*this, &mnuFunktioner, "mnuFunktionerImporterCtAll", "Importer &CT-log..."};

    MenuItem mnuCW{*this, nullptr, "mnuCW", "C&W"};
    MenuItem mnuCWTXT[8]{
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 1", 0, {.shortcut = "F5"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 2", 1, {.shortcut = "F6"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 3", 2, {.shortcut = "F7"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 4", 3, {.shortcut = "F8"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 5", 4, {.shortcut = "Shift+F5"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 6", 5, {.shortcut = "Shift+F6"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 7", 6, {.shortcut = "Shift+F7"}},
        {*this, &mnuCW, "mnuCWTXT"_t, "CW TXT 8", 7, {.shortcut = "Shift+F8"}},
    };
    MenuItem mnuCWBar1{*this, &mnuCW, "mnuCWBar1", "-", -1, {.separator = true}};
    MenuItem mnuCWInstillinger{*this, &mnuCW, "mnuCWInstillinger", "CW &Indstillinger..."};

    MenuItem mnuHjælp{*this, nullptr, "mnuHjælp"_t, "&Hjælp"_t};
    MenuItem mnuHjælpIndhold{*this, &mnuHjælp, "mnuHjælpIndhold"_t, "&Indhold"};
    MenuItem mnuHjælpQuickInfo{*this, &mnuHjælp, "mnuHjælpQuickInfo"_t, "&Quick Info..."};
    MenuItem mnuHelpStartInfo{*this, &mnuHjælp, "mnuHelpStartInfo", "S&tart information..."};
    MenuItem mnuHelpAbout{*this, &mnuHjælp, "mnuHelpAbout", "O&m Vatro"};

    /// The entries of bands and modes, by index, without the separator.
    std::vector<MenuItem*> BandEntries();
};

}  // namespace vatro
