#include "platform/win32/toolkit/WBridgeTable.h"

#include <cstddef>
#include <cstdint>

#include "platform/win32/Headers.h"

namespace rux {

namespace {

bool HasRequired(const RUXTable& t) {
    return t.Application && t.Alive && t.ClassInfo && t.Relation && t.Count && t.Child && t.Bounds &&
           t.Window && t.GetValue && t.SetValue && t.GetProperty && t.Invoke && t.GetEntry && t.SetEntry &&
           t.EntryBounds;
}

/// nil for a table that can be used. Of another version nothing but the first two fields is read.
const char* WhyRefused(const RUXTable& table) {
    if (table.Version != RUX_TABLE_VERSION) return "toolkit table refused: another version";
    if (table.Size < sizeof(RUXTable)) return "toolkit table refused: too small";
    if (!HasRequired(table)) return "toolkit table refused: a required function is missing";
    return nullptr;
}

}  // namespace

const RUXTable* FindToolkitTable() {
    const FARPROC found = ::GetProcAddress(::GetModuleHandleA(nullptr), RUX_TABLE_EXPORT);
    if (!found) return nullptr;
    // By way of a number: the compiler cannot know what the export really is.
    const auto ask = reinterpret_cast<RUXTableExport>(reinterpret_cast<std::uintptr_t>(found));
    const RUXTable* table = ask();
    const char* refusal = table ? WhyRefused(*table) : nullptr;
    if (!refusal) return table;
    ::OutputDebugStringA(refusal);
    return nullptr;
}

}  // namespace rux
