// SPDX-License-Identifier: MIT
#include "day.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace soak {

using contest::Country;
using contest::Line;
using contest::Prefix;
using contest::Say;

namespace {

constexpr long long kHour = 3600;
constexpr int k40m = 3;
constexpr int kMorse = 1;

/// Keys that delete the end of a text.
void Erase(std::size_t characters) {
    for (std::size_t i = 0; i < characters; ++i) Say("key Backspace");
}

}  // namespace

Day::Day(unsigned seed) : Contest(seed) {
    pause_ = 8;
    longerPause_ = 7;
}

void Day::More() {
    // Importing this file gives the two tables that already exist.
    Say("file data/cty.dat");
    char row[100];
    for (const Country& country : contest::Countries()) {
        std::snprintf(row, sizeof row, "| %-26s14:  28:  %s:   56.00:   -10.00:    -1.0:  %s:", (std::string(country.name) + ":").c_str(),
                      country.continent, country.prefix);
        Say(row);
        std::string items;
        for (const Prefix& prefix : contest::Prefixes())
            if (std::string(prefix.country) == country.prefix) items += (items.empty() ? "|     " : ",") + std::string(prefix.text);
        Say(items + ";");
    }
    Say("file data/felt.40\n"
        "| CT log of a field day\n|\n"
        "| Station OZ2DEF/P                           CW    Power: 100\n|\n"
        "| 1   05-Sep-26   1307    12         DL9XYZ       599  345\n"
        "| 2   05-Sep-26   1314    13         SM7ABC/P     579    7\n"
        "| 3   05-Sep-26   1315    14         DL9XYZ/P     579    8");
}

void Day::WaitUntil(long long seconds) {
    if (seconds < seconds_) throw std::logic_error("the hour is too short for its contacts");
    Advance(static_cast<int>(seconds - seconds_));
}

void Day::Measure(int hour) {
    Say("file data/measure\n| " + std::to_string(hour) + "\nfile data/go\n| on");
}

void Day::Play(int contacts, int roundsAnHour) {
    Setting();
    More();
    const int rounds = kHours * roundsAnHour;
    for (int round = 1; round <= rounds; ++round) {
        const long long until = static_cast<long long>(contacts) * round / rounds;
        for (long long logged = static_cast<long long>(contacts) * (round - 1) / rounds; logged < until; ++logged) WorkStation();
        Round(round);
        WaitUntil(kHours * kHour * round / rounds);
        Checkpoint(round);
        if (round % roundsAnHour == 0) Measure(round / roundsAnHour);
    }
    CloseLogs(rounds + 1);
    SumUp();
    ShowTables();
}

void Day::Round(int number) {
    Questions();
    Windows();
    Settings();
    Morse();
    Papers();
    Print(number);
    ImportCt();
    Safekeeping();
    Information();
    // Afterwards every window is closed and every field is as for a new contact.
    Choose(*band_, false);
    Choose(*mode_, true);
}

// --- Questions that are answered with no

void Day::Questions() {
    RefusedNumber();
    RefusedNought();
    RefusedPoints();
    ForgottenDuplicate();
}

void Day::RefusedNumber() {
    Say("type oz1zz\nkey Space\nkey Enter\n"
        R"(> box "Modtaget rapport" "Skal modtaget rapportnummer være nul?" Ja|Nej* -)"
        "\nanswer Nej\nshow focus\n> focus frmMain.Text1(5)\nkey Esc");
}

void Day::RefusedNought() {
    Say("type 0z1zz\nkey Space\ntype 7\nkey Enter\n"
        R"(> box "Første tegn i call'et er et nul." "Skal det være et nul?" Ja|Nej* -)"
        "\nanswer Nej\nshow focus\n> focus frmMain.Text1(1)\nkey Esc");
}

void Day::RefusedPoints() {
    contest::Log& log = Current();
    for (int index = static_cast<int>(log.lines.size()) - 1; index >= 0; --index) {
        const Line& line = log.lines[static_cast<std::size_t>(index)];
        // A multiplier is left out, because answering no would remove its mark.
        const bool plain = !line.IsNote() && line.multiplier.empty() && line.call.country != contest::kUnknown &&
                           line.points == line.call.points && !log.Holds(line.call.base, static_cast<std::size_t>(index));
        if (!plain) continue;
        const std::string wrong = line.points == 6 ? "5" : "6";
        OpenLine(index);
        Say("pick frmRetQSO.Combo2 " + wrong + "\nclick frmRetQSO.Command1");
        AskForNought(line);
        Say(R"(> box "Point" "Er )" + wrong + " point korrekt?\" Ja*|Nej -\nanswer Nej\nshow focus\n> focus frmRetQSO.Combo2");
        Say("pick frmRetQSO.Combo2 " + std::to_string(line.points) + "\nclick frmRetQSO.Command1");
        AskForNought(line);
        return;
    }
}

void Day::ForgottenDuplicate() {
    const contest::Log& log = Current();
    const auto known = std::find_if(log.lines.rbegin(), log.lines.rend(), [](const Line& line) { return !line.IsNote(); });
    if (known == log.lines.rend()) return;
    Say("type " + known->call.text +
        "\nkey Space\nshow gbDupe\n> gbDupe true\nshow frmQSOnr.label1\n> frmQSOnr.label1 \"*** DUPE ***\"\nkey Esc");
}

// --- Windows

void Day::Windows() {
    SideWindows();
    Say("type oz1\nkey F2\nkey Esc");
    Say("key F3\nclick frmEDR.cmdLuk\nkey F4\nclick frmEDR.cmdLuk");
    Say("menu mnuFunktionerStregP\nshow frmStregP\n> frmStregP \"Mangler nogle calls '/P'?\" shown\nclose frmStregP");
    Say("minimise frmMain\nrestore frmMain");
}

void Day::SideWindows() {
    for (const char* item : {"mnuVisQSOnr", "mnuVisB4", "mnuViewContestCall", "mnuVisLand"})
        for (int time = 0; time < 2; ++time) Say(std::string("menu ") + item);
}

void Day::Information() {
    Say("menu mnuHjælpIndhold\n> help Vatro.chm");
    Say("menu mnuHjælpQuickInfo\nkey Esc");
    Say("menu mnuHelpStartInfo\nclick frmVisTekst.cmdLuk");
    Say("menu mnuHelpAbout\nshow frmAbout.lblVersion\n> frmAbout.lblVersion \"Version 1.0.0\"\nclick frmAbout.cmdOK");
}

// --- Settings

void Day::Settings() {
    for (const char* item : {"mnuIndstillingerKlasseB", "mnuIndstillingerKlasseA", "mnuIndstillingerKlokken", "mnuIndstillingerKlokken"})
        Say(std::string("menu ") + item);
    for (const std::string offset : {"-1", "-2"})
        Say("menu mnuFunktionerRetUTC\npick frmUTC.Combo1 " + offset + "\nclick frmUTC.Command2\nshow gsUTC\n> gsUTC \"" + offset + "\"");
    ContestCall(contest::Society().front() + "/P");
    ContestCall({});
    Equipment("IC-751, 100 W");
    Equipment({});
}

void Day::ContestCall(const std::string& call) {
    Say("menu mnuFunktionerCall");
    if (call.empty()) {
        Say("focus frmCall.cboCall");
        Erase(contest::Society().front().size() + 2);
    } else {
        Say("pick frmCall.cboCall " + call);
    }
    Say("click frmCall.Command2\nshow gsMyCall\n> gsMyCall \"" + call + "\"");
}

void Day::Equipment(const std::string& radio) {
    constexpr std::size_t kLongest = 15;
    Say("menu menuIndstillingerUdstyr\nfocus FormRigAnt.TextRig(0)");
    if (radio.empty())
        Erase(kLongest);
    else
        Say("type " + radio);
    Say("show FormRigAnt.TextRig(0)\n> FormRigAnt.TextRig(0) \"" + radio + "\"\nclick FormRigAnt.CommandOK");
}

// --- Morse

void Day::MorseSettings() {
    Say("menu mnuCWInstillinger\nspin frmCW.UpDown2 up\nspin frmCW.UpDown1 up\nclick frmCW.optRST(1)\nclick frmCW.cmdOK");
    Say("menu mnuCWInstillinger\nspin frmCW.UpDown2 down\nspin frmCW.UpDown1 down\nclick frmCW.optRST(0)\n"
        "show frmCW.txtWPM\n> frmCW.txtWPM \"20\"\nclick frmCW.cmdOK");
}

void Day::Morse() {
    Choose(contest::kModes[kMorse], true);
    MorseSettings();
    // A station answers while the CQ call is still being sent.
    Say("key F5\nshow frmCWTX\n> frmCWTX \"CW TX\" shown\nfocus frmMain.Text1(1)");
    while (!LogContact()) {
    }
    for (const char* key : {"F8", "F7", "F6"}) {
        Say(std::string("key ") + key);
        Advance(25);
        Say("show frmCWTX\n> frmCWTX \"CW TX\" hidden");
    }
    for (const char* key : {"F5", "Shift+F5", "Shift+F6", "Shift+F7", "Shift+F8"}) Say(std::string("key ") + key + "\nkey Esc");
    Say("sound data/heard.wav");
}

// --- Papers

void Day::Papers() {
    for (const char* item : {"mnuEfterAlt", "mnuEfter20mSSB", "mnuFilerDanMult", "mnuEfterSummary", "mnuFilerDanHtml",
                             "mnuFilerEksportAdif", "mnuFilerDanFejlliste"})
        Say(std::string("menu ") + item);
    Say("show frmInfo\n> frmInfo \"Dan fejlliste\" shown\nclick frmInfo.cmdLuk");
}

void Day::Print(int number) {
    // Prints the papers in turn rather than all of them, because printed texts stay in the player's memory.
    static constexpr const char* kItems[]{"mnuUdskriv80mCW", "mnuUdskriv40mSSB", "mnuFilerUdskrivMult", "mnuUdskrivSummary",
                                          "mnuUdskrivAlt"};
    Say("menu mnuFilePageSetup\n> dialog printer\ndialog cancel");
    Say(std::string("menu ") + kItems[static_cast<std::size_t>(number) % std::size(kItems)]);
    Say("menu mnuUdskrivUkendt");
    if (unknown_.empty()) Say("> box \"vatro\" \"Der er ingen ukendte præfixer.\" OK -\nanswer OK");
    Say("click frmInfo.cmdLuk\npages");
}

// --- What comes in and goes out

void Day::ImportCt() {
    const auto useLogs = [](const std::string& directory) {
        Say("menu mnuFilerSætLogbibliotek\n> dialog save \"Vælg eller opret logbibliotek\" \"setlog.txt\"\ndialog " + directory +
            "/setlog.txt\n> box \"vatro\" \"Logbibliotek sat til: " + directory + "\\\\\" OK -\nanswer OK");
    };
    Choose(contest::kBands[k40m], true);
    Choose(contest::kModes[kMorse], true);
    Say("remove ct\nfile ct/empty.txt");
    useLogs("ct");
    // The two stations are worth three points each; the third contact repeats the first station.
    Say("menu mnuFunktionerImporterCtAll\n> dialog open \"\" \"CT-logfil (*.10;*.15;*.20;*.40;*.80)|*.10;*.15;*.20;*.40;*.80|\"\n"
        "dialog data/felt.40\nshow frmMain.sbStatusBar\n"
        "> frmMain.sbStatusBar \"Vatro 40m CW\" \"8\" \"Point \" \"2\" \"Mult. \" \"16\" \"I alt \"");
    useLogs("log");
    Current().Load();
    Say("menu mnuFunktionerImporterCTY\n> box \"Import af CTY.DAT\" \"Det tager nogle minutter. Er du sikker?\" Ja*|Nej -\nanswer Ja");
    Current().Load();
}

void Day::ShowTables() {
    Say("cat data/lande.txt");
    char row[80];
    for (const Country& country : contest::Countries()) {
        std::snprintf(row, sizeof row, "> |%-10s%-25s%s -1 |", country.prefix, country.name, country.continent);
        Say(row);
    }
    Say("cat data/refpfx.txt");
    for (const Prefix& prefix : contest::Prefixes()) {
        std::snprintf(row, sizeof row, "> |%-10s%-10s14 28|", prefix.text, prefix.country);
        Say(row);
    }
}

void Day::Safekeeping() {
    Say("menu mnuFilerBackupSetBibliotek\n> dialog save \"Vælg eller opret Backupbibliotek\" \"setBackup.txt\"\ndialog "
        "backup/setBackup.txt\n"
        "> box \"vatro\" \"Backupbibliotek sat til: backup\\\\\" OK -\nanswer OK");
    Say("menu mnuFilerBackupUdfor\nmenu mnuFilerDiskettekopi");
}

}  // namespace soak
