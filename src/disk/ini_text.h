// SPDX-License-Identifier: MIT
//
// The text of a settings file: sections in brackets, each with lines of the form key=value.
//
// The file is UTF-8; sections, keys and values are passed in the code page. Lines that are not changed are kept byte for byte,
// including comments. Values are written so that other readers of such files, Qt among them, read them correctly:
//
//     Band=80m                    plain
//     Tekst2="CL?, #R"            quoted if it contains , ; = or has blanks at either end
//     gsLogLib=C:\\log            escapes: \\ \" \n \r \t \a \b \f \v, and \xHEX for other control characters
//     Tekst5=@@home               a leading "@" is doubled
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// The parsed text of a settings file. Changing a value changes only its line.
class IniText {
public:
    IniText() = default;
    /// Accepts any text. Lines that are neither a section nor a key are kept and ignored.
    explicit IniText(std::string_view file);

    /// The value, or nothing if the key is missing. If a key occurs twice, the last one counts. Section and key names are not
    /// case-sensitive. A comma outside quotes, as in a file edited by hand, is returned followed by one blank.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    /// Changes the value where the key stands; a new key is added at the end of its section. Section and key names consist of
    /// letters and digits.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);

    /// The text of the whole file.
    std::string Text() const;

private:
    struct Line {
        /// The line as in the file, without its line ending.
        std::string text;
        /// Only set for a line with a key.
        std::string section;
        std::string key;
    };

    const Line* Find(std::string_view section, std::string_view key) const;

    std::vector<Line> lines_;
};

}  // namespace vatro
