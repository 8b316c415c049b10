// Native tree views, driven by messages.
#pragma once

#include <string>
#include <string_view>

#include "Engine/Virtual/RUXVirtualControls.h"

namespace rux {

/// A path is node captions joined by `/`, split as the run-time library splits: blanks separate too, and an
/// element in quotes is taken whole. Each element is looked for from the node of the one before on, at any
/// depth below it and beside it, case aside; the first in depth-first order counts. All operations with a
/// path raise ERUXException when there is no such node. All but GetCount focus the tree first.
class TVirtualTreeView final : public TVirtualClassOf<TVirtualWinControl, "TVirtualTreeView"> {
 public:
    static constexpr std::string_view NativeClass = "SysTreeView32";
    using TVirtualClassOf::TVirtualClassOf;
    std::string_view WindowClassName() const override { return NativeClass; }

    /// Where the node's text stands in the tree, once it has been brought into view.
    TRect PlaceOfNode(const std::string& path) const;
    void SelectNode(const std::string& path) const;
    /// At most 254 bytes; empty for no selection.
    std::string SelectedText() const;
    int GetCount() const;
    void Expand(const std::string& path) const;
    void SetNodeText(const std::string& path, const std::string& text) const;

 private:
    HTreeItem Next(TTreeRelation relation, HTreeItem node) const;
    std::string NodeText(HTreeItem node) const;
    HTreeItem FindNode(std::string_view path) const;
    /// Looks at no more nodes than the budget has left.
    HTreeItem SearchNode(HTreeItem start, std::string_view text, std::size_t& budget) const;
    /// Focuses, finds, brings into view; 0 for no such node.
    HTreeItem ShowNode(const std::string& path) const;
    /// The same, and raises for no such node.
    HTreeItem DemandNode(const std::string& path) const;
    void Focus() const;
};

}  // namespace rux
