// SPDX-License-Identifier: MIT
//
// Measures what the operator waits for: from the start of the program until the log is painted, from a key until the list is painted, and
// the import of a log. The yardsticks are windows of Qt Widgets alone, in processes of their own (bare_window.cpp).
//
//   vatro-bench-window --import LINES    imports a CT log into a window of its own, prints the processor time of it in seconds, and ends
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "application.h"
#include "deliver.h"
#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "exchange/ct_import.h"
#include "names.h"
#include "sample.h"
#include "windows.h"

namespace vatro::bench {

namespace {

/// The directory of this program and of those that it starts.
std::filesystem::path Programs() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

/// Runs a program to its end, with further variables in its environment. Returns what it has printed, or nothing if it has failed.
std::string Run(const std::filesystem::path& program, std::vector<std::string> arguments, std::vector<std::string> variables = {}) {
    arguments.insert(arguments.begin(), program.string());
    for (char** had = environ; *had != nullptr; ++had) variables.emplace_back(*had);
    const auto pointers = [](std::vector<std::string>& texts) {
        std::vector<char*> all;
        for (std::string& text : texts) all.push_back(text.data());
        all.push_back(nullptr);
        return all;
    };
    int told[2];
    if (pipe(told) != 0) return {};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, told[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, told[0]);
    posix_spawn_file_actions_addclose(&actions, told[1]);
    pid_t child = 0;
    int status = 1;
    if (posix_spawn(&child, arguments[0].c_str(), &actions, nullptr, pointers(arguments).data(), pointers(variables).data()) == 0)
        waitpid(child, &status, 0);
    posix_spawn_file_actions_destroy(&actions);
    close(told[1]);
    char line[64]{};
    const bool heard = status == 0 && read(told[0], line, sizeof line - 1) > 0;
    close(told[0]);
    return heard ? line : "";
}

/// The time that another program prints, as that of one iteration.
void TakeTime(benchmark::State& state, const std::string& printed) {
    if (printed.empty()) return state.SkipWithError("the process has failed");
    state.SetIterationTime(std::stod(printed));
}

/// Starts a program that ends itself once a list of so many rows has been painted, see probe.cpp.
void UntilProbed(benchmark::State& state, const char* program, int rows, std::vector<std::string> variables) {
    variables.emplace_back("QT_PLUGIN_PATH=" VATRO_PROBE);
    variables.push_back("QT_QPA_GENERIC_PLUGINS=vatroprobe:" + std::to_string(rows));
    double seconds = 0;
    long kilobytes = 0;
    if (std::sscanf(Run(Programs() / program, {}, std::move(variables)).c_str(), "%lf s %ld kB", &seconds, &kilobytes) != 2)
        return state.SkipWithError("the process has failed");
    state.counters["bytes"] = static_cast<double>(kilobytes) * 1024;
}

void EmptyWindow(benchmark::State& state) {
    for (auto _ : state) UntilProbed(state, "vatro-bench-empty", 0, {});
}

void StartToPainted(benchmark::State& state) {
    const Station station(SampleLog());
    const std::filesystem::path home = station.Path("");
    std::filesystem::create_directories(home / ".config/vatro");
    std::filesystem::copy_file(station.SettingsFile(), home / ".config/vatro/vatro.ini");
    std::filesystem::permissions(home, std::filesystem::perms::owner_all);
    state.SetLabel("vs process to an empty painted window, at most 8; memory at most 2; memory goal 40 MiB");
    for (auto _ : state)
        UntilProbed(state, "vatro", kLogLines, {"HOME=" + home.string(), "XDG_CONFIG_HOME=", "XDG_RUNTIME_DIR=" + home.string()});
}

/// A key that fills a list with the fifty contacts that are shown at most, and one that empties it, up to the painted list.
void BareKey(benchmark::State& state) {
    for (auto _ : state) TakeTime(state, Run(Programs() / "vatro-bench-empty", {"keys", "50"}));
}

/// Completes a call that stands in the log and deletes its last character again. Both keys search the whole log and change the list.
void KeyToPainted(benchmark::State& state, int lines, const char* label) {
    const std::vector<std::string> log = SampleLog(lines);
    const Station station(log);
    Windows windows(station.SettingsFile());
    windows.Start(lines);
    QWidget& field = *windows.WidgetOf(frmMain->fields[kCallField]);
    QWidget& list = windows.Surface(frmB4->earlierContacts);
    const std::string call = SharedCall(log);
    const auto press = [&field](char key) { PressKey(field, static_cast<Qt::Key>(key), QString(QLatin1Char(key))); };
    for (const char key : call.substr(0, call.size() - 1)) press(key);
    const int sharing = frmB4->earlierContacts.ListCount();
    state.SetLabel(label);
    for (auto _ : state) {
        UntilPainted shorter(list);
        press(call.back());
        shorter.Wait();
        UntilPainted longer(list);
        PressKey(field, Qt::Key_Backspace, QStringLiteral("\b"));
        longer.Wait();
    }
    if (sharing < 2 || frmB4->earlierContacts.ListCount() != sharing) state.SkipWithError("the list has not changed");
}

void BareRows(benchmark::State& state) {
    for (auto _ : state) TakeTime(state, Run(Programs() / "vatro-bench-empty", {"rows", "10000"}));
}

/// Imports in a process of its own, because a log that exists is never added to.
void Import(benchmark::State& state, const char* lines, const char* label) {
    state.SetLabel(label);
    for (auto _ : state) TakeTime(state, Run(Programs() / "vatro-bench-window", {"--import", lines}));
}

void InOne(benchmark::internal::Benchmark* measured) {
    measured->Iterations(1)->Unit(benchmark::kMillisecond)->UseManualTime();
}

BENCHMARK(EmptyWindow)->Name("process to an empty painted window")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(StartToPainted)->Name("process to the painted log")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BareKey)->Name("key and its deletion in a bare window")->Apply(InOne);
BENCHMARK_CAPTURE(KeyToPainted, log, kLogLines, "vs key and its deletion in a bare window, at most 0.4")
    ->Name("key and its deletion, painted")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(KeyToPainted, long_log, 100'000, "vs key and its deletion in a bare window, at most 1; goal 32 ms")
    ->Name("key and its deletion, painted, 100,000 lines")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BareRows)->Name("10,000 rows added to a bare list")->Apply(InOne);
BENCHMARK_CAPTURE(Import, short_log, "2500", "")->Name("CT log of 2,500 lines imported")->Apply(InOne);
BENCHMARK_CAPTURE(Import, log, "10000",
                  "vs 10,000 rows added to a bare list, at most 250; over CT log of 2,500 lines imported, at most 8; goal 2.5 s")
    ->Name("CT log of 10,000 lines imported")
    ->Apply(InOne);

/// Prints the processor time that the import takes the program itself, without the system's part.
void ImportOnce(int lines) {
    const Station station({});
    Windows windows(station.SettingsFile());
    windows.Start(0);
    UntilQuiet();
    const std::filesystem::path file = station.Path("felt.40");
    WriteLines(file, CtLog(lines));
    const auto used = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return static_cast<double>(usage.ru_utime.tv_sec) + static_cast<double>(usage.ru_utime.tv_usec) * 1e-6;
    };
    const double before = used();
    Deliver([&] { ImporterCt(NativeText(file)); });
    UntilQuiet();
    const double after = used();
    if (frmMain->log.ListCount() != lines) throw std::runtime_error("contacts are missing");
    std::printf("%.6f\n", after - before);
}

}  // namespace

}  // namespace vatro::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    if (argc == 3 && std::string(argv[1]) == "--import") {
        vatro::bench::ImportOnce(std::atoi(argv[2]));
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
