#include "Engine/Registry/RUXTypeRegistry.h"

#include <algorithm>

#include "Engine/Core/RUXLog.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr int NotAsked = 0;
constexpr int NoneFits = -1;

/// Place plus one of the entry at the smallest distance, of equal ones the first; NoneFits without one.
template <class Entry, class Distance>
int ChooseNearest(const std::vector<Entry>& entries, const Distance& distanceOf) {
    int best = NoAdapterMatch;
    int chosen = NoneFits;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const int distance = distanceOf(entries[i]);
        if (distance < 0 || distance >= best) continue;
        best = distance;
        chosen = static_cast<int>(i) + 1;
        // Later entries lose a tie, so nothing can beat the class itself.
        if (best == 0) break;
    }
    return chosen;
}

int FinderDistance(const TFinderEntry& entry, const TClass& type) {
    const int first = ClassDistance(&type, entry.ControlClass, NoFinderMatch);
    if (first != NoFinderMatch || entry.SecondControlClass.empty()) return first;
    return ClassDistance(&type, entry.SecondControlClass, NoFinderMatch);
}

template <class Entry>
const Entry* FindByName(const std::vector<Entry>& entries, std::string_view name) {
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry& e) { return SameText(e.Name, name); });
    return found == entries.end() ? nullptr : &*found;
}

int& RememberedFor(const TClass& type, std::vector<int>& memory) {
    if (type.Index() >= memory.size()) memory.resize(std::size_t{type.Index()} + 1, NotAsked);
    return memory[type.Index()];
}

template <class Entry>
const Entry* EntryAt(const std::vector<Entry>& entries, int placePlusOne) {
    return placePlusOne == NoneFits ? nullptr : &entries[static_cast<std::size_t>(placePlusOne - 1)];
}

}  // namespace

int ClassDistance(const TClass* type, std::string_view name, int noMatch) {
    int depth = 0;
    for (; type; type = type->Parent(), ++depth)
        if (SameText(type->Name(), name)) return depth;
    return noMatch;
}

int ClassLevel(const TClass* type, std::string_view baseName) {
    return ClassDistance(type, baseName, NoAdapterMatch);
}

bool IsClassByName(const TObject* object, std::string_view className) {
    return object && ClassDistance(&object->ClassType(), className, NoFinderMatch) != NoFinderMatch;
}

void TTypeRegistry::RegisterAdapter(const TAdapterEntry& entry) {
    if (FindByName(FAdapters, entry.Name)) return;
    FAdapters.push_back(entry);
    FAdapterOfClass.clear();
}

void TTypeRegistry::RegisterFindAdapter(const TFinderEntry& entry) {
    if (FindByName(FFinders, entry.Name)) return;
    FFinders.push_back(entry);
    FFinderOfClass.clear();
}

const TAdapterEntry* TTypeRegistry::FindAdapterClass(const TClass* type) {
    const TAdapterEntry* found = nullptr;
    if (type) {
        int& place = RememberedFor(*type, FAdapterOfClass);
        if (place == NotAsked)
            place = ChooseNearest(FAdapters,
                                  [&](const TAdapterEntry& e) { return ClassLevel(type, e.ControlClass); });
        found = EntryAt(FAdapters, place);
    }
    if (!found)
        GetLogger().Error(
            Format(Ansi("找不到支持类%s的适配器!"), {type ? std::string_view(type->Name()) : ""}));
    return found;
}

const TAdapterEntry* TTypeRegistry::FindNamedAdapter(std::string_view name) const {
    return FindByName(FAdapters, name);
}

const TFinderEntry* TTypeRegistry::FindFinderClass(const TClass& type) {
    int& place = RememberedFor(type, FFinderOfClass);
    if (place == NotAsked)
        place = ChooseNearest(FFinders, [&](const TFinderEntry& e) { return FinderDistance(e, type); });
    return EntryAt(FFinders, place);
}

TIntf<IFindAdapter> TTypeRegistry::CreateFindAdapter(TObject* instance) {
    const TFinderEntry* entry = instance ? FindFinderClass(instance->ClassType()) : nullptr;
    return entry ? entry->Make(instance) : nullptr;
}

TIntf<IFindAdapter> TTypeRegistry::CreateNamedFindAdapter(TObject* instance, std::string_view finderName) {
    const TFinderEntry* entry = FindByName(FFinders, finderName);
    return entry ? entry->Make(instance) : nullptr;
}

}  // namespace rux
