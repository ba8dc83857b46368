// SPDX-License-Identifier: MIT
#include "directory_lock.h"

#include <condition_variable>
#include <fstream>
#include <iterator>
#include <mutex>
#include <random>
#include <system_error>

namespace vatro {

namespace fs = std::filesystem;

namespace {

/// Plain streams are good enough here: if one write of the pulse fails, the next one makes up for it.
std::string Content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool Write(const fs::path& file, const std::string& content) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << content;
    stream.close();
    return !stream.fail();
}

/// How long ago the file was written. The age is measured by the clock of the machine that owns the disk, by comparing with a probe
/// file that is written now.
std::chrono::milliseconds AgeOf(const fs::path& file, const std::string& name) {
    fs::path probe = file;
    probe += "." + name;
    std::error_code error;
    if (!Write(probe, name)) return std::chrono::milliseconds::zero();
    const auto now = fs::last_write_time(probe, error);
    fs::remove(probe, error);
    const auto then = fs::last_write_time(file, error);
    if (error) return std::chrono::milliseconds::zero();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now - then);
}

}  // namespace

DirectoryLock::DirectoryLock(Options options) : options_(std::move(options)) {
    std::random_device random;
    for (int i = 0; i < 3; ++i) name_ += std::to_string(random());
}

DirectoryLock::~DirectoryLock() {
    Release();
}

DirectoryLock::Result DirectoryLock::Acquire(const fs::path& directory, bool evenIfSilent) {
    Release();
    switch (options_.lock(file_, directory / "vatro.lock")) {
        case LockResult::Won:
            return Result::Won;
        case LockResult::Taken:
            return Result::Taken;
        case LockResult::Unavailable:
            return Result::Unavailable;
        case LockResult::NotSupported:
            break;
    }
    pulse_ = directory / "vatro.puls";
    const Result result = AcquireByPulse(evenIfSilent);
    if (result != Result::Won) pulse_.clear();
    return result;
}

DirectoryLock::Result DirectoryLock::AcquireByPulse(bool evenIfSilent) {
    std::error_code error;
    if (fs::exists(pulse_, error)) {
        if (AgeOf(pulse_, name_) < options_.silence) return Result::Taken;
        if (!evenIfSilent) return Result::Silent;
    }
    if (!Write(pulse_, name_)) return Result::Unavailable;
    lost_ = false;
    beating_ = std::jthread([this](const std::stop_token& stop) {
        std::mutex mutex;
        std::condition_variable_any wake;
        std::unique_lock lock(mutex);
        while (!wake.wait_for(lock, stop, options_.beat, [&] { return stop.stop_requested(); })) Beat();
    });
    return Result::Won;
}

void DirectoryLock::Beat() {
    std::error_code error;
    if (fs::exists(pulse_, error) && Content(pulse_) != name_) {
        lost_ = true;
        return;
    }
    Write(pulse_, name_);
}

void DirectoryLock::Release() noexcept {
    file_.Release();
    if (beating_.joinable()) {
        beating_.request_stop();
        beating_.join();
        std::error_code error;
        if (!lost_) fs::remove(pulse_, error);
    }
    pulse_.clear();
}

}  // namespace vatro
