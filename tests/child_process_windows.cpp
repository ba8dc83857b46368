// SPDX-License-Identifier: MIT
#include "child_process.h"

#include <windows.h>

#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "names.h"
#include "temporary_directory.h"

namespace vatro {

namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A file that a child process may write to.
HANDLE Inherited(const fs::path& path) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

fs::path BesideTheTests(const fs::path& program) {
    std::array<wchar_t, 1024> tests{};
    if (GetModuleFileNameW(nullptr, tests.data(), static_cast<DWORD>(tests.size() - 1)) == 0) throw std::runtime_error("no program");
    return fs::path(tests.data()).parent_path() / program.filename();
}

}  // namespace

ProcessResult RunProcess(const fs::path& program, const std::vector<std::string>& arguments, const fs::path& directory) {
    const TemporaryDirectory told;
    const fs::path out = told.Path() / "out.txt";
    const fs::path err = told.Path() / "err.txt";
    const fs::path itself = BesideTheTests(program);
    // No test has a quote in an argument, so quotes need no escaping.
    std::wstring words = L'"' + itself.wstring() + L'"';
    for (const std::string& argument : arguments) words += L" \"" + PathOfUtf8(argument).wstring() + L'"';
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = Inherited(out);
    start.hStdError = Inherited(err);
    PROCESS_INFORMATION process{};
    const bool started =
        CreateProcessW(itself.c_str(), words.data(), nullptr, nullptr, TRUE, 0, nullptr, directory.c_str(), &start, &process) != 0;
    CloseHandle(start.hStdOutput);
    CloseHandle(start.hStdError);
    if (!started) return {};
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD exit = 0;
    const bool ended = GetExitCodeProcess(process.hProcess, &exit) != 0;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return {ended ? static_cast<int>(exit) : -1, Content(out), Content(err)};
}

}  // namespace vatro
