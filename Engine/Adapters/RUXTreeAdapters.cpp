#include "Engine/Adapters/RUXTreeAdapters.h"

#include "Engine/Adapters/RUXTreeFile.h"
#include "Engine/Adapters/RUXTreePaths.h"
#include "Engine/Core/RUXClasses.h"
#include "Engine/Input/RUXInput.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

// ------------------------------------------------------------------------------------------ nodes

TCustomTreeView& TSolviTreeAdapter::Tree() const {
    return Cast<TCustomTreeView>(FControl);
}

TObject* TSolviTreeAdapter::NodeNamed(const std::string& path) const {
    TObject* node = FindNodeByPath(Tree().GetFirstNode(), path);
    // A second net: so far the search itself raises.
    if (!node) RaiseNotFound(path);
    return node;
}

void TSolviTreeAdapter::RaiseNotFound(const std::string& path) {
    RaiseAdapterError(Ansi("TreeView中没有找到:") + path);
}

TObject* TSolviTreeAdapter::NodeOrSelected(const std::string& path) const {
    return IsBlank(path) ? Tree().Selected() : NodeNamed(path);
}

TObject* TSolviTreeAdapter::NodeAt(std::int32_t index) const {
    SetFocus();
    // The place in the text asks for a string, so that the formatting fails with EConvertError. Kept: it is
    // what controllers know a wrong index by.
    if (index < 1 || index > Tree().Count()) RaiseAdapterErrorFmt(Ansi("索引[%s]非法。"), {index});
    return Tree().Item(index - 1);
}

void TSolviTreeAdapter::ShowSelected() const {
    Cast<TTreeNode>(Tree().Selected()).MakeVisible();
}

void TSolviTreeAdapter::ClickNode(TObject* node, bool isDouble) const {
    Cast<TTreeNode>(node).MakeVisible();
    const TRect rect = Cast<TTreeNode>(node).DisplayRect(true);
    if (rect.Left == rect.Right || rect.Top == rect.Bottom) {
        Cast<TTreeNode>(node).SetSelected(true);
        // A single click says so too: controllers know the text.
        throw ERUXException(
            Format(Ansi("Tree中的节点[%s]不可显示，DblClick方法失败！"), {Cast<TTreeNode>(node).Text()}));
    }
    if (isDouble)
        DblClickRect(WindowHandle(), rect);
    else
        ClickRect(WindowHandle(), rect, false);
}

void TSolviTreeAdapter::SetNodeChecked(TObject* node, bool value) const {
    if (Is<TRichTreeView>(FControl))
        Cast<TRichTreeView>(FControl).SetNodeChecked(node, value);
    else
        Cast<TRichTreeNode>(node).SetCheckState(value ? 1 : 0);
}

void TSolviTreeAdapter::EditNodeText(TObject* node, std::string text) const {
    // Bits of the state by which the tree is told that the parameter names the node.
    constexpr std::uint32_t byParam = 4;
    Assert(node != nullptr);
    TTVItem item;
    item.Mask = TVIF_TEXT;
    item.Item = Cast<TTreeNode>(node).ItemId();
    item.State = byParam;
    item.Text = text.data();
    item.Param = static_cast<LParam>(node->RefNumber());
    Tree().Edit(item);
}

// ------------------------------------------------------------------------------------------ the selection

std::string TSolviTreeAdapter::Selected() {
    return GetNodePath(Tree().Selected());
}

std::string TSolviTreeAdapter::GetText() {
    return Cast<TTreeNode>(Tree().Selected()).Text();
}

void TSolviTreeAdapter::SetText(const std::string& S) {
    TObject* node = Tree().Selected();
    if (!node) throw ERUXException(Ansi("当前没有选中节点"));
    EditNodeText(node, S);
}

void TSolviTreeAdapter::Select(const std::string& ANameArr) {
    SetFocus();
    Tree().SetSelected(NodeNamed(ANameArr));
    if (!Tree().Selected()) RaiseNotFound(ANameArr);
    ShowSelected();
}

void TSolviTreeAdapter::SelectbyIndex(std::int32_t AIndex) {
    Tree().SetSelected(NodeAt(AIndex));
    ShowSelected();
}

void TSolviTreeAdapter::SelectNodes(const std::string& AFileName) {
    TTreeFileReader file(AFileName);
    std::string path;
    while (file.Next(path)) Select(path);
}

// ------------------------------------------------------------------------------------------ nodes by path

void TSolviTreeAdapter::Click(const std::string& ANameArr) {
    SetFocus();
    ClickNode(NodeNamed(ANameArr), false);
}

void TSolviTreeAdapter::DblClick(const std::string& ANameArr) {
    ClickNode(NodeNamed(ANameArr), true);
}

void TSolviTreeAdapter::SetText(const std::string& ANameArr, const std::string& AValue) {
    TObject* node = FindNodeByPath(Tree().GetFirstNode(), ANameArr);
    // A second net with a text of its own.
    if (!node) throw ERUXException(Format(Ansi("没有找到节点%s"), {ANameArr}));
    EditNodeText(node, AValue);
}

void TSolviTreeAdapter::SetChecked(const std::string& ANameArr, bool AValue) {
    SetNodeChecked(NodeNamed(ANameArr), AValue);
}

void TSolviTreeAdapter::SetCheckedbyIndex(std::int32_t AIndex, bool AValue) {
    SetNodeChecked(NodeAt(AIndex), AValue);
}

void TSolviTreeAdapter::SetExpand(const std::string& ANameArr) {
    Cast<TTreeNode>(NodeOrSelected(ANameArr)).SetExpanded(true);
}

bool TSolviTreeAdapter::GetExpanded(const std::string& ANameArr) {
    return Cast<TTreeNode>(NodeOrSelected(ANameArr)).Expanded();
}

std::int32_t TSolviTreeAdapter::GetLevel(const std::string& ANameArr) {
    return Cast<TTreeNode>(NodeOrSelected(ANameArr)).Level() + 1;
}

bool TSolviTreeAdapter::IsLeaf(const std::string& ANameArr) {
    return !Cast<TTreeNode>(NodeNamed(ANameArr)).HasChildren();
}

bool TSolviTreeAdapter::FindTreeNode(const std::string& ANameArr) {
    return SearchNode(Tree().GetFirstNode(), ANameArr) != nullptr;
}

std::string TSolviTreeAdapter::GetTextByIndex(std::int32_t AIndex) {
    return Cast<TTreeNode>(NodeAt(AIndex)).Text();
}

// ------------------------------------------------------------------------------------------ the whole tree

std::int32_t TSolviTreeAdapter::GetCount() {
    return Tree().Count();
}

void TSolviTreeAdapter::SaveTreeData(const std::string& AFileName) {
    Tree().SaveToFile(AFileName);
}

}  // namespace rux
