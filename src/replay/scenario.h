// SPDX-License-Identifier: MIT
//
// Parses a scenario file into commands with their expected output lines.
//
// Empty lines and lines starting with "#" are comments. A line starting with "> " is an expected output line of the command above it,
// and "| " starts a content line of that command. Every other line is a command: a word followed by arguments, separated by blanks.
// An argument in double quotes may contain blanks and the escapes \" \\ \n (CR LF) \t \f.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// Thrown if the scenario cannot be played any further. Reported with file name and line number.
class ScenarioError : public std::runtime_error {
public:
    ScenarioError(std::size_t line, const std::string& what) : std::runtime_error(what), line_(line) {}
    /// Counted from 1; 0 stands for the whole file.
    std::size_t Line() const { return line_; }

private:
    std::size_t line_;
};

/// One command of a scenario.
struct Command {
    /// Line number, counted from 1.
    std::size_t line = 0;
    std::string name;
    /// Without quotes and with escapes resolved, in the code page.
    std::vector<std::string> arguments;
    /// All arguments as one text in the code page: the rest of the line after one blank, exactly as written. If the whole rest is
    /// quoted, the text inside the quotes.
    std::string rest;
    /// Whether there is a rest; an empty text in quotes counts.
    bool hasRest = false;
    /// The content lines, in the code page.
    std::vector<std::string> content;
    /// The expected output as in the file, in UTF-8, without "> ".
    std::vector<std::string> expected;
    /// The number of lines in the file before the output lines.
    std::size_t outputAt = 0;
};

using OutputLines = std::vector<std::string>;

/// A parsed scenario file.
class Scenario {
public:
    /// `text` is the content of the file. Fails with ScenarioError.
    explicit Scenario(std::string_view text);

    const std::vector<Command>& Commands() const { return commands_; }
    /// The text of the file with its output lines replaced by these, given as one list per command.
    std::string WithOutput(const std::vector<OutputLines>& output) const;
    /// Whether these are the expected output lines.
    bool Matches(const std::vector<OutputLines>& output) const;
    /// A unified diff from the expected output lines to these; empty if they match.
    std::string Diff(const std::string& fileName, const std::vector<OutputLines>& output) const;

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

/// Puts a text in double quotes and escapes it; a lone CR or LF is also written as \n. Converts from the code page to UTF-8.
std::string Quoted(std::string_view text);

}  // namespace vatro
