#include "Engine/Locator/RUXMenuFindAdapters.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Menus.h"

namespace rux {

namespace {

constexpr int ItemSize = 10;

/// The items of one level that a person could see.
class TMenuWalk : public TChildWalk {
 public:
    explicit TMenuWalk(TObject* item) : FItem(item) {}
    bool Next(TStep& step) override {
        while (FNext < Cast<TMenuItem>(FItem).Count()) {
            TObject* item = Cast<TMenuItem>(FItem).Items(FNext++);
            if (!Cast<TMenuItem>(item).Visible() || Cast<TMenuItem>(item).Caption() == "-") continue;
            step.Finder = MakeIntf<TTMenuItemFindAdapter>(item);
            return true;
        }
        return false;
    }

 private:
    TObject* FItem;
    int FNext = 0;
};

/// The first control with a window among the owners; nil for none.
TObject* OwningControl(TObject* object) {
    do object = Cast<TComponent>(object).Owner();
    while (object && !Is<TWinControl>(object));
    return object;
}

}  // namespace

std::string TTMenuItemFindAdapter::GetCaption() {
    const TPropertyNames& names = Engine().PropertyNames;
    for (const TName name : {names.Caption, names.Text, names.Hint}) {
        TPropValue value;
        if (Instance()->GetProp(name, value) && !value.Text.empty()) return std::move(value.Text);
    }
    return GetClassName();
}

TRect TTMenuItemFindAdapter::GetBounds() {
    TObject* owner = OwningControl(Instance());
    if (!owner) return TRUXFindAdapter::GetBounds();
    auto& control = Cast<TControl>(owner);
    const TPoint origin = control.ClientOrigin();
    const TRect around = control.BoundsRect();
    const int left = origin.X + around.Width() / 2;
    // Upwards from item to item, and the bottom above the top: so the last item of a menu is the first in
    // reading order. Kept, since scripts count by it.
    const int top = origin.Y - around.Height() / 2 - ItemSize * Cast<TMenuItem>(Instance()).MenuIndex();
    return {left, top, left + ItemSize, top - ItemSize};
}

bool TTMenuItemFindAdapter::IsVisible() {
    return Cast<TMenuItem>(Instance()).Visible();
}

std::unique_ptr<TChildWalk> TTMenuItemFindAdapter::StartWalk() {
    if (Cast<TMenuItem>(Instance()).Count() == 0) return nullptr;
    return std::make_unique<TMenuWalk>(Instance());
}

std::unique_ptr<TChildWalk> TPopupMenuFindAdapter::StartWalk() {
    TObject* root = Cast<TPopupMenu>(Instance()).Items();
    const TIntf<IFindAdapter> finder = root ? Engine().Registry->CreateFindAdapter(root) : nullptr;
    // All finders descend from this class; the registry only does not know it.
    return finder ? static_cast<TRUXFindAdapter&>(*finder).StartWalk() : nullptr;
}

}  // namespace rux
