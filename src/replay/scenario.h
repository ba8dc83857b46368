// SPDX-License-Identifier: MIT
//
// A scenario file as commands with their expected output lines.
//
// Empty lines and lines that begin with "#" are comments; "> " begins an expected output line of the command above it,
// "| " a content line of it. Everything else is a command: a word, then its arguments, split at blanks; an argument in
// double quotes may hold blanks and the escapes \" \\ \n (CR LF) \t \f.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// The scenario cannot be played on; told with file and line number.
class ScenarioError : public std::runtime_error {
public:
    ScenarioError(std::size_t line, const std::string& what) : std::runtime_error(what), line_(line) {}
    /// From 1; 0 for the file as a whole.
    std::size_t Line() const { return line_; }

private:
    std::size_t line_;
};

struct Command {
    /// From 1.
    std::size_t line = 0;
    std::string name;
    /// Without quotes and escapes, in the code page.
    std::vector<std::string> arguments;
    /// All arguments as one text in the code page: the rest of the line as it stands behind one blank, or what stands
    /// in quotes if all of it does.
    std::string rest;
    /// An empty text in quotes is one, too.
    bool hasRest = false;
    /// The content lines, in the code page.
    std::vector<std::string> content;
    /// As they stand in the file, in UTF-8, without "> ".
    std::vector<std::string> expected;
    /// The number of file lines in front of the output lines.
    std::size_t outputAt = 0;
};

using Output = std::vector<std::string>;

class Scenario {
public:
    /// `text` is the file's content; fails with ScenarioError.
    explicit Scenario(std::string_view text);

    const std::vector<Command>& Commands() const { return commands_; }
    /// The file's text with these output lines, one list per command, instead of its own.
    std::string WithOutput(const std::vector<Output>& output) const;
    /// Whether these are the expected output lines.
    bool Matches(const std::vector<Output>& output) const;
    /// A unified diff from the expected to these output lines; empty if they match.
    std::string Diff(const std::string& fileName, const std::vector<Output>& output) const;

private:
    struct Line {
        std::string text;
        bool isOutput = false;
    };
    void ParseLine(const std::string& line);

    std::vector<Line> lines_;
    std::vector<Command> commands_;
    std::string lineEnd_ = "\n";
    bool endsWithLineEnd_ = true;
};

/// A text in double quotes with the escapes; a single CR or LF is written as a line end too. From the code page to UTF-8.
std::string Quoted(std::string_view text);

}  // namespace vatro
