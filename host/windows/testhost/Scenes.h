// Windows that the test host brings up: a main dialog whose button Go does what was agreed before.
#pragma once

#include <string>

namespace rux {

/// All on the user-interface thread.

/// Shows the dialog Main, with the buttons Go and Open, a label and an edit.
void OpenMain();
/// What Go does from now on: "box", "yesno", "modal" (a dialog), "two" (a box, and a second one on it),
/// "later" (a box from a timer), "closed" (a box that a timer closes), "thread" (a box on a second thread).
/// The title of each window is Box. False when there is no such thing.
bool AgreeOn(const std::string& scene);
/// Starts the timer that "later" and "closed" speak of.
void Elapse();
/// A box without a click, once this has returned.
void BoxFromNowhere();

}  // namespace rux
