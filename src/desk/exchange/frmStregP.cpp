// SPDX-License-Identifier: MIT
#include "exchange/frmStregP.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "call/call_analysis.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "log/contact_line.h"
#include "platform.h"

namespace vatro {

namespace {

constexpr Field kBasis{1, 15};
constexpr Field kDividerMark{16, 4};
constexpr Field kLogged{29, 15};
constexpr std::string_view kDashes = "------------";

std::string ContactItem(const LogId& log, std::string_view line) {
    std::string item = LeftAligned(StripCall(kCall.TrimmedOf(line)), kBasis.width);
    item.append(log.band).append(" ");
    item.append(LeftAligned(log.mode, 4));
    item.append(LeftAligned(kNumberSent.Of(line), kNumberSent.width)).append(" ");
    item.append(LeftAligned(kCall.Of(line), kCall.width));
    return item;
}

std::string BaseCallOf(std::string_view item) {
    return StripCall(kBasis.TrimmedOf(item));
}

std::string Divider(std::string_view call) {
    return LeftAligned(call, kBasis.width).append(kDashes);
}

}  // namespace

FrmStregP::FrmStregP()
    : Form("frmStregP", FormKind::Tool, "Mangler nogle calls '/P'?"), contacts(*this, "List1", {"Fixedsys", 9}, ListOrder::Sorted) {
    SetTabOrder({&contacts});
}

void FrmStregP::Form_Load() {
    RestorePlace(*this, setting::kSuffixWindowPlace);
    Show();
    contacts.Clear();
    IndlæsLogs();
    Refresh();
    IndsætBlanke();
    Refresh();
    FjernDubletter();
}

void FrmStregP::StoreState() {
    StorePlace(*this, setting::kSuffixWindowPlace);
}

void FrmStregP::IndlæsLogs() {
    std::vector<std::string> rows;
    for (const LogId& log : kTenLogs) std::ranges::move(indlæslog(log), std::back_inserter(rows));
    // In the order of the list, so that each row goes to its end.
    std::ranges::sort(rows);
    const ListBox::Filling filling(contacts);
    for (std::string& row : rows) contacts.AddItem(std::move(row));
}

std::vector<std::string> FrmStregP::indlæslog(const LogId& log) {
    std::vector<std::string> rows;
    Files& files = platform().files;
    try {
        files.Open(1, LogPath(log.band, log.mode), FileMode::Input);
        while (!files.EndOfFile(1)) {
            const std::string line = files.LineInput(1);
            if (!IsNote(line)) rows.push_back(ContactItem(log, line));
        }
    } catch (const RunTimeError&) {
        // The contacts read so far are shown.
    }
    files.Close(1);
    return rows;
}

void FrmStregP::IndsætBlanke() {
    const ListBox::Filling filling(contacts);
    const int count = contacts.ListCount();
    std::string last = count > 0 ? contacts.List(count - 1) : std::string();
    std::string previous = BaseCallOf(last);
    for (int i = count - 2; i >= 1; --i) {
        last = contacts.List(i);
        std::string current = BaseCallOf(last);
        if (current != previous) contacts.AddItem(Divider(previous));
        previous = std::move(current);
    }
    contacts.AddItem(std::string(kBasis.Of(last)).append(kDashes));
}

void FrmStregP::FjernDubletter() {
    const ListBox::Filling filling(contacts);
    int i = contacts.ListCount() - 1;
    while (i > 1) {
        const int last = i;
        bool alike = true;
        for (; kDividerMark.Of(contacts.List(i)) != "----"; --i)
            if (kLogged.Of(contacts.List(i)) != kLogged.Of(contacts.List(last))) alike = false;
        if (alike)
            for (int row = last; row >= i; --row) contacts.RemoveItem(row);
        --i;
    }
}

}  // namespace vatro
