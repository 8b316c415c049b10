#include "platform/win32/Win32Files.h"

#include "platform/shared/ServiceLimits.h"
#include "platform/win32/Headers.h"
#include "platform/win32/Win32FileNames.h"
#include "platform/win32/Win32Handle.h"
#include "platform/win32/Win32Replacement.h"
#include "platform/win32/Win32TreeDeletion.h"
#include "rtl/Exceptions.h"

namespace rux {
namespace {

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class TWin32AppendFile final : public TAppendFile {
 public:
    explicit TWin32AppendFile(TWin32Handle file) : FFile(std::move(file)) {}
    /// One call of the system for each record: records of several processes do not mix.
    bool Write(std::string_view bytes) override {
        DWORD written = 0;
        const auto length = static_cast<DWORD>(bytes.size());
        return ::WriteFile(FFile.Get(), bytes.data(), length, &written, nullptr) && written == length;
    }

 private:
    TWin32Handle FFile;
};

/// A file of a disk, none for folders, devices and pipes.
TWin32Handle OpenFile(const std::string& name, DWORD access, DWORD disposition) {
    if (!IsFileName(name)) return {};
    TWin32Handle file(::CreateFileA(name.c_str(), access, ShareAll, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL | SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS,
                                    nullptr));
    return file && ::GetFileType(file.Get()) == FILE_TYPE_DISK ? std::move(file) : TWin32Handle();
}

bool MakeWithParents(const std::string& name) {
    if (name.empty() || IsFolder(name)) return true;
    const std::string parent = ParentFolder(name);
    if (parent == name || !MakeWithParents(parent)) return false;
    // Somebody else may make it at the same time.
    return ::CreateDirectoryA(name.c_str(), nullptr) || IsFolder(name);
}

std::uint64_t Mix(std::uint64_t seed, std::uint64_t value) {
    seed = (seed ^ value) * 0x9E3779B97F4A7C15u;
    return seed ^ (seed >> 29);
}

std::uint64_t Wide(DWORD high, DWORD low) {
    return std::uint64_t{high} << 32 | low;
}

}  // namespace

bool TWin32Files::FileExists(const std::string& name) {
    const std::uint32_t attributes = AttributesOf(name);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool TWin32Files::DirectoryExists(const std::string& name) {
    return IsFolder(name);
}

bool TWin32Files::ForceDirectories(const std::string& name) {
    if (name.empty()) throw EInOutError("Unable to create directory");
    return IsFileName(name) && MakeWithParents(name);
}

bool TWin32Files::DeleteFile(const std::string& name) {
    return IsFileName(name) && ::DeleteFileA(name.c_str());
}

bool TWin32Files::DeleteTree(const std::string& name) {
    return DeleteFolderTree(name);
}

std::optional<std::string> TWin32Files::ReadFile(const std::string& name) {
    const TWin32Handle file = OpenFile(name, GENERIC_READ, OPEN_EXISTING);
    LARGE_INTEGER size;
    if (!file || !::GetFileSizeEx(file.Get(), &size)) return std::nullopt;
    if (size.QuadPart > static_cast<LONGLONG>(ReadFileLimit)) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD count = 0;
    // One call brings all that a file of a disk has.
    if (!::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        return std::nullopt;
    bytes.resize(count);
    return bytes;
}

bool TWin32Files::WriteFile(const std::string& name, std::string_view bytes) {
    return IsFileName(name) && ReplaceFileContent(name, bytes);
}

std::int64_t TWin32Files::LastWriteTime(const std::string& name) {
    const TWin32Handle file = OpenFile(name, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    BY_HANDLE_FILE_INFORMATION facts;
    if (!file || !::GetFileInformationByHandle(file.Get(), &facts)) return 0;
    // The system's times go by ticks: size and place tell apart what was written within one.
    std::uint64_t stamp = Wide(facts.ftLastWriteTime.dwHighDateTime, facts.ftLastWriteTime.dwLowDateTime);
    stamp = Mix(stamp, Wide(facts.nFileSizeHigh, facts.nFileSizeLow));
    stamp = Mix(stamp, Wide(facts.nFileIndexHigh, facts.nFileIndexLow));
    return static_cast<std::int64_t>(stamp == 0 ? 1 : stamp);
}

std::unique_ptr<TAppendFile> TWin32Files::OpenAppend(const std::string& name) {
    TWin32Handle file = OpenFile(name, FILE_APPEND_DATA | SYNCHRONIZE, OPEN_ALWAYS);
    return file ? std::make_unique<TWin32AppendFile>(std::move(file)) : nullptr;
}

std::vector<TFolderEntry> TWin32Files::ReadFolder(const std::string& name) {
    std::vector<TFolderEntry> entries;
    for (TFoundEntry& found : EntriesOf(name, FolderEntryLimit))
        entries.push_back({std::move(found.Name), (found.Attributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    return entries;
}

}  // namespace rux
