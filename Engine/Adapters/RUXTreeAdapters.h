// Trees of the toolkit.
#pragma once

#include <cstdint>
#include <string>

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TCustomTreeView;

/// Paths are read by FindNodeByPath unless told otherwise, and raise as it does. Indexes count all nodes from
/// 1, depth first.
class TSolviTreeAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviTreeAdapter", "TCustomTreeView", ITreeView, IEdit> {
 public:
    using TAdapterOf::TAdapterOf;

    /// Of the selected node, without which the first fails as an access violation, the second raises
    /// ERUXException.
    std::string GetText() override;
    void SetText(const std::string& S) override;
    /// The path of the selected node; empty without one.
    std::string Selected() override;

    /// Raises ERUXException for a node that cannot be shown, and selects that one.
    void Click(const std::string& ANameArr) override;
    /// The same without setting the focus.
    void DblClick(const std::string& ANameArr) override;
    /// Raises EAdapterException when nothing is selected afterwards.
    void Select(const std::string& ANameArr) override;
    void SelectbyIndex(std::int32_t AIndex) override;
    std::string GetTextByIndex(std::int32_t AIndex) override;
    void SetText(const std::string& ANameArr, const std::string& AValue) override;
    /// With the tree's events where the tree offers that, else the node's own state alone.
    void SetChecked(const std::string& ANameArr, bool AValue) override;
    void SetCheckedbyIndex(std::int32_t AIndex, bool AValue) override;

    /// These three are about the selected node when the path is blank.
    void SetExpand(const std::string& ANameArr) override;
    bool GetExpanded(const std::string& ANameArr) override;
    /// 1 for a root.
    std::int32_t GetLevel(const std::string& ANameArr) override;

    std::int32_t GetCount() override;
    bool IsLeaf(const std::string& ANameArr) override;
    /// The path as SearchNode reads it: brackets are operators here. Scripts rely on it.
    bool FindTreeNode(const std::string& ANameArr) override;
    /// Raises EFCreateError.
    void SaveTreeData(const std::string& AFileName) override;
    /// Selects one node after the other, each by its path in a file as SaveTreeData writes it. Raises
    /// EFOpenError.
    void SelectNodes(const std::string& AFileName) override;

 private:
    /// Asked for anew at each step.
    TCustomTreeView& Tree() const;
    TObject* NodeNamed(const std::string& path) const;
    /// nil when the path is blank and nothing is selected.
    TObject* NodeOrSelected(const std::string& path) const;
    /// Sets the focus first.
    TObject* NodeAt(std::int32_t index) const;
    [[noreturn]] static void RaiseNotFound(const std::string& path);
    void ShowSelected() const;
    void ClickNode(TObject* node, bool isDouble) const;
    void SetNodeChecked(TObject* node, bool value) const;
    /// As if the user had edited the node's label; OnEdited runs, no message is sent.
    void EditNodeText(TObject* node, std::string text) const;
};

}  // namespace rux
