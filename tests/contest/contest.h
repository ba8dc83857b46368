// SPDX-License-Identifier: MIT
//
// Generates a random contest as a scenario. The events are written to standard output together with everything that they must
// show, and the model beside them keeps the resulting logs.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "model.h"

namespace contest {

struct Choice {
    int index;
    const char* name;
    const char* word;
    const char* key;
};
inline const std::vector<Choice> kBands{{1, "10m", "10m", "Ctrl+F1"},
                                        {2, "15m", "15m", "Ctrl+F2"},
                                        {3, "20m", "20m", "Ctrl+F3"},
                                        {4, "40m", "40m", "Ctrl+F4"},
                                        {5, "80m", "80m", "Ctrl+F5"}};
inline const std::vector<Choice> kModes{{8, "SSB", "ssb", "Shift+F1"},
                                        {9, "CW", "cw", "Shift+F2"},
                                        {10, "PSK31", "psk31", "Shift+F3"},
                                        {11, "RTTY", "rtty", "Shift+F4"},
                                        {12, "HELL", "hell", "Shift+F9"}};

/// Writes lines of the scenario.
void Say(const std::string& lines);

class Contest {
public:
    explicit Contest(unsigned seed) : dice_(seed) {}
    void Play(int contacts);

protected:
    void Setting();
    void Pause();
    void Advance(int seconds);
    void Act(bool& raised);
    /// Logs a new contact, with what an operator may do before it.
    void WorkStation();
    bool LogContact();
    void TakeReports(Line& line);
    void WriteNote();
    void RewordNote(int index);
    void ChangeNumber();
    void ChangeBandOrMode();
    void Choose(const Choice& choice, bool sameOperator);
    void Correct();
    bool CorrectContact(int index);
    void OpenLine(int index);
    void AlterLine(int kind, Line& line, std::string& offered, bool duplicate);
    void TypeOver(const char* control, const std::string& old, const std::string& text);
    void Checkpoint(int number);
    void AskForNought(const Line& line);
    void ShowStatus(const std::string& first);
    void CloseLogs(int number);
    void SumUp();

    Log& Current() { return logs_[LogName()]; }
    std::string LogName() const { return std::string(band_->name) + LogMode(); }
    const char* LogMode() const { return Phone() ? "SSB" : "CW"; }
    bool Phone() const { return mode_->index == 8; }
    std::string Report();
    std::string Utc(const char* format) const;
    bool Pick(int percent) { return dice_.Chance(percent); }

    Dice dice_;
    std::map<std::string, Log> logs_;
    std::vector<std::string> unknown_;
    const Choice* band_ = &kBands[4];
    const Choice* mode_ = &kModes[0];
    std::string operator_ = "OZ1AB";
    long long seconds_ = 0;
    /// Seconds between contacts: the least, and how many more there may be.
    int pause_ = 15;
    int longerPause_ = 40;
};

}  // namespace contest
