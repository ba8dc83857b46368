// SPDX-License-Identifier: MIT
//
// The services that the logic needs from the outside world, as interfaces. The program's main function or the scenario player
// installs them before anything else runs, and each service lives until the program has ended. All calls are made on the
// program's one thread, and all text is in the code page.
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

/// A modal message or question.
struct MessageBox {
    std::string text;
    /// If empty, the program's own title is shown.
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    /// In a Yes/No box: whether No is the default button. Otherwise the first button is the default.
    bool defaultNo = false;
};

/// What to show in a file dialogue.
struct FileDialog {
    std::string title;
    std::string fileName;
    /// Pairs of a description and its patterns, as in "Logs|*.txt;*.log|Pictures|*.png": "|" separates descriptions and patterns, ";" the
    /// patterns of one pair.
    std::string filter;
    std::string defaultExtension;
    /// In a dialogue for saving: ask before overwriting an existing file.
    bool overwritePrompt = false;
    bool fileMustExist = false;
    /// The caller wants a directory, and the file is only a marker in it. A front may let the user choose a directory instead; it then
    /// returns the path of `fileName` in that directory and does not ask about overwriting, even if the file exists.
    bool markerFile = false;
};

/// The system's dialogues. Time, timers and sound keep running while one is open.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// Shows the box and returns the answer once it is closed. If the user closes it without pressing a button, the answer is No in a
    /// Yes/No box and Ok in any other.
    virtual Answer Show(const MessageBox& box) = 0;
    /// Asks for the path of a file, to save or to open, and returns the full path. Fails with Failure::Cancelled if the user cancels.
    virtual std::string SaveFile(const FileDialog& dialog) = 0;
    virtual std::string OpenFile(const FileDialog& dialog) = 0;
    /// Lets the user choose the printer and its paper, for all later jobs. Fails with Failure::Cancelled if the user cancels.
    virtual void SetUpPrinter() = 0;
    /// Shows the system's box for an uncaught run-time failure; the program ends after it.
    virtual void ShowFailure(const RunTimeError& failure) = 0;
};

/// The user's settings of this application. Section and key names are not case-sensitive.
class Settings {
public:
    virtual ~Settings() = default;
    /// The value, or nothing if the key is missing. Never writes.
    virtual std::optional<std::string> Read(std::string_view section, std::string_view key) = 0;
    /// Stores a value. It is on disk on return or, inside a batch, at the end of the batch. Write failures are not reported.
    virtual void Write(std::string_view section, std::string_view key, std::string_view text) = 0;
    /// Groups writes: they go to disk together when the batch ends. Batches may be nested; only the end of the outermost one
    /// writes.
    virtual void BeginBatch() {}
    virtual void EndBatch() {}
};

/// Holds a batch of writes open for as long as this object lives.
class SettingsBatch {
public:
    explicit SettingsBatch(Settings& settings) : settings_(settings) { settings_.BeginBatch(); }
    ~SettingsBatch() { settings_.EndBatch(); }
    SettingsBatch(const SettingsBatch&) = delete;
    SettingsBatch& operator=(const SettingsBatch&) = delete;

private:
    Settings& settings_;
};

/// How a file is opened: to read it, to replace it, or to append to it.
enum class FileMode { Input, Output, Append };

/// Sequential text files, addressed by number (1 or 2). File names are matched without regard to case. Every failure is a
/// RunTimeError: 52 if the number is not open, 54 for reading a file opened for writing or the reverse, and otherwise the disk's
/// own failure.
class Files {
public:
    virtual ~Files() = default;
    /// Opens a file. Output replaces an existing file; Append creates a missing one. Fails with 55 if the number is in use.
    virtual void Open(int number, std::string_view path, FileMode mode) = 0;
    /// Reads the next line, without its line ending (CR LF, LF or CR). Fails with 62 at the end of the file.
    virtual std::string LineInput(int number) = 0;
    /// Whether no line is left to read.
    virtual bool EndOfFile(int number) = 0;
    /// Writes the text followed by CR LF.
    virtual void PrintLine(int number, std::string_view text) = 0;
    /// Writes the text without a line ending.
    virtual void Print(int number, std::string_view text) = 0;
    /// Closes the file; everything written is on disk on return. Closing a number that is not open is not a failure.
    virtual void Close(int number) = 0;
    /// Deletes the file. Fails with 53 if it does not exist.
    virtual void Delete(std::string_view path) = 0;
    /// Renames the file. Fails with 58 if `to` exists. The new name is on disk on return.
    virtual void Rename(std::string_view from, std::string_view to) = 0;
    /// Replaces the file `name` by the file `copy`: deletes `name`, then renames `copy`. Fails as Delete and Rename do, so `name` must
    /// exist. An implementation that can do this in one step overrides it.
    virtual void Replace(std::string_view copy, std::string_view name) {
        Delete(name);
        Rename(copy, name);
    }
    /// Copies the file, replacing `to` if it exists. The copy is on disk on return.
    virtual void Copy(std::string_view from, std::string_view to) = 0;
    /// The current directory, without a trailing separator.
    virtual std::string CurrentDirectory() = 0;
    /// The path separator: a backslash on Windows, a slash elsewhere.
    virtual char Separator() const = 0;
};

/// The only source of time.
class Clock {
public:
    virtual ~Clock() = default;
    /// Local date and time.
    virtual DateTime Now() = 0;
    /// Seconds since local midnight, including fractions.
    virtual double SecondsSinceMidnight() = 0;
    /// Call this after switching a ticker on or off or changing its interval. The next tick is due one interval from now; a ticker that
    /// is off does not tick. Switch a ticker off before destroying it.
    virtual void Schedule(Ticker& ticker) = 0;
};

/// The program's help viewer.
class Help {
public:
    virtual ~Help() = default;
    /// Opens the viewer on the help file and returns without waiting for it to close. Fails with 53 if there is no help.
    virtual void Show(std::string_view path) = 0;
};

/// Tells whether another copy of the program is running for this user.
class Instance {
public:
    virtual ~Instance() = default;
    virtual bool AnotherCopyRuns() = 0;
};

/// The program's version number, set at build time.
struct Version {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// All services of one run. The front is installed together with them; see forms/front.h.
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

/// The installed services. Must not be called before InstallPlatform.
const Platform& platform();
/// Replaces any services installed earlier.
void InstallPlatform(const Platform& services);

/// Shows a box with an OK button and the program's title.
void MsgBox(std::string_view text);
/// Shows any other box and returns the answer.
Answer MsgBox(const MessageBox& box);

}  // namespace vatro
