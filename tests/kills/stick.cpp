// SPDX-License-Identifier: MIT
#include "kills/stick.h"

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace vatro {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFiller = "fill";

[[noreturn]] void GiveUp(const char* what) {
    std::perror(what);
    std::exit(2);
}

}  // namespace

Stick::Stick(const fs::path& directory) : point_(directory / "stick"), volume_(directory / "volume"), aside_(directory / "pulled") {
    fs::create_directory(point_);
    fs::create_directory(volume_);
    mounts_ = mount("vatro-stick", volume_.c_str(), "tmpfs", 0, "size=256k") == 0;
    if (mounts_) {
        if (mount(volume_.c_str(), point_.c_str(), nullptr, MS_BIND, nullptr) != 0) GiveUp("mount");
        return;
    }
    fs::remove(volume_);
    volume_ = point_;
}

Stick::~Stick() {
    if (!mounts_) return;
    if (!pulled_) umount2(point_.c_str(), MNT_DETACH);
    umount2(volume_.c_str(), MNT_DETACH);
}

void Stick::Pull() {
    if (mounts_) {
        if (umount2(point_.c_str(), MNT_DETACH) != 0) GiveUp("umount");
    } else {
        fs::rename(point_, aside_);
        fs::create_directory(point_);
    }
    pulled_ = true;
}

void Stick::BringBack() {
    if (mounts_) {
        if (mount(volume_.c_str(), point_.c_str(), nullptr, MS_BIND, nullptr) != 0) GiveUp("mount");
    } else {
        fs::remove(point_);
        fs::rename(aside_, point_);
    }
    pulled_ = false;
}

void Stick::Fill() {
    if (!mounts_) return;
    const int file = open((volume_ / kFiller).c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
    if (file < 0) return;
    const std::string block(4096, 'x');
    while (write(file, block.data(), block.size()) > 0) continue;
    close(file);
}

void Stick::MakeRoom() {
    std::error_code error;
    fs::remove(volume_ / kFiller, error);
}

}  // namespace vatro
