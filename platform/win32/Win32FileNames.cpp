#include "platform/win32/Win32FileNames.h"

#include <string_view>

#include "platform/win32/Headers.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {
namespace {

bool IsDelimiter(const TTextCursor& at) {
    return at.Is('\\') || at.Is('/');
}

/// Length of what names a drive or a share and can not be made: "C:\", "C:", "\", "\\server\share\".
std::size_t RootLength(const std::string& name) {
    TTextCursor at(name);
    std::size_t delimiters = 0;
    while (IsDelimiter(at)) at.Next(), ++delimiters;
    if (delimiters == 0) {
        if (name.size() < 2 || name[1] != ':') return 0;
        at = TTextCursor(name, 2);
    }
    if (delimiters == 2) {
        for (int part = 0; part < 2; ++part) {
            while (!at.AtEnd() && !IsDelimiter(at)) at.Next();
            if (part == 0 && !at.AtEnd()) at.Next();
        }
    }
    while (IsDelimiter(at)) at.Next();
    return at.Pos();
}

}  // namespace

bool IsFileName(const std::string& name) {
    return !name.empty() && name.size() < MAX_PATH && name.find('\0') == name.npos;
}

std::string ParentFolder(const std::string& name) {
    const std::size_t root = RootLength(name);
    // The end of the folder's name: where the last run of delimiters begins that something follows.
    std::size_t end = root, run = root;
    bool inRun = false;
    for (TTextCursor at(name, root); !at.AtEnd(); at.Next()) {
        if (IsDelimiter(at) && !inRun) run = at.Pos();
        if (!IsDelimiter(at) && inRun) end = run;
        inRun = IsDelimiter(at);
    }
    return root == name.size() ? name : name.substr(0, end);
}

std::uint32_t AttributesOf(const std::string& name) {
    return IsFileName(name) ? ::GetFileAttributesA(name.c_str()) : INVALID_FILE_ATTRIBUTES;
}

bool IsFolder(const std::string& name) {
    const std::uint32_t attributes = AttributesOf(name);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool IsRoot(const std::string& name) {
    char full[MAX_PATH];
    const DWORD length = ::GetFullPathNameA(name.c_str(), sizeof full, full, nullptr);
    // What cannot be told is nothing to delete.
    if (length == 0 || length >= sizeof full) return true;
    return RootLength(full) == length;
}

std::vector<TFoundEntry> EntriesOf(const std::string& folder, std::size_t limit) {
    std::vector<TFoundEntry> entries;
    const std::string pattern = IncludeTrailingPathDelimiter(folder) + "*";
    WIN32_FIND_DATAA found;
    const HANDLE search =
        IsFileName(pattern) ? ::FindFirstFileA(pattern.c_str(), &found) : INVALID_HANDLE_VALUE;
    if (search == INVALID_HANDLE_VALUE) return entries;
    do {
        const std::string_view name = found.cFileName;
        if (name != "." && name != "..") entries.push_back({std::string(name), found.dwFileAttributes});
    } while (entries.size() < limit && ::FindNextFileA(search, &found));
    ::FindClose(search);
    return entries;
}

}  // namespace rux
