// Native buttons, edits, labels, combo boxes and trees.
#pragma once

#include <cstdint>
#include <string>

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

/// Serves a class of virtual controls. What scripts ask beyond what messages can do fails as an assertion.
template <TClassNameLiteral Name, TClassNameLiteral Control, class... Interfaces>
using TVirtualAdapterOf = TAdapterOf<TBaseVirtualControlAdapter, Name, Control, Interfaces...>;

class TVirtualButtonAdapter final
    : public TVirtualAdapterOf<"TVirtualButtonAdapter", "TVirtualButton", IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    void Click() override;
};

class TVirtualEditAdapter final : public TVirtualAdapterOf<"TVirtualEditAdapter", "TVirtualEdit", IEdit> {
 public:
    using TAdapterOf::TAdapterOf;
    std::string GetText() override;
    void SetText(const std::string& S) override;
};

class TVirtualStaticAdapter final
    : public TVirtualAdapterOf<"TVirtualStaticAdapter", "TVirtualStatic", ILabel, IButton> {
 public:
    using TAdapterOf::TAdapterOf;
    std::string GetText() override;
    /// Not available.
    void Click() override;
};

/// Only the text can be read.
class TVirtualComboboxAdapter final : public TVirtualAdapterOf<"TVirtualComboboxAdapter", "TVirtualCombobox",
                                                               IComboBox, IComboControl, IList> {
 public:
    using TAdapterOf::TAdapterOf;
    std::string GetText() override;
    void SetText(const std::string& S) override;
    bool ReadOnly() override;
    void Select(const std::string& AName) override;
    void SelectByIndex(std::int32_t AIdx) override;
    std::string Selected() override;
    std::int32_t GetCount() override;
};

class TVirtualTreeViewAdapter final
    : public TVirtualAdapterOf<"TVirtualTreeViewAdapter", "TVirtualTreeView", ITreeView, IEdit> {
 public:
    using TAdapterOf::TAdapterOf;
    // Paths as TVirtualTreeView reads them; ERUXException for a path that leads nowhere.
    void Click(const std::string& ANameArr) override;
    void Select(const std::string& ANameArr) override;
    void SetExpand(const std::string& ANameArr) override;
    void SetText(const std::string& ANameArr, const std::string& AValue) override;
    std::int32_t GetCount() override;
    /// The selected node's text, both.
    std::string GetText() override;
    std::string Selected() override;

    // Not available.
    void SetText(const std::string& S) override;
    void DblClick(const std::string& ANameArr) override;
    void SaveTreeData(const std::string& AFileName) override;
    void SelectNodes(const std::string& AFileName) override;
    void SetChecked(const std::string& ANameArr, bool AValue) override;
    std::int32_t GetLevel(const std::string& ANameArr) override;
    bool GetExpanded(const std::string& ANameArr) override;
    bool FindTreeNode(const std::string& ANameArr) override;
    std::string GetTextByIndex(std::int32_t AIndex) override;
    void SelectbyIndex(std::int32_t AIndex) override;
    void SetCheckedbyIndex(std::int32_t AIndex, bool AValue) override;
    bool IsLeaf(const std::string& ANameArr) override;
};

}  // namespace rux
