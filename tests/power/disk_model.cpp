// SPDX-License-Identifier: MIT
#include "power/disk_model.h"

#include <fstream>
#include <iterator>
#include <string_view>

namespace vatro {

namespace fs = std::filesystem;

namespace {

/// The suffix that the system shows for a file that has no name or has lost it.
constexpr std::string_view kNameless = " (deleted)";

/// Bytes of another file that used the same disk blocks earlier.
std::string Remains(std::size_t size) {
    constexpr std::string_view kOld = "\x7f\x45LF\x02\x01 of another file, \xfe\xff\x03";
    std::string remains;
    while (remains.size() < size) remains += kOld;
    return remains.substr(0, size);
}

}  // namespace

DiskState ReadDisk(const fs::path& directory) {
    DiskState state;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream stream(entry.path(), std::ios::binary);
        state[entry.path().lexically_relative(directory).string()] = {std::istreambuf_iterator<char>(stream), {}};
    }
    return state;
}

void WriteDisk(const fs::path& directory, const DiskState& state) {
    for (const auto& [path, content] : state) {
        fs::create_directories((directory / path).parent_path());
        std::ofstream(directory / path, std::ios::binary) << content;
    }
}

DiskModel::DiskModel(const DiskState& before) {
    for (const auto& [path, content] : before) {
        shownNames_[path] = files_.size();
        files_.push_back({content, content});
    }
    syncedNames_ = shownNames_;
}

void DiskModel::Do(const DiskCall& call) {
    const std::string path = call.path.string();
    switch (call.kind) {
        case DiskCall::Kind::Create:
            shownNames_[path] = files_.size();
            files_.emplace_back();
            break;
        case DiskCall::Kind::Write: {
            std::string& shown = Named(call.path).shown;
            if (shown.size() < call.at + call.bytes.size()) shown.resize(call.at + call.bytes.size());
            shown.replace(call.at, call.bytes.size(), call.bytes);
            break;
        }
        case DiskCall::Kind::Truncate:
            Named(call.path).shown.resize(call.at);
            break;
        case DiskCall::Kind::Sync:
            Named(call.path).synced = Named(call.path).shown;
            break;
        case DiskCall::Kind::SyncDirectory: {
            const auto inIt = [directory = call.path == "." ? fs::path() : call.path](const auto& name) {
                return fs::path(name.first).parent_path() == directory;
            };
            std::erase_if(syncedNames_, inIt);
            for (const auto& name : shownNames_)
                if (inIt(name)) syncedNames_.insert(name);
            break;
        }
        case DiskCall::Kind::Remove:
            shownNames_.erase(path);
            break;
        case DiskCall::Kind::Rename:
            shownNames_[call.to.string()] = shownNames_.at(path);
            shownNames_.erase(path);
            break;
        case DiskCall::Kind::Link:
            shownNames_[call.to.string()] = shownNames_.at(path);
            break;
        case DiskCall::Kind::Told:
            break;
    }
}

std::string DiskModel::File::Found(Taken taken) const {
    const bool goesOn = shown.starts_with(synced);
    switch (taken) {
        case Taken::All:
            return shown;
        case Taken::Half:
            return goesOn ? shown.substr(0, synced.size() + (shown.size() - synced.size()) / 2) : shown.substr(0, shown.size() / 2);
        case Taken::Length:
            return goesOn ? synced : std::string();
        case Taken::Zeros:
            return goesOn ? synced + std::string(shown.size() - synced.size(), '\0') : std::string(shown.size(), '\0');
        case Taken::Remains:
            return goesOn ? synced + Remains(shown.size() - synced.size()) : Remains(shown.size());
        case Taken::Nothing:
            break;
    }
    return synced;
}

DiskState DiskModel::Found(const Names& names, Taken taken) const {
    DiskState state;
    for (const auto& [path, file] : names)
        if (!path.ends_with(kNameless)) state[path] = files_[file].Found(taken);
    return state;
}

std::set<DiskState> DiskModel::AfterPowerCut() const {
    std::set<DiskState> states;
    for (const Names& names : {shownNames_, syncedNames_})
        for (const Taken taken : {Taken::All, Taken::Half, Taken::Length, Taken::Zeros, Taken::Remains, Taken::Nothing})
            states.insert(Found(names, taken));
    return states;
}

DiskState DiskModel::Shown() const {
    return Found(shownNames_, Taken::All);
}

}  // namespace vatro
