// SPDX-License-Identifier: MIT
#include "safe_files.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "codepage.h"
#include "errors.h"
#include "joined.h"
#include "lines.h"
#include "whole_file.h"

namespace vatro {

using namespace literals;

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kCopyName = "FDkopi.txt";
/// A size that no file can have.
constexpr std::size_t kUnlike = static_cast<std::size_t>(-1);

bool HasName(const fs::path& file, std::string_view name) {
    return EqualNoCase(NativeText(file.filename()), name);
}

/// Whether the file is a table. Loading a table that is too long leaves it open on purpose, and nothing reads it after that.
bool IsTable(const fs::path& file) {
    return HasName(file, "lande.txt") || HasName(file, "refpfx.txt") || HasName(file, "edr.txt");
}

/// The normal form of a directory, with or without a trailing separator.
fs::path Normal(const fs::path& directory) {
    fs::path normal = directory.lexically_normal();
    return normal.has_filename() || !normal.has_relative_path() ? normal : normal.parent_path();
}

/// Reports the end of writing a log, however it ends.
class EndOfWriting {
public:
    EndOfWriting(const fs::path& file, const std::function<void(const fs::path&)>& ended) : file_(file), ended_(ended) {}
    ~EndOfWriting() {
        if (IsLogName(file_)) ended_(file_);
    }
    EndOfWriting(const EndOfWriting&) = delete;
    EndOfWriting& operator=(const EndOfWriting&) = delete;

private:
    const fs::path& file_;
    const std::function<void(const fs::path&)>& ended_;
};

}  // namespace

bool IsLogName(const fs::path& file) {
    const std::string name = UpperText(NativeText(file.filename()));
    return name.starts_with("FD") && (name.ends_with("SSB.TXT") || name.ends_with("CW.TXT"));
}

SafeFiles::SafeFiles(Files& disk, Surroundings surroundings) : disk_(disk), surroundings_(std::move(surroundings)) {}

History SafeFiles::HistoryOf(const fs::path& directory) const {
    return {directory, HistoryElsewhere(surroundings_.state, directory), surroundings_.now};
}

SafeFiles::Slot* SafeFiles::SlotOf(int number) {
    if (number != 1 && number != 2) return nullptr;
    auto& slot = slots_[static_cast<std::size_t>(number - 1)];
    return slot ? &*slot : nullptr;
}

/// Where the path leads on the disk. Nothing if it cannot be converted; the disk then reports the failure itself.
std::optional<fs::path> SafeFiles::PathTo(std::string_view path) const {
    if (path.empty() || path.find('\0') != std::string_view::npos) return std::nullopt;
    try {
        fs::path spelled = surroundings_.toPath(path);
        std::error_code error;
        if (fs::exists(spelled, error)) return spelled;
        return FindPath(spelled).path;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool SafeFiles::Lock(DirectoryLock& lock, const fs::path& directory) const {
    DirectoryLock::Result result = lock.Acquire(directory);
    if (result == DirectoryLock::Result::Silent && surroundings_.askSilent()) result = lock.Acquire(directory, true);
    return result == DirectoryLock::Result::Won || result == DirectoryLock::Result::Unavailable;
}

bool SafeFiles::TakeDirectory(std::string_view directory) {
    const auto path = PathTo(directory);
    if (!path) return true;
    lock_ = std::make_unique<DirectoryLock>(surroundings_.lock);
    if (!Lock(*lock_, *path)) {
        lock_.reset();
        return false;
    }
    place_ = Place{Normal(*path), IdentityOf(*path)};
    surroundings_.directoryWon(*path);
    return true;
}

void SafeFiles::Tell(Matter matter, const fs::path& about, std::string text) {
    if (told_.emplace(matter, about).second) notices_.push_back(std::move(text));
}

/// Like Tell, but repeats a message that the operator has already read.
void SafeFiles::TellAgain(std::string text) {
    if (std::find(notices_.begin(), notices_.end(), text) == notices_.end()) notices_.push_back(std::move(text));
}

std::vector<std::string> SafeFiles::TakeNotices() {
    if (lock_ && lock_->Lost())
        Tell(Matter::Lock, place_->directory,
             std::string("En anden udgave af Vatro har overtaget logbiblioteket, mens denne ikke kunne nå det.\r\n\r\n"
                         "Afslut en af de to, før I logger videre. Ellers bliver de samme numre givet to gange."_t));
    return std::exchange(notices_, {});
}

void SafeFiles::CloseLeftovers() noexcept {
    for (const int number : {1, 2}) {
        if (SlotOf(number) == nullptr) continue;
        try {
            Close(number);
        } catch (const RunTimeError&) {
            // The handler that left the file open has reported its own failure.
            continue;
        }
    }
}

// --- The log directory

/// Fails with 76 if `file` is in the log directory and that is no longer the directory that was locked.
void SafeFiles::CheckPlace(const fs::path& file) const {
    if (!place_ || Normal(file.parent_path()) != place_->directory) return;
    if (IdentityOf(place_->directory) != place_->identity || !place_->identity) throw RunTimeError(Failure::PathNotFound);
}

void SafeFiles::ChooseDirectory(int number, std::string_view path, const fs::path& marker) {
    const fs::path directory = Normal(marker.parent_path());
    const auto identity = IdentityOf(directory);
    const bool same = place_ && identity && place_->identity == identity;
    std::unique_ptr<DirectoryLock> lock;
    if (!same) {
        lock = std::make_unique<DirectoryLock>(surroundings_.lock);
        if (!Lock(*lock, directory)) {
            surroundings_.tellTaken();
            throw RunTimeError(Failure::PermissionDenied);
        }
    }
    disk_.Open(number, path, FileMode::Output);
    place_ = Place{directory, identity};
    if (same) return;
    lock_ = std::move(lock);
    surroundings_.directoryWon(directory);
}

// --- Opening

void SafeFiles::Open(int number, std::string_view path, FileMode mode) {
    if (Slot* open = SlotOf(number); open != nullptr && open->mode == FileMode::Input && IsTable(open->path)) Close(number);
    const auto file = PathTo(path);
    if (!file || SlotOf(number) != nullptr) return disk_.Open(number, path, mode);
    if (IsNoFile(*file)) throw RunTimeError(Failure::PathFileAccess);
    switch (mode) {
        case FileMode::Input:
            if (IsLogName(*file)) return OpenLogToRead(number, path, *file);
            disk_.Open(number, path, mode);
            break;
        case FileMode::Append:
            return Write(*file, [&] { OpenToAppend(number, path, *file); });
        case FileMode::Output:
            if (HasName(*file, kLogMarker))
                ChooseDirectory(number, path, *file);
            else
                Write(*file, [&] { OpenToWrite(number, path, *file); });
            break;
    }
    Slot slot;
    slot.path = *file;
    slot.mode = mode;
    const std::size_t separator = path.find_last_of(disk_.Separator());
    if (mode == FileMode::Output && HasName(*file, kLogMarker) && separator != std::string_view::npos)
        slot.chosen = path.substr(0, separator);
    if (mode == FileMode::Output && IsLogName(*file)) surroundings_.writeBegins();
    slots_[static_cast<std::size_t>(number - 1)] = std::move(slot);
}

void SafeFiles::OpenLogToRead(int number, std::string_view path, const fs::path& file) {
    // Open the file on the disk, too, so that the number is taken and failures are the disk's own.
    try {
        disk_.Open(number, path, FileMode::Input);
    } catch (const RunTimeError& failure) {
        if (SizeOf(file) > 0 && failure.Which() != Failure::FileAlreadyOpen)
            TellAgain(Joined({NativeText(file.filename()), " kan ikke åbnes (fejl "_t, std::to_string(failure.Number()),
                              "). Loggen ser tom ud, men er det ikke.\r\n\r\nLog ikke på båndet, før den kan læses: se, om disken er sat "
                              "rigtigt til, og "
                              "vælg båndet igen."_t}));
        throw;
    }
    auto& place = slots_[static_cast<std::size_t>(number - 1)];
    place = Slot{};
    Slot& slot = *place;
    slot.path = file;
    try {
        ReadResult read = ReadWhatIsThere(file);
        slot.whole = read.whole;
        slot.content = std::move(read.content);
    } catch (const RunTimeError&) {
        place.reset();
        disk_.Close(number);
        throw;
    }
    slot.text = ReadLogText(*slot.content);
    if (!slot.whole) {
        TellAgain(
            Joined({"Disken kunne kun læse begyndelsen af "_t, NativeText(file.filename()), ": ", std::to_string(slot.text.lines.size()),
                    " linjer.\r\n\r\nIntet er slettet, men løbenummer, point og dubletter kan være forkerte. Vælg båndet igen for at læse "
                    "loggen en gang til. Hjælper det ikke, så afslut, og tag en kopi af filen."_t}));
        return;
    }
    if (slot.text.damagedInside > 0)
        Tell(
            Matter::Inside, file,
            Joined(
                {"Midt i "_t, NativeText(file.filename()), " er "_t, std::to_string(slot.text.damagedInside),
                 " linjer ødelagt. Det, der ikke kan læses af dem, vises ikke.\r\n\r\nHent de manglende kontakter fra en backup eller fra historik."_t}));
    if (slot.text.damagedFrom == slot.content->size()) {
        damaged_.erase(file);
        return;
    }
    damaged_[file] = {slot.text.damagedFrom, slot.content->substr(slot.text.damagedFrom)};
    Tell(Matter::Damage, file,
         Joined({"Sidst i "_t, NativeText(file.filename()), " står "_t, std::to_string(slot.content->size() - slot.text.damagedFrom),
                 " tegn, som ikke er en hel linje, efter en strømafbrydelse eller en fejl på disken. De vises ikke.\r\n\r\n"_t,
                 KeepDamaged(file, *slot.content)}));
}

void SafeFiles::OpenToAppend(int number, std::string_view path, const fs::path& file) {
    CheckPlace(file);
    CutDamagedEnd(file);
    Slot slot;
    slot.path = file;
    slot.mode = FileMode::Append;
    slot.sizeBefore = SizeOf(file);
    TellOfForeignChange(file, slot.sizeBefore);
    disk_.Open(number, path, FileMode::Append);
    if (IsLogName(file)) surroundings_.writeBegins();
    slots_[static_cast<std::size_t>(number - 1)] = std::move(slot);
}

/// Tells the operator if a log has another size than when the program read or wrote it: what the window shows is not in the file then.
void SafeFiles::TellOfForeignChange(const fs::path& log, std::size_t size) {
    const auto known = known_.find(log);
    if (known == known_.end() || known->second.size == size || known->second.size == kUnlike) return;
    // The damaged end may have stayed in the file because it could not be kept elsewhere.
    if (told_.contains({Matter::Damage, log})) return;
    std::error_code error;
    const std::string name = NativeText(log.filename());
    const std::string what = !fs::exists(log, error)     ? "fjernet " + name + " fra disken"
                             : size < known->second.size ? Joined({"gjort ", name, " kortere"})
                                                         : Joined({"gjort ", name, " længere"_t});
    Tell(Matter::Changed, log,
         Joined({"Noget andet end programmet har ", what,
                 ".\r\n\r\nVinduet viser stadig de kontakter, som programmet har læst eller logget. Vælg ikke bånd eller mode, og afslut "
                 "ikke: ret i stedet en linje i loggen, og tryk Log. Så skriver programmet alle vinduets linjer i filen igen. Filen, som "
                 "den er nu, lægges i historikken."_t}));
}

void SafeFiles::OpenToWrite(int number, std::string_view path, const fs::path& file) {
    CheckPlace(file);
    if (HasName(file, kCopyName) && SizeOf(file) > 0) SetAside(file);
    disk_.Open(number, path, FileMode::Output);
}

// --- Reading and writing

std::string SafeFiles::LineInput(int number) {
    Slot* slot = SlotOf(number);
    if (slot == nullptr || !slot->content) return disk_.LineInput(number);
    if (EndOfFile(number)) throw RunTimeError(Failure::InputPastEnd);
    return std::string(slot->text.lines[slot->next++]);
}

bool SafeFiles::EndOfFile(int number) {
    Slot* slot = SlotOf(number);
    if (slot == nullptr || !slot->content) return disk_.EndOfFile(number);
    if (slot->next < slot->text.lines.size()) return false;
    if (!slot->whole) throw RunTimeError(Failure::DiskNotReady);
    Learn(slot->path, std::string_view(*slot->content).substr(0, slot->text.damagedFrom));
    return true;
}

void SafeFiles::PrintLine(int number, std::string_view text) {
    Slot* slot = SlotOf(number);
    if (slot == nullptr) return disk_.PrintLine(number, text);
    Write(slot->path, [&] { disk_.PrintLine(number, text); });
    if (slot->mode == FileMode::Append) slot->appended.append(text).append(kLineEnd);
}

void SafeFiles::Print(int number, std::string_view text) {
    Slot* slot = SlotOf(number);
    if (slot == nullptr) return disk_.Print(number, text);
    Write(slot->path, [&] { disk_.Print(number, text); });
    if (slot->mode == FileMode::Append) slot->appended.append(text);
}

void SafeFiles::Close(int number) {
    Slot* open = SlotOf(number);
    if (open == nullptr) return disk_.Close(number);
    const Slot slot = *std::exchange(slots_[static_cast<std::size_t>(number - 1)], std::nullopt);
    if (slot.mode == FileMode::Input) return disk_.Close(number);
    const EndOfWriting end(slot.path, surroundings_.writeEnded);
    Write(slot.path, [&] { disk_.Close(number); });
    if (slot.chosen) surroundings_.directoryChosen(*slot.chosen);
    if (slot.mode != FileMode::Append || !IsLogName(slot.path)) return;
    LearnAppended(slot);
    for (const std::string_view line : ReadLogText(slot.appended).lines) surroundings_.saved(line);
}

void SafeFiles::Learn(const fs::path& log, std::string_view content) {
    const bool endsALine = content.empty() || content.back() == '\n' || content.back() == '\r';
    known_[log] = {content.size(), ContentHash(content), endsALine};
}

void SafeFiles::LearnAppended(const Slot& slot) {
    if (slot.sizeBefore == 0) return Learn(slot.path, slot.appended);
    const auto known = known_.find(slot.path);
    if (known == known_.end()) return;
    if (known->second.size != slot.sizeBefore) {
        // Somebody else has written to the file, so it can no longer count as known.
        known->second.size = kUnlike;
        return;
    }
    Known& log = known->second;
    if (!log.endsALine) {
        log.hash = ContentHash(kLineEnd, log.hash);
        log.size += kLineEnd.size();
    }
    log.hash = ContentHash(slot.appended, log.hash);
    log.size += slot.appended.size();
    log.endsALine = true;
}

void SafeFiles::Delete(std::string_view path) {
    const auto file = PathTo(path);
    disk_.Delete(path);
    if (file) Changed(*file);
}

void SafeFiles::Rename(std::string_view from, std::string_view to) {
    const auto source = PathTo(from);
    disk_.Rename(from, to);
    if (source) Changed(*source);
    if (const auto target = PathTo(to)) Changed(*target);
}

/// The file has been replaced or has gone, in one step.
void SafeFiles::Changed(const fs::path& file) const {
    if (!IsLogName(file)) return;
    surroundings_.writeBegins();
    surroundings_.writeEnded(file);
}

}  // namespace vatro
