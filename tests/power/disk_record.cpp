// SPDX-License-Identifier: MIT
#include "power/disk_record.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <stdexcept>

namespace vatro {

namespace fs = std::filesystem;

namespace {

class Recorder {
public:
    Recorder(pid_t process, fs::path directory, int pipe)
        : process_(process), directory_(fs::canonical(directory)), pipe_(pipe), memory_(open(Proc("mem").c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~Recorder() { close(memory_); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// Lets the process continue until its end.
    std::vector<DiskCall> Follow() {
        for (int signal = 0;;) {
            if (ptrace(PTRACE_SYSCALL, process_, nullptr, signal) != 0) throw std::runtime_error("the process cannot be followed");
            int status = 0;
            waitpid(process_, &status, 0);
            if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return std::move(calls_);
            if (!WIFSTOPPED(status)) throw std::runtime_error("the process has failed");
            const bool call = WSTOPSIG(status) == (SIGTRAP | 0x80);
            signal = call ? 0 : WSTOPSIG(status);
            if (call) Look();
        }
    }

private:
    using Arguments = std::array<std::uint64_t, 6>;

    void Look() {
        __ptrace_syscall_info info{};
        if (ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof info, &info) <= 0) throw std::runtime_error("a call cannot be seen");
        if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
            for (std::size_t i = 0; i < arguments_.size(); ++i) arguments_[i] = info.entry.args[i];
            number_ = static_cast<long>(info.entry.nr);
            Enter();
        } else if (info.op == PTRACE_SYSCALL_INFO_EXIT) {
            Leave(info.exit.is_error != 0, info.exit.rval);
        }
    }

    /// Runs before the call, because some facts can no longer be asked for after it.
    void Enter() {
        pending_.clear();
        const auto begin = [this](DiskCall::Kind kind, const fs::path& path) -> DiskCall* {
            if (!IsBelow(path)) return nullptr;
            pending_.push_back({kind, path.lexically_relative(directory_), {}, {}, 0});
            return &pending_.back();
        };
        switch (number_) {
#ifdef SYS_open
            case SYS_open:
                return Open(PathFor(Text(arguments_[0]), process_), static_cast<int>(arguments_[1]), begin);
#endif
            case SYS_openat:
                return Open(PathAt(arguments_[0], arguments_[1]), static_cast<int>(arguments_[2]), begin);
            case SYS_write:
                if (static_cast<int>(arguments_[0]) == pipe_) {
                    pending_.push_back({DiskCall::Kind::Told, {}, {}, {}, 0});
                } else if (DiskCall* write = begin(DiskCall::Kind::Write, Opened())) {
                    write->at = Position(directory_ / write->path);
                }
                return;
            case SYS_ftruncate:
                if (DiskCall* truncate = begin(DiskCall::Kind::Truncate, Opened())) truncate->at = arguments_[1];
                return;
            case SYS_fsync:
            case SYS_fdatasync: {
                const fs::path path = Opened();
                begin(fs::is_directory(path) ? DiskCall::Kind::SyncDirectory : DiskCall::Kind::Sync, path);
                return;
            }
#ifdef SYS_unlink
            case SYS_unlink:
                begin(DiskCall::Kind::Remove, PathFor(Text(arguments_[0]), process_));
                return;
#endif
            case SYS_unlinkat:
                begin(DiskCall::Kind::Remove, PathAt(arguments_[0], arguments_[1]));
                return;
#ifdef SYS_rename
            case SYS_rename:
                return Rename(PathFor(Text(arguments_[0]), process_), PathFor(Text(arguments_[1]), process_), begin);
#endif
            case SYS_renameat:
            case SYS_renameat2:
                return Rename(PathAt(arguments_[0], arguments_[1]), PathAt(arguments_[2], arguments_[3]), begin);
            case SYS_linkat: {
                const fs::path from = PathAt(arguments_[0], arguments_[1]);
                // A file without a name gets one here.
                if (from.string().starts_with("/proc/")) return Rename(Target(from), PathAt(arguments_[2], arguments_[3]), begin);
                if (DiskCall* link = begin(DiskCall::Kind::Link, from))
                    link->to = PathAt(arguments_[2], arguments_[3]).lexically_relative(directory_);
                return;
            }
            case SYS_writev:
            case SYS_pwrite64:
            case SYS_fallocate:
                if (IsBelow(Opened())) throw std::runtime_error("a file is written by another call: " + std::to_string(number_));
                return;
            default:
                return;
        }
    }

    void Leave(bool failed, std::int64_t result) {
        if (failed) return pending_.clear();
        for (DiskCall& call : pending_) {
            if (call.kind == DiskCall::Kind::Create && (flags_ & O_TMPFILE) == O_TMPFILE)
                call.path = Target(Proc("fd/" + std::to_string(result))).lexically_relative(directory_);
            if (call.kind == DiskCall::Kind::Write) call.bytes = Memory(arguments_[1], static_cast<std::size_t>(result));
            calls_.push_back(std::move(call));
        }
        pending_.clear();
    }

    template <class Begin>
    void Open(const fs::path& path, int flags, Begin begin) {
        flags_ = flags;
        if ((flags & O_TMPFILE) == O_TMPFILE) {
            // The file has no name yet.
            begin(DiskCall::Kind::Create, path / "unnamed");
        } else if ((flags & O_CREAT) != 0 && !fs::exists(path)) {
            begin(DiskCall::Kind::Create, path);
        } else if ((flags & O_TRUNC) != 0) {
            begin(DiskCall::Kind::Truncate, path);
        }
    }

    template <class Begin>
    void Rename(const fs::path& from, const fs::path& to, Begin begin) {
        if (DiskCall* rename = begin(DiskCall::Kind::Rename, from)) rename->to = to.lexically_relative(directory_);
    }

    std::string Proc(const std::string& name) const {
        return "/proc/" + std::to_string(process_) + "/" + name;
    }
    bool IsBelow(const fs::path& path) const {
        return (path.string() + "/").starts_with(directory_.string() + "/");
    }
    /// The file of the call's first argument.
    fs::path Opened() const {
        std::error_code none;
        return fs::read_symlink(Proc("fd/" + std::to_string(static_cast<int>(arguments_[0]))), none);
    }
    fs::path PathAt(std::uint64_t directory, std::uint64_t text) const {
        const fs::path path = Text(text);
        if (path.is_absolute()) return PathFor(path, process_);
        const int handle = static_cast<int>(directory);
        return fs::read_symlink(Proc(handle == AT_FDCWD ? "cwd" : "fd/" + std::to_string(handle))) / path;
    }
    /// The path of an open file descriptor of the process.
    fs::path Target(fs::path path) const {
        if (path.string().starts_with("/proc/self/")) path = Proc(path.string().substr(std::string("/proc/self/").size()));
        std::error_code none;
        const fs::path target = fs::read_symlink(path, none);
        return none ? path : target;
    }
    /// The offset of the next write to the file of the first argument.
    std::size_t Position(const fs::path& path) const {
        std::ifstream info(Proc("fdinfo/" + std::to_string(static_cast<int>(arguments_[0]))));
        std::string name;
        std::size_t position = 0;
        int flags = 0;
        info >> name >> position >> name >> std::oct >> flags;
        return (flags & O_APPEND) != 0 ? fs::file_size(path) : position;
    }
    std::string Text(std::uint64_t address) const {
        std::string text;
        for (char c = 0; pread(memory_, &c, 1, static_cast<off_t>(address++)) == 1 && c != '\0';) text += c;
        return text;
    }
    std::string Memory(std::uint64_t address, std::size_t count) const {
        std::string bytes(count, '\0');
        if (pread(memory_, bytes.data(), count, static_cast<off_t>(address)) != static_cast<ssize_t>(count))
            throw std::runtime_error("what is written cannot be read");
        return bytes;
    }

    pid_t process_;
    fs::path directory_;
    int pipe_;
    int memory_;
    long number_ = 0;
    Arguments arguments_{};
    /// The flags of the last open call.
    int flags_ = 0;
    /// The changes that the current call makes if it succeeds.
    std::vector<DiskCall> pending_;
    std::vector<DiskCall> calls_;
};

}  // namespace

fs::path PathFor(const fs::path& path, int process) {
    const fs::path self("/proc/self/fd");
    const auto [end, rest] = std::mismatch(self.begin(), self.end(), path.begin(), path.end());
    if (end != self.end() || rest == path.end()) return path;
    std::error_code none;
    fs::path whole = fs::read_symlink(fs::path("/proc") / std::to_string(process) / "fd" / *rest, none);
    for (auto part = std::next(rest); part != path.end(); ++part) whole /= *part;
    return whole;
}

bool CanRecord() {
    const pid_t child = fork();
    if (child == 0) _exit(ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0 ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::vector<DiskCall> RecordCalls(const fs::path& directory, const std::function<void(const Teller&)>& life) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        try {
            life(Teller(ends[1]));
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    const auto done = [&] {
        close(ends[0]);
        close(ends[1]);
    };
    try {
        std::vector<DiskCall> calls = Recorder(child, directory, ends[1]).Follow();
        done();
        return calls;
    } catch (...) {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        done();
        throw;
    }
}

}  // namespace vatro
