// SPDX-License-Identifier: MIT
//
// A field day of 24 hours: a random contest, and several times an hour a round through every function of the program.
#pragma once

#include <string>

#include "contest/contest.h"

namespace soak {

inline constexpr int kHours = 24;

class Day : public contest::Contest {
public:
    explicit Day(unsigned seed);
    /// Writes the day. Each hour ends with "file data/measure", which holds the number of the hour, and "file data/go". A test
    /// can replace both with pipes to stop the program between them.
    void Play(int contacts, int roundsAnHour);

private:
    void More();
    void Round(int number);
    void WaitUntil(long long seconds);
    void Measure(int hour);

    void Questions();
    void RefusedNumber();
    void RefusedNought();
    void RefusedPoints();
    void ForgottenDuplicate();

    void Windows();
    void SideWindows();
    void Information();

    void Settings();
    void ContestCall(const std::string& call);
    void Equipment(const std::string& radio);

    void Morse();
    void MorseSettings();

    void Papers();
    void Print(int number);
    void Safekeeping();
    void ImportCt();
    void ShowTables();
};

}  // namespace soak
