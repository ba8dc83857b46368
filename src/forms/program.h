// SPDX-License-Identifier: MIT
//
// The one road of every event, and the end of the program.
#pragma once

#include <functional>

namespace vatro {

/// Runs one event to its end: the start procedure, a handler, a tick. A RunTimeError that nothing has caught is shown
/// in the system's box and ends the program. Events may come while another waits at an open box or form.
/// After the outermost event forms that were unloaded are freed, and a program without a form has ended.
void Dispatch(const std::function<void()>& event);

/// Whether the program has been started and has not ended.
bool ProgramRuns();
/// Begins a run: the start procedure may be dispatched. No form is loaded before it.
void BeginProgram();
/// Whether an event is being run, or waits at an open box or form.
bool InsideEvent();
/// Ends the program at once: unwinds to the outermost event, runs no further handler, unloads nothing. Does not return
/// when called inside an event.
void EndProgram();
/// True from EndProgram to the end of the outermost event: every loop that waits inside an event must leave.
bool ProgramEnding();
/// To be called by a loop that has waited inside an event, before it returns into the logic: goes on unwinding if the
/// program is ending.
void LeaveIfEnding();

}  // namespace vatro
