// A desktop that is driven by lines of actions and tells in a line what happened on it.
#pragma once

#include <deque>

#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"

namespace rux::test {

/// Form files are separated by `|`; the first may leave out its form, which is then `F: TForm` of 400 by 300.
/// Shorthand in them: `A:TEdit` for `object A: TEdit`, `A:TEdit@1,2,3,4` with place and size, `~Click` for an
/// OnClick whose method has no code. Methods are lines of actions: `Go: say x; free A | Die: release F`. In
/// the class file `|` stands for a line end.
class TStage {
 public:
    explicit TStage(std::string_view forms, std::string_view methods = {}, std::string_view classes = {});

    /// Plays the actions from within message loops: each one when nothing else waits, in the innermost loop
    /// that runs by then. Answers the journal up to the end of the last action.
    std::string Play(std::string_view actions);
    /// Plays them at once.
    void Do(std::string_view actions, HEventArgs* args = nullptr);
    /// What was recorded since the last question.
    std::string Journal();
    void Record(std::string_view line);
    /// By name, on the first form, or by path; nil if there is none.
    HComponent* Find(std::string_view path);
    HWinControl& Control(std::string_view path) { return dynamic_cast<HWinControl&>(*Find(path)); }
    HWnd Window(std::string_view path) { return Control(path).Handle(); }
    std::string Read(std::string_view path);

 private:
    void Act(std::string_view action, HEventArgs* args);
    bool ActOnDesktop(std::string_view verb, const std::string& rest, HEventArgs* args);
    bool ActOnControl(std::string_view verb, HControl& control, std::string_view rest);
    void ActOnForm(std::string_view verb, HCustomForm& form);
    void SetProperty(const std::string& path, const std::string& text);
    void Hear(HEntry kind, std::string_view line);
    void Schedule();
    void Step();

    // What the platform's end still speaks to comes first.
    std::vector<std::string> FJournal;
    std::deque<std::string> FActions;
    bool FEnded = false;

 public:
    TManualClock Clock;
    TPosixKernel Kernel{Clock, {}};
    TPosixSockets Sockets{Clock, {}};
    TPosixFiles FileSystem;
    THeadlessPlatform Platform{Kernel, Clock, Sockets, FileSystem};
    HDesktop& Desktop = Platform.Desktop();
    HToolkit& Kit = Platform.Toolkit();
    HClassParents Parents;
    HFormLoader Loader{Kit, Parents};
    std::vector<HComponent*> Roots;
};

/// Scenes, each on a desktop of its own: `actions => journal`, with the methods and ` >> ` in front if there
/// are any. A line `form ...` gives the forms of those that follow; what begins with blanks goes on with the
/// line before.
void PlayAll(std::string_view scenes);

}  // namespace rux::test
