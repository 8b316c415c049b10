#include "Engine/Locator/RUXPageFindAdapters.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLog.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/ExtraCtrls.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

/// The shown page, which is entered; then the others, which are not.
class TPageWalk : public TChildWalk {
 public:
    TPageWalk(TCustomPageControlFindAdapter& control, TObject* active)
        : FControl(&control), FActive(active) {}
    bool Next(TStep& step) override {
        if (!std::exchange(FActiveDone, true)) {
            // Without a class name, so that no class filter finds it.
            step.Finder = MakeIntf<TNoTypeWinControlFindAdapter>(FActive);
            return true;
        }
        while (FNext < FControl->GetPageCount()) {
            const int index = FNext++;
            TObject* page = FControl->GetPage(index);
            if (page == FActive || !FControl->IsPageTabVisible(index) || !FControl->AreTabsShown(index))
                continue;
            step.Finder = Engine().Registry->CreateFindAdapter(page);
            step.Enter = false;
            if (step.Finder) return true;
        }
        return false;
    }

 private:
    TIntf<TCustomPageControlFindAdapter> FControl;
    TObject* FActive;
    bool FActiveDone = false;
    int FNext = 0;
};

}  // namespace

// ------------------------------------------------------------------------------------------ page controls

std::string TCustomPageControlFindAdapter::GetContent() {
    std::string content;
    const int count = GetPageCount();
    for (int i = 0; i < count; ++i) content += (i == 0 ? "" : "|") + GetPageCaption(i);
    return content;
}

std::unique_ptr<TChildWalk> TCustomPageControlFindAdapter::StartWalk() {
    if (TObject* active = GetActivePage()) return std::make_unique<TPageWalk>(*this, active);
    if (GetPageCount() > 0) WarnOfNoActivePage();
    return nullptr;
}

bool TCustomPageControlFindAdapter::AreTabsShown(int) {
    auto& page = Cast<TControl>(GetActivePage());
    return page.BoundsRect() != page.ClientRect();
}

void TCustomPageControlFindAdapter::WarnOfNoActivePage() {
    GetLogger().Warn(Instance()->ClassType().Name() + Ansi(": 没用默认的激活页面."));
}

TObject* TPageControlFindAdapter::GetActivePage() {
    return Cast<TPageControl>(Instance()).ActivePage();
}

TObject* TPageControlFindAdapter::GetPage(int index) {
    return Cast<TPageControl>(Instance()).Pages(index);
}

bool TPageControlFindAdapter::IsPageTabVisible(int index) {
    return Cast<TTabSheet>(GetPage(index)).TabVisible();
}

int TPageControlFindAdapter::GetPageCount() {
    return Cast<TPageControl>(Instance()).PageCount();
}

std::string TPageControlFindAdapter::GetPageCaption(int index) {
    return Cast<TControl>(GetPage(index)).Text();
}

bool TTBXPageControlFindAdapter::AreTabsShown(int) {
    return Cast<TTBXPageControl>(Instance()).TabFlag() == 1;
}

TObject* TFlatPageControlFindAdapter::GetActivePage() {
    auto& control = Cast<TFlatPageControl>(Instance());
    TObject* active = control.ActivePage();
    if (active || control.PageCount() != 1) return active;
    WarnOfNoActivePage();
    control.SetActivePage(control.Pages(0));
    return Cast<TFlatPageControl>(Instance()).ActivePage();
}

TObject* TFlatPageControlFindAdapter::GetPage(int index) {
    return Cast<TFlatPageControl>(Instance()).Pages(index);
}

bool TFlatPageControlFindAdapter::IsPageTabVisible(int index) {
    return Cast<TFlatTabSheet>(GetPage(index)).TabVisible();
}

int TFlatPageControlFindAdapter::GetPageCount() {
    return Cast<TFlatPageControl>(Instance()).PageCount();
}

std::string TFlatPageControlFindAdapter::GetPageCaption(int index) {
    return Cast<TControl>(GetPage(index)).Text();
}

// ------------------------------------------------------------------------------------------ pages

TRect TCustomTabSheetFindAdapter::GetBounds() {
    TObject* control = GetPageControl();
    // A page that stands on anything else has no tab.
    if (!control) return TWinControlFindAdapter::GetBounds();
    return GetTabRect().MovedBy(Cast<TControl>(control).ClientOrigin());
}

bool TCustomTabSheetFindAdapter::IsVisible() {
    return Cast<TControl>(Instance()).Visible();
}

int TCustomTabSheetFindAdapter::FindChildren(ICommonLocator& list) {
    return IsActive() ? TWinControlFindAdapter::FindChildren(list) : 0;
}

std::unique_ptr<TChildWalk> TCustomTabSheetFindAdapter::StartWalk() {
    return IsActive() ? TWinControlFindAdapter::StartWalk() : nullptr;
}

TObject* TTabSheetFindAdapter::GetPageControl() {
    return Cast<TTabSheet>(Instance()).PageControl();
}

bool TTabSheetFindAdapter::IsActive() {
    TObject* control = GetPageControl();
    return control && Cast<TPageControl>(control).ActivePage() == Instance();
}

TRect TTabSheetFindAdapter::GetTabRect() {
    const int index = Cast<TTabSheet>(Instance()).TabIndex();
    return Cast<TCustomTabControl>(GetPageControl()).TabRect(index);
}

TObject* TFlatTabSheetFindAdapter::GetPageControl() {
    return Cast<TFlatTabSheet>(Instance()).PageControl();
}

bool TFlatTabSheetFindAdapter::IsActive() {
    TObject* control = GetPageControl();
    return control && Cast<TFlatPageControl>(control).ActivePage() == Instance();
}

TRect TFlatTabSheetFindAdapter::GetTabRect() {
    auto& control = Cast<TFlatPageControl>(GetPageControl());
    if (!Cast<TFlatTabSheet>(Instance()).TabVisible()) return control.TabRect(-1);
    // The tab's place is the number of shown tabs before it.
    int tabs = 0;
    for (int i = 0; control.Pages(i) != Instance(); ++i)
        if (Cast<TFlatTabSheet>(control.Pages(i)).TabVisible()) ++tabs;
    return control.TabRect(tabs);
}

}  // namespace rux
