#include "platform/headless/toolkit/HShellCtrls.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

namespace {

std::string RootFolder(const HToolkit& kit, const std::string& root) {
    return kit.Files().DirectoryExists(root) ? root : "\\";
}

/// Whether the set in the control's property has the element; what is published nowhere has the usual ones.
bool Shows(const HObject& control, std::string_view objectType) {
    static const TName name = InternName("ObjectTypes");
    const TPropValue* types = control.Kept(name);
    if (!types) return objectType != "otHidden";
    return ("," + types->Text + ",").find("," + std::string(objectType) + ",") != std::string::npos;
}

std::vector<TFolderEntry> ReadShown(const HObject& control, const std::string& folder) {
    std::vector<TFolderEntry> entries = control.Kit().Files().ReadFolder(folder);
    const bool folders = Shows(control, "otFolders"), files = Shows(control, "otNonFolders"),
               hidden = Shows(control, "otHidden");
    std::erase_if(entries, [&](const TFolderEntry& entry) {
        return !(entry.IsFolder ? folders : files) || (!hidden && entry.Name.starts_with('.'));
    });
    std::sort(entries.begin(), entries.end(), [](const TFolderEntry& a, const TFolderEntry& b) {
        if (a.IsFolder != b.IsFolder) return a.IsFolder;
        const int order = CompareText(a.Name, b.Name);
        return order != 0 ? order < 0 : a.Name < b.Name;
    });
    return entries;
}

std::string Below(const std::string& folder, const std::string& name) {
    return IncludeTrailingPathDelimiter(folder) + name;
}

/// The names between the delimiters.
std::vector<std::string> PartsOf(std::string_view path) {
    std::vector<std::string> parts(1);
    for (TTextCursor at(path); !at.AtEnd(); at.Next()) {
        if (!at.Is('\\'))
            parts.back() += at.Char();
        else if (!parts.back().empty())
            parts.emplace_back();
    }
    if (parts.back().empty()) parts.pop_back();
    return parts;
}

/// What leads from the root down to the path; nothing for one that lies elsewhere.
std::optional<std::vector<std::string>> WayDown(const std::string& root, const std::string& path) {
    const std::vector<std::string> from = PartsOf(root);
    std::vector<std::string> to = PartsOf(path);
    const auto same = [](const std::string& a, const std::string& b) { return SameText(a, b); };
    if (to.size() < from.size() || !std::equal(from.begin(), from.end(), to.begin(), same))
        return std::nullopt;
    to.erase(to.begin(), to.begin() + static_cast<std::ptrdiff_t>(from.size()));
    return to;
}

}  // namespace

// ------------------------------------------------------------------------------------------ list view

std::string HShellListView::FolderDisplayName(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= FEntries.size())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return FEntries[static_cast<std::size_t>(index)].Name;
}

int HShellListView::SelectedIndex() {
    const HListItem* selected = FirstSelected();
    return selected ? IndexOf(*selected) : -1;
}

void HShellListView::SetRoot(const std::string& value) {
    FRoot = value;
    if (!Loading()) Refresh();
}

void HShellListView::Refresh() {
    constexpr int nameWidth = 200;
    Clear();
    if (ColumnCount() == 0) AddColumn("Name", nameWidth);
    FEntries = ReadShown(*this, RootFolder(Kit(), FRoot));
    for (const TFolderEntry& entry : FEntries) AddItem(entry.Name);
}

void HShellListView::Loaded() {
    With::Loaded();
    Refresh();
}

void HShellListView::EnterSelected() {
    static const TName autoNavigate = InternName("AutoNavigate");
    if (KeptOrdinal(autoNavigate, 1) == 0) return;
    const auto index = static_cast<std::size_t>(SelectedIndex());
    if (index >= FEntries.size() || !FEntries[index].IsFolder) return;
    SetRoot(Below(RootFolder(Kit(), FRoot), FEntries[index].Name));
}

void HShellListView::DblClick() {
    EnterSelected();
    With::DblClick();
}

// ------------------------------------------------------------------------------------------ combo box

std::string HShellComboBox::Path() {
    const auto index = static_cast<std::size_t>(ItemIndex());
    return index < FPaths.size() ? FPaths[index] : RootFolder(Kit(), FRoot);
}

void HShellComboBox::SetPath(const std::string& path) {
    if (!Kit().Files().DirectoryExists(path)) return;
    if (const auto below = WayDown(RootFolder(Kit(), FRoot), path)) Show(*below);
}

void HShellComboBox::SetRoot(const std::string& value) {
    FRoot = value;
    if (!Loading()) Show({});
}

void HShellComboBox::Loaded() {
    With::Loaded();
    Show({});
}

void HShellComboBox::Show(const std::vector<std::string>& below) {
    const std::string root = RootFolder(Kit(), FRoot);
    const std::vector<std::string> rootParts = PartsOf(root);
    std::vector<std::string> lines{rootParts.empty() ? root : rootParts.back()};
    std::size_t shown = 0;
    FPaths = {root};
    const auto goDown = [&] {
        std::string path = root;
        for (const std::string& name : below) {
            path = Below(path, name);
            FPaths.push_back(path);
            lines.push_back(name);
        }
        shown = lines.size() - 1;
    };
    bool isBelow = !below.empty();
    for (const TFolderEntry& entry : ReadShown(*this, root)) {
        if (isBelow && SameText(entry.Name, below.front())) {
            goDown();
            isBelow = false;
            continue;
        }
        FPaths.push_back(Below(root, entry.Name));
        lines.push_back(entry.Name);
    }
    // A hidden folder is shown where somebody asks for it.
    if (isBelow) goDown();
    ReplaceItems(std::move(lines));
    SetItemIndex(static_cast<int>(shown));
}

}  // namespace rux
