// The nodes of a tree: live objects without a name, and the list that owns them.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/toolkit/HObject.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"

namespace rux {

class HCustomTreeView;
class HTreeNodeList;

/// Dead as soon as it is deleted, alone, with its parent or with its tree.
class HTreeNode : public With<HObject, TTreeNode> {
 public:
    using With::With;

    // TTreeNode
    std::string Text() override { return FText; }
    HTreeItem ItemId() override { return static_cast<HTreeItem>(RefNumber()); }
    TObject* Parent() override { return FParent; }
    TObject* GetNextSibling() override { return FNext; }
    TObject* GetFirstChild() override { return FFirst; }
    int Level() override { return FLevel; }
    bool HasChildren() override { return FFirst || FPromised; }
    bool Expanded() override { return FExpanded; }
    void SetExpanded(bool value) override;
    void MakeVisible() override;
    TRect DisplayRect(bool textOnly) override;
    void SetSelected(bool value) override;

    const std::string& TextRef() const { return FText; }
    /// Fires nothing.
    void SetText(std::string text) { FText = std::move(text); }
    /// Promises children that OnExpanding will make.
    void SetHasChildren(bool value) { FPromised = value; }
    HTreeNode* ParentNode() const { return FParent; }
    HTreeNode* NextNode() const { return FNext; }
    HTreeNode* PrevNode() const { return FPrev; }
    HTreeNode* FirstNode() const { return FFirst; }
    bool IsBelow(const HTreeNode& above) const;
    /// nil for a deleted node.
    HCustomTreeView* Tree() const;

 private:
    friend class HTreeNodeList;
    bool FireAllowed(TName event);

    std::string FText;
    HTreeNodeList* FList = nullptr;
    HTreeNode *FParent = nullptr, *FFirst = nullptr, *FLast = nullptr, *FNext = nullptr, *FPrev = nullptr;
    int FLevel = 0;
    /// Place among the shown nodes, as it was when they were last listed.
    std::size_t FRow = 0;
    bool FExpanded = false, FPromised = false;
};

/// A node with a check box.
class HRichTreeNode : public With<HTreeNode, TRichTreeNode> {
 public:
    using With::With;
    int CheckState() override { return FCheckState; }
    bool Checked() const { return FCheckState == 1; }
    void SetCheckState(int value) override { FCheckState = value; }

 private:
    int FCheckState = 0;
};

/// The part `Items` of a tree. Its orders are listed when somebody asks for them after a change, so that a
/// loop over indexes costs no more than its steps.
class HTreeNodeList : public HObject {
 public:
    using HObject::HObject;
    ~HTreeNodeList() override;

    /// The tree whose events the nodes fire, and the class of its nodes.
    void Attach(HCustomTreeView& tree, std::string_view nodeClass);
    HCustomTreeView* Tree() const { return FTree; }
    /// The last child of `parent`, which is nil for a root.
    HTreeNode& Add(HTreeNode* parent, std::string text);
    /// With all below it. Fires nothing.
    void Delete(HTreeNode& node);
    void Clear();
    int Count() const { return static_cast<int>(FCount); }
    /// In depth-first order; ETreeViewError for an index outside.
    HTreeNode& Item(int index);
    HTreeNode* First() const { return FFirst; }
    /// The node behind this one in depth-first order, nil for the last; without its children if `skip`.
    static HTreeNode* After(const HTreeNode& node, bool skip = false);

    /// The nodes that no collapsed one hides, from the top.
    const std::vector<HTreeNode*>& Rows();
    /// -1 for a hidden node.
    int RowOf(const HTreeNode& node);
    void RowsChanged() { FRowsKnown = false; }

    /// Takes the nodes out of `Data` and `NodeData`; bytes of an unknown version are kept as they are.
    void StoreBlob(TName name, std::string bytes) override;

 private:
    using TGrave = std::vector<std::unique_ptr<HTreeNode>>;
    void Unlink(HTreeNode& node);
    void Bury(HTreeNode& node, TGrave& grave);
    std::shared_ptr<TGrave> BuryAll();
    void Changed();

    HCustomTreeView* FTree = nullptr;
    const HClassDef* FNodeDef = nullptr;
    HTreeNode *FFirst = nullptr, *FLast = nullptr;
    std::size_t FCount = 0;
    std::vector<HTreeNode*> FOrder, FRows;
    bool FOrderKnown = true, FRowsKnown = true;
};

}  // namespace rux
