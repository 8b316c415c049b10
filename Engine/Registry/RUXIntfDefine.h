// Interface definitions: what the methods behind a type word look like, for people to read. Calls do not go
// by them.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "Engine/Core/RUXInterfaceTable.h"

namespace rux {

struct TRUXParamDefine {
    std::string Name;
    /// Name of its type.
    std::string Kind;
};

class TRUXMethodDefine {
 public:
    explicit TRUXMethodDefine(std::string_view name) : Name(name) {}

    std::string Name;
    /// Name of the result's type; empty for a procedure.
    std::string ReturnType;

    void AddParam(std::string_view name, std::string_view kind);
    std::size_t Count() const { return FParams.size(); }
    /// In the order of the declaration.
    const std::vector<TRUXParamDefine>& Items() const { return FParams; }

 private:
    std::vector<TRUXParamDefine> FParams;
};

class TRUXIntfDefine {
 public:
    explicit TRUXIntfDefine(std::string_view name) : Name(name) {}

    /// With its leading I.
    std::string Name;
    /// As a file of definitions has it; nothing asks for it.
    std::string DefaultMethod;

    /// The reference holds until the methods are sorted.
    TRUXMethodDefine& AddMethod(std::string_view name);
    /// There must be one.
    TRUXMethodDefine& LastMethod() { return FMethods.back(); }
    /// By the codes of the names' characters; methods of one name keep their order.
    void SortMethods();
    std::size_t Count() const { return FMethods.size(); }
    const std::deque<TRUXMethodDefine>& Items() const { return FMethods; }

 private:
    std::deque<TRUXMethodDefine> FMethods;
};

/// Filled at start, before other threads run; then only read, by any thread.
class TRUXIntfDefineList {
 public:
    /// Appends a definition with the methods of the interface and its ancestors, sorted. A name may be there
    /// already: the search finds the first.
    void AddInterface(const TInterfaceInfo& info);
    /// Appends what an XML file defines: interfaces in the document element, methods in them, parameters in
    /// those, whatever the elements are called. Methods stay in the order of the file and have no result. An
    /// absent file and one without an element add nothing. Raises EXMLError, and then adds nothing either,
    /// for a file that cannot be read, is no XML or lacks an attribute. User-interface thread, at start.
    void LoadFromFile(const std::string& name);
    /// nil for a name that is not defined. Compared without case.
    const TRUXIntfDefine* FindDefine(std::string_view name) const;
    std::size_t Count() const { return FDefines.size(); }
    const std::deque<TRUXIntfDefine>& Items() const { return FDefines; }

 private:
    std::deque<TRUXIntfDefine> FDefines;
};

}  // namespace rux
