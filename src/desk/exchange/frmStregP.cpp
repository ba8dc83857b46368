// SPDX-License-Identifier: MIT
#include "exchange/frmStregP.h"

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
    : Form("frmStregP", FormKind::Tool, "Mangler nogle calls '/P'?"), List1(*this, "List1", {"Fixedsys", 9}, ListOrder::Sorted) {
    SetTabOrder({&List1});
}

void FrmStregP::Form_Load() {
    RestorePlace(*this, setting::kSuffixWindowPlace);
    Show();
    List1.Clear();
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
    const ListBox::Filling filling(List1);
    for (const LogId& log : kTenLogs) indlæslog(log);
}

void FrmStregP::indlæslog(const LogId& log) {
    Files& files = platform().files;
    try {
        files.Open(1, LogPath(log.band, log.mode), FileMode::Input);
        while (!files.EndOfFile(1)) {
            const std::string line = files.LineInput(1);
            if (!IsNote(line)) List1.AddItem(ContactItem(log, line));
        }
    } catch (const RunTimeError&) {
        // What has been read so far is shown.
    }
    files.Close(1);
}

void FrmStregP::IndsætBlanke() {
    const ListBox::Filling filling(List1);
    const int count = List1.ListCount();
    std::string last = count > 0 ? List1.List(count - 1) : std::string();
    std::string previous = BaseCallOf(last);
    for (int i = count - 2; i >= 1; --i) {
        last = List1.List(i);
        std::string current = BaseCallOf(last);
        if (current != previous) List1.AddItem(Divider(previous));
        previous = std::move(current);
    }
    List1.AddItem(std::string(kBasis.Of(last)).append(kDashes));
}

void FrmStregP::FjernDubletter() {
    const ListBox::Filling filling(List1);
    int i = List1.ListCount() - 1;
    while (i > 1) {
        const int last = i;
        bool alike = true;
        for (; kDividerMark.Of(List1.List(i)) != "----"; --i)
            if (kLogged.Of(List1.List(i)) != kLogged.Of(List1.List(last))) alike = false;
        if (alike)
            for (int row = last; row >= i; --row) List1.RemoveItem(row);
        --i;
    }
}

}  // namespace vatro
