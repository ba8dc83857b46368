// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

#include "power/disk_record.h"

namespace vatro {

namespace fs = std::filesystem;

namespace {

class Spoiler {
public:
    Spoiler(pid_t process, fs::path directory, DiskFault fault)
        : process_(process),
          directory_(fs::canonical(directory)),
          fault_(fault),
          memory_(open(Proc("mem").c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~Spoiler() { close(memory_); }
    Spoiler(const Spoiler&) = delete;
    Spoiler& operator=(const Spoiler&) = delete;

    std::string Follow() {
        bool entered = false;
        for (int signal = 0;;) {
            if (ptrace(PTRACE_SYSCALL, process_, nullptr, signal) != 0) throw std::runtime_error("the process cannot be followed");
            int status = 0;
            waitpid(process_, &status, 0);
            if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return spoiled_;
            if (!WIFSTOPPED(status)) throw std::runtime_error("the process has failed at " + spoiled_);
            const bool call = WSTOPSIG(status) == (SIGTRAP | 0x80);
            signal = call ? 0 : WSTOPSIG(status);
            if (!call) continue;
            entered = !entered;
            entered ? Enter() : Leave();
        }
    }

private:
    /// The name of the call and the path that it touches.
    std::pair<std::string, fs::path> Touched(const user_regs_struct& call) const {
        switch (call.orig_rax) {
            case SYS_openat:
                return {"open", PathFor(Text(call.rsi), process_)};
            case SYS_read:
                return {"read", Opened(call.rdi)};
            case SYS_write:
                return {"write", Opened(call.rdi)};
            case SYS_fdatasync:
                return {"fdatasync", Opened(call.rdi)};
            case SYS_fsync:
                return {"fsync", Opened(call.rdi)};
            case SYS_ftruncate:
                return {"ftruncate", Opened(call.rdi)};
            case SYS_close:
                return {"close", Opened(call.rdi)};
            case SYS_rename:
                return {"rename", PathFor(Text(call.rdi), process_)};
            case SYS_linkat:
                return {"link", PathFor(Text(call.rsi), process_)};
            case SYS_unlink:
                return {"unlink", PathFor(Text(call.rdi), process_)};
            case SYS_mkdir:
                return {"mkdir", PathFor(Text(call.rdi), process_)};
            default:
                return {};
        }
    }

    void Enter() {
        user_regs_struct call{};
        ptrace(PTRACE_GETREGS, process_, nullptr, &call);
        const auto [name, path] = Touched(call);
        if (name.empty() || !(path.string() + "/").starts_with(directory_.string() + "/")) return;
        if (count_++ != fault_.call) return;
        spoiled_ = name + " " + path.lexically_relative(directory_).string();
        if (fault_.error == 0) {
            if (name == "write" && call.rdx > 1) call.rdx /= 2;
        } else if (name == "close") {
            // The file is closed even though the call fails.
            failing_ = true;
        } else {
            call.orig_rax = static_cast<unsigned long long>(-1);
            failing_ = true;
        }
        ptrace(PTRACE_SETREGS, process_, nullptr, &call);
    }

    void Leave() {
        if (!std::exchange(failing_, false)) return;
        user_regs_struct call{};
        ptrace(PTRACE_GETREGS, process_, nullptr, &call);
        call.rax = static_cast<unsigned long long>(-static_cast<long long>(fault_.error));
        ptrace(PTRACE_SETREGS, process_, nullptr, &call);
    }

    std::string Proc(const std::string& name) const { return "/proc/" + std::to_string(process_) + "/" + name; }
    fs::path Opened(unsigned long long file) const {
        std::error_code none;
        return fs::read_symlink(Proc("fd/" + std::to_string(static_cast<int>(file))), none);
    }
    std::string Text(unsigned long long address) const {
        std::string text;
        for (char c = 0; pread(memory_, &c, 1, static_cast<off_t>(address++)) == 1 && c != '\0';) text += c;
        return text;
    }

    pid_t process_;
    fs::path directory_;
    DiskFault fault_;
    int memory_;
    std::size_t count_ = 0;
    bool failing_ = false;
    std::string spoiled_;
};

}  // namespace

std::string RunWithFault(const fs::path& directory, const DiskFault& fault, const std::function<void()>& life) {
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        try {
            life();
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    try {
        return Spoiler(child, directory, fault).Follow();
    } catch (...) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        throw;
    }
}

}  // namespace vatro
