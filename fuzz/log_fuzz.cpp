// SPDX-License-Identifier: MIT
//
// Puts arbitrary lines into the logs. The log is loaded with each line unchanged, the check of suffixes shows exactly the calls
// that occur with two spellings, and the error list is made. Input: lines; the first character of each selects its log.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "call/call_analysis.h"
#include "entry/frmMain.h"
#include "exchange/frmStregP.h"
#include "frame/log_file.h"
#include "frame/start.h"
#include "log/contact_line.h"
#include "printing/error_list_run.h"
#include "world.h"

namespace {

using namespace vatro;

constexpr std::string_view kDashes = "------------";
constexpr Field kBasis{1, 15};
constexpr Field kBehind{16, 12};
constexpr Field kSpelling{29, 15};

/// The base call of each contact as the list holds it, and how it is spelled.
using Spellings = std::map<std::string, std::set<std::string>>;

Spellings SpellingsOf(const std::vector<std::string>& lines) {
    Spellings spellings;
    for (const std::string& line : lines) {
        if (IsNote(line)) continue;
        const std::string base = StripCall(kCall.TrimmedOf(line));
        spellings[LeftAligned(base, kBasis.width)].insert(LeftAligned(kCall.Of(line), kCall.width));
    }
    return spellings;
}

/// Calls with two slashes may be grouped with others, and blanks within a call change its place in the order, so such logs are
/// not compared.
bool Plain(const Spellings& spellings) {
    return std::ranges::all_of(spellings, [](const auto& call) {
        const std::string_view base = Trim(call.first);
        return !base.empty() && base == call.first.substr(0, base.size()) &&
               std::ranges::all_of(base, [](char c) { return static_cast<unsigned char>(c) > ' ' && c != '/'; });
    });
}

void CheckSuffixes(const std::vector<std::string>& lines) {
    frmStregP.Load();
    const std::vector<std::string>& items = frmStregP->contacts.Items();
    for (std::size_t i = 1; i < items.size(); ++i)
        if (items[i] < items[i - 1]) __builtin_trap();
    const Spellings spellings = SpellingsOf(lines);
    if (!Plain(spellings)) return;
    std::map<std::string, std::set<std::string>> shown;
    for (const std::string& item : items)
        if (kBehind.Of(item) != kDashes && item != kDashes) shown[std::string(kBasis.Of(item))].insert(std::string(kSpelling.Of(item)));
    for (const auto& [base, ways] : spellings)
        if (ways.size() > 1 && shown[base] != ways) __builtin_trap();
    // The first call may stay in the list although it has only one spelling. So may the second, which then has the dashes in
    // the place of the first item.
    std::size_t alone = 0;
    for (const auto& [base, ways] : shown)
        if (ways.size() == 1) ++alone;
    if (alone > 1) __builtin_trap();
}

std::vector<std::string> Lines(const std::map<std::string, std::string>& texts, const LogId& log) {
    const auto found = texts.find(LogName(log));
    std::vector<std::string> lines;
    for (std::string_view rest = found == texts.end() ? std::string_view() : found->second; !rest.empty();) {
        lines.emplace_back(rest.substr(0, rest.find("\r\n")));
        rest.remove_prefix(lines.back().size() + 2);
    }
    return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto* const world = new RunningWorld;
    auto& texts = world->files.texts;
    FillLogs(texts, {reinterpret_cast<const char*>(data), size});
    const std::vector<std::string> current = Lines(texts, kTenLogs.back());
    std::vector<std::string> all;
    for (const LogId& log : kTenLogs) std::ranges::copy(Lines(texts, log), std::back_inserter(all));
    BeginProgram();
    Dispatch(StartProgram);
    // A value too large for a counter ends the load at that line.
    const std::vector<std::string>& loaded = frmMain->log.Items();
    if (loaded.size() > current.size()) __builtin_trap();
    if (!std::equal(loaded.begin(), loaded.end(), current.begin())) __builtin_trap();
    CheckSuffixes(all);
    MakeErrorList();
    if (texts["LOG\\FEJLLIST.TXT"].empty()) __builtin_trap();
    EndProgram();
    return 0;
}
