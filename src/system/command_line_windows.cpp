// SPDX-License-Identifier: MIT
#include "command_line.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

// Must follow windows.h.
#include <shellapi.h>

#include <cstdio>
#include <filesystem>

namespace vatro {

std::vector<std::string> CommandLine(int, char**) {
    for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
    // The arguments passed to main have already been converted to the machine's code page, so fetch the originals.
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 0; i < count; ++i) {
        const std::u8string utf8 = std::filesystem::path(words[i]).u8string();
        arguments.emplace_back(utf8.begin(), utf8.end());
    }
    LocalFree(words);
    return arguments;
}

}  // namespace vatro
