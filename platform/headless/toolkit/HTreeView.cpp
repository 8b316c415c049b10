#include "platform/headless/toolkit/HTreeView.h"

#include <algorithm>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Text.h"

namespace rux {

HCustomTreeView::HCustomTreeView(HToolkit& kit, const HClassDef& def, std::string_view nodeClass)
    : With(kit, def) {
    FTabStop = true;
    auto nodes = kit.MakeAs<HTreeNodeList>("TTreeNodes");
    nodes->Attach(*this, nodeClass);
    FNodes = &static_cast<HTreeNodeList&>(Adopt(std::move(nodes)));
}

void HCustomTreeView::Detach() {
    Clear();
    With::Detach();
}

// ------------------------------------------------------------------------------------------ nodes

void HCustomTreeView::DeleteNode(HTreeNode& node) {
    if (node.Tree() != this) return;
    const bool chosen = FSelected && (FSelected == &node || FSelected->IsBelow(node));
    if (chosen)
        FSelected = node.NextNode() ? node.NextNode() : node.PrevNode() ? node.PrevNode() : node.ParentNode();
    HEventArgs args;
    args.Object = FSelected;
    FNodes->Delete(node);
    if (chosen) Fire(Kit().Names().OnChange, args);
}

void HCustomTreeView::Clear() {
    FSelected = nullptr;
    FNodes->Clear();
}

void HCustomTreeView::Select(HTreeNode* node) {
    if (node == FSelected || Dead() || (node && node->Tree() != this)) return;
    HEventArgs changing;
    changing.Object = node;
    // That nothing is to be selected any more is not asked about.
    if (node) Fire(Kit().Names().OnChanging, changing);
    if (!changing.Allow || Dead() || (node && node->Dead())) return;
    FSelected = node;
    if (node) node->MakeVisible();
    // Code may have chosen another one while the nodes above expanded, and said so itself.
    if (Dead() || FSelected != node) return;
    HEventArgs args;
    args.Object = node;
    Fire(Kit().Names().OnChange, args);
}

void HCustomTreeView::Edit(const TTVItem& item) {
    if (!item.Text) return;
    auto* node = dynamic_cast<HTreeNode*>(Kit().Find(item.Item));
    if (node && node->Tree() != this) node = nullptr;
    HEventArgs args;
    args.Text = item.Text;
    args.Object = node;
    Fire(Kit().Names().OnEdited, args);
    if (node && !node->Dead()) node->SetText(std::move(args.Text));
}

void HCustomTreeView::SaveToFile(const std::string& fileName) {
    std::string text;
    for (HTreeNode* node = FNodes->First(); node; node = HTreeNodeList::After(*node)) {
        text.append(static_cast<std::size_t>(node->Level()), '\t');
        text += node->TextRef() + "\r\n";
    }
    if (Kit().Files().WriteFile(fileName, text)) return;
    const bool folder = Kit().Files().DirectoryExists(ExtractFilePath(fileName));
    throw EFCreateError("Cannot create file \"" + fileName + "\". " +
                        (folder ? "Access is denied" : "The system cannot find the path specified"));
}

std::vector<HContentLine> HCustomTreeView::Content() {
    std::vector<HContentLine> lines;
    for (HTreeNode* node = FNodes->First(); node; node = HTreeNodeList::After(*node)) {
        std::string state = node->Expanded() ? "expanded" : "";
        const auto add = [&](const char* word) { state += (state.empty() ? "" : ", ") + std::string(word); };
        const auto* rich = dynamic_cast<HRichTreeNode*>(node);
        if (rich && rich->Checked()) add("checked");
        if (node == FSelected) add("selected");
        lines.push_back({"node", static_cast<std::size_t>(node->Level()), {node->TextRef()}, state});
    }
    return lines;
}

// ------------------------------------------------------------------------------------------ the user

void HCustomTreeView::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
            Press(message.Point());
            return;
        case WM_LBUTTONDBLCLK: {
            HTreeNode* node = FLayout.NodeAt(message.Point());
            if (node && FLayout.PlacesOf(*node).Text.Contains(message.Point()))
                node->SetExpanded(!node->Expanded());
            return;
        }
        case WM_KEYDOWN:
            Key(static_cast<unsigned>(message.W));
            return;
        default:
            With::DefaultHandler(message);
    }
}

void HCustomTreeView::Press(TPoint point) {
    Kit().Desktop().SetFocus(Window());
    HTreeNode* node = Dead() ? nullptr : FLayout.NodeAt(point);
    if (!node) return;
    const HTreePlaces places = FLayout.PlacesOf(*node);
    if (places.Button.Contains(point))
        node->SetExpanded(!node->Expanded());
    else if (places.Check.Contains(point))
        ToggleCheck(*node);
    else if (places.Text.Contains(point))
        Select(node);
}

void HCustomTreeView::GoToRow(int row) {
    const std::vector<HTreeNode*>& rows = FNodes->Rows();
    if (rows.empty()) return;
    const int last = static_cast<int>(rows.size()) - 1;
    Select(rows[static_cast<std::size_t>(std::clamp(row, 0, last))]);
}

void HCustomTreeView::Key(unsigned key) {
    HTreeNode* node = FSelected;
    const int row = node ? FNodes->RowOf(*node) : -1;
    switch (key) {
        case VK_UP:
            return GoToRow(row - 1);
        case VK_DOWN:
            return GoToRow(row + 1);
        case VK_HOME:
            return GoToRow(0);
        case VK_END:
            return GoToRow(FNodes->Count());
        case VK_LEFT:
            if (node && node->Expanded())
                node->SetExpanded(false);
            else if (node && node->ParentNode())
                Select(node->ParentNode());
            return;
        case VK_RIGHT:
            if (node && !node->Expanded())
                node->SetExpanded(true);
            else if (node)
                Select(node->FirstNode());
            return;
        case VK_SPACE:
            if (node && HasCheckBoxes()) ToggleCheck(*node);
            return;
        default:
            return;
    }
}

// ------------------------------------------------------------------------------------------ check boxes

void HRichTreeView::SetNodeChecked(TObject* object, bool value) {
    auto* node = dynamic_cast<HRichTreeNode*>(object);
    if (!node || node->Tree() != this) RaiseNilAccess();
    if (node->CheckState() == (value ? 1 : 0)) return;
    node->SetCheckState(value ? 1 : 0);
    HEventArgs args;
    args.Object = node;
    args.Value = node->CheckState();
    static const TName onNodeChecked = InternName("OnNodeChecked");
    Fire(onNodeChecked, args);
}

void HRichTreeView::ToggleCheck(HTreeNode& node) {
    SetNodeChecked(&node, !static_cast<HRichTreeNode&>(node).Checked());
}

}  // namespace rux
