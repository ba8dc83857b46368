// SPDX-License-Identifier: MIT
#include "child_process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "temporary_directory.h"

namespace vatro {

namespace {

std::string Content(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

ProcessResult RunProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::filesystem::path& directory) {
    const TemporaryDirectory told;
    const std::filesystem::path out = told.Path() / "out.txt";
    const std::filesystem::path err = told.Path() / "err.txt";
    std::vector<std::string> words{program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char*> argv;
        for (std::string& word : words) argv.push_back(word.data());
        argv.push_back(nullptr);
        if (chdir(directory.c_str()) != 0 || std::freopen(out.c_str(), "w", stdout) == nullptr ||
            std::freopen(err.c_str(), "w", stderr) == nullptr)
            _exit(127);
        execv(argv.front(), argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Content(out), Content(err)};
}

}  // namespace vatro
