// List views.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/headless/toolkit/HListItem.h"
#include "platform/headless/toolkit/HListLayout.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

/// A change of an item's state fires OnChange, one of the selection OnSelectItem behind it. The handler may
/// have freed the item, or the view, when a method returns.
class HCustomListView : public With<HBorderedControl, TCustomListView> {
 public:
    HCustomListView(HToolkit& kit, const HClassDef& def);

    // TCustomListView
    int Count() override { return static_cast<int>(FItems.size()); }
    TObject* Item(int index) override { return &ItemAt(index); }
    TObject* Selected() override { return FirstSelected(); }
    TViewStyle ViewStyle() override;
    int ColumnCount() override { return FColumns->Count(); }
    std::string ColumnCaption(int index) override;
    bool RectVisible(const TRect& rect) override;

    // What code of the application does with items and columns. Nothing fires.
    HListItem& AddItem(std::string caption, std::vector<std::string> subItems = {});
    /// An index outside raises EListError, here and below.
    void Delete(int index);
    void Clear();
    void AddColumn(const std::string& caption, int width);

    HObject* ItemsObject() const { return FItemList; }
    HObject* ColumnsObject() const { return FColumns; }
    HListItem& ItemAt(int index);
    /// nil for none.
    HListItem* FirstSelected();
    bool IsMultiSelect() const { return Flag("MultiSelect"); }
    /// Width of a column in pixels.
    int ColumnWidth(int index) const;
    HListLayout Layout();

    // What items ask of their view.
    void SelectItem(HListItem& item, bool value);
    void CheckItem(HListItem& item, bool value);
    void ScrollTo(HListItem& item, bool partialOk);
    TRect RectOf(HListItem& item, TDisplayCode code);
    int IndexOf(const HListItem& item);

    bool WantsKey(unsigned key) override;
    std::vector<HContentLine> Content() override;

 protected:
    void DefaultHandler(HMessage& message) override;
    void Detach() override;
    /// Whether items show small images.
    virtual bool HasIcons() const;

 private:
    bool Flag(std::string_view property) const;
    void ChangeSelection(HListItem& item, bool value);
    /// Deselects all but that one; nil for all.
    void DeselectOthers(const HListItem* kept);
    void SelectAlone(HListItem& item);
    void ItemChanged(HListItem& item);
    void MouseOn(TPoint point, bool left);
    void KeyOn(unsigned key);

    /// Items mostly go from one of the ends.
    std::deque<std::unique_ptr<HListItem>> FItems;
    HListItems* FItemList;
    HCollection* FColumns;
    /// Items from here on may not know their place any more.
    int FFirstMoved = 0;
    int FSelectedCount = 0;
    /// No selected item lies before this one.
    int FFirstSelected = 0;
    HListItem* FFocused = nullptr;
    int FFirstLine = 0;
};

}  // namespace rux
