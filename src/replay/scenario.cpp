// SPDX-License-Identifier: MIT
#include "scenario.h"

#include <algorithm>

#include "codepage.h"
#include "diff.h"

namespace vatro {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

/// Reads the quoted text that starts at `at` and moves `at` past it. Returns false if the closing quote is missing.
bool ReadQuoted(std::string_view line, std::size_t& at, std::string& text) {
    for (std::size_t i = at + 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            at = i + 1;
            return true;
        }
        if (line[i] != '\\' || i + 1 == line.size()) {
            text += line[i];
            continue;
        }
        switch (line[++i]) {
            case '"':
                text += '"';
                break;
            case '\\':
                text += '\\';
                break;
            case 'n':
                text += "\r\n";
                break;
            case 't':
                text += '\t';
                break;
            case 'f':
                text += '\f';
                break;
            default:
                text += '\\';
                text += line[i];
        }
    }
    return false;
}

bool TakesRest(const std::string& command) {
    return command == "type" || command == "paste";
}

/// The argument of a command that takes the rest of the line.
std::string RestOf(std::string_view line, std::size_t at) {
    if (at < line.size()) ++at;
    const std::string_view rest = line.substr(at);
    std::size_t end = 0;
    std::string quoted;
    if (!rest.empty() && rest.front() == '"' && ReadQuoted(rest, end, quoted) &&
        std::all_of(rest.begin() + static_cast<std::ptrdiff_t>(end), rest.end(), IsBlank))
        return FromUtf8(quoted);
    return FromUtf8(rest);
}

std::vector<std::string> SplitArguments(std::string_view line, std::size_t at, std::size_t number) {
    std::vector<std::string> arguments;
    while (true) {
        while (at < line.size() && IsBlank(line[at])) ++at;
        if (at == line.size()) return arguments;
        std::string text;
        if (line[at] == '"') {
            if (!ReadQuoted(line, at, text)) throw ScenarioError(number, "a closing quote is missing");
            if (at < line.size() && !IsBlank(line[at])) throw ScenarioError(number, "a blank is missing behind the closing quote");
        } else {
            while (at < line.size() && !IsBlank(line[at])) text += line[at++];
        }
        arguments.push_back(FromUtf8(text));
    }
}

}  // namespace

Scenario::Scenario(std::string_view text) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    while (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    if (const std::size_t first = text.find('\n'); first != std::string_view::npos && first > 0 && text[first - 1] == '\r')
        lineEnd_ = "\r\n";
    endsWithLineEnd_ = text.empty() || text.back() == '\n';
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string line(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        // An editor may have added several.
        while (line.ends_with('\r')) line.pop_back();
        ParseLine(line);
    }
}

void Scenario::ParseLine(const std::string& line) {
    const std::size_t number = lines_.size() + 1;
    // An editor may have removed the trailing blank of an empty output or content line.
    const bool isOutput = line.starts_with("> ") || line == ">";
    const bool isContent = line.starts_with("| ") || line == "|";
    lines_.push_back({line, isOutput});
    if (isOutput || isContent) {
        if (commands_.empty()) throw ScenarioError(number, "there is no command above");
        Command& command = commands_.back();
        const std::string text = line.size() > 2 ? line.substr(2) : std::string{};
        if (isOutput) {
            if (command.expected.empty()) command.outputAt = number - 1;
            command.expected.push_back(text);
            return;
        }
        if (command.name != "file") throw ScenarioError(number, "only the command file has content lines");
        if (command.expected.empty()) command.outputAt = number;
        command.content.push_back(FromUtf8(text));
        return;
    }
    std::size_t at = 0;
    while (at < line.size() && IsBlank(line[at])) ++at;
    if (at == line.size() || line.front() == '#') return;
    Command command;
    command.line = number;
    command.outputAt = number;
    while (at < line.size() && !IsBlank(line[at])) command.name += line[at++];
    if (TakesRest(command.name)) {
        command.rest = RestOf(line, at);
        command.hasRest = at + 1 < line.size();
    } else {
        command.arguments = SplitArguments(line, at, number);
    }
    commands_.push_back(std::move(command));
}

std::string Scenario::WithOutput(const std::vector<OutputLines>& output) const {
    std::string text;
    const auto add = [&](const std::string& line) { text.append(line).append(lineEnd_); };
    std::size_t command = 0;
    for (std::size_t i = 0; i <= lines_.size(); ++i) {
        for (; command < commands_.size() && commands_[command].outputAt == i; ++command)
            for (const std::string& line : output[command]) add("> " + line);
        if (i < lines_.size() && !lines_[i].isOutput) add(lines_[i].text);
    }
    if (!endsWithLineEnd_ && !text.empty()) text.resize(text.size() - lineEnd_.size());
    return text;
}

bool Scenario::Matches(const std::vector<OutputLines>& output) const {
    for (std::size_t i = 0; i < commands_.size(); ++i)
        if (commands_[i].expected != output[i]) return false;
    return true;
}

std::string Scenario::Diff(const std::string& fileName, const std::vector<OutputLines>& output) const {
    if (Matches(output)) return {};
    UnifiedDiff diff(fileName, fileName + " (played)");
    std::size_t command = 0;
    for (std::size_t i = 0; i <= lines_.size(); ++i) {
        for (; command < commands_.size() && commands_[command].outputAt == i; ++command)
            diff.Compare(commands_[command].expected, output[command], "> ");
        if (i < lines_.size() && !lines_[i].isOutput) diff.Same(lines_[i].text);
    }
    return diff.Text();
}

std::string Quoted(std::string_view text) {
    std::string result = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
            case '"':
                result += "\\\"";
                break;
            case '\\':
                result += "\\\\";
                break;
            case '\r':
                if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
                [[fallthrough]];
            case '\n':
                result += "\\n";
                break;
            case '\t':
                result += "\\t";
                break;
            case '\f':
                result += "\\f";
                break;
            default:
                result += text[i];
        }
    }
    return ToUtf8(result + '"');
}

}  // namespace vatro
