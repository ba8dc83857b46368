// SPDX-License-Identifier: MIT
#include "settings_store.h"

#include <fstream>

#include "codepage.h"

namespace vatro {

namespace {

std::string Escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\\')
            result += "\\\\";
        else if (c == '\r')
            result += "\\r";
        else if (c == '\n')
            result += "\\n";
        else
            result += c;
    }
    return result;
}

std::string Unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        ++i;
        result += text[i] == 'r' ? '\r' : text[i] == 'n' ? '\n' : text[i];
    }
    return result;
}

}  // namespace

SettingsStore::SettingsStore(std::optional<std::filesystem::path> file) : file_(std::move(file)) {
    if (!file_) return;
    std::ifstream stream(*file_, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        const std::size_t first = line.find('\t');
        const std::size_t second = line.find('\t', first + 1);
        if (first == std::string::npos || second == std::string::npos) continue;
        texts_[{line.substr(0, first), line.substr(first + 1, second - first - 1)}] = Unescaped(std::string_view(line).substr(second + 1));
    }
}

std::optional<std::string> SettingsStore::Read(std::string_view section, std::string_view key) {
    const auto found = texts_.find({UpperText(section), UpperText(key)});
    if (found == texts_.end()) return std::nullopt;
    return found->second;
}

void SettingsStore::Write(std::string_view section, std::string_view key, std::string_view text) {
    texts_[{UpperText(section), UpperText(key)}] = text;
    if (file_) Save();
}

void SettingsStore::Save() const {
    std::ofstream stream(*file_, std::ios::binary | std::ios::trunc);
    for (const auto& [name, text] : texts_) stream << name.first << '\t' << name.second << '\t' << Escaped(text) << '\n';
    stream.close();
    if (stream.fail()) throw RunTimeError(Failure::PathFileAccess);
}

}  // namespace vatro
