// SPDX-License-Identifier: MIT
//
// The program on a fake platform, for tests of procedures that need a main form, files, boxes or settings.
//
// The fakes record every call and can be made to fail. A box that the test does not expect fails the test, and so does a
// prepared answer that is never used.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "codepage.h"
#include "entry/frmMain.h"
#include "forms.h"
#include "frame/start.h"
#include "front.h"
#include "page.h"
#include "platform.h"
#include "program.h"
#include "sound.h"

namespace vatro {

class FakeSettings : public Settings {
public:
    std::optional<std::string> Read(std::string_view section, std::string_view key) override {
        const auto it = texts.find(UpperText(std::string(section) + "/" + std::string(key)));
        return it == texts.end() ? std::nullopt : std::optional(it->second);
    }
    void Write(std::string_view section, std::string_view key, std::string_view text) override {
        written.emplace_back(key);
        if (open_ == 0) ++writtenAlone;
        texts[UpperText(std::string(section) + "/" + std::string(key))] = text;
    }
    void BeginBatch() override { ++open_; }
    void EndBatch() override { --open_; }
    /// The values, by "SECTION/KEY" in upper case.
    std::map<std::string, std::string> texts;
    /// The keys in the order in which they were written.
    std::vector<std::string> written;
    /// How many values were written outside a batch.
    int writtenAlone = 0;

private:
    int open_ = 0;
};

/// Files in memory, in whole lines that end in CR LF.
class FakeFiles : public Files {
public:
    void Open(int number, std::string_view path, FileMode mode) override {
        Step("open", path);
        if (open_.contains(number)) throw RunTimeError(Failure::FileAlreadyOpen);
        const std::string name = UpperText(path);
        if (mode == FileMode::Input && !files.contains(name)) throw RunTimeError(Failure::FileNotFound);
        if (mode == FileMode::Output) files[name].clear();
        if (mode == FileMode::Append) files[name];
        open_[number] = {name, 0};
    }
    std::string LineInput(int number) override {
        auto& [name, at] = Slot(number);
        Step("read", name);
        if (at >= files[name].size()) throw RunTimeError(Failure::InputPastEnd);
        return files[name][at++];
    }
    bool EndOfFile(int number) override { return Slot(number).second >= files[Slot(number).first].size(); }
    void PrintLine(int number, std::string_view text) override {
        Step("write", Slot(number).first);
        files[Slot(number).first].emplace_back(text);
    }
    void Print(int number, std::string_view text) override { PrintLine(number, text); }
    void Close(int number) override {
        if (open_.erase(number) != 0) steps.emplace_back("close");
    }
    void Delete(std::string_view path) override {
        Step("delete", path);
        if (files.erase(UpperText(path)) == 0) throw RunTimeError(Failure::FileNotFound);
    }
    void Rename(std::string_view from, std::string_view to) override {
        Step("rename", from);
        if (files.contains(UpperText(to))) throw RunTimeError(Failure::FileExists);
        files[UpperText(to)] = files.at(UpperText(from));
        files.erase(UpperText(from));
    }
    void Copy(std::string_view from, std::string_view to) override {
        if (!files.contains(UpperText(from))) throw RunTimeError(Failure::FileNotFound);
        Step("copy", to);
        files[UpperText(to)] = files.at(UpperText(from));
    }
    std::string CurrentDirectory() override { return "data"; }
    char Separator() const override { return '\\'; }

    /// Makes the step of this name ("open", "read", "write", "delete", "rename", "copy") fail from its n-th call on, counted
    /// from now.
    void FailFrom(std::string_view step, int times, Failure failure) { failing_ = {std::string(step), times, failure}; }
    bool IsOpen() const { return !open_.empty(); }

    /// The lines of each file, by its path in upper case.
    std::map<std::string, std::vector<std::string>> files;
    /// The calls made, as "open LOG\FD80MSSB.TXT".
    std::vector<std::string> steps;

private:
    struct Failing {
        std::string step;
        int times = 0;
        Failure failure = Failure::PermissionDenied;
    };
    void Step(std::string_view step, std::string_view path) {
        steps.push_back(std::string(step) + " " + UpperText(path));
        if (failing_.step == step && --failing_.times <= 0) throw RunTimeError(failing_.failure);
    }
    std::pair<std::string, std::size_t>& Slot(int number) {
        const auto slot = open_.find(number);
        if (slot == open_.end()) throw RunTimeError(Failure::BadFileNumber);
        return slot->second;
    }
    std::map<int, std::pair<std::string, std::size_t>> open_;
    Failing failing_;
};

class FakeDialogs : public Dialogs {
public:
    Answer Show(const MessageBox& box) override {
        boxes.push_back(box);
        if (expected.empty()) {
            ADD_FAILURE() << "unexpected box: " << ToUtf8(box.text);
            return box.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
        }
        auto [text, answer] = expected.front();
        expected.pop_front();
        EXPECT_EQ(ToUtf8(box.text), text);
        return answer;
    }
    std::string SaveFile(const FileDialog& dialog) override { return Choose(dialog); }
    std::string OpenFile(const FileDialog& dialog) override { return Choose(dialog); }
    void SetUpPrinter() override {
        ++printerDialogues;
        if (!chosen) throw RunTimeError(Failure::Cancelled);
    }
    void ShowFailure(const RunTimeError& failure) override { failures.push_back(failure.Number()); }

    /// The next box must have this text, in UTF-8, and gets this answer.
    void Expect(std::string text, Answer answer = Answer::Ok) { expected.emplace_back(std::move(text), answer); }

    std::deque<std::pair<std::string, Answer>> expected;
    std::vector<MessageBox> boxes;
    /// The file that the next dialogue returns; no value means Cancel.
    std::optional<std::string> chosen;
    std::vector<FileDialog> asked;
    int printerDialogues = 0;
    std::vector<int> failures;

private:
    std::string Choose(const FileDialog& dialog) {
        asked.push_back(dialog);
        if (!chosen) throw RunTimeError(Failure::Cancelled);
        return *chosen;
    }
};

class FakeClock : public Clock {
public:
    DateTime Now() override { return now; }
    double SecondsSinceMidnight() override { return now.hour * 3600 + now.minute * 60 + now.second + now.millisecond / 1000.0; }
    void Schedule(Ticker& ticker) override { static_cast<void>(ticker); }
    DateTime now{2026, 9, 5, 15, 0, 0, 0};
};

class FakeFront : public Front {
public:
    void Created(Form&) override {}
    void Destroyed(Form&) override {}
    void Changed(Form&) override {}
    void Activated(Form&) override {}
    void RunModal(Form& form) override {
        const auto use = modal.extract(form.Name());
        if (use.empty()) {
            ADD_FAILURE() << "unexpected modal form: " << form.Name();
            return;
        }
        use.mapped()(form);
    }
    void Refresh(Form&) override {}
    void DoEvents() override {
        if (pending) pending();
    }
    double TextWidth(std::string_view text, const Font& font) override { return 0.6 * font.size * static_cast<double>(text.size()); }
    void Ended() override { ended = true; }
    bool ended = false;
    /// Called when the program lets events run.
    std::function<void()> pending;
    /// Called when the modal form of this name opens next; the form closes afterwards.
    std::map<std::string, std::function<void(Form&)>> modal;
};

class FakeHelp : public Help {
public:
    void Show(std::string_view path) override {
        if (failure) throw RunTimeError(*failure);
        shown.emplace_back(path);
    }
    std::vector<std::string> shown;
    std::optional<Failure> failure;
};

class FakeInstance : public Instance {
public:
    bool AnotherCopyRuns() override { return false; }
};

/// A card that plays nothing. It keeps what is written, and a test runs the events.
class FakeSound : public Sound {
public:
    struct Buffer : public SoundBuffer {
        Buffer(FakeSound& on, const SoundFormat& wanted) : card(on), format(wanted), samples(static_cast<std::size_t>(wanted.samples)) {
            card.buffer = this;
        }
        ~Buffer() override {
            if (card.buffer == this) card.buffer = nullptr;
        }
        Buffer(const Buffer&) = delete;
        Buffer& operator=(const Buffer&) = delete;
        void SetNotificationPositions(std::span<const PositionNotification> wanted) override {
            positions.assign(wanted.begin(), wanted.end());
        }
        void Write(int first, std::span<const std::int16_t> written) override {
            card.calls.push_back("write " + std::to_string(first) + " " + std::to_string(written.size()));
            std::ranges::copy(written, samples.begin() + first);
        }
        void SetCurrentPosition(int sample) override { card.calls.push_back("position " + std::to_string(sample)); }
        void PlayLooping() override { card.calls.emplace_back("play"); }
        void Stop() override { card.calls.emplace_back("stop"); }

        FakeSound& card;
        SoundFormat format;
        std::vector<std::int16_t> samples;
        std::vector<PositionNotification> positions;
    };

    SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) override {
        events[++last_] = std::move(callback);
        return last_;
    }
    void DestroyEvent(SoundEvent event) override { events.erase(event); }
    std::unique_ptr<SoundDevice> CreateDevice() override {
        if (!there) throw RunTimeError(Failure::DeviceUnavailable);
        return std::make_unique<Device>(*this);
    }

    bool there = true;
    std::map<SoundEvent, std::function<void(SoundEvent)>> events;
    /// The calls in order: "write 0 22050" (first sample, count), "position 0", "play", "stop".
    std::vector<std::string> calls;
    /// The last buffer created, while it exists.
    Buffer* buffer = nullptr;

private:
    class Device : public SoundDevice {
    public:
        explicit Device(FakeSound& card) : card_(card) {}
        std::unique_ptr<SoundBuffer> CreateBuffer(const SoundFormat& format) override { return std::make_unique<Buffer>(card_, format); }

    private:
        FakeSound& card_;
    };

    SoundEvent last_ = 0;
};

/// A printer that records the texts, for pages of 100 by 50; a character of size 1 is 1 wide and 1 high.
class FakePages : public PageDevice {
public:
    double Width() const override { return 100; }
    double Height() const override { return 50; }
    double TextWidth(std::string_view text, const Font& with) const override { return with.size * static_cast<double>(text.size()); }
    double TextHeight(const Font& with) const override { return with.size; }
    void BeginJob() override { printed.emplace_back("job"); }
    void Place(double x, double y, const Font&, std::string_view text) override {
        printed.push_back(std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)) + " " + ToUtf8(text));
    }
    void NextPage() override { printed.emplace_back("page"); }
    void EndJob() override { printed.emplace_back("end"); }

    /// The record: "job", "0 10 text", "page", "end"; texts in UTF-8.
    std::vector<std::string> printed;
};

/// A world with Germany and Denmark, one station of the society and one operator. No code of the program runs before Start.
class RunningProgram : public ::testing::Test {
protected:
    RunningProgram() {
        files.files["DATA\\LANDE.TXT"] = {"DL        Fed. Rep. of Germany     EU -1 ", "OZ        Denmark                  EU -1 "};
        files.files["DATA\\REFPFX.TXT"] = {"DL        DL        14 28", "OZ        OZ        14 18"};
        files.files["DATA\\EDR.TXT"] = {"OZ1ABC Test, formand"};
        files.files["DATA\\OPERATOR.TXT"] = {"OZ1DEF"};
        settings.texts = {{"SETTINGS/GSLOGLIB", "log"}, {"SETTINGS/LASTOP", "OZ1DEF"}, {"SETTINGS/VISINFO2002", "False"}};
        InstallPlatform(front, {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
    }
    ~RunningProgram() override {
        EndProgram();
        EXPECT_TRUE(dialogs.expected.empty()) << "a box that did not come: " << dialogs.expected.front().first;
    }

    void Start() {
        BeginProgram();
        Dispatch(StartProgram);
    }
    /// The lines of the file, in UTF-8.
    std::vector<std::string> LinesOf(std::string_view path) {
        std::vector<std::string> lines;
        for (const std::string& line : files.files[UpperText(path)]) lines.push_back(ToUtf8(line));
        return lines;
    }

    FakeFront front;
    FakeDialogs dialogs;
    FakeSettings settings;
    FakeFiles files;
    FakeClock clock;
    FakeHelp help;
    FakeInstance instance;
    FakeSound sound;
    FakePages pages;
    PageSurface printer{pages};
};

}  // namespace vatro
