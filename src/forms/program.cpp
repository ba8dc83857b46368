// SPDX-License-Identifier: MIT
#include "program.h"

#include "form.h"
#include "front.h"
#include "platform.h"

namespace vatro {

void DropForms();
void FreeUnloadedForms();

namespace {

/// Thrown to unwind the logic to the dispatcher when the program ends at once.
struct Unwinding {};

int depth = 0;
bool running = false;
bool ending = false;

void Finish() {
    running = false;
    DropForms();
    ending = false;
    InstalledFront().Ended();
}

}  // namespace

void BeginProgram() {
    running = true;
    ending = false;
}

bool ProgramRuns() {
    return running && !ending;
}

bool ProgramEnding() {
    return ending;
}

bool InsideEvent() {
    return depth > 0;
}

void Dispatch(const std::function<void()>& event) {
    if (!ProgramRuns()) return;
    ++depth;
    try {
        event();
    } catch (const RunTimeError& failure) {
        platform().dialogs.ShowFailure(failure);
        ending = true;
    } catch (const Unwinding&) {
        // The program is ending; the loop around this event leaves on its own.
    }
    --depth;
    if (depth > 0) return;
    FreeUnloadedForms();
    if (ending || LoadedForms().empty()) Finish();
}

void EndProgram() {
    if (!running) return;
    ending = true;
    if (depth > 0) throw Unwinding{};
    Finish();
}

void LeaveIfEnding() {
    if (ending) throw Unwinding{};
}

}  // namespace vatro
