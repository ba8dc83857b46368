// SPDX-License-Identifier: MIT
//
// The text of a settings file: sections in brackets, and lines of key, "=" and value in each.
//
// The file is UTF-8; sections, keys and values are given and taken in the code page. Lines that are not asked to change stay
// byte for byte, comments included. A value is written as other readers of such files (Qt's among them) read it back:
//
//     Band=80m                    plain
//     Tekst2="CL?, #R"            in quotes where it has , ; = or blanks at an end
//     gsLogLib=C:\\log            \\ \" \n \r \t \a \b \f \v and \xHEX for other control characters
//     Tekst5=@@home               an "@" in front is doubled
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

class IniText {
public:
    IniText() = default;
    /// Takes any text; lines that are neither a section nor a key are kept and mean nothing.
    explicit IniText(std::string_view file);

    /// The value, or nothing if the key is missing. Of a key that is there twice the last one counts. Sections and keys are compared
    /// without regard to case. Commas outside quotes, as a hand writes them, come with one blank behind.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    /// Changes the value where the key stands; a new key becomes the last of its section. Sections and keys are letters and figures.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);

    /// The whole file.
    std::string Text() const;

private:
    struct Line {
        /// As it stands in the file, without its end.
        std::string text;
        /// Of a line that holds a key.
        std::string section;
        std::string key;
    };

    const Line* Find(std::string_view section, std::string_view key) const;

    std::vector<Line> lines_;
};

}  // namespace vatro
