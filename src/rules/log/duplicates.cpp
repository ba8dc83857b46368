// SPDX-License-Identifier: MIT
#include "log/duplicates.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "entry/frmMain.h"
#include "log/contact_line.h"

namespace vatro {

std::string gsCall;
bool gbDupe = false;

namespace {

constexpr int kMostFound = 50;

/// Looks for one text in many short ones without regard to case: both spellings of its first character are sought, which
/// the rest of the text then has to follow.
class Search {
public:
    explicit Search(std::string_view text) : tekst_(UpperText(text)) {
        for (int code = 0; code < 256; ++code) upper_[code] = Upper(static_cast<char>(code));
    }

    bool IsIn(std::string_view i) const {
        if (tekst_.empty()) return true;
        if (i.size() < tekst_.size()) return false;
        const std::size_t last = i.size() - tekst_.size();
        for (std::size_t position = 0; position <= last; ++position)
            if (UpperOf(i[position]) == tekst_[0] && FollowsAt(i.data() + position)) return true;
        return false;
    }

private:
    char UpperOf(char c) const { return upper_[static_cast<unsigned char>(c)]; }
    bool FollowsAt(const char* position) const {
        for (std::size_t n = 1; n < tekst_.size(); ++n)
            if (UpperOf(position[n]) != tekst_[n]) return false;
        return true;
    }

    std::string tekst_;
    char upper_[256]{};
};

std::string EarlierContact(std::string_view line) {
    std::string found = LeftAligned(kCall.Of(line), kCall.width);
    found.append(LeftAligned(kNumberSent.Of(line), kNumberSent.width)).append("/");
    found.append(LeftAligned(kNumberReceived.Of(line), kNumberReceived.width)).append(" ");
    found.append(kTime.Of(line));
    return found;
}

bool IsInLog(std::string_view call) {
    std::string_view s;
    std::string stripped;
    for (const std::string& line : frmMain->List1.Items()) {
        // The text of the line before, not of this one: see the header.
        if (s.starts_with(kNoteMark)) continue;
        s = kCall.TrimmedOf(line);
        // Without a slash a call is its base call.
        if (s.find('/') != std::string_view::npos) {
            stripped = s;
            StripCall(stripped);
            s = stripped;
        }
        if (s == call) return true;
    }
    return false;
}

/// What the last search of the log has found.
struct LastSearch {
    std::string call;
    unsigned revision = 0;
    bool found = false;
};

}  // namespace

void CheckDupe() {
    // A call is sought when its field is left and again at Enter: the second time the answer is still good, unless the log
    // has become another one.
    static LastSearch lastSearch;
    const unsigned revision = frmMain->List1.Revision();
    if (lastSearch.revision != revision || lastSearch.call != gsCall) lastSearch = {gsCall, revision, IsInLog(gsCall)};
    gbDupe = lastSearch.found;
}

void WkdB4(const TextBox& callField, const ListBox& log, ListBox& matches) {
    const ListBox::Filling filling(matches);
    matches.Clear();
    const Search search(callField.Text());
    int count = 0;
    std::string_view c;
    for (const std::string& line : log.Items()) {
        if (IsNote(c)) continue;
        c = kCall.Of(line);
        if (!search.IsIn(c)) continue;
        matches.AddItem(EarlierContact(line));
        if (++count == kMostFound) return;
    }
}

}  // namespace vatro
