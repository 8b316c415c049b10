// Trees and their nodes.
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"
#include "platform/win32/toolkit/WBridgeFamily.h"

namespace rux {

namespace {

class WTree final : public WBridgeFamily, public TCustomTreeView, public TRichTreeView {
 public:
    explicit WTree(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::CustomTreeView) return static_cast<TCustomTreeView*>(this);
        return id == TFacetId::RichTreeView ? static_cast<TRichTreeView*>(this) : nullptr;
    }
    int Count() override { return FHandle.Count(RUX_NODES); }
    TObject* Item(int index) override { return FHandle.Child(RUX_NODES, index); }
    TObject* GetFirstNode() override { return FHandle.Other(RUX_FIRST_NODE); }
    TObject* Selected() override { return FHandle.Other(RUX_SELECTED); }
    void SetSelected(TObject* node) override { FHandle.Set(RUX_SELECTED_NODE, WObject(node)); }
    void SaveToFile(const std::string& fileName) override { FHandle.Set(RUX_SAVED_FILE, WText(fileName)); }
    void Edit(const TTVItem& item) override {
        if (!item.Text) return;
        const std::string text = item.Text;
        // The item's parameter is its node.
        FHandle.Bridge.SetValue(static_cast<RUXRef>(item.Param), RUX_EDITED_TEXT, WText(text));
    }
    void SetNodeChecked(TObject* node, bool value) override {
        if (!node) RaiseNilAccess();
        FHandle.Bridge.SetValue(static_cast<RUXRef>(node->RefNumber()), RUX_CHECKED_BY_TREE, WFlag(value));
    }

 private:
    const WHandle FHandle;
};

class WNode final : public WBridgeFamily, public TTreeNode, public TRichTreeNode {
 public:
    explicit WNode(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::TreeNode) return static_cast<TTreeNode*>(this);
        return id == TFacetId::RichTreeNode ? static_cast<TRichTreeNode*>(this) : nullptr;
    }
    std::string Text() override { return FHandle.Text(RUX_TEXT); }
    HTreeItem ItemId() override {
        return static_cast<HTreeItem>(FHandle.Bridge.ValueOf(FHandle.Ref, RUX_ITEM_ID).Ordinal);
    }
    TObject* Parent() override { return FHandle.Other(RUX_NODE_PARENT); }
    TObject* GetNextSibling() override { return FHandle.Other(RUX_NEXT_SIBLING); }
    TObject* GetFirstChild() override { return FHandle.Other(RUX_FIRST_CHILD); }
    int Level() override { return FHandle.Integer(RUX_LEVEL); }
    bool HasChildren() override { return FHandle.Flag(RUX_HAS_CHILDREN); }
    bool Expanded() override { return FHandle.Flag(RUX_EXPANDED); }
    void SetExpanded(bool value) override { FHandle.Set(RUX_EXPANDED, WFlag(value)); }
    void MakeVisible() override { FHandle.Invoke(RUX_MAKE_VISIBLE); }
    TRect DisplayRect(bool textOnly) override {
        return FHandle.Bridge.Bounds(FHandle.Ref, textOnly ? RUX_NODE_TEXT : RUX_NODE);
    }
    void SetSelected(bool value) override { FHandle.Set(RUX_SELECTED_FLAG, WFlag(value)); }
    int CheckState() override { return FHandle.Integer(RUX_CHECK_STATE); }
    void SetCheckState(int value) override { FHandle.Set(RUX_CHECK_STATE, WInteger(value)); }

 private:
    const WHandle FHandle;
};

}  // namespace

std::unique_ptr<WBridgeFamily> MakeTreeFamily(const WHandle& handle, const TClass& type) {
    if (type.Is(TFacetId::CustomTreeView)) return std::make_unique<WTree>(handle);
    if (type.Is(TFacetId::TreeNode)) return std::make_unique<WNode>(handle);
    return nullptr;
}

}  // namespace rux
