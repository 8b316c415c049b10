#include "Engine/Registry/RUXIntfDefine.h"

#include <algorithm>

#include "rtl/Text.h"

namespace rux {

void TRUXMethodDefine::AddParam(std::string_view name, std::string_view kind) {
    FParams.push_back({std::string(name), std::string(kind)});
}

TRUXMethodDefine& TRUXIntfDefine::AddMethod(std::string_view name) {
    return FMethods.emplace_back(name);
}

void TRUXIntfDefine::SortMethods() {
    std::stable_sort(FMethods.begin(), FMethods.end(),
                     [](const auto& a, const auto& b) { return a.Name < b.Name; });
}

void TRUXIntfDefineList::AddInterface(const TInterfaceInfo& info) {
    TRUXIntfDefine& define = FDefines.emplace_back(info.Name);
    ForEachMethod(info, [&](const TIntfMethEntry& entry) {
        TRUXMethodDefine& method = define.AddMethod(entry.Name);
        for (std::size_t i = 0; i < entry.ParamCount; ++i)
            method.AddParam(entry.Params[i].Name, entry.Params[i].Info->Name);
        if (entry.ResultType) method.ReturnType = entry.ResultType->Name;
    });
    define.SortMethods();
}

const TRUXIntfDefine* TRUXIntfDefineList::FindDefine(std::string_view name) const {
    const auto found = std::find_if(FDefines.begin(), FDefines.end(), [&](const TRUXIntfDefine& define) {
        return SameText(define.Name, name);
    });
    return found == FDefines.end() ? nullptr : &*found;
}

}  // namespace rux
