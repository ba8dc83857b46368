// SPDX-License-Identifier: MIT
#include "country/cty_file.h"

#include <optional>
#include <string>

#include "errors.h"
#include "numbers.h"

namespace vatro {

namespace {

/// The position of the character, searched from the offset `from` on. Fails with 5 if it is not found.
std::size_t Find(std::string_view text, char character, std::size_t from = 0) {
    const std::size_t place = text.find(character, from);
    if (place == std::string_view::npos) throw RunTimeError(Failure::InvalidCall);
    return place;
}

/// The text from the column up to the first ":" at or after the next column.
std::string_view UpToColon(std::string_view line, std::size_t column) {
    return line.substr(column - 1, Find(line, ':', column) - column + 1);
}

/// The zone between two brackets: padded with leading zeros and cut to its last two characters; nothing if there is no opening
/// bracket.
std::optional<std::string> ZoneIn(std::string_view text, char from, char to) {
    const std::size_t start = text.find(from);
    if (start == std::string_view::npos) return std::nullopt;
    const std::size_t end = Find(text, to, start);
    std::string digits = "00";
    digits += text.substr(start + 1, end - start - 1);
    return std::string(Right(digits, 2));
}

/// The text without the bracketed part at its end.
std::string_view WithoutBracket(std::string_view text, char from, char to) {
    return text.ends_with(to) ? text.substr(0, Find(text, from)) : text;
}

}  // namespace

CtyHeader ReadCtyHeader(std::string_view line) {
    CtyHeader header;
    header.name = line.substr(0, Find(line, ':'));
    header.continent = UpToColon(line, 37);
    header.prefix = UpToColon(line, 70);
    header.cqZone = Columns(line, 27, 2);
    header.ituZone = Columns(line, 32, 2);
    header.latitude = Columns(line, 41, 7);
    header.longitude = Columns(line, 51, 7);
    header.utcOffset = Columns(line, 62, 5);
    return header;
}

float ReadCtyNumber(std::string_view text) {
    return ToFloat32(NumericValue(text));
}

std::string_view CtyEntryReader::NextText() {
    const std::size_t start = column_ - 1;
    std::size_t end = line_.find(',', start);
    if (end == std::string_view::npos) end = Find(line_, ';', start);
    // The column just after the separator; columns count from 1, `end` from 0.
    column_ = end + 2;
    return line_.substr(start, end - start);
}

CtyEntry CtyEntryReader::TakeApart(std::string_view text, const CtyHeader& header) {
    CtyEntry entry{text, header.cqZone, header.ituZone, false};
    if (const auto zone = ZoneIn(text, '(', ')')) entry.cqZone = *zone;
    if (const auto zone = ZoneIn(text, '[', ']')) entry.ituZone = *zone;
    if (text.starts_with('=')) {
        entry.isExactCall = true;
        text.remove_prefix(1);
    }
    // The two bracketed zones may come in either order.
    for (int pass = 0; pass < 2; ++pass) {
        text = WithoutBracket(text, '(', ')');
        text = WithoutBracket(text, '[', ']');
    }
    entry.text = text;
    return entry;
}

}  // namespace vatro
