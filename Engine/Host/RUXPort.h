// The port of this process, and the mutexes that announce it to other engines.
#pragma once

#include <cstdint>
#include <string>

namespace rux {

/// The first port from 4440 on that no other engine has announced and that nothing has bound. It is taken
/// once in the life of a process: an engine that is started again gets the same one. The mutexes are held
/// until the process ends, so that engines of other processes pass the port over.
std::uint16_t AcquireServerPort();

/// True when a mutex of that name exists, plain or with the prefix "Global\".
bool MutexExists(const std::string& name);
/// Makes the mutex under both names and holds it. True when both were new.
bool CreateGlobalMutex(const std::string& name);

}  // namespace rux
