#include "Engine/Core/RUXLog.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXServerUtils.h"
#include "platform/ClockService.h"
#include "platform/FileService.h"
#include "rtl/Dates.h"

namespace rux {

TLogger::~TLogger() = default;

void TLogger::Open() {
    // One try: a folder that cannot be written must not cost each record a system call more.
    if (std::exchange(FOpened, true)) return;
    TFileService& files = Platform().Files;
    files.ForceDirectories(GetWorkDir());
    files.ForceDirectories(GetPicDir());
    files.DeleteFile(GetLogFileName());
    FFile = files.OpenAppend(GetLogFileName());
}

void TLogger::Write(std::string_view level, std::string_view message) {
    const std::lock_guard lock(FLock);
    Open();
    if (!FFile) return;
    FRecord.assign(level).append(" - ").append(message).append("\r\n");
    FFile->Write(FRecord);
}

void TLogger::Clear() {
    const std::lock_guard lock(FLock);
    FFile.reset();
    FOpened = false;
    Open();
}

void TLogger::Close() {
    const std::lock_guard lock(FLock);
    FFile.reset();
    FOpened = false;
}

TLogger& GetLogger() {
    return Engine().Logger;
}

std::string LogTimeStamp() {
    return DateTimeToStr(Platform().Clock.Now()) + ": ";
}

}  // namespace rux
