// SPDX-License-Identifier: MIT
#include "log/duplicates.h"

#include "codepage.h"
#include "columns.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

constexpr std::size_t kMostFound = 50;

std::string EarlierContact(std::string_view line) {
    std::string found = LeftAligned(kCall.Of(line), kCall.width);
    found.append(LeftAligned(kNumberSent.Of(line), kNumberSent.width)).append("/");
    found.append(LeftAligned(kNumberReceived.Of(line), kNumberReceived.width)).append(" ");
    found.append(kTime.Of(line));
    return found;
}

}  // namespace

bool CheckDupe(const Log& log, std::string_view baseCall) {
    return log.StrippedCalls().FirstRow(baseCall).has_value();
}

bool CheckDupQSO(const Log& log, std::size_t above, std::string_view baseCall) {
    const auto row = log.StrippedCalls().FirstRow(baseCall);
    return row && *row < above;
}

std::vector<std::string> WkdB4(std::string_view text, const Log& log) {
    std::vector<std::string> found;
    const CallColumns& calls = log.Calls();
    const std::string sought = UpperText(text);
    for (auto row = calls.Next(sought, 0); row; row = calls.Next(sought, *row + 1)) {
        found.push_back(EarlierContact(log.Lines()[*row]));
        if (found.size() == kMostFound) break;
    }
    return found;
}

}  // namespace vatro
