// One cell of the matrix of windows and options: a request that brings up a window, what becomes of both, and
// what the next request hears of it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/LiveHost.h"

namespace rux::test {

/// How the application comes to show a window of the title Box, and how that window goes away again.
struct TSituation {
    std::string_view Name;
    /// The request that sets it off, without options.
    std::string_view Request;
    std::vector<std::string_view> Forms;
    /// Gives the forms their code.
    std::function<void(TLiveHost&)> Prepare;
    /// What the journal says when the window comes.
    std::string_view Shown;
    /// Ends what the situation began; the call, if it waits, goes on.
    std::function<void(TLiveHost&)> End;
    /// The window comes when this much time has passed since the call; 0: during the call.
    std::uint32_t Delay = 0;
    /// The window's description.
    std::string_view Description;
    /// True, on the user-interface thread, once whoever shows the window has come back from showing it;
    /// needed where that is another thread.
    std::function<bool(TLiveHost&)> IsShown = {};
};

const std::vector<TSituation>& Situations();
void CloseBoxes(TLiveHost& host);

/// Plays one cell: "when the answer came, the answer | window, picture | next request | stack". `answerTime`
/// is when the answer must come: 'R' on the call's return before the window, 'W' with the window, 'E' when
/// the situation has been ended, 'H' after the hour.
std::string PlayScene(const TSituation& situation, std::string_view option, char answerTime);

/// "320x140 many" or "320x140 flat", by the count of colours that a person would tell apart; or why the file
/// is no picture.
std::string DescribeJpeg(const std::string& file);

}  // namespace rux::test
