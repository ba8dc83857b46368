// SPDX-License-Identifier: MIT
#include "fault.h"

#include <algorithm>
#include <utility>

#include "codepage.h"

namespace vatro {

namespace {

/// Converts to upper case and joins the components with single slashes; removes "." components and a trailing slash.
std::string Normalised(std::string_view path) {
    std::string result;
    std::size_t from = 0;
    while (from <= path.size()) {
        const std::size_t end = std::min(path.find_first_of("/\\", from), path.size());
        const std::string_view component = path.substr(from, end - from);
        if (from == 0 && component.empty() && !path.empty()) {
            result += '/';
        } else if (!component.empty() && component != ".") {
            if (!result.empty() && result.back() != '/') result += '/';
            result += UpperText(component);
        }
        from = end + 1;
    }
    return result;
}

/// Whether `path` is `at` or lies below it; both must be normalised.
bool IsAtOrBelow(std::string_view path, std::string_view at) {
    if (!path.starts_with(at)) return false;
    return path.size() == at.size() || at.ends_with('/') || path[at.size()] == '/';
}

}  // namespace

void FaultyFiles::Fail(std::string_view path, int number, std::optional<Step> step) {
    Place place = PlaceOf(path);
    const bool all = number == 0 && !step;
    std::erase_if(faults_, [&](const Fault& fault) { return fault.place == place && (all || fault.step == step); });
    if (number != 0) faults_.push_back({std::move(place), number, step});
}

void FaultyFiles::Abandon() {
    for (const int number : {1, 2}) {
        slots_[static_cast<std::size_t>(number - 1)] = {};
        files_.Close(number);
    }
}

void FaultyFiles::Open(int number, std::string_view path, FileMode mode) {
    FailIfTold(path, Step::Open);
    files_.Open(number, path, mode);
    slots_[static_cast<std::size_t>(number - 1)] = {true, std::string(path), {}};
}

void FaultyFiles::PrintLine(int number, std::string_view text) {
    Take(number, std::string(text) + "\r\n");
}

void FaultyFiles::Print(int number, std::string_view text) {
    Take(number, text);
}

void FaultyFiles::Take(int number, std::string_view text) {
    // An empty print fails at once if the number cannot be printed to.
    files_.Print(number, {});
    Slot* slot = OpenSlot(number);
    if (slot == nullptr) return files_.Print(number, text);
    FailIfTold(slot->path, Step::Write);
    slot->unwritten += text;
}

void FaultyFiles::Close(int number) {
    Slot* slot = OpenSlot(number);
    if (slot == nullptr) return files_.Close(number);
    const Slot closing = std::exchange(*slot, {});
    try {
        FailIfTold(closing.path, Step::Close);
        if (!closing.unwritten.empty()) files_.Print(number, closing.unwritten);
    } catch (const RunTimeError&) {
        files_.Close(number);
        throw;
    }
    files_.Close(number);
}

void FaultyFiles::Delete(std::string_view path) {
    FailIfTold(path, Step::Delete);
    files_.Delete(path);
}

void FaultyFiles::Rename(std::string_view from, std::string_view to) {
    FailIfTold(from, Step::Rename);
    FailIfTold(to, Step::Rename);
    files_.Rename(from, to);
}

void FaultyFiles::Copy(std::string_view from, std::string_view to) {
    if (IsMissing(from)) throw RunTimeError(Failure::FileNotFound);
    FailIfTold(from, Step::Copy);
    FailIfTold(to, Step::Copy);
    files_.Copy(from, to);
}

FaultyFiles::Slot* FaultyFiles::OpenSlot(int number) {
    if (number != 1 && number != 2) return nullptr;
    Slot& slot = slots_[static_cast<std::size_t>(number - 1)];
    return slot.open ? &slot : nullptr;
}

FaultyFiles::Place FaultyFiles::PlaceOf(std::string_view path) {
    Place place{Normalised(path), {}};
    const bool bare = place.asSpelled.find_first_of("/:") == std::string::npos;
    place.inDirectory = bare ? Normalised(files_.CurrentDirectory() + "/" + place.asSpelled) : place.asSpelled;
    return place;
}

void FaultyFiles::FailIfTold(std::string_view path, Step step) {
    if (faults_.empty()) return;
    const Place place = PlaceOf(path);
    const auto touches = [&](const Fault& fault) {
        const bool stepTold = fault.step ? *fault.step == step : step == Step::Open || step == Step::Copy;
        return stepTold && (IsAtOrBelow(place.asSpelled, fault.place.asSpelled) || IsAtOrBelow(place.inDirectory, fault.place.asSpelled) ||
                            IsAtOrBelow(place.inDirectory, fault.place.inDirectory));
    };
    const auto fault = std::find_if(faults_.rbegin(), faults_.rend(), touches);
    if (fault != faults_.rend()) throw RunTimeError(static_cast<Failure>(fault->number));
}

bool FaultyFiles::IsMissing(std::string_view path) {
    // Opening the file is the only way to find out. If both numbers are in use, leave it to Copy itself to fail.
    for (const int number : {1, 2}) {
        if (OpenSlot(number) != nullptr) continue;
        try {
            files_.Open(number, path, FileMode::Input);
        } catch (const RunTimeError& failure) {
            return failure.Which() == Failure::FileNotFound || failure.Which() == Failure::PathNotFound;
        }
        files_.Close(number);
        return false;
    }
    return false;
}

}  // namespace vatro
