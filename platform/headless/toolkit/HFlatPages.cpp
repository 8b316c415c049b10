#include "platform/headless/toolkit/HFlatPages.h"

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void HTBXPageControl::SetTabFlag(int value) {
    FShowTabs = value;
    if (!Loading()) Arrange();
}

void HTBXTabItem::SetCaption(const std::string& caption) {
    FCaption = caption;
    if (FRow) FRow->MarkStale();
}

HTBXImageTabSet::HTBXImageTabSet(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    FClickEvents = false;
    auto items = std::make_unique<HCollection>(kit, *kit.ClassDefs().FindDef("TTBXTabItems"));
    FItems = items.get();
    Adopt(std::move(items));
}

std::string HTBXImageTabSet::TabItemCaption(int index) {
    if (index < 0 || index >= TabItemCount())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return static_cast<const HTBXTabItem&>(*Items().Items()[static_cast<std::size_t>(index)]).Caption();
}

std::vector<std::string> HTBXImageTabSet::Captions() const {
    std::vector<std::string> captions;
    for (const HObject* item : Items().Items())
        captions.push_back(static_cast<const HTBXTabItem*>(item)->Caption());
    return captions;
}

void HTBXImageTabSet::SetTabIndex(int value) {
    if (value == FTabIndex) return;
    // While a form file is read the index may come before the items.
    if (!Loading() && (value < -1 || value >= TabItemCount())) return;
    FTabIndex = value;
    if (!Loading()) Fire(Kit().Names().OnChange);
}

const HTabRow& HTBXImageTabSet::Row() {
    if (!FRow.Stale() && FRow.Count() == TabItemCount()) return FRow;
    for (HObject* item : Items().Items()) static_cast<HTBXTabItem*>(item)->ShowIn(FRow);
    FRow.Arrange(Captions(), HTabRaise, Height());
    return FRow;
}

void HTBXImageTabSet::SetBounds(const TRect& bounds) {
    HWinControl::SetBounds(bounds);
    FRow.MarkStale();
}

void HTBXImageTabSet::MouseDown(HMouseButton button, TPoint point) {
    HWinControl::MouseDown(button, point);
    if (Dead() || button != HMouseButton::Left) return;
    if (const int index = Row().At(point); index >= 0) SetTabIndex(index);
}

std::vector<HContentLine> HTBXImageTabSet::Content() {
    return TabLines(Captions(), FTabIndex);
}

}  // namespace rux
