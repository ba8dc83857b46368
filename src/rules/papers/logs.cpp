// SPDX-License-Identifier: MIT
#include "papers/logs.h"

#include "log/contact_line.h"
#include "numbers.h"

namespace vatro {

void WriteBlank(LineSink& paper) {
    paper.Write(" ");
}

bool IsNoteLine(std::string_view line) {
    return line.starts_with(kNoteMark);
}

bool CountsAsContact(std::string_view line) {
    return !kMultiplier.Of(line).starts_with(kDupeMark) && !IsNoteLine(line);
}

bool CountsAsMultiplier(std::string_view line) {
    return !kMultiplier.Of(line).starts_with(' ') && CountsAsContact(line);
}

void LogSum::CountLine(std::string_view line) {
    if (CountsAsMultiplier(line)) ++Mults;
    Points = ToInt32(Points + NumericValue(kPoint.Of(line)));
}

void LogSum::Add(const LogSum& other) {
    Points = ToInt32(static_cast<double>(Points) + other.Points);
    Mults += other.Mults;
}

void LogSum::ComputeScore() {
    Score = ToInt32(static_cast<double>(Mults) * Points);
}

}  // namespace vatro
