// The thread that all windows of the test host live on, and what happened there.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace rux {

/// Makes the calling thread the user interface's.
void BeginUserInterface();
/// Runs `code` there, in whatever loop is running, behind all that has been posted so far, and waits. Raises
/// std::runtime_error when the thread does not come to it. From other threads.
void RunOnUserInterface(std::function<void()> code);
/// Comes back when that thread has had nothing left to do, if only for a moment. From other threads.
void AwaitIdleUserInterface();
/// A timer of the calling thread, which fires once in whatever loop that runs.
void After(unsigned milliseconds, std::function<void()> code);
/// A timer that fires when all that was posted before is handled and a loop has waited in between: a box is
/// shown a second time when its loop has nothing to do for the first time. On the thread that will be idle.
void WhenIdle(std::function<void()> code);
/// Runs `body` on a thread of its own and serves messages until it has ended.
void ServeUntilDone(const std::function<void()>& body);

/// Any thread.
void Note(const std::string& text);
/// All notes since the last call, with "; " between them.
std::string TakeNotes();

}  // namespace rux
