#include "Engine/Adapters/RUXTreeFile.h"

#include <algorithm>
#include <optional>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "platform/FileService.h"
#include "rtl/Text.h"

namespace rux {

TTreeFileReader::TTreeFileReader(const std::string& fileName) {
    TFileService& files = Platform().Files;
    const std::optional<std::string> content = files.ReadFile(fileName);
    if (!content)
        throw EFOpenError(
            "Cannot open file \"" + fileName + "\". " +
            (files.FileExists(fileName) ? "Access is denied" : "The system cannot find the file specified"));
    FLines.SetText(*content);
}

bool TTreeFileReader::Next(std::string& path) {
    if (FNext >= static_cast<long long>(FLines.Count())) return false;
    const std::string& line = FLines[FNext++];
    const std::size_t above = std::min({line.find_first_not_of("\t "), line.size(), TreeFileDepthLimit});
    FRow.resize(above + 1);
    FRow.back() = Trim(line);
    path = JoinDelimited(FRow, '/');
    return true;
}

}  // namespace rux
