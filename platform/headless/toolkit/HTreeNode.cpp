#include "platform/headless/toolkit/HTreeNode.h"

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HNodeBytes.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "platform/headless/toolkit/HTreeView.h"

namespace rux {

// ------------------------------------------------------------------------------------------ a node

HCustomTreeView* HTreeNode::Tree() const {
    return FList ? FList->Tree() : nullptr;
}

bool HTreeNode::IsBelow(const HTreeNode& above) const {
    const HTreeNode* step = this;
    while (step && step->FLevel > above.FLevel) step = step->FParent;
    return step == &above && this != &above;
}

bool HTreeNode::FireAllowed(TName event) {
    HEventArgs args;
    args.Object = this;
    Tree()->Fire(event, args);
    return args.Allow && !Dead();
}

void HTreeNode::SetExpanded(bool value) {
    if (Dead() || value == FExpanded || !HasChildren()) return;
    const HNames& names = Kit().Names();
    if (!FireAllowed(value ? names.OnExpanding : names.OnCollapsing)) return;
    // What was promised may not have come, and code may have done it all by itself.
    if (value == FExpanded || (value && !FFirst)) return;
    FExpanded = value;
    FList->RowsChanged();
    HTreeNode* chosen = Tree()->SelectedNode();
    // What is chosen is never hidden.
    if (!value && chosen && chosen->IsBelow(*this)) Tree()->Select(this);
    if (!Dead()) FireAllowed(value ? names.OnExpanded : names.OnCollapsed);
}

void HTreeNode::MakeVisible() {
    std::vector<HTreeNode*> above;
    for (HTreeNode* step = FParent; step; step = step->FParent)
        if (!step->FExpanded) above.push_back(step);
    // From the root down, as the user would.
    for (auto step = above.rbegin(); step != above.rend(); ++step) (*step)->SetExpanded(true);
    if (!Dead()) Tree()->Layout().ScrollTo(*this);
}

TRect HTreeNode::DisplayRect(bool textOnly) {
    if (Dead() || FList->RowOf(*this) < 0) return {};
    const HTreePlaces places = Tree()->Layout().PlacesOf(*this);
    return textOnly ? places.Text : places.Row;
}

void HTreeNode::SetSelected(bool value) {
    if (Dead()) return;
    if (value)
        Tree()->Select(this);
    else if (Tree()->SelectedNode() == this)
        Tree()->Select(nullptr);
}

// ------------------------------------------------------------------------------------------ all nodes

HTreeNodeList::~HTreeNodeList() {
    BuryAll();
}

void HTreeNodeList::Attach(HCustomTreeView& tree, std::string_view nodeClass) {
    FTree = &tree;
    FNodeDef = Kit().ClassDefs().FindDef(nodeClass);
}

HTreeNode* HTreeNodeList::After(const HTreeNode& node, bool skip) {
    if (node.FFirst && !skip) return node.FFirst;
    const HTreeNode* step = &node;
    while (step && !step->FNext) step = step->FParent;
    return step ? step->FNext : nullptr;
}

HTreeNode& HTreeNodeList::Add(HTreeNode* parent, std::string text) {
    auto* node = static_cast<HTreeNode*>(FNodeDef->Make(Kit(), *FNodeDef).release());
    node->FText = std::move(text);
    node->FList = this;
    node->FParent = parent;
    node->FLevel = parent ? parent->FLevel + 1 : 0;
    HTreeNode*& first = parent ? parent->FFirst : FFirst;
    HTreeNode*& last = parent ? parent->FLast : FLast;
    node->FPrev = last;
    (last ? last->FNext : first) = node;
    last = node;
    ++FCount;
    Changed();
    return *node;
}

void HTreeNodeList::Unlink(HTreeNode& node) {
    HTreeNode* parent = node.FParent;
    (node.FPrev ? node.FPrev->FNext : parent ? parent->FFirst : FFirst) = node.FNext;
    (node.FNext ? node.FNext->FPrev : parent ? parent->FLast : FLast) = node.FPrev;
    node.FNext = node.FPrev = nullptr;
    if (parent && !parent->FFirst) parent->FExpanded = false;
}

void HTreeNodeList::Bury(HTreeNode& node, TGrave& grave) {
    const std::size_t start = grave.size();
    grave.emplace_back(&node);
    for (std::size_t i = start; i < grave.size(); ++i) {
        for (HTreeNode* child = grave[i]->FFirst; child; child = child->FNext) grave.emplace_back(child);
        grave[i]->MarkDead();
        Kit().Forget(*grave[i]);
    }
    // Somebody may still hold one: it must not lead to the others.
    for (std::size_t i = start; i < grave.size(); ++i) {
        HTreeNode& dead = *grave[i];
        dead.FList = nullptr;
        dead.FParent = dead.FFirst = dead.FLast = dead.FNext = dead.FPrev = nullptr;
    }
    FCount -= grave.size() - start;
    Changed();
}

void HTreeNodeList::Delete(HTreeNode& node) {
    if (node.FList != this) return;
    Unlink(node);
    const auto grave = std::make_shared<TGrave>();
    Bury(node, *grave);
    Kit().Desktop().Bury(grave);
}

std::shared_ptr<HTreeNodeList::TGrave> HTreeNodeList::BuryAll() {
    const auto grave = std::make_shared<TGrave>();
    for (HTreeNode* root = FFirst; root;) {
        HTreeNode* next = root->FNext;
        Bury(*root, *grave);
        root = next;
    }
    FFirst = FLast = nullptr;
    return grave;
}

void HTreeNodeList::Clear() {
    if (FFirst) Kit().Desktop().Bury(BuryAll());
}

void HTreeNodeList::Changed() {
    FOrderKnown = FRowsKnown = false;
}

HTreeNode& HTreeNodeList::Item(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= FCount) throw ETreeViewError("Invalid index");
    if (!std::exchange(FOrderKnown, true)) {
        FOrder.clear();
        for (HTreeNode* node = FFirst; node; node = After(*node)) FOrder.push_back(node);
    }
    return *FOrder[static_cast<std::size_t>(index)];
}

const std::vector<HTreeNode*>& HTreeNodeList::Rows() {
    if (std::exchange(FRowsKnown, true)) return FRows;
    FRows.clear();
    for (HTreeNode* node = FFirst; node; node = After(*node, !node->FExpanded)) {
        node->FRow = FRows.size();
        FRows.push_back(node);
    }
    return FRows;
}

int HTreeNodeList::RowOf(const HTreeNode& node) {
    const std::vector<HTreeNode*>& rows = Rows();
    const bool shown = node.FRow < rows.size() && rows[node.FRow] == &node;
    return shown ? static_cast<int>(node.FRow) : -1;
}

void HTreeNodeList::StoreBlob(TName name, std::string bytes) {
    std::vector<HNodeLine> lines;
    if (!FNodeDef || !DecodeTreeNodes(NameText(name), bytes, lines)) {
        HObject::StoreBlob(name, std::move(bytes));
        return;
    }
    // A form that stands on another one gives all nodes anew.
    FTree->Clear();
    std::vector<HTreeNode*> last;
    for (HNodeLine& line : lines) {
        last.resize(line.Depth);
        last.push_back(&Add(last.empty() ? nullptr : last.back(), std::move(line.Text)));
    }
}

}  // namespace rux
