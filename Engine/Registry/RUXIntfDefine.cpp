#include "Engine/Registry/RUXIntfDefine.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXXmlReader.h"
#include "platform/FileService.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// The levels of a file of definitions.
enum TDefineDepth : std::size_t { InterfaceDepth = 2, MethodDepth = 3, ParamDepth = 4 };

/// The file's order puts each element behind the one that it stands in.
void AddElement(std::deque<TRUXIntfDefine>& defines, const TXmlElement& element) {
    switch (element.Depth) {
        case InterfaceDepth:
            defines.emplace_back("I" + element.Required("Name")).DefaultMethod =
                element.Required("DefaultMethod");
            return;
        case MethodDepth:
            defines.back().AddMethod(element.Required("Name"));
            return;
        case ParamDepth: {
            const std::string& kind = element.Required("Kind");
            defines.back().LastMethod().AddParam(element.Required("Name"), kind);
            return;
        }
        default:
            return;
    }
}

}  // namespace

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

void TRUXIntfDefineList::LoadFromFile(const std::string& name) {
    TFileService& files = Platform().Files;
    const std::optional<std::string> bytes = files.ReadFile(name);
    if (!bytes && !files.FileExists(name)) return;
    if (!bytes) throw EXMLError(name + ": cannot be read");
    std::deque<TRUXIntfDefine> read;
    ReadXml(name, *bytes, [&](const TXmlElement& element) { AddElement(read, element); });
    FDefines.insert(FDefines.end(), std::make_move_iterator(read.begin()),
                    std::make_move_iterator(read.end()));
}

const TRUXIntfDefine* TRUXIntfDefineList::FindDefine(std::string_view name) const {
    const auto found = std::find_if(FDefines.begin(), FDefines.end(), [&](const TRUXIntfDefine& define) {
        return SameText(define.Name, name);
    });
    return found == FDefines.end() ? nullptr : &*found;
}

}  // namespace rux
