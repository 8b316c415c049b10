// List boxes, combo boxes, list views, menus.
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Menus.h"
#include "platform/toolkit/ShellCtrls.h"
#include "platform/toolkit/StdCtrls.h"
#include "platform/win32/toolkit/WBridgeFamily.h"

namespace rux {

namespace {

class WListBox final : public WBridgeFamily, public TCustomListBox, public TCheckListBox {
 public:
    explicit WListBox(const WHandle& handle) : FHandle(handle), FItems(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::CustomListBox) return static_cast<TCustomListBox*>(this);
        return id == TFacetId::CheckListBox ? static_cast<TCheckListBox*>(this) : nullptr;
    }
    TStrings& Items() override { return FItems; }
    int ItemIndex() override { return FHandle.Integer(RUX_INDEX); }
    void SetItemIndex(int value) override { FHandle.Set(RUX_INDEX, WInteger(value)); }
    bool Selected(int index) override { return Entry(RUX_SELECTED_LINES, index); }
    TRect ItemRect(int index) override { return FHandle.Bridge.EntryBounds(FHandle.Ref, index); }
    bool Checked(int index) override { return Entry(RUX_CHECKED_LINES, index); }
    void SetChecked(int index, bool value) override {
        FHandle.Bridge.SetEntry(FHandle.Ref, RUX_CHECKED_LINES, index, WFlag(value));
    }

 private:
    bool Entry(std::int32_t row, int index) const {
        return FHandle.Bridge.EntryOf(FHandle.Ref, row, index).Ordinal != 0;
    }
    const WHandle FHandle;
    WLines FItems;
};

class WCombo final : public WBridgeFamily, public TCustomCombo, public TShellComboBox {
 public:
    explicit WCombo(const WHandle& handle) : FHandle(handle), FItems(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::CustomCombo) return static_cast<TCustomCombo*>(this);
        return id == TFacetId::ShellComboBox ? static_cast<TShellComboBox*>(this) : nullptr;
    }
    TStrings& Items() override { return FItems; }
    int ItemIndex() override { return FHandle.Integer(RUX_INDEX); }
    void SetItemIndex(int value) override { FHandle.Set(RUX_INDEX, WInteger(value)); }
    void SetText(const std::string& text) override { FHandle.Set(RUX_TEXT, WText(text)); }
    std::string Path() override { return FHandle.Text(RUX_PATH); }
    void SetPath(const std::string& path) override { FHandle.Set(RUX_PATH, WText(path)); }

 private:
    const WHandle FHandle;
    WLines FItems;
};

class WListView final : public WBridgeFamily, public TCustomListView, public TShellListView {
 public:
    explicit WListView(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::CustomListView) return static_cast<TCustomListView*>(this);
        return id == TFacetId::ShellListView ? static_cast<TShellListView*>(this) : nullptr;
    }
    int Count() override { return FHandle.Count(RUX_LIST_ITEMS); }
    TObject* Item(int index) override { return FHandle.Child(RUX_LIST_ITEMS, index); }
    TObject* Selected() override { return FHandle.Other(RUX_SELECTED); }
    TViewStyle ViewStyle() override { return static_cast<TViewStyle>(FHandle.Integer(RUX_VIEW_STYLE)); }
    int ColumnCount() override { return FHandle.Count(RUX_COLUMNS); }
    std::string ColumnCaption(int index) override {
        return FHandle.Bridge.EntryText(FHandle.Ref, RUX_COLUMNS, index);
    }
    /// As far as the client area tells: what other windows cover counts as visible.
    bool RectVisible(const TRect& rect) override {
        const TRect room = FHandle.Bridge.Bounds(FHandle.Ref, RUX_CLIENT);
        return rect.Left < rect.Right && rect.Top < rect.Bottom && rect.Left < room.Right &&
               rect.Right > room.Left && rect.Top < room.Bottom && rect.Bottom > room.Top;
    }
    std::string FolderDisplayName(int index) override {
        return FHandle.Bridge.EntryText(FHandle.Ref, RUX_FOLDERS, index);
    }
    int SelectedIndex() override { return FHandle.Integer(RUX_INDEX); }

 private:
    const WHandle FHandle;
};

class WListItem final : public WBridgeFamily, public TListItem {
 public:
    explicit WListItem(const WHandle& handle) : FHandle(handle), FSubItems(handle) {}
    void* Facet(TFacetId id) override { return id == Id ? static_cast<TListItem*>(this) : nullptr; }
    std::string Caption() override { return FHandle.Text(RUX_TEXT); }
    TStrings& SubItems() override { return FSubItems; }
    bool Checked() override { return FHandle.Flag(RUX_CHECKED); }
    void SetChecked(bool value) override { FHandle.Set(RUX_CHECKED, WFlag(value)); }
    void SetSelected(bool value) override { FHandle.Set(RUX_SELECTED_FLAG, WFlag(value)); }
    void MakeVisible(bool) override { FHandle.Invoke(RUX_MAKE_VISIBLE); }
    TRect DisplayRect(TDisplayCode code) override {
        return FHandle.Bridge.Bounds(FHandle.Ref, RUX_ITEM + static_cast<int>(code));
    }

 private:
    const WHandle FHandle;
    WLines FSubItems;
};

class WMenuItem final : public WBridgeFamily, public TMenuItem {
 public:
    explicit WMenuItem(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override { return id == Id ? static_cast<TMenuItem*>(this) : nullptr; }
    std::string Caption() override { return FHandle.Text(RUX_TEXT); }
    bool Visible() override { return FHandle.Flag(RUX_VISIBLE); }
    bool Enabled() override { return FHandle.Flag(RUX_ENABLED); }
    bool Checked() override { return FHandle.Flag(RUX_CHECKED); }
    void Click() override { FHandle.Invoke(RUX_CLICK); }
    int Count() override { return FHandle.Count(RUX_MENU_ITEMS); }
    TObject* Items(int index) override { return FHandle.Child(RUX_MENU_ITEMS, index); }
    int MenuIndex() override { return FHandle.Integer(RUX_INDEX); }

 private:
    const WHandle FHandle;
};

class WPopupMenu final : public WBridgeFamily, public TPopupMenu {
 public:
    explicit WPopupMenu(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override { return id == Id ? static_cast<TPopupMenu*>(this) : nullptr; }
    TObject* Items() override { return FHandle.Other(RUX_ROOT_ITEM); }

 private:
    const WHandle FHandle;
};

}  // namespace

std::unique_ptr<WBridgeFamily> MakeListFamily(const WHandle& handle, const TClass& type) {
    if (type.Is(TFacetId::CustomListBox)) return std::make_unique<WListBox>(handle);
    if (type.Is(TFacetId::CustomCombo)) return std::make_unique<WCombo>(handle);
    if (type.Is(TFacetId::CustomListView)) return std::make_unique<WListView>(handle);
    if (type.Is(TFacetId::ListItem)) return std::make_unique<WListItem>(handle);
    if (type.Is(TFacetId::MenuItem)) return std::make_unique<WMenuItem>(handle);
    if (type.Is(TFacetId::PopupMenu)) return std::make_unique<WPopupMenu>(handle);
    return nullptr;
}

}  // namespace rux
