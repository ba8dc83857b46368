// SPDX-License-Identifier: MIT
//
// Measures what the operator waits for: from the start until the window is painted, and from a key until the list is painted.
// The yardsticks are windows of the toolkit alone.
//
//   vatro-bench-window --paint empty               paints an empty window, prints the memory of the process in bytes and ends
//   vatro-bench-window --paint program SETTINGS    the same for the program, with the settings in this file
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QStringListModel>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "application.h"
#include "clock.h"
#include "deliver.h"
#include "disk_files.h"
#include "disk_settings.h"
#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "log/contact_line.h"
#include "printer.h"
#include "program.h"
#include "qt_front.h"
#include "sample.h"
#include "sound_card.h"
#include "started_program.h"
#include "unattended.h"

namespace vatro::bench {

namespace {

/// Processes events until a widget has been painted.
class UntilPainted : public QObject {
public:
    explicit UntilPainted(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }
    void Wait() {
        const auto start = std::chrono::steady_clock::now();
        while (!painted_) {
            QCoreApplication::processEvents();
            if (std::chrono::steady_clock::now() - start > std::chrono::seconds(10)) throw std::runtime_error("nothing is painted");
        }
        // The filter sees the event before the widget does, so the widget has been painted by the next round.
        QCoreApplication::processEvents();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &widget_ && event->type() == QEvent::Paint) painted_ = true;
        return false;
    }

private:
    QWidget& widget_;
    bool painted_ = false;
};

/// The part of a list that paints.
QWidget& Surface(QWidget* widget) {
    auto* const area = qobject_cast<QAbstractScrollArea*>(widget);
    if (area == nullptr) throw std::runtime_error("a list without a widget");
    return *area->viewport();
}

/// The program in its window.
class Windows {
public:
    explicit Windows(const std::filesystem::path& settings) : settings_(settings) {}
    ~Windows() {
        if (ProgramRuns()) EndProgram();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// Returns when the log has been painted.
    void Start() {
        InstallPlatform(front_, {unattended_, settings_, files_, clock_, unattended_, unattended_, sound_, printer_, Version{}});
        BeginProgram();
        Deliver([] { StartProgram(); });
        if (frmMain->log.ListCount() != kLogLines) throw std::runtime_error("the log was not read");
        UntilPainted(Surface(WidgetOf(frmMain->log))).Wait();
    }
    QWidget* WidgetOf(const Control& control) const { return front_.WidgetOf(control); }

private:
    DiskSettings settings_;
    QtFront front_;
    Unattended unattended_;
    DiskFiles files_;
    QtClock clock_;
    QtSound sound_;
    QtPrinter pages_;
    PageSurface printer_{pages_};
};

void PaintEmpty(QMainWindow& window) {
    window.resize(800, 600);
    window.show();
    UntilPainted(window).Wait();
}

/// A station with the long log and the settings that point to it.
class Station {
public:
    Station() {
        DiskSettings settings(SettingsFile());
        workplace_.Furnish(SampleLog(), settings);
    }
    std::filesystem::path SettingsFile() const { return workplace_.Path("vatro.conf"); }

private:
    Workplace workplace_;
};

/// Runs this program again with these arguments until it ends. The child process reports its memory.
void RunSelf(benchmark::State& state, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "/proc/self/exe");
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);

    int told[2];
    if (pipe(told) != 0) return state.SkipWithError("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, told[1], STDOUT_FILENO);
    pid_t child = 0;
    int status = 1;
    if (posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ) == 0) waitpid(child, &status, 0);
    posix_spawn_file_actions_destroy(&actions);
    char memory[32]{};
    const bool heard = status == 0 && read(told[0], memory, sizeof memory - 1) > 0;
    close(told[0]);
    close(told[1]);
    if (!heard) return state.SkipWithError("the process has failed");
    state.counters["bytes"] = std::stod(memory);
}

void EmptyWindow(benchmark::State& state) {
    for (auto _ : state) RunSelf(state, {"--paint", "empty"});
}

void StartToPainted(benchmark::State& state) {
    const Station station;
    state.SetLabel("vs process to an empty painted window");
    for (auto _ : state) RunSelf(state, {"--paint", "program", station.SettingsFile().string()});
}

void PressKey(QWidget& field, Qt::Key key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &release);
}

/// Presses a key that fills the list and one that empties it, and waits each time until the list is painted.
void Keys(benchmark::State& state, QWidget& field, QWidget& list) {
    for (auto _ : state) {
        UntilPainted filled(list);
        PressKey(field, Qt::Key_L, QStringLiteral("L"));
        filled.Wait();
        UntilPainted emptied(list);
        PressKey(field, Qt::Key_Backspace, QStringLiteral("\b"));
        emptied.Wait();
    }
}

/// The number of contacts whose call contains "1L".
int Found() {
    const std::vector<std::string> log = SampleLog();
    return static_cast<int>(
        std::ranges::count_if(log, [](const std::string& line) { return kCall.Of(line).find("1L") != std::string::npos; }));
}

void BareKey(benchmark::State& state) {
    QMainWindow window;
    QStringListModel model;
    auto* const content = new QWidget;
    auto* const field = new QLineEdit;
    auto* const list = new QListView;
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(list);
    layout->addWidget(field);
    list->setModel(&model);
    list->setUniformItemSizes(true);
    window.setCentralWidget(content);
    QStringList rows;
    for (int row = 0, found = Found(); row < found; ++row) rows.append(QStringLiteral("DL9QQQ         0001/0345 12:07"));
    QObject::connect(field, &QLineEdit::textChanged, &model,
                     [&](const QString& text) { model.setStringList(text.size() > 1 ? rows : QStringList()); });
    PaintEmpty(window);
    field->setFocus();
    PressKey(*field, Qt::Key_1, QStringLiteral("1"));
    Keys(state, *field, *list->viewport());
}

void KeyToPainted(benchmark::State& state) {
    const Station station;
    Windows windows(station.SettingsFile());
    windows.Start();
    QWidget* const field = windows.WidgetOf(frmMain->fields[kCallField]);
    PressKey(*field, Qt::Key_1, QStringLiteral("1"));
    PressKey(*field, Qt::Key_L, QStringLiteral("L"));
    if (frmB4->earlierContacts.ListCount() != Found()) return state.SkipWithError("the list is not as long as the bare one");
    PressKey(*field, Qt::Key_Backspace, QStringLiteral("\b"));
    state.SetLabel("vs key in a bare field over a list");
    Keys(state, *field, Surface(windows.WidgetOf(frmB4->earlierContacts)));
}

BENCHMARK(EmptyWindow)->Name("process to an empty painted window")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(StartToPainted)->Name("process to the painted log")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BareKey)->Name("key in a bare field over a list")->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(KeyToPainted)->Name("key to painted list")->Unit(benchmark::kMicrosecond)->UseRealTime();

/// Resident memory of this process, in bytes.
long Memory() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    statm >> pages >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

/// Ends the process as soon as the window is painted, without the program's own shutdown, which is not measured.
[[noreturn]] void Paint(const std::string& settings) {
    std::optional<QMainWindow> window;
    std::optional<Windows> windows;
    if (settings.empty())
        PaintEmpty(window.emplace());
    else
        windows.emplace(std::filesystem::path(settings)).Start();
    const std::string memory = std::to_string(Memory()) + "\n";
    const bool told = write(STDOUT_FILENO, memory.data(), memory.size()) > 0;
    _exit(told ? 0 : 1);
}

}  // namespace

}  // namespace vatro::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    if (argc > 2 && std::string(argv[1]) == "--paint") vatro::bench::Paint(argc > 3 ? argv[3] : "");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
