// SPDX-License-Identifier: MIT
//
// What the logic needs of the world, as interfaces. The program's main or the scenario player installs the services
// before anything runs; every service lives until the program has stopped. All calls are made on the one thread of
// the program, and all texts are in the code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "datetime.h"
#include "errors.h"

namespace vatro {

class PageSurface;
class Sound;
class Ticker;

enum class Buttons { Ok, YesNo };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { Ok, Yes, No };

/// A modal box that tells or asks something.
struct MessageBox {
    std::string text;
    /// Empty: the program's own title.
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    /// Of a Yes/No box: whether No is the default button. The first button is it otherwise.
    bool defaultNo = false;
};

/// A file dialogue.
struct FileDialog {
    std::string title;
    std::string fileName;
    /// Pairs of description and patterns, all joined by "|", patterns by ";".
    std::string filter;
    std::string defaultExtension;
    /// A file dialogue to write asks before it overwrites an existing file.
    bool overwritePrompt = false;
    bool fileMustExist = false;
    /// The file only marks the directory that is wanted. A front may let the user choose a directory instead, and gives back the
    /// path of a file of this name in it; there is nothing to ask about then, whatever the file holds.
    bool markerFile = false;
};

/// The dialogues of the system. Time, timers and sound go on while one is open.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// Returns when the box has been answered; closing it is No, or OK where there is no No.
    virtual Answer Show(const MessageBox& box) = 0;
    /// The full path chosen. Fails with Failure::Cancelled.
    virtual std::string SaveFile(const FileDialog& dialog) = 0;
    virtual std::string OpenFile(const FileDialog& dialog) = 0;
    /// The choice of the printer and its paper, for all jobs to come. Fails with Failure::Cancelled.
    virtual void SetUpPrinter() = 0;
    /// The system's box for a run-time failure that nothing has caught; the program ends after it.
    virtual void ShowFailure(const RunTimeError& failure) = 0;
};

/// The per-user store of settings, under the application's name. Keys and sections are compared without regard to case.
class Settings {
public:
    virtual ~Settings() = default;
    /// Nothing if the key is missing. Writes nothing.
    virtual std::optional<std::string> Read(std::string_view section, std::string_view key) = 0;
    /// The value is on disk on return, or at the end of the batch that this stands in. Write failures are not reported.
    virtual void Write(std::string_view section, std::string_view key, std::string_view text) = 0;
    /// A batch of writes goes to the disk at its end, in one piece. Batches may lie in each other; the outermost one counts.
    virtual void BeginBatch() {}
    virtual void EndBatch() {}
};

/// A batch of writes, as long as this lives.
class SettingsBatch {
public:
    explicit SettingsBatch(Settings& settings) : settings_(settings) { settings_.BeginBatch(); }
    ~SettingsBatch() { settings_.EndBatch(); }
    SettingsBatch(const SettingsBatch&) = delete;
    SettingsBatch& operator=(const SettingsBatch&) = delete;

private:
    Settings& settings_;
};

enum class FileMode { Input, Output, Append };

/// Sequential text files by number, 1 and 2. Names in a path are found without regard to case. Every failure is a
/// RunTimeError: 52 for a number that is not open, 54 for reading what is written or the other way round, else what the disk
/// says.
class Files {
public:
    virtual ~Files() = default;
    /// Output replaces the file, Append creates it if it is missing. Fails with 55 if the number is in use.
    virtual void Open(int number, std::string_view path, FileMode mode) = 0;
    /// The next line without its end, which is CR LF, LF or CR. Fails with 62 at the end of the file.
    virtual std::string LineInput(int number) = 0;
    /// Whether no line is left.
    virtual bool EndOfFile(int number) = 0;
    /// Writes the text and CR LF.
    virtual void PrintLine(int number, std::string_view text) = 0;
    /// Writes the text alone.
    virtual void Print(int number, std::string_view text) = 0;
    /// What was written is on the disk on return. A number that is not open is no failure.
    virtual void Close(int number) = 0;
    /// Fails with 53 if there is no such file.
    virtual void Delete(std::string_view path) = 0;
    /// Fails with 58 if `to` exists. The directory is on the disk on return.
    virtual void Rename(std::string_view from, std::string_view to) = 0;
    /// Gives the file `copy` the name of `name`, which it replaces. As a deletion and a renaming, with the failures of both: the
    /// file of that name must exist. A disk that can do it in one step may override this.
    virtual void Replace(std::string_view copy, std::string_view name) {
        Delete(name);
        Rename(copy, name);
    }
    /// Replaces `to`. The copy is on the disk on return.
    virtual void Copy(std::string_view from, std::string_view to) = 0;
    /// The current directory, without a final separator.
    virtual std::string CurrentDirectory() = 0;
    /// Backslash on Windows, slash elsewhere.
    virtual char Separator() const = 0;
};

/// The only source of time.
class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime Now() = 0;
    /// Seconds since local midnight, with fractions.
    virtual double SecondsSinceMidnight() = 0;
    /// The ticker was switched on or off, or its interval was set: its next tick falls due one interval from now, or
    /// never if it is off. A ticker must be off before it goes.
    virtual void Schedule(Ticker& ticker) = 0;
};

/// The help viewer of the program.
class Help {
public:
    virtual ~Help() = default;
    /// Opens the viewer on the help file and does not wait for it. Fails with 53 if there is no help.
    virtual void Show(std::string_view path) = 0;
};

/// Whether another copy of the program is running for this user.
class Instance {
public:
    virtual ~Instance() = default;
    virtual bool AnotherCopyRuns() = 0;
};

/// The program's version numbers, set at build time.
struct Version {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// All services of one run. The front is installed with them, by the storey of the forms.
struct Platform {
    Dialogs& dialogs;
    Settings& settings;
    Files& files;
    Clock& clock;
    Help& help;
    Instance& instance;
    Sound& sound;
    PageSurface& printer;
    Version version;
};

/// The services installed. Must not be called before InstallPlatform.
const Platform& platform();
/// Replaces any services installed earlier.
void InstallPlatform(const Platform& services);

/// A box with an OK button and the program's title.
void MsgBox(std::string_view text);
/// Any other box.
Answer MsgBox(const MessageBox& box);

}  // namespace vatro
