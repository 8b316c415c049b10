#include "platform/win32/Win32NamedObjects.h"

#include "platform/shared/ServiceLimits.h"
#include "platform/win32/Headers.h"
#include "platform/win32/Win32Handle.h"

namespace rux {
namespace {

/// Prepares the last error for the call with this name; False when it is none.
bool IsWhole(const std::string& name) {
    const bool whole = name.find('\0') == name.npos;
    ::SetLastError(whole ? ERROR_SUCCESS : ERROR_INVALID_NAME);
    return whole;
}

/// A view of a mapping's first bytes.
class TView {
 public:
    /// `size` is not 0.
    TView(HANDLE mapping, std::size_t size) : FBytes(::MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, size)) {}
    TView(const TView&) = delete;
    TView& operator=(const TView&) = delete;
    ~TView() {
        if (FBytes) ::UnmapViewOfFile(FBytes);
    }

    /// True when so many bytes can be read.
    bool Holds(std::size_t size) const {
        MEMORY_BASIC_INFORMATION region;
        return FBytes && ::VirtualQuery(FBytes, &region, sizeof region) != 0 && region.State == MEM_COMMIT &&
               region.RegionSize >= size;
    }
    /// A file behind the mapping may fail to deliver; copied by the system, that is an error and no fault.
    bool Copy(std::string& out) const {
        SIZE_T count = 0;
        return ::ReadProcessMemory(::GetCurrentProcess(), FBytes, out.data(), out.size(), &count) &&
               count == out.size();
    }

 private:
    void* const FBytes;
};

}  // namespace

bool OpenNamedMutex(const std::string& name) {
    if (!IsWhole(name)) return false;
    const TWin32Handle mutex(::OpenMutexA(SYNCHRONIZE, FALSE, name.c_str()));
    return static_cast<bool>(mutex);
}

bool CreateNamedMutex(const std::string& name) {
    if (!IsWhole(name)) return false;
    // A list that is not there opens the object to everyone; an absent descriptor would open it to this user.
    SECURITY_DESCRIPTOR everyone;
    ::InitializeSecurityDescriptor(&everyone, SECURITY_DESCRIPTOR_REVISION);
    ::SetSecurityDescriptorDacl(&everyone, TRUE, nullptr, FALSE);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, &everyone, FALSE};
    const HANDLE mutex = ::CreateMutexA(&attributes, FALSE, name.c_str());
    return mutex && ::GetLastError() == ERROR_SUCCESS;
}

std::optional<std::string> ReadNamedMapping(const std::string& name, std::size_t size) {
    if (!IsWhole(name) || size > FileMappingLimit) return std::nullopt;
    const TWin32Handle mapping(::OpenFileMappingA(FILE_MAP_READ, FALSE, name.c_str()));
    if (!mapping) return std::nullopt;
    std::string bytes(size, '\0');
    if (size == 0) return bytes;
    const TView view(mapping.Get(), size);
    if (!view.Holds(size) || !view.Copy(bytes)) return std::nullopt;
    return bytes;
}

}  // namespace rux
