// The two ordered class lists that decide what a live object becomes: finders (how it is searched) and
// adapters (how it is driven). The registry knows entries, not the classes behind them.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "Engine/Core/RUXAdapter.h"
#include "Engine/Core/RUXFindAdapter.h"
#include "platform/toolkit/Classes.h"

namespace rux {

struct TAdapterEntry {
    std::string_view Name;
    /// The class that the adapter answers distance 0 for.
    std::string_view ControlClass;
    const TInterfaceInfo* Interface;
    TIntf<IRUXAdapter> (*Make)(TObject* control);
};

struct TFinderEntry {
    std::string_view Name;
    /// Empty for a finder that no search selects.
    std::string_view ControlClass;
    /// A second root, asked when the first is no ancestor; empty for none.
    std::string_view SecondControlClass;
    TIntf<IFindAdapter> (*Make)(TObject* instance);
};

inline constexpr int NoAdapterMatch = 2147483647;
inline constexpr int NoFinderMatch = -1;

/// Steps from `type` up to the first class of that name, compared without case; `noMatch` when the chain ends
/// and for nil.
int ClassDistance(const TClass* type, std::string_view name, int noMatch);
/// ClassDistance with the adapters' no-match value.
int ClassLevel(const TClass* type, std::string_view baseName);
/// True when the object's class or an ancestor bears the name.
bool IsClassByName(const TObject* object, std::string_view className);

/// Filled at start by the units' registration in their fixed order, then only read, on the user-interface
/// thread. What a class was once found to be is remembered.
class TTypeRegistry {
 public:
    /// A second registration of a name changes nothing and keeps its place.
    void RegisterAdapter(const TAdapterEntry& entry);
    void RegisterFindAdapter(const TFinderEntry& entry);

    /// The entry of the smallest distance, of equal ones the first; nil when none fits, which is logged as an
    /// error for adapters.
    const TAdapterEntry* FindAdapterClass(const TClass* type);
    const TAdapterEntry* FindNamedAdapter(std::string_view name) const;
    /// nil when no finder accepts the object's class.
    TIntf<IFindAdapter> CreateFindAdapter(TObject* instance);
    /// The first finder of that name, whatever its distance; nil for an unknown name.
    TIntf<IFindAdapter> CreateNamedFindAdapter(TObject* instance, std::string_view finderName);

    const std::vector<TAdapterEntry>& Adapters() const { return FAdapters; }
    const std::vector<TFinderEntry>& Finders() const { return FFinders; }

 private:
    const TFinderEntry* FindFinderClass(const TClass& type);

    std::vector<TAdapterEntry> FAdapters;
    std::vector<TFinderEntry> FFinders;
    /// By class index; the entry's place plus one, 0 for not asked yet, -1 for none.
    std::vector<int> FAdapterOfClass;
    std::vector<int> FFinderOfClass;
};

}  // namespace rux
