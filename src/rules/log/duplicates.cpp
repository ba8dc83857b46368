// SPDX-License-Identifier: MIT
#include "log/duplicates.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

constexpr std::size_t kMostFound = 50;

/// Searches many short texts for one text, ignoring case. Looks for either case of the first character, then compares the rest.
class Search {
public:
    explicit Search(std::string_view text) : text_(UpperText(text)) {
        for (int code = 0; code < 256; ++code) upper_[code] = Upper(static_cast<char>(code));
    }

    bool IsIn(std::string_view where) const {
        if (text_.empty()) return true;
        if (where.size() < text_.size()) return false;
        const std::size_t last = where.size() - text_.size();
        for (std::size_t position = 0; position <= last; ++position)
            if (UpperOf(where[position]) == text_[0] && FollowsAt(where.data() + position)) return true;
        return false;
    }

private:
    char UpperOf(char c) const { return upper_[static_cast<unsigned char>(c)]; }
    bool FollowsAt(const char* position) const {
        for (std::size_t n = 1; n < text_.size(); ++n)
            if (UpperOf(position[n]) != text_[n]) return false;
        return true;
    }

    std::string text_;
    char upper_[256]{};
};

std::string EarlierContact(std::string_view line) {
    std::string found = LeftAligned(kCall.Of(line), kCall.width);
    found.append(LeftAligned(kNumberSent.Of(line), kNumberSent.width)).append("/");
    found.append(LeftAligned(kNumberReceived.Of(line), kNumberReceived.width)).append(" ");
    found.append(kTime.Of(line));
    return found;
}

}  // namespace

bool CheckDupe(std::span<const std::string> lines, std::string_view baseCall) {
    std::string_view call;
    std::string stripped;
    for (const std::string& line : lines) {
        // `call` still holds the text of the previous line, not of this one: see the header.
        if (call.starts_with(kNoteMark)) continue;
        call = kCall.TrimmedOf(line);
        // A call without a slash is its own base call.
        if (call.find('/') != std::string_view::npos) {
            stripped = StripCall(call);
            call = stripped;
        }
        if (call == baseCall) return true;
    }
    return false;
}

bool CheckDupQSO(std::span<const std::string> above, std::string_view baseCall) {
    std::string call;
    for (const std::string& line : above) {
        // `call` still holds the call of the previous line, not of this one: see the header.
        if (call.starts_with(kNoteMark)) continue;
        call = StripCall(kCall.TrimmedOf(line));
        if (call == baseCall) return true;
    }
    return false;
}

std::vector<std::string> WkdB4(std::string_view text, std::span<const std::string> lines) {
    std::vector<std::string> found;
    const Search search(text);
    std::string_view call;
    for (const std::string& line : lines) {
        if (IsNote(call)) continue;
        call = kCall.Of(line);
        if (!search.IsIn(call)) continue;
        found.push_back(EarlierContact(line));
        if (found.size() == kMostFound) break;
    }
    return found;
}

}  // namespace vatro
