// What the controller that placed the library hands over: a named mapping of three 32-bit values.
#pragma once

#include <cstdint>
#include <string>

#include "platform/CodeService.h"

namespace rux {

class TRUXEngineService {
 public:
    /// Reads the mapping of this process once. One that is missing or too small leaves all values 0.
    TRUXEngineService();

    /// Kept for the controller; the engine does not use them.
    std::uint32_t FirstValue() const { return FFirst; }
    std::uint32_t SecondValue() const { return FSecond; }
    /// Address of a function that resolves exported names, 0 for none.
    std::uint32_t ResolveEntry() const { return FResolveEntry; }
    /// Address of an export of a loaded module, by ResolveEntry where there is one; 0 when it cannot be
    /// found. Raises EAccessViolation when ResolveEntry is no function.
    TCodeAddress ResolveProc(const std::string& module, const std::string& name) const;

 private:
    std::uint32_t FFirst = 0, FSecond = 0, FResolveEntry = 0;
};

}  // namespace rux
