// Mutexes and file mappings that processes see under their names.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace rux {

/// Any thread. Operations leave the thread's last error as the system set it; 0 for one that went well.
///
/// Names hold bytes of the code page; what stands behind a #0 is no name, and nothing is found or made by it.
bool OpenNamedMutex(const std::string& name);
/// The handle stays open on purpose: the mutex is there until the process ends, whatever becomes of the
/// library.
bool CreateNamedMutex(const std::string& name);
/// A mapping is as large as its pages: bytes behind its size up to the end of its last page are there, zeros.
/// Nothing also beyond FileMappingLimit, and for bytes that are reserved but not committed.
std::optional<std::string> ReadNamedMapping(const std::string& name, std::size_t size);

}  // namespace rux
