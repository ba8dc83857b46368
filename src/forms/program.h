// SPDX-License-Identifier: MIT
//
// The event dispatcher, and the end of the program.
#pragma once

#include <functional>

namespace vatro {

/// Runs one event to completion: the start procedure, a handler, or a tick. An uncaught RunTimeError is shown in the system's box
/// and ends the program. Events may be nested while an outer one waits for a box or form. After the outermost event, unloaded
/// forms are freed, and the program ends if no form is left.
void Dispatch(const std::function<void()>& event);

/// Whether the program has been started and has not ended.
bool ProgramRuns();
/// Begins a run, so that the start procedure may be dispatched. No form may be loaded before this.
void BeginProgram();
/// Whether an event is running, or waiting for a box or form.
bool InsideEvent();
/// Ends the program at once: unwinds to the outermost event without running further handlers or unloading forms. Does not return
/// when called inside an event.
void EndProgram();
/// True from EndProgram to the end of the outermost event. Every loop that waits inside an event must leave when this is true.
bool ProgramEnding();
/// Must be called by a loop that has waited inside an event before it returns into the logic: continues unwinding if the program
/// is ending.
void LeaveIfEnding();

}  // namespace vatro
