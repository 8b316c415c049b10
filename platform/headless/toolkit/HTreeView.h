// Trees: what the user and the application's code do with their nodes.
#pragma once

#include <string>

#include "platform/headless/toolkit/HLists.h"
#include "platform/headless/toolkit/HTreeLayout.h"
#include "platform/headless/toolkit/HTreeNode.h"

namespace rux {

/// One node may be selected, also in a tree that says MultiSelect. Focus selects nothing.
class HCustomTreeView : public With<HBorderedControl, TCustomTreeView> {
 public:
    HCustomTreeView(HToolkit& kit, const HClassDef& def) : HCustomTreeView(kit, def, "TTreeNode") {}

    // TCustomTreeView
    int Count() override { return FNodes->Count(); }
    TObject* Item(int index) override { return &FNodes->Item(index); }
    TObject* GetFirstNode() override { return FNodes->First(); }
    TObject* Selected() override { return FSelected; }
    void SetSelected(TObject* node) override { Select(dynamic_cast<HTreeNode*>(node)); }
    void SaveToFile(const std::string& fileName) override;
    void Edit(const TTVItem& item) override;

    /// The last child of `parent`, or the last root for nil. Fires nothing.
    HTreeNode& AddNode(HTreeNode* parent, std::string text) { return FNodes->Add(parent, std::move(text)); }
    /// A selected one gives its selection to the node behind it, before it or above it, with OnChange.
    void DeleteNode(HTreeNode& node);
    /// Fires nothing.
    void Clear();
    HTreeNode* SelectedNode() const { return FSelected; }
    /// OnChanging, which may refuse, for a node; the node comes into view; OnChange. nil for none.
    void Select(HTreeNode* node);

    HTreeNodeList& Nodes() const { return *FNodes; }
    HObject* ItemsObject() const { return FNodes; }
    HTreeLayout& Layout() { return FLayout; }
    virtual bool HasCheckBoxes() const { return false; }
    std::vector<HContentLine> Content() override;
    bool WantsKey(unsigned key) override { return key >= VK_LEFT && key <= VK_DOWN; }

 protected:
    HCustomTreeView(HToolkit& kit, const HClassDef& def, std::string_view nodeClass);
    void DefaultHandler(HMessage& message) override;
    /// The user clicked the node's check box.
    virtual void ToggleCheck(HTreeNode&) {}
    void Detach() override;

 private:
    void Press(TPoint point);
    void Key(unsigned key);
    void GoToRow(int row);

    HTreeNodeList* FNodes;
    HTreeNode* FSelected = nullptr;
    HTreeLayout FLayout{*this};
};

/// A tree whose nodes have check boxes when Checkboxes says so.
class HRichTreeView : public With<HCustomTreeView, TRichTreeView> {
 public:
    HRichTreeView(HToolkit& kit, const HClassDef& def) : With(kit, def, "TRichTreeNode") {}
    /// Fires OnNodeChecked when that changes the node.
    void SetNodeChecked(TObject* node, bool value) override;
    bool Checkboxes() const { return FCheckboxes; }
    void SetCheckboxes(bool value) { FCheckboxes = value; }
    bool HasCheckBoxes() const override { return FCheckboxes; }

 protected:
    void ToggleCheck(HTreeNode& node) override;

 private:
    bool FCheckboxes = false;
};

}  // namespace rux
