// SPDX-License-Identifier: MIT
#include "contest.h"

#include <chrono>
#include <cstdio>
#include <iostream>

namespace contest {

namespace {

const std::vector<std::string> kOperators{"OZ1AB", "OZ2CDE", "OZ7F", "OZ4KLM", "5P1NO"};
const std::vector<std::string> kNotes{"pause til kaffe",    "Antennen er væltet", "storm fra vest, vi holder",  "Ny generator i drift",
                                      "QRM på hele båndet", "vagtskifte",         "Båndet lukkede klokken fem", "ÆBLE, ØL OG ÅL"};
const char* const kSameOperator = R"(> box "Bånd/modeskift" "Fortsætter samme operatør?" Ja*|Nej -)";

}  // namespace

void Say(const std::string& lines) {
    std::cout << lines << "\n";
}

void Contest::Setting() {
    char row[80];
    Say("file data/lande.txt");
    for (const Country& country : Countries()) {
        std::snprintf(row, sizeof row, "| %-10s%-25s%s -1 ", country.prefix, country.name, country.continent);
        Say(row);
    }
    Say("file data/refpfx.txt");
    for (const Prefix& prefix : Prefixes()) {
        std::snprintf(row, sizeof row, "| %-10s%-10s14 28", prefix.text, prefix.country);
        Say(row);
    }
    Say("file data/edr.txt");
    for (const std::string& call : Society()) Say("| " + call + std::string(7 - call.size(), ' ') + "afdeling, formand");
    Say("file data/operator.txt\n| " + operator_);
    Say("setting Settings gsLogLib log\nsetting Settings LastOP " + operator_ + "\nsetting Settings VisInfo2002 False\nstart");
    // From here on every event comes half a second after a full second, so the time field has been updated by then.
    Say("advance 0.5");
}

std::string Contest::Utc(const char* format) const {
    using namespace std::chrono;
    const sys_seconds now = sys_days(year{2026} / September / 5) + hours(13) + seconds(seconds_);
    const year_month_day date(floor<days>(now));
    const hh_mm_ss time(now - floor<days>(now));
    char text[40];
    if (format[0] == 't') {
        std::snprintf(text, sizeof text, "%02d:%02d", static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()));
    } else {
        std::snprintf(text, sizeof text, "%02u-%02u-%02d", static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
                      static_cast<int>(date.year()) % 100);
    }
    return text;
}

void Contest::Advance(int seconds) {
    seconds_ += seconds;
    Say("advance " + std::to_string(seconds));
}

void Contest::Pause() {
    Advance(pause_ + dice_.Roll(longerPause_));
}

std::string Contest::Report() {
    std::string report{static_cast<char>('3' + dice_.Roll(3)), static_cast<char>('1' + dice_.Roll(9))};
    if (!Phone()) report += static_cast<char>('1' + dice_.Roll(9));
    return report;
}

void Contest::AskForNought(const Line& line) {
    if (line.receivedNumber == "0000")
        Say(R"(> box "Modtaget rapport" "Skal modtaget rapportnummer være nul?" Ja|Nej* -)"
            "\nanswer Ja");
}

// --- Contacts

void Contest::TakeReports(Line& line) {
    line.sent = line.received = Phone() ? "59" : "599";
    const int heard = Pick(2) ? 0 : 1 + dice_.Roll(1500);
    char number[8];
    std::snprintf(number, sizeof number, "%04d", heard);
    line.receivedNumber = number;
    if (Pick(75)) {
        Say("key Space");
    } else {
        Say("key Tab");
        if (Pick(60)) Say("type " + (line.sent = Report()));
        Say("key Tab");
        if (Pick(60)) Say("type " + (line.received = Report()));
        Say("key Tab");
    }
    if (heard != 0 || Pick(50)) Say(Pick(30) ? "type " + line.receivedNumber : "type " + std::to_string(heard));
    line.qsl = Pick(15);
    if (line.qsl) Say(Pick(50) ? "key Alt+S" : "click frmMain.Check1");
}

bool Contest::LogContact() {
    Log& log = Current();
    Line line;
    if (Pick(8) && !log.lines.empty()) {
        const Line& known = dice_.OneOf(log.lines);
        if (known.IsNote()) return false;
        line.station = known.station;
    } else if (Log& other = logs_.begin()->second; Pick(20) && !other.lines.empty() && !other.lines.back().IsNote()) {
        line.station = dice_.OneOf(other.lines).station;
        if (line.station.base.empty()) return false;
    } else {
        line.station = NewStation(dice_);
    }
    line.call = Sign(line.station, dice_);
    if (log.WouldMarkByDuplicate(line.call, log.lines.size())) return false;

    Pause();
    if (Pick(3)) Say("type oz9q\nkey Space\ntype 12\nkey Esc");
    std::string typed = line.call.text;
    if (Pick(80))
        for (char& letter : typed) letter = static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
    Say("type " + typed);
    TakeReports(line);
    Say(Pick(90) ? "key Enter" : Pick(50) ? "key Alt+L" : "click frmMain.Command1");
    AskForNought(line);

    line.time = Utc("time");
    line.date = Utc("date");
    line.number = log.next++;
    line.operatorCall = operator_;
    line.mode = mode_->name;
    log.Score(line, log.lines.size());
    log.lines.push_back(line);
    log.selected = static_cast<int>(log.lines.size()) - 1;
    if (line.call.country == kUnknown) unknown_.push_back(band_->name + std::string(Phone() ? " SSB " : " CW  ") + line.Text(Phone()));
    return true;
}

void Contest::ChangeNumber() {
    Log& log = Current();
    if (log.next > 8000) return;
    const auto offer = [](int number) {
        Say("key End\nkey Backspace\nkey Backspace\nkey Backspace\nkey Backspace\ntype " + std::to_string(number) + "\nkey Enter");
    };
    Say("menu mnuFunktionerNytQSOnr");
    if (Pick(30)) {
        offer(log.next - 1);
        Say(R"(> box "vatro" "Nyt QSOnummer skal være større end )" + std::to_string(log.next) + "\" OK -\nanswer OK");
    }
    log.next += dice_.Roll(15);
    offer(log.next);
}

// --- Notes

void Contest::WriteNote() {
    Line line;
    line.note = dice_.OneOf(kNotes);
    Say("key Ctrl+N\ntype " + line.note + "\nkey Enter");
    Log& log = Current();
    log.lines.push_back(line);
    log.selected = static_cast<int>(log.lines.size()) - 1;
}

void Contest::RewordNote(int index) {
    Line& line = Current().lines[static_cast<std::size_t>(index)];
    if (line.note.size() > 60) return;
    OpenLine(index);
    line.note += ", rettet";
    Say("key End\ntype , rettet\nkey Enter");
}

// --- Bands and modes

void Contest::Choose(const Choice& choice, bool sameOperator) {
    const std::string index = std::to_string(choice.index);
    switch (dice_.Roll(4)) {
        case 0:
            Say("menu mnuIndstillingerBånd(" + index + ")");
            break;
        case 1:
            Say("toolbar " + index);
            break;
        case 2:
            Say(std::string("key ") + choice.key);
            break;
        default:
            Say(std::string("type ") + choice.word + "\nkey Enter");
    }
    (choice.index < 8 ? band_ : mode_) = &choice;
    Current().Load();
    Say(kSameOperator);
    if (sameOperator) {
        Say("answer Ja");
        return;
    }
    operator_ = dice_.OneOf(kOperators);
    Say("answer Nej\n"
        R"(> box "Operatør" "Angiv/vælg ny operatør\n\nTryk derefter Alt+C for at hoppe til Call-felt" OK -)"
        "\nanswer OK\ntype " +
        operator_ + "\nkey Alt+C");
}

void Contest::ChangeBandOrMode() {
    Choose(dice_.OneOf(Pick(60) ? kBands : kModes), Pick(80));
}

// --- The account

void Contest::ShowStatus(const std::string& first) {
    const Log& log = Current();
    const int multiplier = static_cast<int>(log.worked.size());
    Say("show frmMain.sbStatusBar\n> frmMain.sbStatusBar \"" + first + "\" \"" + std::to_string(log.Points()) + R"(" "Point " ")" +
        std::to_string(multiplier) + R"(" "Mult. " ")" + std::to_string(multiplier * log.Points()) + "\" \"I alt \"");
}

void Contest::Checkpoint(int number) {
    Say("# before reload " + std::to_string(number));
    const Country& country = dice_.OneOf(Countries());
    const bool known = !Pick(10);
    Say("type " + (known ? country.prefix + std::string("5") : std::string("QA1")));
    const bool worked = Current().worked.count(CountryOf(country.prefix)) != 0;
    ShowStatus(known ? std::string(country.prefix) + ": " + country.name + " (" + country.continent +
                           (worked ? "), er kørt." : "), er nyt land.")
                     : "QA1: er ukendt præfix. Call'et bliver gemt i filen 'ukendt.txt', hvis QSOen logges. Kør den!");
    Say("key Esc");
    Choose(*band_, true);
    Say("# after reload " + std::to_string(number));
    ShowStatus("Vatro " + std::string(band_->name) + " " + LogMode());
}

void Contest::CloseLogs(int number) {
    for (const Choice& band : kBands) {
        for (const Choice* mode : {&kModes[0], &kModes[1]}) {
            Choose(band, true);
            Choose(*mode, true);
            Checkpoint(number++);
            char next[8];
            std::snprintf(next, sizeof next, "%04d", Current().next);
            Say(std::string("show frmMain.Text1(3)\n> frmMain.Text1(3) \"") + next + "\"");
            const std::string file = "log/FD" + LogName() + ".txt";
            Say("# points " + LogName() + " " + std::to_string(Current().Points()) + " mult " + std::to_string(Current().worked.size()));
            Say("cat " + file);
            if (Current().lines.empty()) Say("> missing " + file);
            for (const Line& line : Current().lines) Say("> |" + line.Text(Phone()) + "|");
        }
    }
    Say("cat log/ukendt.txt");
    if (unknown_.empty()) Say("> missing log/ukendt.txt");
    for (const std::string& line : unknown_) Say("> |" + line + "|");
}

void Contest::Act(bool& raised) {
    const int what = dice_.Roll(100);
    raised = what >= 95;
    if (what < 20) ChangeBandOrMode();
    if (what >= 20 && what < 28) WriteNote();
    if (what >= 28 && what < 60) Correct();
    // Use a raised number at once: a raised number without a contact would be lost at the next band change.
    if (raised) ChangeNumber();
}

void Contest::WorkStation() {
    bool raised = false;
    while (Pick(30) && !raised) Act(raised);
    while (!LogContact()) {
    }
}

void Contest::Play(int contacts) {
    Setting();
    int checkpoints = 0;
    for (int logged = 1; logged <= contacts; ++logged) {
        WorkStation();
        if (logged % 100 == 0) Checkpoint(++checkpoints);
    }
    CloseLogs(++checkpoints);
    SumUp();
}

}  // namespace contest
