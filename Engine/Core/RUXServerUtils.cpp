#include "Engine/Core/RUXServerUtils.h"

#include "Engine/Core/RUXEngineState.h"
#include "platform/FileService.h"
#include "platform/KernelService.h"
#include "platform/toolkit/Classes.h"
#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {

std::string GetExePath() {
    return ExtractFilePath(Platform().Kernel.GetModuleName());
}

std::string GetWorkDir() {
    Assert(Engine().ServerPort != 0);
    return GetExePath() + "\\RUX_" + std::to_string(Engine().ServerPort) + "\\";
}

std::string GetLogFileName() {
    return GetWorkDir() + "RUX.log";
}

std::string GetPicDir() {
    return GetWorkDir() + "\\" + "UnExpectWindowPic";
}

std::string GetPicUrlPrefix() {
    return Platform().Files.DirectoryExists(GetPicDir()) ? "/UnExpectWindowPic/" : std::string();
}

std::size_t AddToObjectPool(std::unique_ptr<TObject> object) {
    const TIntf<ITestRequest> oldest = Engine().RequestStack.First();
    Assert(static_cast<bool>(oldest));
    const ITaskCenter* center = Engine().TaskCenter.Get();
    return oldest->GetObjectPool().Add(std::move(object), center ? center->Running() : nullptr);
}

}  // namespace rux
