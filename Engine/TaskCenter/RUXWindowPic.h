// Pictures of windows that nobody expected.
#pragma once

#include <string>

#include "platform/Types.h"

namespace rux {

/// A file name from the window's caption and the address that was being served, without what a file name may
/// not hold. It differs from the files of the current folder, which is not the one that pictures go to.
std::string BuildWindowPicName(const std::string& url, const std::string& caption);
/// Saves a JPEG picture of the window; nothing happens where the folder does not exist. What fails is a
/// warning in the log. User-interface thread; raises nothing.
void SaveWindowPic(HWnd window, const std::string& path);

}  // namespace rux
