// The way to the live objects of a toolkit that attached by its table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Types.h"
#include "platform/toolkit/Classes.h"
#include "platform/win32/toolkit/ToolkitTable.h"

namespace rux {

class WBridgeApplication;
class WBridgeObject;

/// What tells one object from all others, before and after: an address serves one object after the other.
struct WIdentity {
    RUXRef Ref = 0;
    std::uint32_t Life = 0;
    const TClass* Class = nullptr;
    friend bool operator==(const WIdentity&, const WIdentity&) = default;
};

/// Turns calls into calls through the table and numbers into proxies: one for each object, made when the
/// object is first met. Made and destroyed by any thread, used on the user-interface thread where nothing
/// else is said. Its operations raise what the application raised, and EAccessViolation for an object that is
/// gone or has nothing of the kind.
class WBridge {
 public:
    /// The table stays where it is; `classes` outlives the bridge. Calls Application alone.
    WBridge(const RUXTable& table, TClassTable& classes, const TClass& applicationClass);
    ~WBridge();

    TObject& Application();
    /// The application as it is now. Any thread.
    RUXApplicationState State() const;
    /// The application's own report of an error. False where it has none, and on another thread.
    bool ReportError(const std::exception& error);

    /// The proxy of a live object; nil for 0, for one that is gone and for any other number.
    TObject* ObjectOf(RUXRef ref);
    /// Who has that address now; nobody's for one that is free.
    WIdentity IdentityOf(RUXRef ref);
    /// Frees proxies whose objects are gone, every so often; answers how many are left. A proxy whose object
    /// died stays, without operations, for as long as somebody could still hold it; only the caller knows
    /// when nobody does: no call of the engine may be under way on the user-interface thread, not in an outer
    /// message loop either.
    std::size_t ForgetDead();

    // The table's functions.
    TObject* Relation(RUXRef ref, std::int32_t relation);
    int Count(RUXRef ref, std::int32_t row);
    /// Raises EListError "List index out of bounds (<index>)".
    TObject* Child(RUXRef ref, std::int32_t row, int index);
    TRect Bounds(RUXRef ref, std::int32_t which);
    HWnd Window(RUXRef ref);
    RUXValue ValueOf(RUXRef ref, std::int32_t what);
    std::string TextOf(RUXRef ref, std::int32_t what);
    void SetValue(RUXRef ref, std::int32_t what, const RUXValue& value);
    /// False when there is none of that name.
    bool GetProperty(RUXRef ref, TName name, TPropValue& value);
    void Invoke(RUXRef ref, std::int32_t verb);
    /// Raise EStringListError "List index out of bounds (<index>)".
    RUXValue EntryOf(RUXRef ref, std::int32_t row, int index);
    std::string EntryText(RUXRef ref, std::int32_t row, int index);
    void SetEntry(RUXRef ref, std::int32_t row, int index, const RUXValue& value);
    /// Empty for an index outside.
    TRect EntryBounds(RUXRef ref, int index);

 private:
    const TClass& ClassOf(RUXClass type, RUXRef object);
    const TClass& DefineClass(RUXClass type);
    void InternProperties(RUXRef object);

    const RUXTable& FTable;
    TClassTable& FClasses;
    const std::unique_ptr<WBridgeApplication> FApplication;
    std::unordered_map<RUXClass, const TClass*> FClassOf;
    std::unordered_map<RUXRef, std::unique_ptr<WBridgeObject>> FProxies;
    /// Their addresses belong to others by now.
    std::vector<std::unique_ptr<WBridgeObject>> FRetired;
    std::size_t FForgetFrom;
};

}  // namespace rux
