// File names in the target's style. A backslash that is a trail byte parts nothing.
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {
namespace {

/// Offset of the file's name: behind the last backslash or colon.
std::size_t NameStart(std::string_view path) {
    std::size_t start = 0;
    for (TTextCursor at(path); !at.AtEnd(); at.Next()) {
        if (at.Is('\\') || at.Is(':')) start = at.Pos() + 1;
    }
    return start;
}

}  // namespace

std::string ExtractFilePath(std::string_view path) {
    return std::string(path.substr(0, NameStart(path)));
}

std::string ExtractFileName(std::string_view path) {
    return std::string(path.substr(NameStart(path)));
}

std::string ChangeFileExt(std::string_view path, std::string_view extension) {
    std::size_t stem = path.size();
    for (TTextCursor at(path, NameStart(path)); !at.AtEnd(); at.Next()) {
        if (at.Is('.')) stem = at.Pos();
    }
    return std::string(path.substr(0, stem)).append(extension);
}

std::string IncludeTrailingPathDelimiter(std::string_view path) {
    bool delimited = false;
    for (TTextCursor at(path); !at.AtEnd(); at.Next()) delimited = at.Is('\\');
    return std::string(path).append(delimited ? "" : "\\");
}

}  // namespace rux
