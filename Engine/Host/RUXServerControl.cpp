#include "Engine/Host/RUXServerControl.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXServerUtils.h"
#include "platform/FileService.h"
#include "rtl/Numbers.h"

namespace rux {

void PrepareFolders() {
    TFileService& files = Platform().Files;
    files.DeleteTree(GetWorkDir());
    files.ForceDirectories(GetWorkDir());
    files.ForceDirectories(GetPicDir());
}

std::string ClearServer() {
    GetLogger().Clear();
    Engine().RequestStack.Clear();
    return BoolToStr(true);
}

}  // namespace rux
