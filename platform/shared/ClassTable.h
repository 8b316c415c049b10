// Classes by name and parent: what every toolkit keeps its class references in.
#pragma once

#include <cstdint>
#include <deque>
#include <string_view>
#include <unordered_map>

#include "platform/toolkit/Classes.h"

namespace rux {

/// User-interface thread.
class TNamedClasses : public TClassTable {
 public:
    const TClass& Define(std::string_view name, const TClass* parent) override;
    const TClass* Find(std::string_view name) const override;

 private:
    std::deque<TClass> FClasses;
    std::unordered_map<std::uint64_t, const TClass*> FByNameAndParent;
    std::unordered_map<std::uint32_t, const TClass*> FByName;
};

}  // namespace rux
