// List view and combo box over folders of the machine.
#pragma once

#include <string>

#include "platform/toolkit/Classes.h"

namespace rux {

class TShellListView {
 public:
    static constexpr TFacetId Id = TFacetId::ShellListView;
    /// Display name of the entry behind item `index`; raises EListError for an index outside.
    virtual std::string FolderDisplayName(int index) = 0;
    /// Index of the first selected item, -1 for none.
    virtual int SelectedIndex() = 0;

 protected:
    ~TShellListView() = default;
};

class TShellComboBox {
 public:
    static constexpr TFacetId Id = TFacetId::ShellComboBox;
    /// The folder that is shown, with backslashes.
    virtual std::string Path() = 0;
    /// Selects the folder's item. A folder that does not exist leaves everything as it is.
    virtual void SetPath(const std::string& path) = 0;

 protected:
    ~TShellComboBox() = default;
};

}  // namespace rux
