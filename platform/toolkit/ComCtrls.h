// Trees, list views, tabs, pages, status bars.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/toolkit/Classes.h"

namespace rux {

// ------------------------------------------------------------------------------------------- trees

/// A node of a tree: a live object without a name, which dies with its tree at the latest.
class TTreeNode {
 public:
    static constexpr TFacetId Id = TFacetId::TreeNode;
    virtual std::string Text() = 0;
    /// The handle of the item in the tree's window; not 0.
    virtual HTreeItem ItemId() = 0;
    /// nil for a root, the last child, a leaf.
    virtual TObject* Parent() = 0;
    virtual TObject* GetNextSibling() = 0;
    virtual TObject* GetFirstChild() = 0;
    /// 0 for a root.
    virtual int Level() = 0;
    /// Also without any child, where the application promised some for later.
    virtual bool HasChildren() = 0;
    virtual bool Expanded() = 0;
    /// Fires OnExpanding, which may refuse, and OnExpanded; or their opposites.
    virtual void SetExpanded(bool value) = 0;
    /// Expands what is above the node and scrolls it into view.
    virtual void MakeVisible() = 0;
    /// In client coordinates; empty for a node that a collapsed one hides.
    virtual TRect DisplayRect(bool textOnly) = 0;
    /// Fires OnChanging, which may refuse, and OnChange.
    virtual void SetSelected(bool value) = 0;

 protected:
    ~TTreeNode() = default;
};

class TCustomTreeView {
 public:
    static constexpr TFacetId Id = TFacetId::CustomTreeView;
    /// Of Items: all nodes in depth-first order.
    virtual int Count() = 0;
    /// Raises ETreeViewError "Invalid index" for an index outside.
    virtual TObject* Item(int index) = 0;
    /// nil for an empty tree.
    virtual TObject* GetFirstNode() = 0;
    /// nil for none.
    virtual TObject* Selected() = 0;
    virtual void SetSelected(TObject* node) = 0;
    /// One line for each node: a tab for each level above it, its text. Raises EFCreateError.
    virtual void SaveToFile(const std::string& fileName) = 0;
    /// The dynamic method that ends a label edit by the user: OnEdited may change the text, and the node
    /// whose handle `item` has takes it. Nothing for an item without a text.
    virtual void Edit(const TTVItem& item) = 0;

 protected:
    ~TCustomTreeView() = default;
};

// ------------------------------------------------------------------------------------------- list views

enum class TViewStyle { Icon, SmallIcon, List, Report };
/// Which part of an item a rectangle is about.
enum class TDisplayCode { Bounds, Icon, Label, SelectBounds };

/// An item of a list view: a live object without a name, which dies with its view at the latest.
class TListItem {
 public:
    static constexpr TFacetId Id = TFacetId::ListItem;
    /// Column 0.
    virtual std::string Caption() = 0;
    /// Columns from 1 on.
    virtual TStrings& SubItems() = 0;
    virtual bool Checked() = 0;
    virtual void SetChecked(bool value) = 0;
    /// Fires OnSelectItem and OnChange, not OnClick.
    virtual void SetSelected(bool value) = 0;
    virtual void MakeVisible(bool partialOk) = 0;
    /// In client coordinates.
    virtual TRect DisplayRect(TDisplayCode code) = 0;

 protected:
    ~TListItem() = default;
};

class TCustomListView {
 public:
    static constexpr TFacetId Id = TFacetId::CustomListView;
    virtual int Count() = 0;
    /// Raises EListError for an index outside.
    virtual TObject* Item(int index) = 0;
    /// The first selected item; nil for none.
    virtual TObject* Selected() = 0;
    virtual TViewStyle ViewStyle() = 0;
    virtual int ColumnCount() = 0;
    virtual std::string ColumnCaption(int index) = 0;
    /// RectVisible of its canvas: some of the rectangle would be painted.
    virtual bool RectVisible(const TRect& rect) = 0;

 protected:
    ~TCustomListView() = default;
};

// ------------------------------------------------------------------------------------------- tabs and pages

/// Everything with the system's row of tabs; page controls too.
class TCustomTabControl {
 public:
    static constexpr TFacetId Id = TFacetId::CustomTabControl;
    /// Texts of the tabs; those of a page control are the captions of the pages that have a tab.
    virtual TStrings& Tabs() = 0;
    /// -1 for none. Setting fires nothing; the page of a page control that belongs to the tab is shown by
    /// Change.
    virtual int TabIndex() = 0;
    virtual void SetTabIndex(int value) = 0;
    /// In client coordinates; empty for an index outside.
    virtual TRect TabRect(int index) = 0;
    /// Fires OnChanging and answers whether the tab may be changed.
    virtual bool CanChange() = 0;
    /// Shows what belongs to the tab and fires OnChange.
    virtual void Change() = 0;

 protected:
    ~TCustomTabControl() = default;
};

class TPageControl {
 public:
    static constexpr TFacetId Id = TFacetId::PageControl;
    /// nil for none.
    virtual TObject* ActivePage() = 0;
    /// Fires nothing.
    virtual void SetActivePage(TObject* page) = 0;
    virtual int PageCount() = 0;
    /// Raises EListError for an index outside.
    virtual TObject* Pages(int index) = 0;

 protected:
    ~TPageControl() = default;
};

class TTabSheet {
 public:
    static constexpr TFacetId Id = TFacetId::TabSheet;
    /// nil for none.
    virtual TObject* PageControl() = 0;
    virtual bool TabVisible() = 0;
    /// Among the pages that have a tab; -1 without one.
    virtual int TabIndex() = 0;

 protected:
    ~TTabSheet() = default;
};

class TTabSet {
 public:
    static constexpr TFacetId Id = TFacetId::TabSet;
    virtual TStrings& Tabs() = 0;
    virtual int TabIndex() = 0;
    /// Fires OnChange, which may refuse, and OnClick.
    virtual void SetTabIndex(int value) = 0;
    /// In client coordinates; empty for an index outside.
    virtual TRect ItemRect(int index) = 0;

 protected:
    ~TTabSet() = default;
};

// ------------------------------------------------------------------------------------------- status bars

class TStatusBar {
 public:
    static constexpr TFacetId Id = TFacetId::StatusBar;
    virtual int PanelCount() = 0;
    virtual std::string PanelText(int index) = 0;

 protected:
    ~TStatusBar() = default;
};

}  // namespace rux
