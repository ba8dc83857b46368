// SPDX-License-Identifier: MIT
#include "paper_watch.h"

#include <algorithm>
#include <numeric>

#include "codepage.h"
#include "joined.h"
#include "papers/error_list.h"
#include "papers/layout.h"
#include "papers/logs.h"
#include "safe_files.h"

namespace vatro {

using namespace literals;

namespace {

std::string_view NameIn(std::string_view path) {
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string Count(int number, std::string_view one, std::string_view many) {
    return Joined({std::to_string(number), " ", number == 1 ? one : many});
}

std::string ContactCount(int number) {
    return Count(number, "kontakt", "kontakter");
}

}  // namespace

void PaperWatch::Open(int number, std::string_view path, FileMode mode) {
    const bool log = mode == FileMode::Input && IsLogName(NameIn(path));
    Slot slot;
    if (mode == FileMode::Output) {
        slot.paper = papers_.size();
        papers_.push_back({std::string(path)});
    }
    if (log) {
        // A band that was not worked has no log, which is no failure of a paper.
        try {
            files_.Open(number, path, mode);
        } catch (const RunTimeError& failure) {
            const bool absent = failure.Which() == Failure::FileNotFound;
            missing_ = Joined({NameIn(path), absent ? " findes ikke" : " kan ikke åbnes"_t});
            if (!absent && !failure_) failure_ = failure.Which();
            throw;
        }
        slot.contacts = &contacts_[std::string(path)];
        *slot.contacts = 0;
    } else {
        Watched([&] { files_.Open(number, path, mode); });
    }
    slots_.at(static_cast<std::size_t>(number - 1)) = slot;
}

std::string PaperWatch::LineInput(int number) {
    std::string line = Watched([&] { return files_.LineInput(number); });
    const Slot& slot = slots_.at(static_cast<std::size_t>(number - 1));
    if (slot.contacts != nullptr && !IsNoteLine(line)) ++*slot.contacts;
    return line;
}

PaperWatch::Paper* PaperWatch::PaperOf(int number) {
    const std::optional<std::size_t> paper = slots_.at(static_cast<std::size_t>(number - 1)).paper;
    return paper ? &papers_[*paper] : nullptr;
}

void PaperWatch::PrintLine(int number, std::string_view text) {
    Watched([&] { files_.PrintLine(number, text); });
    // An error list has the names of the columns above each contact.
    if (Paper* paper = PaperOf(number); paper != nullptr && text == Indented(kColumnNames)) ++paper->listed;
}

void PaperWatch::Print(int number, std::string_view text) {
    Watched([&] { files_.Print(number, text); });
}

void PaperWatch::Close(int number) {
    Watched([&] { files_.Close(number); });
    if (Paper* paper = PaperOf(number)) paper->complete = true;
    slots_.at(static_cast<std::size_t>(number - 1)) = {};
}

std::string PaperWatch::Contacts() const {
    return ContactCount(std::accumulate(contacts_.begin(), contacts_.end(), 0, [](int sum, const auto& log) { return sum + log.second; }));
}

/// What has become of the files that are complete, or why there are none.
std::string PaperWatch::AboutFiles() const {
    const auto complete = std::count_if(papers_.begin(), papers_.end(), [](const Paper& paper) { return paper.complete; });
    if (complete > 1) return Joined({std::to_string(complete), " filer: ", Contacts(), "."});
    const auto paper = std::find_if(papers_.begin(), papers_.end(), [](const Paper& one) { return one.complete; });
    if (paper != papers_.end()) {
        const std::string_view name = NameIn(paper->path);
        if (name != kErrorListName) return Joined({name, ": ", Contacts(), "."});
        return Joined({name, ": ", paper->listed == 0 ? "ingen" : std::to_string(paper->listed), " af ", Contacts(), " står på listen."_t});
    }
    if (!papers_.empty()) return {};
    return missing_.empty() ? "Der er ikke lavet nogen fil." : Joined({"Der er ikke lavet nogen fil: ", missing_, "."});
}

std::string PaperWatch::AboutPrint() const {
    if (job_->state == PrintJob::State::Failed) return std::string("Udskriften er ikke færdig."_t);
    if (job_->state == PrintJob::State::Done && job_->pages == 0 && !missing_.empty())
        return Joined({"Der er ikke udskrevet noget: ", missing_, "."});
    if (job_->state == PrintJob::State::Dropped || job_->pages == 0) return "Der er ikke udskrevet noget.";
    const std::string where =
        job_->file.empty() ? Joined({"Sendt til printeren ", job_->printer}) : Joined({"Udskrevet til ", NameIn(job_->file)});
    const std::string pages = Count(job_->pages, "side", "sider");
    return contacts_.empty() ? Joined({where, ": ", pages, "."}) : Joined({where, ": ", pages, ", ", Contacts(), "."});
}

/// The papers that were begun and not ended, or empty.
std::string PaperWatch::AboutUnfinished() const {
    std::string unfinished;
    int number = 0;
    for (const Paper& paper : papers_) {
        if (paper.complete) continue;
        ++number;
        unfinished = Joined({NameIn(paper.path), " er ikke færdig"_t});
    }
    if (number == 0) return {};
    if (number > 1) unfinished = Joined({std::to_string(number), " filer er ikke færdige"_t});
    return failure_ ? Joined({unfinished, ": ", Meaning(*failure_), "."}) : unfinished + ".";
}

std::optional<PaperEnd> PaperWatch::TakeEnd(bool papersMade) {
    std::optional<PaperEnd> end;
    if (papersMade) {
        end.emplace();
        end->text = job_ ? AboutPrint() : AboutFiles();
        const std::string unfinished = AboutUnfinished();
        if (!unfinished.empty()) end->text = end->text.empty() ? unfinished : Joined({end->text, " ", unfinished});
        for (const Paper& paper : papers_)
            if (paper.complete) end->files.push_back(paper.path);
        if (job_ && job_->state == PrintJob::State::Done && !job_->file.empty() && job_->pages > 0) end->files.push_back(job_->file);
        const bool printed = job_ && job_->state == PrintJob::State::Done && job_->pages > 0;
        end->made = unfinished.empty() && (job_ ? printed : !end->files.empty());
    }
    slots_ = {};
    papers_.clear();
    contacts_.clear();
    missing_.clear();
    failure_.reset();
    job_.reset();
    return end;
}

}  // namespace vatro
