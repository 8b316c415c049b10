// Tabs, pages, status bars.
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"
#include "platform/win32/toolkit/WBridgeFamily.h"

namespace rux {

namespace {

class WTabs final : public WBridgeFamily,
                    public TCustomTabControl,
                    public TPageControl,
                    public TTBXPageControl {
 public:
    explicit WTabs(const WHandle& handle) : FHandle(handle), FTabs(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::CustomTabControl) return static_cast<TCustomTabControl*>(this);
        if (id == TFacetId::PageControl) return static_cast<TPageControl*>(this);
        return id == TFacetId::TBXPageControl ? static_cast<TTBXPageControl*>(this) : nullptr;
    }
    TStrings& Tabs() override { return FTabs; }
    int TabIndex() override { return FHandle.Integer(RUX_INDEX); }
    void SetTabIndex(int value) override { FHandle.Set(RUX_INDEX, WInteger(value)); }
    TRect TabRect(int index) override { return FHandle.Bridge.EntryBounds(FHandle.Ref, index); }
    bool CanChange() override { return FHandle.Flag(RUX_CAN_CHANGE); }
    void Change() override { FHandle.Invoke(RUX_CHANGE); }
    TObject* ActivePage() override { return FHandle.Other(RUX_ACTIVE_PAGE); }
    void SetActivePage(TObject* page) override { FHandle.Set(RUX_ACTIVE_PAGE_SET, WObject(page)); }
    int PageCount() override { return FHandle.Count(RUX_PAGES); }
    TObject* Pages(int index) override { return FHandle.Child(RUX_PAGES, index); }
    int TabFlag() override { return FHandle.Integer(RUX_TAB_FLAG); }

 private:
    const WHandle FHandle;
    WLines FTabs;
};

class WFlatPages final : public WBridgeFamily, public TFlatPageControl {
 public:
    explicit WFlatPages(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override { return id == Id ? static_cast<TFlatPageControl*>(this) : nullptr; }
    TObject* ActivePage() override { return FHandle.Other(RUX_ACTIVE_PAGE); }
    void SetActivePage(TObject* page) override { FHandle.Set(RUX_ACTIVE_PAGE_SET, WObject(page)); }
    int PageCount() override { return FHandle.Count(RUX_PAGES); }
    TObject* Pages(int index) override { return FHandle.Child(RUX_PAGES, index); }
    TRect TabRect(int index) override { return FHandle.Bridge.EntryBounds(FHandle.Ref, index); }

 private:
    const WHandle FHandle;
};

class WSheet final : public WBridgeFamily, public TTabSheet, public TFlatTabSheet {
 public:
    explicit WSheet(const WHandle& handle) : FHandle(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::TabSheet) return static_cast<TTabSheet*>(this);
        return id == TFacetId::FlatTabSheet ? static_cast<TFlatTabSheet*>(this) : nullptr;
    }
    TObject* PageControl() override { return FHandle.Other(RUX_PAGE_CONTROL); }
    bool TabVisible() override { return FHandle.Flag(RUX_TAB_VISIBLE); }
    int TabIndex() override { return FHandle.Integer(RUX_INDEX); }

 private:
    const WHandle FHandle;
};

class WTabSet final : public WBridgeFamily, public TTabSet, public TTBXImageTabSet {
 public:
    explicit WTabSet(const WHandle& handle) : FHandle(handle), FTabs(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::TabSet) return static_cast<TTabSet*>(this);
        return id == TFacetId::TBXImageTabSet ? static_cast<TTBXImageTabSet*>(this) : nullptr;
    }
    TStrings& Tabs() override { return FTabs; }
    int TabItemCount() override { return FTabs.Count(); }
    std::string TabItemCaption(int index) override { return FTabs.Get(index); }
    int TabIndex() override { return FHandle.Integer(RUX_INDEX); }
    void SetTabIndex(int value) override { FHandle.Set(RUX_INDEX, WInteger(value)); }
    TRect ItemRect(int index) override { return FHandle.Bridge.EntryBounds(FHandle.Ref, index); }

 private:
    const WHandle FHandle;
    WLines FTabs;
};

class WStatusBar final : public WBridgeFamily, public TStatusBar, public TTBXStatusBar {
 public:
    explicit WStatusBar(const WHandle& handle) : FPanels(handle) {}
    void* Facet(TFacetId id) override {
        if (id == TFacetId::StatusBar) return static_cast<TStatusBar*>(this);
        return id == TFacetId::TBXStatusBar ? static_cast<TTBXStatusBar*>(this) : nullptr;
    }
    int PanelCount() override { return FPanels.Count(); }
    std::string PanelText(int index) override { return FPanels.Get(index); }

 private:
    WLines FPanels;
};

}  // namespace

std::unique_ptr<WBridgeFamily> MakePageFamily(const WHandle& handle, const TClass& type) {
    if (type.Is(TFacetId::CustomTabControl)) return std::make_unique<WTabs>(handle);
    if (type.Is(TFacetId::FlatPageControl)) return std::make_unique<WFlatPages>(handle);
    if (type.Is(TFacetId::TabSheet) || type.Is(TFacetId::FlatTabSheet))
        return std::make_unique<WSheet>(handle);
    if (type.Is(TFacetId::TabSet) || type.Is(TFacetId::TBXImageTabSet))
        return std::make_unique<WTabSet>(handle);
    if (type.Is(TFacetId::StatusBar) || type.Is(TFacetId::TBXStatusBar))
        return std::make_unique<WStatusBar>(handle);
    return nullptr;
}

}  // namespace rux
