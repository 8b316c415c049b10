#include "platform/headless/toolkit/HListView.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

/// As high as the painter draws them.
constexpr int HeaderHeight = 18;
/// What the header adds to the width of its text.
constexpr int HeaderMargin = 12;

std::string CaptionOf(const HObject& column) {
    static const TName caption = InternName("Caption");
    const TPropValue* value = column.Kept(caption);
    return value ? value->Text : std::string();
}

}  // namespace

HCustomListView::HCustomListView(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    FTabStop = true;
    auto items = kit.MakeAs<HListItems>("TListItems");
    items->SetView(*this);
    FItemList = items.get();
    Adopt(std::move(items));
    auto columns = kit.MakeAs<HCollection>("TListColumns");
    FColumns = columns.get();
    Adopt(std::move(columns));
}

void HCustomListView::Detach() {
    for (const auto& item : FItems) item->End();
    With::Detach();
}

bool HCustomListView::Flag(std::string_view property) const {
    return KeptOrdinal(FindName(property)) != 0;
}

TViewStyle HCustomListView::ViewStyle() {
    static const TName name = InternName("ViewStyle");
    return static_cast<TViewStyle>(std::clamp<std::int64_t>(KeptOrdinal(name), 0, 3));
}

// ------------------------------------------------------------------------------------------ items, columns

HListItem& HCustomListView::AddItem(std::string caption, std::vector<std::string> subItems) {
    const HClassDef& def = *Kit().ClassDefs().FindDef("TListItem");
    const int place = Count();
    if (FFirstMoved == place) ++FFirstMoved;
    HListItem& item = *FItems.emplace_back(std::make_unique<HListItem>(Kit(), def));
    item.Enter(*this, place);
    item.SetCaption(std::move(caption));
    item.SubItems().SetLines(std::move(subItems));
    return item;
}

HListItem& HCustomListView::ItemAt(int index) {
    if (index < 0 || index >= Count())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return *FItems[static_cast<std::size_t>(index)];
}

void HCustomListView::Delete(int index) {
    HListItem& item = ItemAt(index);
    if (item.IsSelected()) --FSelectedCount;
    if (index < FFirstSelected) --FFirstSelected;
    if (FFocused == &item) FFocused = nullptr;
    FFirstMoved = std::min(FFirstMoved, index);
    item.End();
    const auto place = FItems.begin() + index;
    // A handler of the item may be on the stack.
    Kit().Desktop().Bury(std::shared_ptr<HListItem>(std::move(*place)));
    FItems.erase(place);
}

void HCustomListView::Clear() {
    if (FItems.empty()) return;
    for (const auto& item : FItems) item->End();
    Kit().Desktop().Bury(std::make_shared<decltype(FItems)>(std::exchange(FItems, {})));
    FFirstMoved = FSelectedCount = FFirstSelected = FFirstLine = 0;
    FFocused = nullptr;
}

int HCustomListView::IndexOf(const HListItem& item) {
    // No further than that: items may go one by one.
    for (; item.Place() >= FFirstMoved; ++FFirstMoved)
        FItems[static_cast<std::size_t>(FFirstMoved)]->SetPlace(FFirstMoved);
    return item.Place();
}

void HCustomListView::AddColumn(const std::string& caption, int width) {
    HObject& column = FColumns->Add(Kit().Make("TListColumn"));
    column.SetProp(InternName("Caption"), HStringValue(caption));
    column.SetProp(InternName("Width"), HIntegerValue(width));
}

std::string HCustomListView::ColumnCaption(int index) {
    if (index < 0 || index >= ColumnCount())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return CaptionOf(*FColumns->Items()[static_cast<std::size_t>(index)]);
}

int HCustomListView::ColumnWidth(int index) const {
    static const TName width = InternName("Width");
    const HObject& column = *FColumns->Items()[static_cast<std::size_t>(index)];
    const std::int64_t stored = column.KeptOrdinal(width);
    // Below 0: as wide as the texts need it.
    if (stored < 0) return HCanvas::TextWidth(CaptionOf(column)) + HeaderMargin;
    return static_cast<int>(std::min<std::int64_t>(stored, HCoordLimit));
}

// ------------------------------------------------------------------------------------------ places

bool HCustomListView::HasIcons() const {
    static const TName images = InternName("SmallImages");
    const TPropValue* value = Kept(images);
    return value && value->Object;
}

HListLayout HCustomListView::Layout() {
    HListLayout layout;
    const TRect room = ClientRect();
    layout.Style = ViewStyle();
    layout.ClientWidth = room.Width();
    layout.ClientHeight = room.Height();
    layout.CheckBoxes = Flag("Checkboxes");
    layout.Icons = HasIcons();
    if (layout.Style == TViewStyle::Report) {
        layout.HeaderHeight = Flag("ShowColumnHeaders") ? HeaderHeight : 0;
        for (int i = 0; i < ColumnCount() && layout.AllColumns < HCoordLimit; ++i)
            layout.AllColumns += ColumnWidth(i);
        layout.FirstColumn = ColumnCount() > 0 ? ColumnWidth(0) : 0;
    }
    // Items may have gone, and the style or the size may be another one since the view was scrolled.
    const int lines = Count() == 0 ? 0 : layout.LineOf(Count() - 1) + 1;
    FFirstLine = std::clamp(FFirstLine, 0, std::max(0, lines - layout.LinesShown(false)));
    layout.FirstLine = FFirstLine;
    return layout;
}

TRect HCustomListView::RectOf(HListItem& item, TDisplayCode code) {
    return Layout().Place(IndexOf(item), code, HCanvas::TextWidth(item.CaptionRef()));
}

bool HCustomListView::RectVisible(const TRect& rect) {
    const TRect room = ClientRect();
    return std::max(rect.Left, room.Left) < std::min(rect.Right, room.Right) &&
           std::max(rect.Top, room.Top) < std::min(rect.Bottom, room.Bottom);
}

void HCustomListView::ScrollTo(HListItem& item, bool partialOk) {
    const HListLayout layout = Layout();
    const int line = layout.LineOf(IndexOf(item)), shown = layout.LinesShown(partialOk);
    if (line < FFirstLine)
        FFirstLine = line;
    else if (line >= FFirstLine + shown)
        FFirstLine = line - layout.LinesShown(false) + 1;
}

// ------------------------------------------------------------------------------------------ selection

HListItem* HCustomListView::FirstSelected() {
    if (FSelectedCount == 0) return nullptr;
    while (!FItems[static_cast<std::size_t>(FFirstSelected)]->IsSelected()) ++FFirstSelected;
    return FItems[static_cast<std::size_t>(FFirstSelected)].get();
}

void HCustomListView::ItemChanged(HListItem& item) {
    if (Loading()) return;
    HEventArgs args;
    args.Object = &item;
    Fire(Kit().Names().OnChange, args);
}

void HCustomListView::ChangeSelection(HListItem& item, bool value) {
    if (item.IsSelected() == value) return;
    item.KeepSelected(value);
    FSelectedCount += value ? 1 : -1;
    if (value) FFirstSelected = std::min(FFirstSelected, IndexOf(item));
    ItemChanged(item);
    if (Dead() || item.Dead() || Loading()) return;
    HEventArgs args;
    args.Value = value ? 1 : 0;
    args.Object = &item;
    Fire(Kit().Names().OnSelectItem, args);
}

void HCustomListView::DeselectOthers(const HListItem* kept) {
    // A handler may select and free others meanwhile: each goes once, what comes up then stays.
    std::vector<HRef<HListItem>> others;
    const int wanted = FSelectedCount;
    if (HListItem* first = FirstSelected())
        for (int i = IndexOf(*first); static_cast<int>(others.size()) < wanted; ++i)
            if (HListItem& item = ItemAt(i); item.IsSelected()) others.emplace_back(&item);
    for (const auto& other : others) {
        if (Dead()) return;
        if (HListItem* item = other.Get(); item && item != kept) ChangeSelection(*item, false);
    }
}

void HCustomListView::SelectAlone(HListItem& item) {
    DeselectOthers(&item);
    if (Dead() || item.Dead()) return;
    // A handler may have selected yet another one: where there is room for one only, it goes without a word.
    while (!IsMultiSelect() && !item.IsSelected() && FSelectedCount > 0) {
        FirstSelected()->KeepSelected(false);
        --FSelectedCount;
    }
    ChangeSelection(item, true);
}

void HCustomListView::SelectItem(HListItem& item, bool value) {
    if (value && !IsMultiSelect())
        SelectAlone(item);
    else
        ChangeSelection(item, value);
}

void HCustomListView::CheckItem(HListItem& item, bool value) {
    if (item.IsChecked() == value) return;
    item.KeepChecked(value);
    ItemChanged(item);
}

// ------------------------------------------------------------------------------------------ input

void HCustomListView::MouseOn(TPoint point, bool left) {
    const HListLayout layout = Layout();
    const int index = layout.IndexAt(point);
    HListItem* item = index >= 0 && index < Count() ? &ItemAt(index) : nullptr;
    if (item && left && layout.CheckBox(index).Contains(point)) {
        CheckItem(*item, !item->IsChecked());
        return;
    }
    const TDisplayCode code = Flag("RowSelect") ? TDisplayCode::Bounds : TDisplayCode::SelectBounds;
    if (!item || !RectOf(*item, code).Contains(point)) {
        DeselectOthers(nullptr);
        return;
    }
    FFocused = item;
    if (left && IsMultiSelect() && Kit().Desktop().KeyIsDown(VK_CONTROL))
        ChangeSelection(*item, !item->IsSelected());
    else if (left || !item->IsSelected())
        SelectAlone(*item);
}

void HCustomListView::KeyOn(unsigned key) {
    if (FItems.empty()) return;
    HListItem* from = FFocused ? FFocused : FirstSelected();
    const int last = Count() - 1, at = from ? IndexOf(*from) : -1;
    int next = at;
    if (key == VK_UP) next = at - 1;
    if (key == VK_DOWN) next = at + 1;
    if (key == VK_HOME) next = 0;
    if (key == VK_END) next = last;
    if (next == at) return;
    HListItem& item = ItemAt(std::clamp(next, 0, last));
    FFocused = &item;
    ScrollTo(item, false);
    SelectAlone(item);
}

bool HCustomListView::WantsKey(unsigned key) {
    return key >= VK_END && key <= VK_DOWN;
}

void HCustomListView::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            Kit().Desktop().SetFocus(Window());
            if (!Dead()) MouseOn(message.Point(), message.Number == WM_LBUTTONDOWN);
            return;
        case WM_KEYDOWN:
            KeyOn(static_cast<unsigned>(message.W));
            return;
        default:
            With::DefaultHandler(message);
    }
}

// ------------------------------------------------------------------------------------------ dump

std::vector<HContentLine> HCustomListView::Content() {
    std::vector<HContentLine> lines;
    for (int i = 0; i < ColumnCount(); ++i) lines.push_back({"column", 0, {ColumnCaption(i)}});
    for (const auto& item : FItems) {
        HContentLine& line = lines.emplace_back();
        line.Kind = "item";
        line.Texts = {item->CaptionRef()};
        const std::vector<std::string>& more = item->SubItems().Lines();
        line.Texts.insert(line.Texts.end(), more.begin(), more.end());
        if (item->IsSelected()) line.State = "selected";
        if (item->IsChecked()) line.State += line.State.empty() ? "checked" : ", checked";
    }
    return lines;
}

}  // namespace rux
