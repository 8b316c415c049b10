// Names of files as the system takes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace rux {

/// False for what the system would cut or refuse: nothing, #0, or too many bytes.
bool IsFileName(const std::string& name);
/// The folder that holds `name`, without a backslash at its end; empty for a name without folder, `name`
/// itself for a drive and for the first two parts of a network name.
std::string ParentFolder(const std::string& name);
/// The system's attributes of a file or folder, all bits set for none.
std::uint32_t AttributesOf(const std::string& name);
bool IsFolder(const std::string& name);
/// True for the root of a drive or of a share, however it is spelt.
bool IsRoot(const std::string& name);

struct TFoundEntry {
    std::string Name;
    std::uint32_t Attributes;
};
/// What a folder holds, without itself and its parent, as far as the limit. All at once: while the system
/// searches a folder, that cannot go.
std::vector<TFoundEntry> EntriesOf(const std::string& folder, std::size_t limit);

}  // namespace rux
