// Mutexes and file mappings that all processes of the machine see under their names.
#pragma once

#include <cstddef>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/FileDescriptor.h"

namespace rux {

/// Each object is a file in one folder that is open to everyone. A mutex exists while some process has its
/// file locked, so its existence ends with the last of them, however they end; the empty file stays.
///
/// Any thread. Operations set the thread's last error. Mutexes are held until this object goes, which is
/// when the process ends, or when a test ends.
class TNamedObjects {
 public:
    /// `folder` is a system name; an empty one means the folder that the processes of a machine share.
    explicit TNamedObjects(std::string folder);

    bool OpenMutex(const std::string& name);
    bool CreateMutex(const std::string& name);
    /// Nothing when the mapping is smaller than `size`, or `size` beyond FileMappingLimit. A mapping is as
    /// large as its pages: bytes behind its size up to the end of its last page are there, zeros.
    std::optional<std::string> ReadMapping(const std::string& name, std::size_t size);

    /// What the creator of a mapping does: makes it or replaces its content, or takes it away.
    bool PublishMapping(const std::string& name, std::string_view bytes);
    void RemoveMapping(const std::string& name);

 private:
    TFileDescriptor OpenOrMake(const std::string& path) const;
    bool EnsureFolder() const;
    std::string PathOf(std::string_view kind, const std::string& name) const;

    std::string FFolder;
    std::mutex FLock;
    std::map<std::string, TFileDescriptor> FHeld;
};

}  // namespace rux
