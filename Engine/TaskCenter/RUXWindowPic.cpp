#include "Engine/TaskCenter/RUXWindowPic.h"

#include <exception>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLog.h"
#include "Engine/TaskCenter/RUXJpeg.h"
#include "platform/CodeService.h"
#include "platform/FileService.h"
#include "platform/Platform.h"
#include "platform/WindowService.h"
#include "rtl/Text.h"

namespace rux {

namespace {

const char* const Extension = ".jpg";

void Write(const std::string& path, const std::string& bytes) {
    if (!Platform().Files.WriteFile(path, bytes)) throw EInOutError("Cannot create file \"" + path + "\"");
}

/// A bitmap first: it stays where the compression fails.
void SaveBitmapAsJpeg(const TBitmap& picture, const std::string& path) {
    Write(path, BitmapFileBytes(picture));
    Write(path, JpegFileBytes(picture));
}

bool SaveByPrintWindow(HWnd window, const std::string& path) {
    // Old systems lack it.
    if (Platform().Code.GetProcAddress("user32.dll", "PrintWindow") == 0) return false;
    TBitmap picture;
    if (!Platform().Windows.PrintWindow(window, picture)) return false;
    SaveBitmapAsJpeg(picture, path);
    return true;
}

/// Shows what overlaps the window, too.
void SaveByScreenCopy(HWnd window, const std::string& path) {
    TRect place;
    TBitmap picture;
    if (!Platform().Windows.GetWindowRect(window, place) || !Platform().Windows.CopyScreen(place, picture))
        throw EInvalidGraphic("The window has no picture");
    SaveBitmapAsJpeg(picture, path);
}

}  // namespace

std::string BuildWindowPicName(const std::string& url, const std::string& caption) {
    std::string name = caption + "_" + url;
    for (const char* refused : {"?", "/", "\\", ":", "*", "\"", "<", ">", "|"})
        name = ReplaceAll(name, refused, "_");
    const auto exists = [](const std::string& file) { return Platform().Files.FileExists(file); };
    if (!exists(name + Extension)) return name + Extension;
    // The first count stays in the name beside the one that is counted up.
    name += "_1";
    int count = 1;
    while (exists(name + "_" + std::to_string(count) + Extension)) ++count;
    return name + "_" + std::to_string(count) + Extension;
}

void SaveWindowPic(HWnd window, const std::string& path) {
    try {
        if (!Platform().Files.DirectoryExists(ExtractFilePath(path))) return;
        if (!SaveByPrintWindow(window, path)) SaveByScreenCopy(window, path);
    } catch (const std::exception& error) {
        GetLogger().Warn("Picture of a window not saved: " + std::string(error.what()));
    }
}

}  // namespace rux
