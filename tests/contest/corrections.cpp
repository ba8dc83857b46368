// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdio>

#include "contest.h"

namespace contest {

void Contest::OpenLine(int index) {
    Log& log = Current();
    const int up = log.selected - index;
    if (up >= 0 && up < 5 && Pick(40)) {
        for (int tab = 0; tab < 7; ++tab) Say("key Tab");
        for (int row = 0; row < up; ++row) Say("key Up");
        Say("key Enter");
    } else {
        Say("dblclick frmMain.List1 " + std::to_string(index));
    }
    log.selected = index;
}

void Contest::TypeOver(const char* control, const std::string& old, const std::string& text) {
    Say(std::string("focus frmRetQSO.") + control);
    for (std::size_t i = 0; i < old.size(); ++i) Say("key Backspace");
    Say("type " + text);
}

namespace {

enum Kind { kNumber, kReport, kQsl, kCall, kMode, kPoints, kKinds };

}  // namespace

/// Changes one thing in the open correction form and stores it. `offered` is the points value that the form then shows.
void Contest::AlterLine(int kind, Line& line, std::string& offered, bool duplicate) {
    switch (kind) {
        case kReport: {
            const std::string old = line.received;
            TypeOver("Text1(4)", old, line.received = Report());
            break;
        }
        case kQsl:
            line.qsl = !line.qsl;
            Say("click frmRetQSO.Check1\nclick frmRetQSO.Command1");
            return;
        case kCall:
            // Leaves the field, which computes the points, and moves to the next one.
            Say("key Tab");
            offered = std::to_string(duplicate ? 0 : line.call.points);
            break;
        case kMode:
            line.mode = kModes[static_cast<std::size_t>(1 + dice_.Roll(4))].name;
            Say("pick frmRetQSO.cboMode " + line.mode + "\nclick frmRetQSO.Command1");
            return;
        case kPoints:
            offered = Pick(50) ? "5" : "6";
            Say("pick frmRetQSO.Combo2 " + offered + "\nclick frmRetQSO.Command1");
            return;
        default: {
            const std::string old = line.receivedNumber;
            char number[8];
            std::snprintf(number, sizeof number, "%04d", 1 + dice_.Roll(1500));
            TypeOver("Text1(5)", old, line.receivedNumber = number);
        }
    }
    Say(Pick(80) ? "key Enter" : "key Alt+L");
}

bool Contest::CorrectContact(int index) {
    Log& log = Current();
    const auto place = static_cast<std::size_t>(index);
    Line line = log.lines[place];
    int kind = dice_.Roll(kKinds);
    const std::string old = line.call.text;
    if (kind == kCall) {
        line.station = NewStation(dice_);
        line.call = Sign(line.station, dice_);
    }
    const bool marked = line.multiplier == kDuplicate;
    const bool duplicate = log.Holds(line.call.base, place);
    if ((kind == kPoints && (marked || duplicate)) || (kind == kMode && Phone())) kind = kNumber;

    // While the form is open, the contact does not count as having worked its country.
    const std::set<int> worked = log.worked;
    if (!marked && !line.multiplier.empty()) log.worked.erase(log.lines[place].call.country);
    if (log.WouldMarkByDuplicate(line.call, place)) {
        log.worked = worked;
        return false;
    }
    OpenLine(index);
    if (kind == kCall) TypeOver("Text1(1)", old, line.call.text);
    std::string offered = std::to_string(line.points);
    AlterLine(kind, line, offered, duplicate);
    AskForNought(line);
    if (duplicate) offered = "0";
    if (offered != std::to_string(line.call.points)) Say(R"(> box "Point" "Er )" + offered + " point korrekt?\" Ja*|Nej -\nanswer Ja");
    log.Score(line, place);
    line.points = std::stoi(offered);
    if (line.call.country == kUnknown) unknown_.push_back(band_->name + std::string(Phone() ? " SSB " : " CW  ") + line.Text(Phone()));
    log.lines[place] = line;
    return true;
}

void Contest::Correct() {
    const int count = static_cast<int>(Current().lines.size());
    if (count == 0) return;
    const int index = Pick(60) ? count - 1 - dice_.Roll(std::min(count, 8)) : dice_.Roll(count);
    if (Current().lines[static_cast<std::size_t>(index)].IsNote()) {
        RewordNote(index);
    } else {
        CorrectContact(index);
    }
}

}  // namespace contest
