// SPDX-License-Identifier: MIT
#include "morse/text_codes.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "codepage.h"
#include "columns.h"
#include "numbers.h"

namespace vatro {

namespace {

/// From this number on, serial numbers are sent with all four digits; below it with three characters.
constexpr int kFourDigits = 1000;
constexpr std::size_t kThreeCharacters = 3;

/// A text being read: the whole text, or the value of a code in it.
struct TextPiece {
    /// The code whose value this is; 0 for the whole text.
    char code = 0;
    std::string_view text;
    std::size_t read = 0;
};

/// Replaces the first code of the text again and again until no code is left. A value becomes part of the text: a code may occur
/// inside a value, or start at the end of one. A code that occurs inside its own value would be replaced for ever, so there it is
/// treated as unknown.
class Expansion {
public:
    Expansion(std::string_view text, const CodeValues& values) : values_(values), pieces_{{0, text}} {}

    std::string Run() {
        std::string expanded;
        while (const auto character = Next()) {
            Consume();
            if (*character != '#')
                expanded += *character;
            else
                Insert();
        }
        return expanded;
    }

private:
    /// The value of a code; nothing if the letter is not a code.
    std::optional<std::string_view> ValueOf(char code) const {
        switch (code) {
            case 'C':
                return values_.call;
            case 'T':
                return values_.report;
            case 'N':
                return NumericValue(values_.number) < kFourDigits ? Right(values_.number, kThreeCharacters) : values_.number;
            case 'R':
                return values_.ownCall;
            default:
                return std::nullopt;
        }
    }

    /// The next character, or nothing at the end. Only this function leaves values that have been read to their end.
    std::optional<char> Next() {
        while (!pieces_.empty() && pieces_.back().read == pieces_.back().text.size()) pieces_.pop_back();
        if (pieces_.empty()) return std::nullopt;
        return pieces_.back().text[pieces_.back().read];
    }
    void Consume() { ++pieces_.back().read; }

    /// Called after a "#": continues with the value of the code, if the next letter is one.
    void Insert() {
        const auto code = Next();
        const auto value = code ? ValueOf(*code) : std::nullopt;
        const auto same = [&](const TextPiece& piece) { return piece.code == *code; };
        if (!value || std::any_of(pieces_.begin(), pieces_.end(), same)) return;
        Consume();
        pieces_.push_back({*code, *value});
    }

    CodeValues values_;
    std::vector<TextPiece> pieces_;
};

}  // namespace

std::string NumberAsSent(std::string_view number, std::string_view format) {
    std::string sent(number);
    if (format == kNumberWithT)
        for (std::size_t i = 0; i < sent.size() && sent[i] == '0'; ++i) sent[i] = 'T';
    return sent;
}

std::string ReportAsSent(std::string_view report, std::string_view format) {
    return std::string(format == kReportWithN && report == "599" ? "5NN" : report);
}

std::string DanCWTekst(std::string_view raw, const CodeValues& values) {
    const std::string text = UpperText(raw);
    return Expansion(text, values).Run() + ' ';
}

}  // namespace vatro
