// SPDX-License-Identifier: MIT
//
// Reads a file of arbitrary bytes line by line and compares the result with a plain split at CR LF, CR or LF.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "disk_files.h"

namespace {

std::vector<std::string> Split(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        std::size_t end = 0;
        while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
        lines.emplace_back(text.substr(0, end));
        if (text.substr(end, 2) == "\r\n") ++end;
        text.remove_prefix(end < text.size() ? end + 1 : end);
    }
    return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vatro;
    static const std::string name = "lines-fuzz.tmp";
    std::FILE* const out = std::fopen(name.c_str(), "wb");
    if (out == nullptr || std::fwrite(data, 1, size, out) != size || std::fclose(out) != 0) return 0;
    DiskFiles files;
    files.Open(1, name, FileMode::Input);
    std::vector<std::string> lines;
    while (!files.EndOfFile(1)) lines.push_back(files.LineInput(1));
    files.Close(1);
    if (lines != Split({reinterpret_cast<const char*>(data), size})) __builtin_trap();
    return 0;
}
