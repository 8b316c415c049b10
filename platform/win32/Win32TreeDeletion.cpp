#include "platform/win32/Win32TreeDeletion.h"

#include <limits>

#include "platform/shared/ServiceLimits.h"
#include "platform/win32/Headers.h"
#include "platform/win32/Win32FileNames.h"
#include "rtl/CodePage.h"

namespace rux {
namespace {

/// Names are bounded by the system, and so is the depth of the walk.
class TTreeDeletion {
 public:
    /// Counts what stays.
    std::size_t Delete(const std::string& name, DWORD attributes) {
        DeleteEntry(name, attributes);
        return FFailures;
    }

 private:
    void DeleteEntry(const std::string& name, DWORD attributes);
    void DeleteContent(const std::string& folder);
    std::size_t FFailures = 0;
};

bool IsLink(DWORD attributes) {
    return attributes & FILE_ATTRIBUTE_REPARSE_POINT;
}

void MakeWritable(const std::string& name, DWORD attributes) {
    if (attributes & FILE_ATTRIBUTE_READONLY)
        ::SetFileAttributesA(name.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

void TTreeDeletion::DeleteEntry(const std::string& name, DWORD attributes) {
    MakeWritable(name, attributes);
    const bool folder = attributes & FILE_ATTRIBUTE_DIRECTORY;
    if (folder && !IsLink(attributes)) DeleteContent(name);
    if (!(folder ? ::RemoveDirectoryA(name.c_str()) : ::DeleteFileA(name.c_str()))) ++FFailures;
}

void TTreeDeletion::DeleteContent(const std::string& folder) {
    for (const TFoundEntry& entry : EntriesOf(folder, std::numeric_limits<std::size_t>::max())) {
        if (FFailures >= DeleteTreeFailureLimit) return;
        DeleteEntry(folder + "\\" + entry.Name, entry.Attributes);
    }
}

bool IsGone() {
    const DWORD error = ::GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// A backslash at the end would lead through a link.
void CutDelimiters(std::string& name) {
    std::size_t end = 0;
    for (TTextCursor at(name); !at.AtEnd(); at.Next())
        if (!at.Is('\\') && !at.Is('/')) end = at.Pos() + at.Length();
    name.resize(end);
}

}  // namespace

bool DeleteFolderTree(std::string name) {
    if (!IsFileName(name) || IsRoot(name)) return false;
    CutDelimiters(name);
    const DWORD attributes = AttributesOf(name);
    if (attributes == INVALID_FILE_ATTRIBUTES) return IsGone();
    constexpr DWORD deletable = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return (attributes & deletable) && TTreeDeletion().Delete(name, attributes) == 0;
}

}  // namespace rux
