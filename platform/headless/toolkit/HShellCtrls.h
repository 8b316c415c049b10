// Controls that show folders of the machine.
#pragma once

#include <string>
#include <vector>

#include "platform/FileService.h"
#include "platform/headless/toolkit/HCombos.h"
#include "platform/headless/toolkit/HListView.h"
#include "platform/toolkit/ShellCtrls.h"

namespace rux {

/// The entries of one folder, as they were when it was read: folders first, then files.
class HShellListView : public With<HCustomListView, TShellListView> {
 public:
    using With::With;

    // TShellListView
    std::string FolderDisplayName(int index) override;
    int SelectedIndex() override;

    /// A folder, or a name of the system's such as rfDesktop. What is no folder here shows the root of all.
    const std::string& Root() const { return FRoot; }
    void SetRoot(const std::string& value);
    /// Reads the folder anew.
    void Refresh();
    void Loaded() override;

 protected:
    /// A folder is entered before the event.
    void DblClick() override;
    bool HasIcons() const override { return true; }

 private:
    void EnterSelected();
    std::string FRoot = "rfDesktop";
    /// As many as there are items, unless the application has changed those.
    std::vector<TFolderEntry> FEntries;
};

/// The root, its folders, and below one of them the way down to the folder that is shown.
class HShellComboBox : public With<HCustomComboBoxEx, TShellComboBox> {
 public:
    using With::With;

    // TShellComboBox
    std::string Path() override;
    void SetPath(const std::string& path) override;

    /// As of the list view.
    const std::string& Root() const { return FRoot; }
    void SetRoot(const std::string& value);
    void Loaded() override;

 private:
    void Show(const std::vector<std::string>& below);
    std::string FRoot = "rfDesktop";
    /// The folders behind the items.
    std::vector<std::string> FPaths;
};

}  // namespace rux
