// Controls of libraries beyond the toolkit: trees with check boxes, flat page controls, the TBX family.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/toolkit/Classes.h"

namespace rux {

class TRichTreeView {
 public:
    static constexpr TFacetId Id = TFacetId::RichTreeView;
    /// As the user does it: the tree's events fire.
    virtual void SetNodeChecked(TObject* node, bool value) = 0;

 protected:
    ~TRichTreeView() = default;
};

class TRichTreeNode {
 public:
    static constexpr TFacetId Id = TFacetId::RichTreeNode;
    /// 0 for unchecked, 1 for checked, 2 for grayed.
    virtual int CheckState() = 0;
    /// Fires nothing.
    virtual void SetCheckState(int value) = 0;

 protected:
    ~TRichTreeNode() = default;
};

/// A page control that draws its tabs itself.
class TFlatPageControl {
 public:
    static constexpr TFacetId Id = TFacetId::FlatPageControl;
    /// nil for none: nothing chooses a page by itself.
    virtual TObject* ActivePage() = 0;
    virtual void SetActivePage(TObject* page) = 0;
    virtual int PageCount() = 0;
    /// Raises EListError for an index outside.
    virtual TObject* Pages(int index) = 0;
    /// Of the shown tabs, in client coordinates; empty for an index outside.
    virtual TRect TabRect(int index) = 0;

 protected:
    ~TFlatPageControl() = default;
};

class TFlatTabSheet {
 public:
    static constexpr TFacetId Id = TFacetId::FlatTabSheet;
    /// nil for none.
    virtual TObject* PageControl() = 0;
    virtual bool TabVisible() = 0;

 protected:
    ~TFlatTabSheet() = default;
};

class TTBXPageControl {
 public:
    static constexpr TFacetId Id = TFacetId::TBXPageControl;
    /// Other than 1: the tabs are hidden.
    virtual int TabFlag() = 0;

 protected:
    ~TTBXPageControl() = default;
};

class TTBXImageTabSet {
 public:
    static constexpr TFacetId Id = TFacetId::TBXImageTabSet;
    virtual int TabItemCount() = 0;
    virtual std::string TabItemCaption(int index) = 0;
    virtual int TabIndex() = 0;
    virtual void SetTabIndex(int value) = 0;
    /// In client coordinates; empty for an index outside.
    virtual TRect ItemRect(int index) = 0;

 protected:
    ~TTBXImageTabSet() = default;
};

class TTBXStatusBar {
 public:
    static constexpr TFacetId Id = TFacetId::TBXStatusBar;
    virtual int PanelCount() = 0;
    virtual std::string PanelText(int index) = 0;

 protected:
    ~TTBXStatusBar() = default;
};

}  // namespace rux
